#include "kernelgen/precision.h"

#include <map>
#include <stdexcept>

#include "kernelgen/fold.h"
#include "kernelgen/rewrite.h"

namespace haldgen::kernelgen {
namespace {

std::size_t at(int i) { return static_cast<std::size_t>(i); }

/// A sum that may be wide: without constants, used by wide statements only.
struct Candidate {
  int node;
  int additions;
  int conversions;  ///< how many more there are when it is wide
};

std::vector<Candidate> candidates(const Graph& graph) {
  const Uses uses(graph);
  std::vector<int> wide_uses(graph.nodes().size(), 0);
  const std::vector<int> live = live_nodes(graph);
  for (const int node : live) {
    const Statement& s = graph.node(node);
    if (s.precision != Precision::wide) continue;
    for (const Term& t : s.terms) ++wide_uses[at(t.node)];
  }
  std::vector<Candidate> all;
  for (const int node : live) {
    const Statement& s = graph.node(node);
    const bool sum = s.terms.size() > 1 && !has_constant(s);
    const bool hidden =
        uses.by_outputs[at(node)] == 0 && uses.by_statements[at(node)] == wide_uses[at(node)];
    if (!sum || !hidden) continue;
    Candidate c{node, static_cast<int>(s.terms.size()) - 1, -1};
    for (const Term& t : s.terms) c.conversions += wide_uses[at(t.node)] == 0 ? 1 : 0;
    all.push_back(c);
  }
  return all;
}

}  // namespace

void widen_products(Graph& graph) {
  for (const int node : live_nodes(graph)) {
    Statement& s = graph.node(node);
    if (has_constant(s) && !is_doubling(graph, s)) s.precision = Precision::wide;
  }
}

void widen_sums(Graph& graph, int additions) {
  // The cheapest set of each number of additions so far, by dynamic programming.
  struct Choice {
    int conversions = 0;
    std::vector<int> nodes;
  };
  std::map<int, Choice> best{{0, {}}};
  for (const Candidate& c : candidates(graph)) {
    std::map<int, Choice> next = best;
    for (const auto& [made, choice] : best) {
      const int sum = made + c.additions;
      if (sum > additions) continue;
      const auto it = next.find(sum);
      if (it != next.end() && it->second.conversions <= choice.conversions + c.conversions)
        continue;
      Choice longer = choice;
      longer.conversions += c.conversions;
      longer.nodes.push_back(c.node);
      next[sum] = std::move(longer);
    }
    best = std::move(next);
  }
  const auto found = best.find(additions);
  if (found == best.end()) throw std::logic_error("no sums to widen");
  for (const int node : found->second.nodes) graph.node(node).precision = Precision::wide;
}

}  // namespace haldgen::kernelgen
