#include "kernelgen/forms.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <optional>
#include <span>
#include <stdexcept>
#include <utility>

#include "kernelgen/integers.h"

namespace haldgen::kernelgen {
namespace {

constexpr int kForms = 8;
constexpr int kLowerings = 5;
constexpr std::size_t kChoices = std::size_t{kForms} * kLowerings;

int index_of(Form f) { return f.exchanged * 4 + f.negated; }
Form form_of(int index) { return {index >> 2, index & 3}; }

/// The form in which i^turn v must be held so that the lanes of i^turn v have the given form.
Form turned_operand(Form form, Turn turn) {
  Form result{form.exchanged ^ (exchanges_parts(turn) ? 1 : 0), 0};
  for (int lane = 0; lane < 2; ++lane) {
    const int part = lane ^ form.exchanged;
    const bool sign = turn == Turn::half || (turn == Turn::quarter && part == 0) ||
                      (turn == Turn::three_quarters && part == 1);
    result.negated |= (((form.negated >> lane) & 1) ^ (sign ? 1 : 0)) << lane;
  }
  return result;
}

/// A form that has the signs in which the value is written down.
Form written_form(const PackedNode& node) {
  if (node.written[0] != node.written[1]) throw std::logic_error("halves are written differently");
  return turned_operand({}, node.written[0]);
}

/// Cost of providing a set of forms of one value (bit mask) and a vector in either lane order
/// (second mask): a sign change for each form beyond the first of its lane order, an exchange if
/// both orders are there, and one more sign change if no form of one is an exchange of the other.
struct Provision {
  int exchanges = 0;
  int sign_changes = 0;
};

Provision provision(int forms, int orders) {
  const int straight = std::popcount(static_cast<unsigned>(forms & 15));
  const int crossed = std::popcount(static_cast<unsigned>(forms >> 4));
  Provision cost;
  cost.sign_changes = std::max(0, straight - 1) + std::max(0, crossed - 1);
  if ((straight != 0 || (orders & 1) != 0) && (crossed != 0 || (orders & 2) != 0)) {
    cost.exchanges = 1;
    if (straight != 0 && crossed != 0) {
      bool matched = false;
      for (int f = 0; f < 4; ++f) {
        const bool both =
            ((forms >> f) & 1) != 0 && ((forms >> index_of(exchanged(form_of(f)))) & 1) != 0;
        matched = matched || both;
      }
      if (!matched) ++cost.sign_changes;
    }
  }
  return cost;
}

/// Tables over small index spaces, made once.
struct Tables {
  std::array<std::array<std::uint8_t, 4>, 256> cost{};
  // [turn][form][lowering] of a sum
  std::array<std::array<std::array<std::uint8_t, kLowerings>, kForms>, 4> sum_a{}, sum_b{};

  Tables() {
    for (int forms = 0; forms < 256; ++forms) {
      for (int orders = 0; orders < 4; ++orders) {
        const Provision p = provision(forms, orders);
        cost[at(forms)][at(orders)] = static_cast<std::uint8_t>(p.exchanges + p.sign_changes);
      }
    }
    for (int turn = 0; turn < 4; ++turn) {
      for (int f = 0; f < kForms; ++f) {
        for (int l = 0; l < kLowerings; ++l) {
          PackedNode node;
          node.kind = PackedKind::sum;
          node.turn = quarters(turn);
          const Demand d = demand_of(node, {form_of(f), static_cast<Lowering>(l)});
          sum_a[at(turn)][at(f)][at(l)] = static_cast<std::uint8_t>(index_of(d.a));
          sum_b[at(turn)][at(f)][at(l)] = static_cast<std::uint8_t>(index_of(d.b));
        }
      }
    }
  }
};

const Tables& tables() {
  static const Tables instance;
  return instance;
}

/// xorshift64*, so that the sequence is ours on every standard library.
class Random {
 public:
  explicit Random(int seed) {
    for (int i = 0; i < seed; ++i) next();
  }
  std::uint64_t next() {
    state_ ^= state_ >> 12;
    state_ ^= state_ << 25;
    state_ ^= state_ >> 27;
    return state_ * 0x2545F4914F6CDD1DULL;
  }
  int below(int n) { return static_cast<int>((next() >> 33) % static_cast<std::uint64_t>(n)); }
  double unit() { return static_cast<double>(next() >> 11) * 0x1p-53; }

 private:
  std::uint64_t state_ = 0x9E3779B97F4A7C15ULL;
};

/// exp(-x) by additions and multiplications alone: a library's exp may differ in the last bit, and
/// with it the choices.
double decay(double x) {
  double base = 1.0 - x / 256.0;
  if (base < 0) return 0;
  for (int i = 0; i < 8; ++i) base *= base;
  return base;
}

class Annealer {
 public:
  /// With `model`, the mirrored kernel of those choices, in their signs. `scale_masks` are the
  /// masks that stores may use.
  Annealer(const PackedGraph& graph, const std::vector<Choice>* model, Signs signs,
           std::vector<int> scale_masks, int seed)
      : nodes_(graph.nodes),
        choices_(graph.nodes.size()),
        wants_(graph.nodes.size()),
        scale_masks_(std::move(scale_masks)),
        random_(seed) {
    allowed_.assign(nodes_.size(), {0, 1, 2, 3, 4, 5, 6, 7});
    for (std::size_t i = 0; i < nodes_.size(); ++i) {
      const PackedKind kind = nodes_[i].kind;
      const bool adds = kind == PackedKind::sum || kind == PackedKind::rotate;
      std::optional<Form> signed_form;
      if (adds && model != nullptr) signed_form = (*model)[i].form;
      if (adds && signs == Signs::as_written) signed_form = written_form(nodes_[i]);
      if (signed_form) {
        allowed_[i] = {index_of(*signed_form), index_of(exchanged(*signed_form))};
        choices_[i].form = *signed_form;
      }
      if (model != nullptr && (kind == PackedKind::load || kind == PackedKind::store)) {
        choices_[i].form.exchanged = 1;
      }
      if (kind == PackedKind::store) allowed_[i] = {index_of(choices_[i].form)};
      if (kind != PackedKind::load && kind != PackedKind::zero) {
        movable_.push_back(static_cast<int>(i));
      }
    }
    for (std::size_t i = 0; i < nodes_.size(); ++i) demand(static_cast<int>(i), +1);
  }

  std::vector<Choice> run(int sweeps) {
    if (movable_.empty()) return choices_;
    constexpr double kHot = 1.0;
    constexpr double kCold = 0.08;
    const int count = static_cast<int>(movable_.size());
    double temperature = kHot;
    double ratio = kCold / kHot;
    double step = 1.0;
    // step^sweeps = ratio, by halving the interval: again no library function.
    double low = 0.0, high = 1.0;
    for (int i = 0; i < 60; ++i) {
      step = 0.5 * (low + high);
      double power = 1.0;
      for (int s = 0; s < sweeps; ++s) power *= step;
      (power < ratio ? low : high) = step;
    }
    for (int sweep = 0; sweep < sweeps; ++sweep) {
      weight_of_excess_.fill(-1);
      for (int i = 0; i < count; ++i) move(movable_[at(random_.below(count))], temperature);
      temperature *= step;
    }
    for (int sweep = 0; sweep < 8; ++sweep) {
      for (const int node : movable_) move(node, 0.0);
    }
    return choices_;
  }

 private:
  struct Wants {
    std::array<std::uint16_t, kForms> forms{};
    std::array<std::uint16_t, 2> orders{};
    std::uint16_t form_mask = 0;
  };

  void want_form(int node, int form, int change) {
    Wants& w = wants_[at(node)];
    w.forms[at(form)] = static_cast<std::uint16_t>(w.forms[at(form)] + change);
    if (w.forms[at(form)] != 0) {
      w.form_mask = static_cast<std::uint16_t>(w.form_mask | (1 << form));
    } else {
      w.form_mask = static_cast<std::uint16_t>(w.form_mask & ~(1 << form));
    }
  }
  void want_order(int node, int order, int change) {
    auto& o = wants_[at(node)].orders[at(order)];
    o = static_cast<std::uint16_t>(o + change);
  }

  /// What a choice wants of the operands: sets of forms, and of orders of the first.
  struct Wanted {
    int forms_a = 0;
    int forms_b = 0;
    int orders_a = 0;
  };
  Wanted wanted(const PackedNode& n, int form, int lowering) const {
    switch (n.kind) {
      case PackedKind::load:
      case PackedKind::zero:
        return {};
      case PackedKind::sum:
        return {1 << tables_.sum_a[at(n.turn)][at(form)][at(lowering)],
                1 << tables_.sum_b[at(n.turn)][at(form)][at(lowering)], 0};
      case PackedKind::scale:
        return {0, 0, 1 << form_of(form).exchanged};
      case PackedKind::rotate:
        return {0, 0, 3};
      case PackedKind::gather:
      case PackedKind::store:
        break;
    }
    const Demand d = demand_of(n, {form_of(form), static_cast<Lowering>(lowering)});
    return {1 << index_of(d.a), n.kind == PackedKind::gather ? 1 << index_of(d.b) : 0, 0};
  }

  void demand(int node, int change) {
    const PackedNode& n = nodes_[at(node)];
    const Choice& c = choices_[at(node)];
    const Wanted w = wanted(n, index_of(c.form), static_cast<int>(c.lowering));
    if (w.forms_a != 0) want_form(n.a, std::countr_zero(static_cast<unsigned>(w.forms_a)), change);
    if (w.forms_b != 0) want_form(n.b, std::countr_zero(static_cast<unsigned>(w.forms_b)), change);
    for (const int order : {0, 1}) {
      if (((w.orders_a >> order) & 1) != 0) want_order(n.a, order, change);
    }
  }

  /// Of a node that is held in one form and wanted in these as well.
  int cost(int node, int form, int more_forms, int more_orders) const {
    const Wants& w = wants_[at(node)];
    const int forms = w.form_mask | (1 << form) | more_forms;
    const int orders = (w.orders[0] != 0 ? 1 : 0) | (w.orders[1] != 0 ? 2 : 0) | more_orders;
    return tables_.cost[at(forms)][at(orders)];
  }
  int cost_of_operand(int node, int more_forms, int more_orders) const {
    return cost(node, index_of(choices_[at(node)].form), more_forms, more_orders);
  }

  std::span<const int> lowerings(const PackedNode& n) const {
    static constexpr std::array<int, kLowerings> kAll{0, 1, 2, 3, 4};
    const std::span<const int> all(kAll);
    switch (n.kind) {
      case PackedKind::sum:
        return all;
      case PackedKind::gather:
        return all.first(4);
      case PackedKind::store:
        return scale_masks_;
      default:
        return all.first(1);
    }
  }

  /// Cost of what a choice bears on, of a node that demands nothing so far; a store itself costs
  /// nothing.
  int cost_around(int node, int form, int lowering) const {
    const PackedNode& n = nodes_[at(node)];
    Wanted w = wanted(n, form, lowering);
    int total = n.kind == PackedKind::store ? 0 : cost(node, form, 0, 0);
    if (n.b == n.a) {
      w.forms_a |= w.forms_b;
    } else if (n.b >= 0) {
      total += cost_of_operand(n.b, w.forms_b, 0);
    }
    return total + cost_of_operand(n.a, w.forms_a, w.orders_a);
  }

  /// Draws a new choice for a node with the probabilities of thermal equilibrium.
  void move(int node, double temperature) {
    const PackedNode& n = nodes_[at(node)];
    demand(node, -1);
    std::array<int, kChoices> costs;
    const std::vector<int>& forms = allowed_[at(node)];
    const std::span<const int> ways = lowerings(n);
    const int count = static_cast<int>(ways.size());
    int candidates = 0;
    int least = 1 << 20;
    for (const int f : forms) {
      for (const int l : ways) {
        const int total = cost_around(node, f, l);
        costs[at(candidates++)] = total;
        least = std::min(least, total);
      }
    }
    int pick = 0;
    if (temperature > 0) {
      std::array<double, kChoices> weights;
      double sum = 0;
      for (int c = 0; c < candidates; ++c) {
        const int excess = std::min(kExcesses - 1, costs[at(c)] - least);
        double& weight = weight_of_excess_[at(excess)];
        if (weight < 0) weight = decay(excess / temperature);
        weights[at(c)] = weight;
        sum += weight;
      }
      double draw = random_.unit() * sum;
      while (pick + 1 < candidates && draw >= weights[at(pick)]) draw -= weights[at(pick++)];
    } else {
      const int ties =
          static_cast<int>(std::count(costs.begin(), costs.begin() + candidates, least));
      int wanted = random_.below(ties);
      while (costs[at(pick)] != least || wanted-- > 0) ++pick;
    }
    choices_[at(node)] = {form_of(forms[at(pick / count)]),
                          static_cast<Lowering>(ways[at(pick % count)])};
    demand(node, +1);
  }

  const Tables& tables_ = tables();
  const std::vector<PackedNode>& nodes_;
  std::vector<Choice> choices_;
  std::vector<Wants> wants_;
  std::vector<std::vector<int>> allowed_;  ///< forms that a node may take
  std::vector<int> movable_;
  std::vector<int> scale_masks_;
  static constexpr int kExcesses = 64;
  std::array<double, kExcesses> weight_of_excess_{};  ///< at this temperature; negative: not known
  Random random_;
};

}  // namespace

Form exchanged(Form form) {
  return {1 - form.exchanged, ((form.negated & 1) << 1) | (form.negated >> 1)};
}

Demand demand_of(const PackedNode& node, const Choice& choice) {
  switch (node.kind) {
    case PackedKind::sum: {
      Form a = choice.form;
      Form b = choice.form;
      switch (choice.lowering) {
        case Lowering::plus:
          break;
        case Lowering::minus:
          b.negated ^= 3;
          break;
        case Lowering::reversed:
          a.negated ^= 3;
          break;
        case Lowering::alternating:
          b.negated ^= 1;
          break;
        case Lowering::alternating_b:
          a.negated ^= 1;
          break;
      }
      return {a, turned_operand(b, node.turn)};
    }
    case PackedKind::gather: {
      const int crossed = static_cast<int>(choice.lowering);
      return {(crossed & 1) != 0 ? exchanged(choice.form) : choice.form,
              (crossed & 2) != 0 ? exchanged(choice.form) : choice.form};
    }
    case PackedKind::store: {
      Form stored = choice.form;
      stored.negated ^= static_cast<int>(choice.lowering);
      return {turned_operand(stored, node.turn), {}};
    }
    default:
      return {};
  }
}

FormCost cost_of(const PackedGraph& graph, const std::vector<Choice>& choices) {
  std::vector<int> forms(graph.nodes.size(), 0);
  std::vector<int> orders(graph.nodes.size(), 0);
  for (std::size_t i = 0; i < graph.nodes.size(); ++i) {
    const PackedNode& n = graph.nodes[i];
    forms[i] |= 1 << index_of(choices[i].form);
    const Demand d = demand_of(n, choices[i]);
    switch (n.kind) {
      case PackedKind::sum:
      case PackedKind::gather:
        forms[at(n.b)] |= 1 << index_of(d.b);
        forms[at(n.a)] |= 1 << index_of(d.a);
        break;
      case PackedKind::store:
        forms[at(n.a)] |= 1 << index_of(d.a);
        break;
      case PackedKind::scale:
        orders[at(n.a)] |= 1 << choices[i].form.exchanged;
        break;
      case PackedKind::rotate:
        orders[at(n.a)] |= 3;
        break;
      default:
        break;
    }
  }
  FormCost total;
  unsigned masks = 1;  // the plain scale is there in any case
  for (std::size_t i = 0; i < graph.nodes.size(); ++i) {
    if (graph.nodes[i].kind == PackedKind::store) {
      masks |= 1U << static_cast<int>(choices[i].lowering);
      continue;
    }
    const Provision p = provision(forms[i], orders[i]);
    total.exchanges += p.exchanges;
    total.sign_changes += p.sign_changes;
  }
  total.sign_changes += std::popcount(masks) - 1;
  return total;
}

namespace {

/// Negated scales cost an instruction each, which only the whole kernel can weigh: so the choice is
/// made with none, one and all of them, and the cheapest stays.
std::vector<Choice> cheapest(const PackedGraph& graph, const std::vector<Choice>* model,
                             Signs signs, int sweeps, int seed) {
  std::vector<Choice> best;
  int least = 0;
  for (const std::vector<int>& masks : {std::vector{0}, {0, 3}, {0, 1, 2, 3}}) {
    std::vector<Choice> choices = Annealer(graph, model, signs, masks, seed).run(sweeps);
    const FormCost cost = cost_of(graph, choices);
    const int total = cost.exchanges + cost.sign_changes;
    if (best.empty() || total < least) {
      least = total;
      best = std::move(choices);
    }
  }
  return best;
}

}  // namespace

std::vector<Choice> choose_forms(const PackedGraph& graph, int sweeps, int seed, Signs signs) {
  return cheapest(graph, nullptr, signs, sweeps, seed);
}

std::vector<Choice> choose_mirrored_forms(const PackedGraph& graph,
                                          const std::vector<Choice>& forward, int sweeps,
                                          int seed) {
  return cheapest(graph, &forward, Signs::free, sweeps, seed);
}

}  // namespace haldgen::kernelgen
