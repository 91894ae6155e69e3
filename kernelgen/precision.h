// Which statements of a 32-bit kernel are computed in 64 bits. A statement with a constant is, and
// its result is narrowed once; sums without one are not, nor are doublings, which are exact.
#pragma once

#include "kernelgen/graph.h"

namespace haldgen::kernelgen {

/// Marks the statements with constants as wide: 64-bit arithmetic, narrowed once.
void widen_products(Graph& graph);

/// Marks as wide, besides, sums with `additions` additions in all that only wide statements use:
/// their 64-bit results are never narrowed. Of all sets that make up the number it is one with the
/// fewest conversions. Throws if none does.
void widen_sums(Graph& graph, int additions);

}  // namespace haldgen::kernelgen
