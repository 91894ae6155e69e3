#include "kernelgen/count.h"

#include <algorithm>

namespace haldgen::kernelgen {

Counts count(const Graph& graph) {
  const int parts = graph.field() == Field::complex ? 2 : 1;
  Counts total;
  std::vector<int> depth(graph.nodes().size(), 0);
  for (const int index : live_nodes(graph)) {
    const Statement& statement = graph.node(index);
    if (statement.terms.empty()) continue;
    total.additions += parts * (static_cast<int>(statement.terms.size()) - 1);
    int chain = 0;
    for (std::size_t i = 0; i < statement.terms.size(); ++i) {
      const Term& t = statement.terms[i];
      const bool multiplied = t.constant != kNoConstant;
      total.multiplications += multiplied ? parts : 0;
      const int reach = depth[static_cast<std::size_t>(t.node)] + (multiplied ? 1 : 0);
      chain = i == 0 ? reach : std::max(chain, reach) + 1;
    }
    depth[static_cast<std::size_t>(index)] = chain;
  }
  for (const Value v : graph.outputs()) {
    total.depth = std::max(total.depth, depth[static_cast<std::size_t>(v.node)]);
  }
  return total;
}

Tally tally(const Program& program) {
  Tally total;
  std::vector<int> depth(program.code.size(), 0);
  for (std::size_t i = 0; i < program.code.size(); ++i) {
    const Instruction& in = program.code[i];
    const bool wide = in.wide || program.type == FloatType::f64;
    Tally::Operations& operations = wide ? total.in64 : total.in32;
    int arithmetic = 1;
    switch (in.op) {
      case Op::add:
      case Op::subtract:
        ++operations.additions;
        break;
      case Op::negate:
        ++operations.negations;
        break;
      case Op::multiply:
        ++operations.products;
        break;
      case Op::scale:
        ++operations.scales;
        break;
      case Op::widen:
        ++total.widenings;
        arithmetic = 0;
        break;
      case Op::narrow:
        ++total.narrowings;
        arithmetic = 0;
        break;
      default:
        arithmetic = 0;
    }
    for (const int operand : operands(in)) depth[i] = std::max(depth[i], depth[at(operand)]);
    depth[i] += arithmetic;
    total.depth = std::max(total.depth, depth[i]);
  }
  return total;
}

}  // namespace haldgen::kernelgen
