// From a recipe to statements: blocks on real data, on pairs of real and imaginary parts, and the
// half spectrum of a whole kernel.
#pragma once

#include <span>
#include <vector>

#include "kernelgen/element.h"
#include "real_blocks/recipe.h"

namespace haldgen::real_blocks {

/// A bin is its two parts; a part that is zero is the zero value. exp(-2 pi i / n) is the root.
using Bin = kernelgen::Parts;
using Reals = std::vector<kernelgen::Value>;
using Bins = std::vector<Bin>;

/// Bins 0..n/2 of n real values.
Bins real_bins(kernelgen::Graph& graph, const Recipe& recipe, const Reals& x);

/// All n bins of n complex values.
Bins complex_bins(kernelgen::Graph& graph, const Recipe& recipe, const Bins& x);

/// Bins j = 1, 3, .. up to n of sum over q of x[q] exp(-2 pi i j q / 2n), n real values.
Bins odd_bins(kernelgen::Graph& graph, const Recipe& recipe, const Reals& x);

/// The same for all odd j below 2n of complex values.
Bins complex_odd_bins(kernelgen::Graph& graph, const Recipe& recipe, const Bins& x);

/// The parts that bins have, in order: the real one, and the imaginary one where there is one.
Reals present_parts(const Bins& bins);

/// The kernel's forward graph: inputs 0..n-1, outputs the parts of bins 0..n/2.
kernelgen::Graph half_spectrum(const Recipe& recipe);

}  // namespace haldgen::real_blocks
