// Designs of lengths that the table has no row for, made of the blocks that it has.
#pragma once

#include "dft_complex/design.h"

namespace haldgen::dft_complex {

/// A prime is a Rader kernel: of 64-bit elements with joined pairs; of 32-bit ones with literal
/// constants, as two elements fill a vector there and equal work on them is what is cheap. Any
/// other length is two stages of table rows, coprime where the factors are. Of all ways it is the
/// one with the fewest operations on vectors, and of those that are even the one with the fewest
/// operations.
Design design_by_rule(int length, kernelgen::FloatType type);

}  // namespace haldgen::dft_complex
