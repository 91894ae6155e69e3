#include <algorithm>
#include <optional>
#include <stdexcept>

#include "kernelgen/integers.h"
#include "kernelgen/lower.h"
#include "kernelgen/rewrite.h"
#include "kernelgen/stage.h"

namespace haldgen::kernelgen {
namespace {

class RealLowering {
 public:
  RealLowering(const Graph& graph, const Target& target)
      : graph_(graph), target_(target), uses_(graph), held_(graph.nodes().size()) {
    if (graph.field() != Field::real)
      throw std::logic_error("a complex graph is not lowered whole");
    program_.type = target.type;
    program_.lanes = target.lanes;
    program_.memory = target.memory;
    for (const Statement& s : graph.nodes()) {
      input_count_ = std::max(input_count_, s.input.value_or(-1) + 1);
    }
  }

  Program run() {
    if (target_.transposed) load_transposed();
    for (const int node : live_nodes(graph_)) make(node);
    stage_ = target_.scaled == Scaled::nothing ? "stores" : kStores;
    for (std::size_t k = 0; k < graph_.outputs().size(); ++k) {
      store(static_cast<int>(k), graph_.outputs()[k]);
    }
    return pruned(program_);
  }

 private:
  /// The instructions that hold a node.
  struct Held {
    std::optional<int> raw;     ///< the 64-bit result of a wide statement
    std::optional<int> narrow;  ///< in the element type
    std::optional<int> wide;    ///< in 64 bits, widened or never narrowed
  };

  int emit(Instruction instruction) {
    instruction.stage = stage_;
    program_.code.push_back(instruction);
    return static_cast<int>(program_.code.size()) - 1;
  }
  int emit(Op op, int a, int b = kNoOperand, bool wide = false) {
    Instruction instruction;
    instruction.op = op;
    instruction.a = a;
    instruction.b = b;
    instruction.wide = wide;
    return emit(instruction);
  }
  int load(int vector) {
    Instruction instruction;
    instruction.op = Op::load;
    instruction.address[0] = vector * program_.lanes;
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
    stage_ = "transposed loads";
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

  /// The value that is kept: of a wide statement, its narrowed result. Statements that need it in
  /// 64 bits again widen that.
  int operand(int node, bool wide) {
    Held& held = held_[at(node)];
    if (wide && held.wide) return *held.wide;
    if (!held.narrow) held.narrow = emit(Op::narrow, held.raw.value(), kNoOperand, true);
    if (wide) held.wide = emit(Op::widen, *held.narrow, kNoOperand, true);
    return wide ? *held.wide : *held.narrow;
  }

  int product(const Term& t, bool wide, bool negative) {
    const int factor = operand(t.node, wide);
    const auto place = target_.table.find(t.constant);
    if (place != target_.table.end()) {
      if (negative) throw std::logic_error("a number of the table would have to be negated");
      const auto [entry, fresh] = table_.try_emplace(place->second, -1);
      if (fresh) entry->second = load(input_count_ + place->second);
      return emit(Op::product, factor, entry->second);
    }
    const bool in64 = wide || program_.type == FloatType::f64;
    const double factor_literal =
        in64 ? graph_.literal(t.constant) : rounded(graph_.constant(t.constant), FloatType::f32);
    program_.exact.emplace(factor_literal, graph_.constant(t.constant));
    Instruction multiply;
    multiply.op = Op::multiply;
    multiply.a = factor;
    multiply.wide = wide;
    multiply.constant.fill(negative ? -factor_literal : factor_literal);
    return emit(multiply);
  }

  /// The terms of a statement, one after another.
  int sum(const Statement& s, bool wide) {
    std::optional<int> result;
    bool negative = false;  // the sum so far is held negated
    for (const Term& t : s.terms) {
      const bool multiplied = t.constant != kNoConstant;
      if (!result) {
        // A leading minus goes into the constant, or turns the next sum around.
        result = multiplied ? product(t, wide, is_minus(t)) : operand(t.node, wide);
        negative = is_minus(t) && !multiplied;
        continue;
      }
      const int next = multiplied ? product(t, wide, false) : operand(t.node, wide);
      if (negative && !is_minus(t)) {
        result = emit(Op::subtract, next, *result, wide);
        negative = false;
      } else {
        result = emit(is_minus(t) == negative ? Op::add : Op::subtract, *result, next, wide);
      }
    }
    if (!result || negative) throw std::logic_error("a sum of minuses only");
    return *result;
  }

  void make(int node) {
    const Statement& s = graph_.node(node);
    Held& held = held_[at(node)];
    stage_ = s.stage;
    if (s.input) {
      held.narrow = target_.transposed ? loaded_[at(*s.input)] : load(*s.input);
      return;
    }
    const bool wide = s.precision == Precision::wide && program_.type == FloatType::f32;
    if (wide && program_.lanes > 1) throw std::logic_error("a 64-bit statement of 32-bit lanes");
    const int result = sum(s, wide);
    (!wide ? held.narrow : has_constant(s) ? held.raw : held.wide) = result;
  }

  int scaled(int value, bool wide) {
    Instruction scale;
    scale.op = Op::scale;
    scale.a = value;
    scale.wide = wide;
    scale.constant.fill(1.0);
    return emit(scale);
  }

  void store(int output, Value v) {
    const bool wide = target_.scaled == Scaled::result && held_[at(v.node)].raw &&
                      uses_.by_statements[at(v.node)] == 0;
    int result = wide ? *held_[at(v.node)].raw : operand(v.node, false);
    if (target_.scaled != Scaled::nothing) result = scaled(result, wide);
    if (v.turn == Turn::half) result = emit(Op::negate, result, kNoOperand, wide);
    if (wide) result = emit(Op::narrow, result, kNoOperand, true);
    Instruction store;
    store.op = Op::store;
    store.a = result;
    store.address[0] = output * program_.lanes;
    emit(store);
  }

  const Graph& graph_;
  const Target& target_;
  const Uses uses_;
  Program program_;
  std::string stage_;
  int input_count_ = 0;
  std::vector<Held> held_;
  std::vector<int> loaded_;   ///< the inputs, where they are transposed
  std::map<int, int> table_;  ///< the instructions that load the table's numbers
};

}  // namespace

Program lower_real(const Graph& graph, const Target& target) {
  return RealLowering(graph, target).run();
}

}  // namespace haldgen::kernelgen
