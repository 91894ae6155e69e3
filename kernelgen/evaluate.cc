#include "kernelgen/evaluate.h"

namespace haldgen::kernelgen {

std::vector<WideComplex> evaluate(const Graph& graph, std::span<const WideComplex> inputs) {
  std::vector<WideComplex> values(graph.nodes().size());
  for (const int index : live_nodes(graph)) {
    const Statement& statement = graph.node(index);
    WideComplex sum;
    if (statement.input) sum = inputs[at(*statement.input)];
    for (const Term& t : statement.terms) {
      const WideComplex operand = turned(values[static_cast<std::size_t>(t.node)], t.turn);
      sum = sum + (t.constant == kNoConstant ? operand : graph.constant(t.constant) * operand);
    }
    values[static_cast<std::size_t>(index)] = sum;
  }
  std::vector<WideComplex> outputs;
  for (const Value v : graph.outputs()) {
    outputs.push_back(turned(values[static_cast<std::size_t>(v.node)], v.turn));
  }
  return outputs;
}

}  // namespace haldgen::kernelgen
