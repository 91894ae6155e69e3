#include "kernelgen/transpose.h"

namespace haldgen::kernelgen {

std::vector<Value> transpose_into(Graph& into, const Graph& forward, std::span<const Value> fed,
                                  int inputs) {
  std::vector<std::vector<Value>> contributions(forward.nodes().size());
  const auto contribute = [&](int node, Value v) {
    if (node != kZeroNode && !is_zero(v)) {
      contributions[static_cast<std::size_t>(node)].push_back(v);
    }
  };
  for (std::size_t i = 0; i < fed.size(); ++i) {
    const Value out = forward.outputs()[i];
    contribute(out.node, turned(fed[i], out.turn));
  }
  std::vector<Value> result(static_cast<std::size_t>(inputs));
  for (int node = static_cast<int>(forward.nodes().size()) - 1; node > 0; --node) {
    const auto& parts = contributions[static_cast<std::size_t>(node)];
    if (parts.empty()) continue;
    Value total = parts.front();
    for (std::size_t i = 1; i < parts.size(); ++i) total = into.add(total, parts[i]);
    if (is_zero(total)) continue;
    const Statement& statement = forward.node(node);
    if (statement.input >= 0) result[static_cast<std::size_t>(statement.input)] = total;
    for (const Term& t : statement.terms) {
      const Value v =
          t.constant == kNoConstant ? total : into.multiply(forward.constant(t.constant), total);
      contribute(t.node, turned(v, t.turn));
    }
  }
  return result;
}

}  // namespace haldgen::kernelgen
