#include "kernelgen/precision.h"

#include <limits>
#include <map>
#include <stdexcept>
#include <utility>
#include <vector>

#include "kernelgen/integers.h"
#include "kernelgen/rewrite.h"

namespace haldgen::kernelgen {
namespace {

bool is_doubling(const Graph& graph, const Statement& s) {
  return s.terms.size() == 1 && graph.literal(s.terms[0].constant) == 2.0;
}

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

void widen_sums(Graph& graph, WideSums sums) {
  // A set for each number of additions and conversions that can be made, by dynamic programming.
  std::map<std::pair<int, int>, std::vector<int>> sets{{{0, 0}, {}}};
  for (const Candidate& c : candidates(graph)) {
    auto longer = sets;
    for (const auto& [made, nodes] : sets) {
      const std::pair made_with{made.first + c.additions, made.second + c.conversions};
      if (made_with.first > sums.additions || longer.contains(made_with)) continue;
      auto set = nodes;
      set.push_back(c.node);
      longer.emplace(made_with, std::move(set));
    }
    sets = std::move(longer);
  }
  const auto least = std::numeric_limits<int>::min();
  const auto found = sets.lower_bound({sums.additions, sums.conversions.value_or(least)});
  const bool wanted = found != sets.end() && found->first.first == sums.additions &&
                      (!sums.conversions || found->first.second == *sums.conversions);
  if (!wanted) throw std::logic_error("no sums to widen");
  for (const int node : found->second) graph.node(node).precision = Precision::wide;
}

}  // namespace haldgen::kernelgen
