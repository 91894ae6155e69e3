#include <algorithm>

#include "kernelgen/element.h"
#include "kernelgen/lower.h"

namespace haldgen::kernelgen {
namespace {

std::size_t at(int i) { return static_cast<std::size_t>(i); }

std::vector<int> use_counts(const Graph& graph) {
  std::vector<int> uses(graph.nodes().size(), 0);
  for (const int node : live_nodes(graph)) {
    for (const Term& t : graph.node(node).terms) ++uses[at(t.node)];
  }
  for (const Value v : graph.outputs()) ++uses[at(v.node)];
  return uses;
}

bool has_constant(const Statement& s) {
  return std::any_of(s.terms.begin(), s.terms.end(),
                     [](const Term& t) { return t.constant != kNoConstant; });
}

class ScalarLowering {
 public:
  ScalarLowering(const Graph& graph, FloatType type) : graph_(graph) {
    program_.type = type;
    program_.lanes = 1;
    narrow_.assign(graph.nodes().size(), -1);
    wide_.assign(graph.nodes().size(), -1);
  }

  Program run() {
    for (const int node : live_nodes(graph_)) make(node);
    for (std::size_t k = 0; k < graph_.outputs().size(); ++k) {
      const Value v = graph_.outputs()[k];
      Instruction scale;
      scale.op = Op::scale;
      scale.a = operand(v.node, false);
      scale.constant[0] = 1.0;
      int result = emit(scale);
      if (v.turn == 2) result = emit(Op::negate, result);
      Instruction store;
      store.op = Op::store;
      store.a = result;
      store.address[0] = static_cast<int>(k);
      emit(store);
    }
    return std::move(program_);
  }

 private:
  int emit(const Instruction& instruction) {
    program_.code.push_back(instruction);
    return static_cast<int>(program_.code.size()) - 1;
  }
  int emit(Op op, int a, int b = -1, bool wide = false) {
    Instruction instruction;
    instruction.op = op;
    instruction.a = a;
    instruction.b = b;
    instruction.wide = wide;
    return emit(instruction);
  }

  bool mixed() const { return program_.type == FloatType::f32; }

  int operand(int node, bool wide) {
    if (!wide || !mixed()) return narrow_[at(node)];
    int& result = wide_[at(node)];
    if (result < 0) result = emit(Op::widen, narrow_[at(node)], -1, true);
    return result;
  }

  int product(const Term& t, bool wide, bool negative) {
    Instruction instruction;
    instruction.op = Op::multiply;
    instruction.a = operand(t.node, wide);
    instruction.wide = wide && mixed();
    const Wide c = graph_.constant(t.constant);
    const double rounded = mixed() && !wide ? double{to_float(c)} : to_double(c);
    instruction.constant[0] = negative ? -rounded : rounded;
    return emit(instruction);
  }

  void make(int node) {
    const Statement& s = graph_.node(node);
    if (s.input >= 0) {
      Instruction load;
      load.op = Op::load;
      load.address[0] = s.input;
      narrow_[at(node)] = emit(load);
      return;
    }
    const bool wide = s.precision == Precision::wide;
    int result = -1;
    bool negative = false;  // the sum so far is held negated
    for (const Term& t : s.terms) {
      const bool minus = t.turn == 2;
      const bool multiplied = t.constant != kNoConstant;
      if (result < 0) {
        // A leading minus goes into the constant, or turns the next sum around.
        result = multiplied ? product(t, wide, minus) : operand(t.node, wide);
        negative = minus && !multiplied;
        continue;
      }
      const int next = multiplied ? product(t, wide, false) : operand(t.node, wide);
      const bool flag = wide && mixed();
      if (negative && !minus) {
        result = emit(Op::subtract, next, result, flag);
        negative = false;
      } else {
        result = emit(minus == negative ? Op::add : Op::subtract, result, next, flag);
      }
    }
    // Statements that need the value in 64 bits widen the narrowed one.
    if (wide && mixed()) result = emit(Op::narrow, result, -1, true);
    narrow_[at(node)] = result;
  }

  const Graph& graph_;
  Program program_;
  std::vector<int> narrow_;  ///< the instruction that holds a node in its element type
  std::vector<int> wide_;    ///< and in 64 bits, where it has been widened
};

}  // namespace

Graph split_parts(const Graph& graph) {
  Graph result(Field::real);
  std::vector<Parts> parts(graph.nodes().size());
  for (const int node : live_nodes(graph)) {
    const Statement& s = graph.node(node);
    if (s.input >= 0) {
      parts[at(node)] = {&result, result.input(2 * s.input), result.input(2 * s.input + 1)};
      continue;
    }
    std::vector<Term> re, im;
    for (const Term& t : s.terms) {
      const ConstantId constant =
          t.constant == kNoConstant ? kNoConstant : result.intern(graph.constant(t.constant));
      const Parts operand = turned(parts[at(t.node)], t.turn);
      re.push_back({operand.re.turn, constant, operand.re.node});
      im.push_back({operand.im.turn, constant, operand.im.node});
    }
    parts[at(node)] = {&result, result.statement(re), result.statement(im)};
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
  const std::vector<int> uses = use_counts(graph);
  Graph result(graph.field());
  std::vector<Value> values(graph.nodes().size());
  std::vector<std::vector<Term>> merged(graph.nodes().size());  // terms over old nodes
  std::vector<char> absorbed(graph.nodes().size(), 0);
  for (const int node : live_nodes(graph)) {
    const Statement& s = graph.node(node);
    std::vector<Term>& terms = merged[at(node)];
    for (std::size_t i = 0; i < s.terms.size(); ++i) {
      const Term& t = s.terms[i];
      const bool alone = uses[at(t.node)] == 1 && t.constant == kNoConstant;
      const auto& inner = merged[at(t.node)];
      const bool is_product = inner.size() == 1 && inner[0].constant != kNoConstant;
      const bool is_leading_sum = i == 0 && has_constant({inner});
      if (alone && s.terms.size() > 1 && (is_product || is_leading_sum)) {
        for (Term part : inner) {
          part.turn = (part.turn + t.turn) & 3;
          terms.push_back(part);
        }
        absorbed[at(t.node)] = 1;
      } else {
        terms.push_back(t);
      }
    }
  }
  for (const int node : live_nodes(graph)) {
    if (absorbed[at(node)]) continue;
    const Statement& s = graph.node(node);
    if (s.input >= 0) {
      values[at(node)] = result.input(s.input);
      continue;
    }
    std::vector<Term> terms = merged[at(node)];
    for (Term& t : terms) {
      if (t.constant != kNoConstant) t.constant = result.intern(graph.constant(t.constant));
      const Value v = values[at(t.node)];
      t.node = v.node;
      t.turn = (t.turn + v.turn) & 3;
    }
    values[at(node)] = result.statement(terms);
  }
  std::vector<Value> outputs;
  for (const Value v : graph.outputs()) outputs.push_back(turned(values[at(v.node)], v.turn));
  result.set_outputs(outputs);
  return result;
}

void widen_products(Graph& graph) {
  for (const int node : live_nodes(graph)) {
    Statement& s = graph.node(node);
    if (has_constant(s)) s.precision = Precision::wide;
  }
}

Program lower_scalar(const Graph& graph, FloatType type) {
  return ScalarLowering(graph, type).run();
}

}  // namespace haldgen::kernelgen
