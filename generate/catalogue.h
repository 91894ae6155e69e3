// What the catalogue of kernels says of each, as far as the generator knows it.
#pragma once

#include <iosfwd>

namespace haldgen::generate {

/// One JSON object a line for each transform, kernels of plans included:
///
///     family, kernel, type, additions, multiplications, depth, conversions
///     algorithm   the recipe; of whole generated kernels and of parts of plans
///     stages      names of the steps of the algorithm
///     nodes       the graph, in order of definition: the index of an input, or a sum,
///                 [stage, [node, power of i, constant or 0], ...]; node -1 is the number zero
///     outputs     [node, power of i] each
///
/// Lengths that are planned at run time have counts only.
void write_catalogue(std::ostream& out);

}  // namespace haldgen::generate
