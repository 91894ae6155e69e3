#include "kernelgen/rewrite.h"

#include <algorithm>

namespace haldgen::kernelgen {

Uses::Uses(const Graph& graph)
    : by_statements(graph.nodes().size(), 0), by_outputs(graph.nodes().size(), 0) {
  for (const int node : live_nodes(graph)) {
    for (const Term& t : graph.node(node).terms) ++by_statements[static_cast<std::size_t>(t.node)];
  }
  for (const Value v : graph.outputs()) ++by_outputs[static_cast<std::size_t>(v.node)];
}

bool Uses::single(int node) const {
  const auto i = static_cast<std::size_t>(node);
  return by_statements[i] == 1 && by_outputs[i] == 0;
}

Rewrite::Rewrite(const Graph& old) : old_(old), graph_(old.field()), values_(old.nodes().size()) {}

Term Rewrite::carried(const Term& old) {
  const Value v = at(old.node);
  return {old.turn + v.turn, graph_.intern(old_, old.constant), v.node};
}

Term Rewrite::carried(const Term& old, Constant factor) {
  Term term = carried(old);
  term.constant = graph_.intern(
      {old_.constant(old.constant) * factor.value, old_.literal(old.constant) * factor.literal});
  return term;
}

void Rewrite::rebuild(int node, std::vector<Term> terms, Turn turn) {
  const Statement& s = old_.node(node);
  const std::size_t before = graph_.nodes().size();
  const Value result = s.input ? graph_.input(*s.input) : graph_.statement(std::move(terms));
  values_[static_cast<std::size_t>(node)] = turned(result, turn);
  if (graph_.nodes().size() == before) return;
  Statement& fresh = graph_.node(result.node);
  fresh.foldable = s.foldable;
  fresh.precision = s.precision;
  fresh.rank = s.rank;
  fresh.stage = s.stage;
}

void Rewrite::copy(int node) {
  std::vector<Term> terms;
  for (const Term& t : old_.node(node).terms) terms.push_back(carried(t));
  rebuild(node, std::move(terms));
}

Graph Rewrite::finish() {
  std::vector<Value> outputs;
  for (const Value v : old_.outputs()) outputs.push_back(turned(at(v.node), v.turn));
  graph_.set_outputs(std::move(outputs));
  return std::move(graph_);
}

bool has_constant(const Statement& statement) {
  return std::any_of(statement.terms.begin(), statement.terms.end(),
                     [](const Term& t) { return t.constant != kNoConstant; });
}

}  // namespace haldgen::kernelgen
