#include "kernelgen/parts.h"

#include "kernelgen/element.h"
#include "kernelgen/integers.h"
#include "kernelgen/rewrite.h"
#include "kernelgen/stage.h"

namespace haldgen::kernelgen {

Graph split_parts(const Graph& graph) {
  Graph result(Field::real);
  std::vector<Parts> parts(graph.nodes().size());
  for (const int node : live_nodes(graph)) {
    const Statement& s = graph.node(node);
    if (s.input) {
      parts[at(node)] = {&result, result.input(2 * *s.input), result.input(2 * *s.input + 1)};
      continue;
    }
    std::vector<Term> re, im;
    for (const Term& t : s.terms) {
      const ConstantId constant =
          t.constant == kNoConstant ? kNoConstant : result.intern(graph.constant(t.constant));
      const Parts operand = turned(parts[at(t.node)], t.turn + s.written);
      re.push_back({operand.re.turn, constant, operand.re.node});
      im.push_back({operand.im.turn, constant, operand.im.node});
    }
    const Stage stage(result, s.stage);
    const Parts written{&result, result.statement(re), result.statement(im)};
    parts[at(node)] = turned(written, -s.written);
  }
  std::vector<Value> outputs;
  for (const Value v : graph.outputs()) {
    const Parts p = turned(parts[at(v.node)], v.turn);
    outputs.push_back(p.re);
    outputs.push_back(p.im);
  }
  result.set_outputs(outputs);
  return result;
}

Graph gather_statements(const Graph& graph) {
  const Uses uses(graph);
  const std::vector<int> live = live_nodes(graph);
  std::vector<std::vector<Term>> merged(graph.nodes().size());  // terms over old nodes
  std::vector<char> absorbed(graph.nodes().size(), 0);
  for (const int node : live) {
    const Statement& s = graph.node(node);
    std::vector<Term>& terms = merged[at(node)];
    for (std::size_t i = 0; i < s.terms.size(); ++i) {
      const Term& t = s.terms[i];
      const bool alone = uses.single(t.node) && t.constant == kNoConstant;
      const auto& inner = merged[at(t.node)];
      const bool is_product = inner.size() == 1 && inner[0].constant != kNoConstant;
      const bool is_leading_sum = i == 0 && has_constant({inner});
      if (alone && s.terms.size() > 1 && (is_product || is_leading_sum)) {
        for (Term part : inner) {
          part.turn += t.turn;
          terms.push_back(part);
        }
        absorbed[at(t.node)] = 1;
      } else {
        terms.push_back(t);
      }
    }
  }
  Rewrite rewrite(graph);
  for (const int node : live) {
    if (absorbed[at(node)]) continue;
    std::vector<Term> terms;
    for (const Term& t : merged[at(node)]) terms.push_back(rewrite.carried(t));
    rewrite.rebuild(node, std::move(terms));
  }
  return rewrite.finish();
}

}  // namespace haldgen::kernelgen
