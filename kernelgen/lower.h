// Lowering: from packed nodes and the forms chosen for them, or from a real graph, to a program.
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

/// What the scale of the call multiplies.
enum class Scaled {
  nothing,  ///< there is none
  result,   ///< each output; where that is the 64-bit result of a wide statement and nothing else,
            ///< this result, which is narrowed after the scale and the sign
  kept,     ///< each output, narrowed if it is wide
};

/// What the program of a real graph is made for.
struct Target {
  FloatType type = FloatType::f64;
  int lanes = 1;  ///< V independent sequences, one in each lane; 1 for a scalar program
  Memory memory = Memory::arrays;
  Scaled scaled = Scaled::result;
  /// The constants that are read at run time, and their places in the table behind the inputs.
  std::map<ConstantId, int> table = {};
  /// Each sequence lies contiguous in memory: vector k holds elements V (k/V) ... of sequence k mod
  /// V, and loading transposes squares of V by V; sequences shorter than V, which are pairs, follow
  /// one another through the vectors. Else vector k holds element k of all V sequences.
  bool transposed = false;
};

/// Program of a real graph. An output with a minus costs a negation (orient_outputs() turns
/// differences around so that there is none). Throws where nothing could carry a sign: at a sum of
/// minuses only, or a minus at a constant of the table; and at 64-bit statements of 32-bit lanes.
Program lower_real(const Graph& graph, const Target& target);

}  // namespace haldgen::kernelgen
