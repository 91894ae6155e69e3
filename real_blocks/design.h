// A row of a design table of real data: every choice that belongs to a kernel, and the graph and
// program that come of it.
#pragma once

#include <optional>
#include <vector>

#include "kernelgen/fold.h"
#include "kernelgen/orient.h"
#include "kernelgen/precision.h"
#include "kernelgen/program.h"
#include "real_blocks/recipe.h"

namespace haldgen::real_blocks {

/// What a kernel makes of the half spectrum X of its recipe, the parts of bins 0..N/2.
enum class Structure {
  spectrum,  ///< the forward real DFT: X itself
  samples,   ///< the inverse real DFT: the transpose of X, fed with doubled parts
  paired,    ///< the Hartley transform H[k] = Re X[k] - Im X[k], H[N-k] = Re X[k] + Im X[k]
  paired_transposed,  ///< the same with the edges of its graph reversed, since it is symmetric:
                      ///< pairs first
};

struct Design {
  Recipe recipe;
  Structure structure;
  /// Which constants of the graph of the half spectrum meet. After a transposition all do.
  kernelgen::Into fold = kernelgen::Into::foldable;
  /// Sums without constants that 32-bit kernels make in 64 bits.
  kernelgen::WideSums wide_sums = {};
  /// Bins whose imaginary part is formed as 0 minus its value. Unless said, a forward DFT takes the
  /// signs as the recipe leaves them, and others, which have no such bins, negate no output.
  std::optional<std::vector<int>> negated = {};
  /// Differences that the formulas write the other way round than they come about.
  std::vector<kernelgen::Way> turned = {};
};

/// The design with these differences turned.
Design turned(Design design, std::vector<kernelgen::Way> differences);

/// The graph that is counted and valued; both element types have it. Inputs and outputs are samples
/// 0..N-1, or the parts of bins 0..N/2 in their order. Throws std::logic_error if an output cannot
/// have the sign that the design asks for.
kernelgen::Graph graph_of(const Design& design);

/// Additions and multiplications of the graph.
int operations_of(const Design& design);

/// The program, not yet scheduled.
kernelgen::Program program_of(const Design& design, kernelgen::FloatType type);

}  // namespace haldgen::real_blocks
