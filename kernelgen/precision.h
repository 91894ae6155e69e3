// Which statements of a 32-bit kernel are computed in 64 bits. A statement with a constant is, and
// its result is narrowed once; sums without one are not, nor are doublings, which are exact.
#pragma once

#include <optional>

#include "kernelgen/graph.h"

namespace haldgen::kernelgen {

/// Marks the statements with constants as wide: 64-bit arithmetic, narrowed once.
void widen_products(Graph& graph);

/// Sums that are wide besides, though they have no constants: only wide statements use them, and
/// their 64-bit results are never narrowed. Said by how many additions they make and how many
/// conversions between 32 and 64 bits they cost or, below zero, save.
struct WideSums {
  int additions = 0;
  std::optional<int> conversions = {};  ///< as few as can be, if not said
};

/// Marks the first set of sums, in the order of the graph, that makes up the numbers. Throws if
/// none does.
void widen_sums(Graph& graph, WideSums sums);

}  // namespace haldgen::kernelgen
