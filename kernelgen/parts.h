// Passes that lead the graph of complex values to the statements of a scalar kernel.
#pragma once

#include "kernelgen/graph.h"

namespace haldgen::kernelgen {

/// The real graph of a complex one: inputs and outputs 2k and 2k+1 are the parts of element k.
Graph split_parts(const Graph& graph);

/// Moves products that only one statement uses into that statement, as terms with constants, and
/// a sum that only one such statement uses as its first operand likewise: what is left of a line
/// of arithmetic with constants is one statement.
Graph gather_statements(const Graph& graph);

}  // namespace haldgen::kernelgen
