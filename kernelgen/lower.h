// Lowering: from packed nodes and the forms chosen for them, or from a scalar graph, to a program.
#pragma once

#include <vector>

#include "kernelgen/forms.h"
#include "kernelgen/packed.h"
#include "kernelgen/program.h"

namespace haldgen::kernelgen {

/// Vector program of a complex kernel, in the order of the packed nodes. With the choices of the
/// mirrored kernel, whose loads and stores have exchanged forms, it is the inverse kernel.
Program lower_packed(const PackedGraph& graph, const std::vector<Choice>& choices, FloatType type);

/// The real graph of a complex one: inputs and outputs 2k and 2k+1 are the parts of element k.
Graph split_parts(const Graph& graph);

/// Moves products that only one statement uses into that statement, as terms with constants, and
/// a sum that only one such statement uses as its first operand likewise: what is left of a line
/// of arithmetic with constants is one statement.
Graph gather_statements(const Graph& graph);

/// Scalar program of a real graph. An output that is the result of a wide statement and nothing
/// else is scaled, and negated where it carries a minus, before it is narrowed.
Program lower_scalar(const Graph& graph, FloatType type);

}  // namespace haldgen::kernelgen
