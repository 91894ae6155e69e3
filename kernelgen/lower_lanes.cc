#include <algorithm>
#include <random>
#include <stdexcept>

#include "kernelgen/lower.h"

namespace haldgen::kernelgen {
namespace {

std::size_t at(int i) { return static_cast<std::size_t>(i); }

constexpr int sign_of(int turn) { return turn == 2 ? -1 : 1; }

/// The sign with which each node is held: +1 or -1. A sum of two can be held as a + b, a - b or
/// b - a, but not as -a - b; a product takes any sign into its constant; inputs and outputs are
/// plain. Signs that suit all sums are found by repair: while a sum is in the way, one of the signs
/// that it hangs on is turned, mostly that which leaves the fewest sums in the way.
class HeldSigns {
 public:
  HeldSigns(const Graph& graph, const std::map<ConstantId, int>& table)
      : graph_(graph),
        sign_(graph.nodes().size(), 1),
        fixed_(sign_.size(), 0),
        sums_(sign_.size()) {
    const std::vector<int> live = live_nodes(graph);
    for (const int node : live) {
      const Statement& s = graph.node(node);
      // A number of the table cannot be negated.
      if (s.input >= 0 || table.contains(s.terms[0].constant)) fixed_[at(node)] = 1;
      if (s.terms.size() != 2) continue;
      for (const int about : {node, s.terms[0].node, s.terms[1].node}) {
        sums_[at(about)].push_back(node);
      }
    }
    for (const Value v : graph.outputs()) {
      if (fixed_[at(v.node)]) continue;
      sign_[at(v.node)] = sign_of(v.turn);
      fixed_[at(v.node)] = 1;
    }
    repair(live);
  }

  int operator[](int node) const { return sign_[at(node)]; }

 private:
  static constexpr int kMostTurns = 1 << 20;

  bool in_the_way(int node) const {
    const Statement& s = graph_.node(node);
    if (s.terms.size() != 2) return false;
    for (const Term& t : s.terms) {
      if (sign_[at(node)] * sign_of(t.turn) * sign_[at(t.node)] > 0) return false;
    }
    return true;
  }

  /// Sums in the way around a node, were it turned.
  int cost_of_turning(int node) {
    sign_[at(node)] = -sign_[at(node)];
    int cost = 0;
    for (const int sum : sums_[at(node)]) cost += in_the_way(sum) ? 1 : 0;
    sign_[at(node)] = -sign_[at(node)];
    return cost;
  }

  int choice(int sum, bool at_random) {
    std::vector<int> open;
    for (const int node : {sum, graph_.node(sum).terms[0].node, graph_.node(sum).terms[1].node}) {
      if (!fixed_[at(node)]) open.push_back(node);
    }
    if (open.empty()) throw std::logic_error("a sum of inputs is an output held negated");
    if (at_random) return open[random_() % open.size()];
    return *std::min_element(open.begin(), open.end(), [this](int a, int b) {
      return cost_of_turning(a) < cost_of_turning(b);
    });
  }

  void repair(const std::vector<int>& live) {
    std::vector<int> waiting(live);
    for (int turns = 0; turns < kMostTurns; ++turns) {
      while (!waiting.empty() && !in_the_way(waiting.back())) waiting.pop_back();
      if (waiting.empty()) return;
      const int turned = choice(waiting.back(), random_() % 8 == 0);
      sign_[at(turned)] = -sign_[at(turned)];
      waiting.insert(waiting.end(), sums_[at(turned)].begin(), sums_[at(turned)].end());
    }
    throw std::logic_error("no signs suit all sums");
  }

  const Graph& graph_;
  std::vector<int> sign_;
  std::vector<char> fixed_;
  std::vector<std::vector<int>> sums_;  ///< those whose terms or result a node is
  std::minstd_rand random_;             ///< the same everywhere
};

class LaneLowering {
 public:
  LaneLowering(const Graph& graph, FloatType type, const LaneInputs& inputs)
      : graph_(graph), inputs_(inputs), signs_(graph, inputs.table) {
    program_.type = type;
    program_.lanes = inputs.lanes;
    program_.memory = inputs.lanes == 1 ? Memory::arrays : Memory::slots;
    values_.assign(graph.nodes().size(), -1);
    for (const Statement& s : graph.nodes()) input_count_ = std::max(input_count_, s.input + 1);
  }

  Program run() {
    if (inputs_.transposed) load_transposed();
    for (const int node : live_nodes(graph_)) values_[at(node)] = make(node);
    for (std::size_t k = 0; k < graph_.outputs().size(); ++k) {
      const Value v = graph_.outputs()[k];
      int result = values_[at(v.node)];
      if (sign_of(v.turn) != signs_[v.node]) result = emit(Op::negate, result);
      Instruction store;
      store.op = Op::store;
      store.a = result;
      store.address[0] = static_cast<int>(k) * program_.lanes;
      emit(store);
    }
    return pruned(program_);
  }

 private:
  int emit(const Instruction& instruction) {
    program_.code.push_back(instruction);
    return static_cast<int>(program_.code.size()) - 1;
  }
  int emit(Op op, int a, int b = -1) {
    Instruction instruction;
    instruction.op = op;
    instruction.a = a;
    instruction.b = b;
    return emit(instruction);
  }
  int load(int slot) {
    Instruction instruction;
    instruction.op = Op::load;
    instruction.address[0] = slot * program_.lanes;
    return emit(instruction);
  }

  /// A square of vectors, one of each sequence, as vectors of one element of all sequences each.
  std::vector<int> transposed(const std::vector<int>& rows) {
    if (rows.size() == 2) {
      const int first = emit(Op::interleave_lower, rows[0], rows[1]);
      return {first, emit(Op::interleave_upper, rows[0], rows[1])};
    }
    std::vector<int> columns;
    for (const Op half : {Op::interleave_lower, Op::interleave_upper}) {
      const int lower = emit(half, rows[0], rows[1]);
      const int upper = emit(half, rows[2], rows[3]);
      for (const int h : {0, 1}) {
        Instruction gather;
        gather.op = Op::gather;
        gather.a = lower;
        gather.b = upper;
        gather.half = {h, h};
        columns.push_back(emit(gather));
      }
    }
    return columns;
  }

  void load_transposed() {
    for (int first = 0; first < input_count_; first += program_.lanes) {
      std::vector<int> rows;
      for (int l = 0; l < program_.lanes; ++l) rows.push_back(load(first + l));
      const std::vector<int> columns = transposed(rows);
      loaded_.insert(loaded_.end(), columns.begin(), columns.end());
    }
  }

  int factor(const Term& t, int sign) {
    const int operand = values_[at(t.node)];
    const auto place = inputs_.table.find(t.constant);
    if (place != inputs_.table.end()) {
      const auto [entry, fresh] = table_.try_emplace(place->second, -1);
      if (fresh) entry->second = load(input_count_ + place->second);
      return emit(Op::product, operand, entry->second);
    }
    const Wide c = graph_.constant(t.constant);
    const double rounded =
        sign * (program_.type == FloatType::f32 ? double{to_float(c)} : to_double(c));
    Instruction multiply;
    multiply.op = Op::multiply;
    multiply.a = operand;
    multiply.constant.fill(rounded);
    return emit(multiply);
  }

  int make(int node) {
    const Statement& s = graph_.node(node);
    if (s.input >= 0) return inputs_.transposed ? loaded_[at(s.input)] : load(s.input);
    const auto sign = [&](const Term& t) {
      return signs_[node] * sign_of(t.turn) * signs_[t.node];
    };
    if (s.terms.size() == 1) return factor(s.terms[0], sign(s.terms[0]));
    if (s.terms.size() != 2) throw std::logic_error("a statement is no product and no sum of two");
    const int a = values_[at(s.terms[0].node)];
    const int b = values_[at(s.terms[1].node)];
    if (sign(s.terms[0]) < 0) return emit(Op::subtract, b, a);
    return emit(sign(s.terms[1]) < 0 ? Op::subtract : Op::add, a, b);
  }

  const Graph& graph_;
  const LaneInputs& inputs_;
  const HeldSigns signs_;
  Program program_;
  int input_count_ = 0;
  std::vector<int> values_;   ///< the instruction that holds each node
  std::vector<int> loaded_;   ///< the inputs, where they are transposed
  std::map<int, int> table_;  ///< the instructions that load the table's numbers
};

}  // namespace

Program lower_lanes(const Graph& graph, FloatType type, const LaneInputs& inputs) {
  return LaneLowering(graph, type, inputs).run();
}

}  // namespace haldgen::kernelgen
