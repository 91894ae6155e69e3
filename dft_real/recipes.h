// The design table of the real DFT: for each length and direction the factorisation, and what the
// factorisation leaves open.
#pragma once

#include <vector>

#include "kernelgen/fold.h"
#include "real_blocks/recipe.h"

namespace haldgen::dft_real {

inline constexpr int kFirstLength = 2;
inline constexpr int kLastLength = 64;

enum class Direction { forward, inverse };

struct Design {
  /// Written in the forward direction; an inverse kernel is its transpose.
  real_blocks::Recipe recipe;
  /// Bins whose imaginary part is formed as 0 minus its value. Inverse kernels negate nothing.
  std::vector<int> negated;
  /// Additions, beside those of statements with constants, that 32-bit kernels make in 64 bits.
  int wide_additions = 0;
  /// Which constants of the forward graph meet before it is transposed.
  kernelgen::Into fold_before_transposing = kernelgen::Into::foldable;
};

const Design& design_of(int length, Direction direction);

}  // namespace haldgen::dft_real
