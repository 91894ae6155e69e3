// Operation counts of a graph: the figures that a kernel promises.
#pragma once

#include "kernelgen/graph.h"

namespace haldgen::kernelgen {

struct Counts {
  int additions = 0;        ///< real additions and subtractions
  int multiplications = 0;  ///< real multiplications by constants other than 1, -1 and 0
  int depth = 0;            ///< longest chain of such operations from an input to an output

  friend bool operator==(const Counts&, const Counts&) = default;
};

/// Fillers and the final scaling are left out.
Counts count(const Graph& graph);

}  // namespace haldgen::kernelgen
