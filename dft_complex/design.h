// A row of the design table: every choice that belongs to a kernel of the complex DFT, and the
// programs that come of it.
#pragma once

#include <optional>

#include "dft_complex/recipe.h"
#include "kernelgen/forms.h"
#include "kernelgen/packed.h"
#include "kernelgen/paired.h"
#include "kernelgen/program.h"

namespace haldgen::dft_complex {

/// What an instruction of a kernel works on.
enum class Execution {
  packed,  ///< vectors of 128 bits: two elements of 32 bits, or one of 64
  scalar,  ///< single parts of elements
};

/// Where the products of a scalar kernel of 32-bit elements are formed.
enum class Products {
  narrow,  ///< in 32 bits
  wide,    ///< in 64 bits; each sum of them is narrowed once
};

/// How the inverse kernel follows from the forward one.
enum class Inverse {
  mirror,    ///< real and imaginary parts are exchanged at the loads and stores
  reversal,  ///< outputs 1..n-1 are reversed
};

struct Design {
  Recipe recipe;
  /// How packed kernels of 32-bit elements touch memory.
  kernelgen::Access access = kernelgen::Access::singles;
  Inverse inverse = Inverse::mirror;
  Execution execution = Execution::packed;
  Products products = Products::narrow;
  /// The signs that packed sums are held in, and so those of zeros. Scalar ones are always held as
  /// written.
  kernelgen::Signs signs = kernelgen::Signs::free;
};

/// The graph that is counted and valued; both directions have it.
kernelgen::Graph graph_of(const Design& design);

/// The programs of both directions, not yet scheduled. Which of many choices of forms of like cost
/// both have hangs on `seed`; none of them changes a bit of a result, but for the signs of zeros,
/// in which the directions agree.
struct Programs {
  kernelgen::Program forward;
  kernelgen::Program inverse;
};
/// Pairs that are given are made of packed programs; scalar kernels with narrow products are packed
/// for it, in the signs that they have.
struct PairsOf {
  std::optional<kernelgen::Pairs> forward = {};
  std::optional<kernelgen::Pairs> inverse = {};
};
Programs programs_of(const Design& design, kernelgen::FloatType type, int seed,
                     const PairsOf& pairs = {});

}  // namespace haldgen::dft_complex
