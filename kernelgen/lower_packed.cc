#include <algorithm>
#include <cmath>
#include <map>

#include "kernelgen/integers.h"
#include "kernelgen/lower.h"

namespace haldgen::kernelgen {
namespace {

class PackedLowering {
 public:
  PackedLowering(const PackedGraph& graph, const std::vector<Choice>& choices, FloatType type)
      : graph_(graph), choices_(choices) {
    program_.type = type;
    program_.lanes = 2 * graph.halves;
    demanded_.resize(graph.nodes.size());
    orders_.assign(graph.nodes.size(), 0);
    held_.resize(graph.nodes.size());
    for (std::size_t i = 0; i < graph.nodes.size(); ++i) collect_demands(static_cast<int>(i));
  }

  Program run() {
    for (std::size_t i = 0; i < graph_.nodes.size(); ++i) {
      const int node = static_cast<int>(i);
      stage_ = graph_.nodes[i].stage;
      if (graph_.nodes[i].kind == PackedKind::store) {
        store(node);
      } else {
        provide(node, make(node));
      }
    }
    return pruned(program_);
  }

 private:
  const Choice& choice(int node) const { return choices_[at(node)]; }

  void collect_demands(int node) {
    const PackedNode& n = graph_.nodes[at(node)];
    const Demand d = demand_of(n, choice(node));
    switch (n.kind) {
      case PackedKind::sum:
      case PackedKind::gather:
        demanded_[at(n.a)].push_back(d.a);
        demanded_[at(n.b)].push_back(d.b);
        break;
      case PackedKind::store:
        demanded_[at(n.a)].push_back(d.a);
        break;
      case PackedKind::scale:
        orders_[at(n.a)] |= 1 << choice(node).form.exchanged;
        break;
      case PackedKind::rotate:
        orders_[at(n.a)] |= 3;
        break;
      default:
        break;
    }
  }

  int emit(Instruction instruction) {
    instruction.stage = stage_;
    program_.code.push_back(instruction);
    return static_cast<int>(program_.code.size()) - 1;
  }
  int emit(Op op, int a, int b = kNoOperand) {
    Instruction instruction;
    instruction.op = op;
    instruction.a = a;
    instruction.b = b;
    return emit(instruction);
  }

  int sign_change(int from, int negated) {
    Instruction instruction;
    instruction.op = Op::sign;
    instruction.a = from;
    for (int l = 0; l < program_.lanes; ++l) {
      instruction.constant[at(l)] = ((negated >> (l % 2)) & 1) != 0 ? -0.0 : 0.0;
    }
    return emit(instruction);
  }

  /// A held form of the node with the given lane order, its own form first.
  std::pair<Form, int> any_held(int node, int order) const {
    const Form own = choice(node).form;
    const auto& held = held_[at(node)];
    if (own.exchanged == order) return {own, held.at(own)};
    for (const auto& [form, instruction] : held) {
      if (form.exchanged == order) return {form, instruction};
    }
    return {own, -1};
  }

  int held(int node, Form form) const { return held_[at(node)].at(form); }

  /// Makes every demanded form of a value from its own form, by one exchange at most.
  void provide(int node, int base) {
    auto& held = held_[at(node)];
    const Form own = choice(node).form;
    held[own] = base;
    std::vector<Form> crossed;
    auto& forms = demanded_[at(node)];
    std::sort(forms.begin(), forms.end());
    for (const Form form : forms) {
      if (held.contains(form)) continue;
      if (form.exchanged == own.exchanged) {
        held[form] = sign_change(base, form.negated ^ own.negated);
      } else if (std::find(crossed.begin(), crossed.end(), form) == crossed.end()) {
        crossed.push_back(form);
      }
    }
    const bool other_order = ((orders_[at(node)] >> (1 - own.exchanged)) & 1) != 0;
    if (crossed.empty() && !other_order) return;
    // Exchange a form that is there into one that is wanted, if there is such a pair.
    Form first = exchanged(own);
    for (const Form form : crossed) {
      if (held.contains(exchanged(form))) {
        first = form;
        break;
      }
    }
    held[first] = emit(Op::exchange, held.at(exchanged(first)));
    for (const Form form : crossed) {
      if (!held.contains(form)) held[form] = sign_change(held[first], form.negated ^ first.negated);
    }
  }

  int make(int node) {
    const PackedNode& n = graph_.nodes[at(node)];
    const Choice c = choice(node);
    const Demand d = demand_of(n, c);
    switch (n.kind) {
      case PackedKind::load:
        return load(n);
      case PackedKind::zero:
      case PackedKind::store:
        return emit(Op::zero, kNoOperand);
      case PackedKind::sum: {
        const int a = held(n.a, d.a);
        const int b = held(n.b, d.b);
        switch (c.lowering) {
          case Lowering::plus:
            return emit(Op::add, a, b);
          case Lowering::minus:
            return emit(Op::subtract, a, b);
          case Lowering::reversed:
            return emit(Op::subtract, b, a);
          case Lowering::alternating:
            return emit(Op::alternate, a, b);
          case Lowering::alternating_b:
            return emit(Op::alternate, b, a);
        }
        break;
      }
      case PackedKind::scale: {
        const auto [form, operand] = any_held(n.a, c.form.exchanged);
        return multiply(operand, n, [&, from = form](int lane, const WideComplex& factor) {
          return signed_by(factor.re, c.form, from, lane);
        });
      }
      case PackedKind::rotate: {
        // Lane of part 0: wr re - wi im; of part 1: wr im + wi re.
        const auto [form, operand] = any_held(n.a, c.form.exchanged);
        const auto [cross_form, cross] = any_held(n.a, 1 - c.form.exchanged);
        const int direct = multiply(operand, n, [&, from = form](int lane, const WideComplex& w) {
          return signed_by(w.re, c.form, from, lane);
        });
        const int turned =
            multiply(cross, n, [&, from = cross_form](int lane, const WideComplex& w) {
              const bool real_part = (lane ^ c.form.exchanged) == 0;
              return signed_by(real_part ? -w.im : w.im, c.form, from, lane);
            });
        return emit(Op::add, direct, turned);
      }
      case PackedKind::gather: {
        Instruction instruction;
        instruction.op = Op::gather;
        instruction.a = held(n.a, d.a);
        instruction.b = held(n.b, d.b);
        instruction.half = n.half;
        const int crossed = static_cast<int>(c.lowering);
        instruction.cross = {crossed & 1, crossed >> 1};
        return emit(instruction);
      }
    }
    return -1;
  }

  static Wide signed_by(Wide value, Form result, Form operand, int lane) {
    const int sign = ((result.negated >> lane) ^ (operand.negated >> lane)) & 1;
    return sign != 0 ? -value : value;
  }

  template <class ConstantOf>
  int multiply(int operand, const PackedNode& n, ConstantOf constant_of) {
    Instruction instruction;
    instruction.op = Op::multiply;
    instruction.a = operand;
    for (int h = 0; h < graph_.halves; ++h) {
      for (int lane = 0; lane < 2; ++lane) {
        const Wide exact = constant_of(lane, n.factor[at(h)]);
        const double number = rounded(exact, program_.type);
        program_.exact.emplace(std::abs(number), abs(exact));
        instruction.constant[at(2 * h + lane)] = number;
      }
    }
    return emit(instruction);
  }

  static std::array<int, 2> addresses(const PackedNode& n) {
    return {2 * n.element[0].value_or(0), 2 * n.element[1].value_or(0)};
  }

  int load(const PackedNode& n) {
    Instruction instruction;
    instruction.address = addresses(n);
    if (is_whole(graph_, n)) {
      instruction.op = Op::load;
    } else {
      instruction.op = n.element[1] ? Op::load_pair : Op::load_single;
    }
    return emit(instruction);
  }

  int scale(int value, int negated) {
    Instruction instruction;
    instruction.op = Op::scale;
    instruction.a = value;
    for (int l = 0; l < program_.lanes; ++l) {
      instruction.constant[at(l)] = ((negated >> (l % 2)) & 1) != 0 ? -1.0 : 1.0;
    }
    return emit(instruction);
  }

  void store(int node) {
    const PackedNode& n = graph_.nodes[at(node)];
    Instruction instruction;
    instruction.a =
        scale(held(n.a, demand_of(n, choice(node)).a), static_cast<int>(choice(node).lowering));
    instruction.address = addresses(n);
    if (is_whole(graph_, n)) {
      instruction.op = Op::store;
    } else if (n.element[0] && n.element[1]) {
      instruction.op = Op::store_pair;
    } else if (n.element[0]) {
      instruction.op = Op::store_single;
    } else {
      instruction.op = Op::store_upper;
      instruction.address[0] = instruction.address[1];
    }
    emit(instruction);
  }

  const PackedGraph& graph_;
  const std::vector<Choice>& choices_;
  Program program_;
  std::string stage_;
  std::vector<std::vector<Form>> demanded_;
  std::vector<int> orders_;  ///< bit p: some use takes lane order p with any signs
  std::vector<std::map<Form, int>> held_;
};

}  // namespace

Program lower_packed(const PackedGraph& graph, const std::vector<Choice>& choices, FloatType type) {
  return PackedLowering(graph, choices, type).run();
}

}  // namespace haldgen::kernelgen
