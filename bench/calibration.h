// What the machine itself needs: the floor under every figure of the tables.
#pragma once

#include "bench/core/contestant.h"
#include "frame/families.h"

namespace haldgen::bench {

/// A function with the arguments of a kernel that returns at once, called like a kernel.
Contestant null_call_contestant();

/// Additions of 128-bit vectors in enough independent chains to fill every adder. One call of the
/// contestant makes `vector_adds_per_call` of them.
Contestant vector_add_contestant(frame::Element element);

inline constexpr int vector_adds_per_call = 14 * 16;

/// Real elements in one vector: 2 for `Cplx64`, 4 for `Cplx32`.
int lanes(frame::Element element);

}  // namespace haldgen::bench
