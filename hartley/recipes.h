// The design table of the Hartley transform: for each length the factorisation of the real DFT that
// it is made of, and how.
#pragma once

#include <optional>

#include "kernelgen/fold.h"
#include "kernelgen/precision.h"
#include "real_blocks/recipe.h"

namespace haldgen::hartley {

inline constexpr int kFirstLength = 2;
inline constexpr int kLastLength = 64;

/// H[k] = Re X[k] - Im X[k] and H[N-k] = Re X[k] + Im X[k], X the DFT.
enum class Structure {
  paired,      ///< the graph of the half spectrum, then these pairs
  transposed,  ///< that graph with its edges reversed, since the transform is symmetric: pairs
               ///< first
};

struct Design {
  Structure structure;
  real_blocks::Recipe recipe;
  /// Which constants of the half spectrum's graph meet.
  kernelgen::Into fold = kernelgen::Into::foldable;
  kernelgen::WideSums wide_sums = {};
};

const Design& design_of(int length);

}  // namespace haldgen::hartley
