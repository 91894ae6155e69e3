#include "kernelgen/transpose.h"

#include <algorithm>

#include "kernelgen/stage.h"

namespace haldgen::kernelgen {

std::vector<Value> transpose_into(Graph& into, const Graph& forward, std::span<const Value> fed,
                                  int inputs) {
  std::vector<std::vector<Value>> contributions(forward.nodes().size());
  std::vector<std::string> stages(forward.nodes().size());  // of the last to contribute
  const auto contribute = [&](int node, Value v, const std::string& stage) {
    if (node != kZeroNode && !is_zero(v)) {
      contributions[static_cast<std::size_t>(node)].push_back(v);
      stages[static_cast<std::size_t>(node)] = stage;
    }
  };
  for (std::size_t i = 0; i < fed.size(); ++i) {
    const Value out = forward.outputs()[i];
    contribute(out.node, turned(fed[i], out.turn), {});
  }
  std::vector<Value> result(static_cast<std::size_t>(inputs));
  for (int node = static_cast<int>(forward.nodes().size()) - 1; node > 0; --node) {
    const auto& parts = contributions[static_cast<std::size_t>(node)];
    if (parts.empty()) continue;
    Value total = parts.front();
    Stage stage(into, stages[static_cast<std::size_t>(node)]);
    for (std::size_t i = 1; i < parts.size(); ++i) total = into.add(total, parts[i]);
    if (is_zero(total)) continue;
    const Statement& statement = forward.node(node);
    if (statement.input) result[at(*statement.input)] = total;
    stage.next(statement.stage);
    for (const Term& t : statement.terms) {
      const Value v =
          t.constant == kNoConstant ? total : into.multiply(forward.constant(t.constant), total);
      contribute(t.node, turned(v, t.turn), statement.stage);
    }
  }
  return result;
}

std::vector<Value> transpose_statements_into(Graph& into, const Graph& forward,
                                             std::span<const Value> fed, int inputs) {
  struct Contribution {
    int rank;
    Term term;
    std::string stage = {};
  };
  std::vector<std::vector<Contribution>> contributions(forward.nodes().size());
  const auto contribute = [&](const Term& edge, int rank, Value v, const std::string& stage) {
    if (edge.node == kZeroNode || is_zero(v)) return;
    const ConstantId constant = into.intern(forward, edge.constant);
    contributions[static_cast<std::size_t>(edge.node)].push_back(
        {rank, {v.turn + edge.turn, constant, v.node}, stage});
  };
  for (std::size_t i = 0; i < fed.size(); ++i) {
    const Value out = forward.outputs()[i];
    contribute({out.turn, kNoConstant, out.node}, -1, fed[i], {});
  }
  const int first_rank = static_cast<int>(into.nodes().size());
  std::vector<Value> result(static_cast<std::size_t>(inputs));
  for (int node = static_cast<int>(forward.nodes().size()) - 1; node > 0; --node) {
    auto& parts = contributions[static_cast<std::size_t>(node)];
    if (parts.empty()) continue;
    std::stable_sort(parts.begin(), parts.end(),
                     [](const auto& a, const auto& b) { return a.rank < b.rank; });
    std::vector<Term> terms;
    for (const Contribution& part : parts) terms.push_back(part.term);
    const Stage stage(into, parts.back().stage);
    const std::size_t before = into.nodes().size();
    const Value total = into.statement(std::move(terms));
    const Statement& statement = forward.node(node);
    if (into.nodes().size() > before) into.node(total.node).rank = first_rank + statement.rank;
    if (statement.input) result[at(*statement.input)] = total;
    for (const Term& t : statement.terms) contribute(t, statement.rank, total, statement.stage);
  }
  return result;
}

}  // namespace haldgen::kernelgen
