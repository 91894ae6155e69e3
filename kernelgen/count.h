// Operation counts of a graph: the figures that a kernel promises.
#pragma once

#include "kernelgen/graph.h"
#include "kernelgen/program.h"

namespace haldgen::kernelgen {

struct Counts {
  int additions = 0;        ///< real additions and subtractions
  int multiplications = 0;  ///< real multiplications by constants other than 1, -1 and 0
  int depth = 0;            ///< longest chain of such operations from an input to an output

  friend bool operator==(const Counts&, const Counts&) = default;
};

/// Plain copies and the final scaling are left out.
Counts count(const Graph& graph);

/// What a scalar program executes, by the precision of each operation. In programs on 64-bit
/// elements every operation is one in 64 bits.
struct Tally {
  struct Operations {
    int additions = 0;  ///< additions and subtractions, without negations
    int negations = 0;  ///< subtractions from zero
    int products = 0;   ///< multiplications by constants
    int scales = 0;     ///< multiplications by the scale of the call
  };
  Operations in32;
  Operations in64;
  int widenings = 0;
  int narrowings = 0;
  int depth = 0;  ///< longest chain of all these but the conversions, from a load to a store
};

Tally tally(const Program& program);

}  // namespace haldgen::kernelgen
