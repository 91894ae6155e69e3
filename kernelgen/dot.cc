#include "kernelgen/dot.h"

#include "kernelgen/emit.h"

namespace haldgen::kernelgen {
namespace {

constexpr const char* kTurn[4] = {"+", "+i", "-", "-i"};

}  // namespace

std::string to_dot(const Graph& graph) {
  std::string text = "digraph kernel {\n  rankdir=LR;\n  node [shape=box, fontname=monospace];\n";
  for (const int index : live_nodes(graph)) {
    const Statement& s = graph.node(index);
    const std::string name = "n" + std::to_string(index);
    std::string label = name;
    if (s.input) label = "x[" + std::to_string(*s.input) + "]";
    if (is_plain_copy(s)) label += " copy";
    if (!s.input && s.terms.empty()) label = "0";
    text += "  " + name + " [label=\"" + label + "\"];\n";
    for (const Term& t : s.terms) {
      std::string factor = kTurn[at(t.turn)];
      if (t.constant != kNoConstant) {
        factor += " " + literal(to_double(graph.constant(t.constant)), FloatType::f64);
      }
      text += "  n" + std::to_string(t.node) + " -> " + name + " [label=\"" + factor + "\"];\n";
    }
  }
  for (std::size_t k = 0; k < graph.outputs().size(); ++k) {
    const Value v = graph.outputs()[k];
    const std::string name = "y" + std::to_string(k);
    text += "  " + name + " [label=\"X[" + std::to_string(k) + "]\"];\n  n" +
            std::to_string(v.node) + " -> " + name + " [label=\"" + kTurn[at(v.turn)] + "\"];\n";
  }
  return text + "}\n";
}

}  // namespace haldgen::kernelgen
