// Lowering: from packed nodes and the forms chosen for them, or from a scalar graph, to a program.
#pragma once

#include <map>
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

/// What the scale of the call multiplies where an output is the 64-bit result of a wide statement
/// and nothing else.
enum class Scaled {
  result,  ///< that result; it is narrowed after the scale and the sign
  kept,    ///< the narrowed result
};

/// What a lane-parallel program takes from memory besides its sequences.
struct LaneInputs {
  int lanes = 1;  ///< 1 for a scalar program over arrays
  /// The constants that are read at run time, and their places in the table behind the inputs.
  std::map<ConstantId, int> table;
  /// Each sequence lies contiguous in memory: slot k holds elements V (k/V) ... of sequence k mod
  /// V, and loading transposes squares of V by V; sequences shorter than V, which are pairs, follow
  /// one another through the slots. Else slot k holds element k of all V sequences.
  bool transposed = false;
};

/// Program of a real graph over V independent sequences, one in each lane, without a scale. Its
/// statements are products, sums and differences of two; an output with a minus costs a negation
/// (orient_outputs() turns differences around so that there is none).
Program lower_lanes(const Graph& graph, FloatType type, const LaneInputs& inputs);

/// Scalar program of a real graph.
Program lower_scalar(const Graph& graph, FloatType type, Scaled scaled = Scaled::result);

}  // namespace haldgen::kernelgen
