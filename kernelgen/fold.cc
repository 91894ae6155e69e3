#include "kernelgen/fold.h"

#include <algorithm>

#include "kernelgen/rewrite.h"

namespace haldgen::kernelgen {
namespace {

bool is_product(const Statement& s) {
  return s.terms.size() == 1 && s.terms[0].constant != kNoConstant;
}

bool is_sum_of_products(const Statement& s) {
  return !s.terms.empty() && std::all_of(s.terms.begin(), s.terms.end(),
                                         [](const Term& t) { return t.constant != kNoConstant; });
}

}  // namespace

Graph fold_products(const Graph& graph, Into into) {
  const Uses uses(graph);
  const std::vector<int> live = live_nodes(graph);
  // The statement that the one product by a constant multiplies, if it takes the constant.
  const auto taken = [&](int node) {
    const Statement& s = graph.node(node);
    if (!is_product(s)) return kZeroNode;
    const int inner = s.terms[0].node;
    const Statement& t = graph.node(inner);
    const bool wanted = into == Into::all || (into == Into::foldable && t.foldable);
    return wanted && is_sum_of_products(t) && uses.single(inner) ? inner : kZeroNode;
  };
  std::vector<char> absorbed(graph.nodes().size(), 0);
  for (const int node : live) absorbed[static_cast<std::size_t>(taken(node))] = 1;

  Rewrite rewrite(graph);
  for (const int node : live) {
    if (absorbed[static_cast<std::size_t>(node)]) continue;
    Constant factor{1.0, 1.0};
    Turn turn = Turn::none;
    int source = node;
    for (int inner = taken(source); inner != kZeroNode; inner = taken(source)) {
      const Term& product = graph.node(source).terms[0];
      factor = {factor.value * graph.constant(product.constant),
                factor.literal * graph.literal(product.constant)};
      turn += product.turn;
      source = inner;
    }
    if (source == node) {
      rewrite.copy(node);
      continue;
    }
    std::vector<Term> terms;
    for (const Term& t : graph.node(source).terms) {
      Term folded = rewrite.carried(t, factor);
      folded.turn += turn;
      terms.push_back(folded);
    }
    rewrite.rebuild(node, std::move(terms));
  }
  return rewrite.finish();
}

}  // namespace haldgen::kernelgen
