#include <algorithm>
#include <stdexcept>

#include "kernelgen/lower.h"

namespace haldgen::kernelgen {
namespace {

std::size_t at(int i) { return static_cast<std::size_t>(i); }

bool is_minus(const Term& t) { return t.turn == 2; }

class LaneLowering {
 public:
  LaneLowering(const Graph& graph, FloatType type, const LaneInputs& inputs)
      : graph_(graph), inputs_(inputs) {
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
      if (v.turn == 2) result = emit(Op::negate, result);
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
    const int side = std::min(input_count_, program_.lanes);
    if (input_count_ % side != 0 || (side < program_.lanes && 2 * side != program_.lanes)) {
      throw std::logic_error("sequences fill no squares of vectors");
    }
    for (int first = 0; first < input_count_; first += side) {
      std::vector<int> rows;
      for (int l = 0; l < side; ++l) rows.push_back(load(first + l));
      std::vector<int> columns = transposed(rows);
      // Two vectors of pairs: once more brings the evens and the odds together.
      if (side < program_.lanes) columns = transposed(columns);
      loaded_.insert(loaded_.end(), columns.begin(), columns.end());
    }
  }

  int product(const Term& t) {
    const int operand = values_[at(t.node)];
    const auto place = inputs_.table.find(t.constant);
    if (place != inputs_.table.end()) {
      if (is_minus(t)) throw std::logic_error("a number of the table would have to be negated");
      const auto [entry, fresh] = table_.try_emplace(place->second, -1);
      if (fresh) entry->second = load(input_count_ + place->second);
      return emit(Op::product, operand, entry->second);
    }
    const Wide c = graph_.constant(t.constant);
    const double rounded = program_.type == FloatType::f32 ? double{to_float(c)} : to_double(c);
    Instruction multiply;
    multiply.op = Op::multiply;
    multiply.a = operand;
    multiply.constant.fill(is_minus(t) ? -rounded : rounded);
    return emit(multiply);
  }

  int make(int node) {
    const Statement& s = graph_.node(node);
    if (s.input >= 0) return inputs_.transposed ? loaded_[at(s.input)] : load(s.input);
    if (s.terms.size() == 1) return product(s.terms[0]);
    const bool plain = std::all_of(s.terms.begin(), s.terms.end(),
                                   [](const Term& t) { return t.constant == kNoConstant; });
    if (s.terms.size() != 2 || !plain || (is_minus(s.terms[0]) && is_minus(s.terms[1]))) {
      throw std::logic_error("a statement is no product and no sum or difference of two");
    }
    const int a = values_[at(s.terms[0].node)];
    const int b = values_[at(s.terms[1].node)];
    if (is_minus(s.terms[0])) return emit(Op::subtract, b, a);
    return emit(is_minus(s.terms[1]) ? Op::subtract : Op::add, a, b);
  }

  const Graph& graph_;
  const LaneInputs& inputs_;
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
