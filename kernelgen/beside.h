// Side by side: statements of a scalar program that do the same work on other data, two and two in
// the lanes of vectors (S. Larsen, S. Amarasinghe, Exploiting superword level parallelism with
// multimedia instruction sets, PLDI 2000). Bits stay: every lane rounds as its statement did.
#pragma once

#include "kernelgen/paired.h"
#include "kernelgen/program.h"

namespace haldgen::kernelgen {

/// The program with pairs of its instructions in vectors of two lanes. Pairs are looked for from
/// loads and from stored values that lie so far apart, counted around: where a sum and a difference
/// are made of both, these two are a pair, else the two themselves; and what hangs on a pair, or
/// makes it, follows as far as it is alike. Pairs that cost more than they save are given up.
Program beside(const Program& scalar, const Pairs& pairs);

/// What a program is taken to cost: instructions, where a conversion between 32 and 64 bits is two
/// and what one load does for two lanes is none.
int estimated_cost(const Program& program);

}  // namespace haldgen::kernelgen
