#include "kernelgen/element.h"
#include "kernelgen/lower.h"
#include "kernelgen/rewrite.h"

namespace haldgen::kernelgen {
namespace {

std::size_t at(int i) { return static_cast<std::size_t>(i); }

class ScalarLowering {
 public:
  ScalarLowering(const Graph& graph, FloatType type, Scaled scaled)
      : graph_(graph),
        scaled_(scaled),
        uses_(graph),
        raw_(graph.nodes().size(), -1),
        narrow_(graph.nodes().size(), -1),
        wide_(graph.nodes().size(), -1) {
    program_.type = type;
    program_.lanes = 1;
  }

  Program run() {
    for (const int node : live_nodes(graph_)) make(node);
    for (std::size_t k = 0; k < graph_.outputs().size(); ++k) {
      const Value v = graph_.outputs()[k];
      const bool wide = scaled_ == Scaled::result && raw_[at(v.node)] >= 0 &&
                        uses_.by_statements[at(v.node)] == 0;
      Instruction scale;
      scale.op = Op::scale;
      scale.a = wide ? raw_[at(v.node)] : operand(v.node, false);
      scale.constant[0] = 1.0;
      scale.wide = wide;
      int result = emit(scale);
      if (v.turn == 2) result = emit(Op::negate, result, -1, wide);
      if (wide) result = emit(Op::narrow, result, -1, true);
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

  /// The value that is kept: of a wide statement, its narrowed result. Statements that need it in
  /// 64 bits again widen that.
  int operand(int node, bool wide) {
    if (wide && wide_[at(node)] >= 0) return wide_[at(node)];
    int& narrow = narrow_[at(node)];
    if (narrow < 0) narrow = emit(Op::narrow, raw_[at(node)], -1, true);
    if (!wide || !mixed()) return narrow;
    return wide_[at(node)] = emit(Op::widen, narrow, -1, true);
  }

  int product(const Term& t, bool wide, bool negative) {
    Instruction instruction;
    instruction.op = Op::multiply;
    instruction.a = operand(t.node, wide);
    instruction.wide = wide && mixed();
    const Wide c = graph_.constant(t.constant);
    const double rounded = mixed() && !wide ? double{to_float(c)} : graph_.literal(t.constant);
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
    if (!wide || !mixed()) {
      narrow_[at(node)] = result;
    } else if (has_constant(s)) {
      raw_[at(node)] = result;
    } else {
      wide_[at(node)] = result;
    }
  }

  const Graph& graph_;
  const Scaled scaled_;
  const Uses uses_;
  Program program_;
  std::vector<int> raw_;     ///< the instruction that holds the 64-bit result of a wide statement
  std::vector<int> narrow_;  ///< the one that holds a node in its element type
  std::vector<int> wide_;    ///< and in 64 bits, widened or never narrowed
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
      const Parts operand = turned(parts[at(t.node)], t.turn + s.written);
      re.push_back({operand.re.turn, constant, operand.re.node});
      im.push_back({operand.im.turn, constant, operand.im.node});
    }
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
          part.turn = (part.turn + t.turn) & 3;
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

Program lower_scalar(const Graph& graph, FloatType type, Scaled scaled) {
  return ScalarLowering(graph, type, scaled).run();
}

}  // namespace haldgen::kernelgen
