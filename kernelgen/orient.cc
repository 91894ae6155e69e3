#include "kernelgen/orient.h"

#include <algorithm>
#include <string>

#include "kernelgen/integers.h"
#include "kernelgen/rewrite.h"

namespace haldgen::kernelgen {
namespace {

bool is_difference(const Statement& s) {
  return std::any_of(s.terms.begin(), s.terms.end(), is_minus) &&
         !std::all_of(s.terms.begin(), s.terms.end(), is_minus);
}

/// The graph with some of its differences turned around; what uses them takes them with a minus.
Graph turned_around(const Graph& graph, const std::vector<int>& differences) {
  Rewrite rewrite(graph);
  for (const int node : live_nodes(graph)) {
    if (std::find(differences.begin(), differences.end(), node) == differences.end()) {
      rewrite.copy(node);
      continue;
    }
    std::vector<Term> terms;
    for (const Term& t : graph.node(node).terms) terms.push_back(rewrite.carried(t));
    for (Term& t : terms) t.turn += Turn::half;
    rewrite.rebuild(node, std::move(terms), Turn::half);
  }
  return rewrite.finish();
}

/// The first output with the wrong sign, or -1.
int wrong_output(const Graph& graph, const std::vector<bool>& negated) {
  for (std::size_t k = 0; k < graph.outputs().size(); ++k) {
    if ((graph.outputs()[k].turn == Turn::half) != negated[k]) return static_cast<int>(k);
  }
  return -1;
}

int difference_at(const Graph& graph, const Way& way) {
  const auto behind_products = [&](int node) {
    while (graph.node(node).terms.size() == 1) node = graph.node(node).terms.front().node;
    return node;
  };
  int node = behind_products(graph.outputs()[at(way.front())].node);
  for (std::size_t step = 1; step < way.size(); ++step) {
    node = behind_products(graph.node(node).terms.at(at(way[step])).node);
  }
  if (!is_difference(graph.node(node))) throw std::logic_error("a way leads to no difference");
  return node;
}

/// Every output in its sign.
Graph signed_outputs(const Graph& graph, const std::vector<bool>& negated) {
  Graph result = turn_differences(graph, negated);
  for (std::size_t round = 0; round <= negated.size(); ++round) {
    const int wrong = wrong_output(result, negated);
    if (wrong < 0) return result;
    const int node = result.outputs()[at(wrong)].node;
    const Statement& s = result.node(node);
    if (is_difference(s)) {
      result = turned_around(result, {node});
      continue;
    }
    // a + b becomes b - (-a), a difference, when a difference a is turned.
    const auto inner = std::find_if(s.terms.begin(), s.terms.end(), [&](const Term& t) {
      return is_difference(result.node(t.node));
    });
    if (inner == s.terms.end()) break;
    result = turned_around(result, {inner->node});
  }
  const int wrong = wrong_output(result, negated);
  throw UnreachableSign(wrong, negated[at(wrong)]);
}

}  // namespace

UnreachableSign::UnreachableSign(int which, bool minus)
    : std::logic_error("output " + std::to_string(which) + " cannot carry a " +
                       (minus ? "minus" : "plus") +
                       ": no difference behind it can be turned around"),
      output(which) {}

Graph turn_differences(const Graph& graph, const std::vector<bool>& negated) {
  std::vector<int> behind;
  for (std::size_t k = 0; k < negated.size(); ++k) {
    const Value v = graph.outputs()[k];
    if ((v.turn == Turn::half) != negated[k] && is_difference(graph.node(v.node)))
      behind.push_back(v.node);
  }
  return turned_around(graph, behind);
}

Graph orient_outputs(const Graph& graph, const std::vector<bool>& negated,
                     const std::vector<Way>& turned) {
  Graph result = signed_outputs(graph, negated);
  for (const Way& way : turned) result = turned_around(result, {difference_at(result, way)});
  return result;
}

Graph order_terms(const Graph& graph) {
  std::vector<int> depth(graph.nodes().size(), 0);
  Rewrite rewrite(graph);
  for (const int node : live_nodes(graph)) {
    std::vector<Term> terms = graph.node(node).terms;
    const auto reach = [&](const Term& t) {
      return depth[at(t.node)] + (t.constant != kNoConstant ? 1 : 0);
    };
    std::stable_sort(terms.begin(), terms.end(),
                     [&](const Term& a, const Term& b) { return reach(a) < reach(b); });
    const auto positive = std::find_if_not(terms.begin(), terms.end(), is_minus);
    if (positive != terms.end() && reach(*positive) == reach(terms.front())) {
      std::rotate(terms.begin(), positive, positive + 1);
    }
    int chain = 0;
    for (std::size_t i = 0; i < terms.size(); ++i) {
      chain = i == 0 ? reach(terms[i]) : std::max(chain, reach(terms[i])) + 1;
    }
    depth[at(node)] = chain;
    std::vector<Term> carried;
    for (const Term& t : terms) carried.push_back(rewrite.carried(t));
    rewrite.rebuild(node, std::move(carried));
  }
  return rewrite.finish();
}

}  // namespace haldgen::kernelgen
