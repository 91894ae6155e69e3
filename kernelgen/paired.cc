#include "kernelgen/paired.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <optional>
#include <set>
#include <stdexcept>

#include "kernelgen/integers.h"

namespace haldgen::kernelgen {
namespace {

/// Whether two nodes do the same work.
bool alike(const PackedNode& one, const PackedNode& other) {
  if (one.kind != other.kind) return false;
  switch (one.kind) {
    case PackedKind::load:
    case PackedKind::store:
      if (one.element[0].has_value() != other.element[0].has_value()) return false;
      if (one.element[1].has_value() != other.element[1].has_value()) return false;
      return one.kind == PackedKind::load ||
             exchanges_parts(one.turn) == exchanges_parts(other.turn);
    case PackedKind::sum:
      return exchanges_parts(one.turn) == exchanges_parts(other.turn);
    case PackedKind::gather:
      return one.half == other.half;
    default:
      return true;
  }
}

class Pairer {
 public:
  explicit Pairer(const PackedGraph& graph)
      : nodes_(graph.nodes), partner_(graph.nodes.size(), -1), users_(graph.nodes.size()) {
    for (std::size_t i = 0; i < nodes_.size(); ++i) {
      const PackedNode& n = nodes_[i];
      if (n.a >= 0) users_[at(n.a)].push_back(static_cast<int>(i));
      if (n.b >= 0 && n.b != n.a) users_[at(n.b)].push_back(static_cast<int>(i));
    }
    find_levels();
  }

  Pairing run(const Pairs& pairs) {
    seed(PackedKind::load, pairs.source);
    seed(PackedKind::store, pairs.destination);
    // What is left: nodes of a level whose operands are pairs, then any.
    for (std::size_t i = 0; i < nodes_.size(); ++i) join_by_operands(static_cast<int>(i));
    return ordered();
  }

 private:
  /// Levels rise along every edge, so that pairs of one level cannot wait for one another in a
  /// circle. Those of sums count sums alone: what one column multiplies by and another does not
  /// leaves their sums side by side.
  void find_levels() {
    constexpr int kBetween = 16;
    std::vector<int> sums(nodes_.size(), 0);
    level_.assign(nodes_.size(), 0);
    for (std::size_t i = 0; i < nodes_.size(); ++i) {
      for (const int operand : {nodes_[i].a, nodes_[i].b}) {
        if (operand < 0) continue;
        sums[i] = std::max(sums[i], sums[at(operand)]);
        level_[i] = std::max(level_[i], level_[at(operand)] + 1);
      }
      if (nodes_[i].kind == PackedKind::sum) level_[i] = std::max(level_[i], kBetween * ++sums[i]);
    }
  }

  bool free(int node) const { return partner_[at(node)] < 0; }
  bool fits(int one, int other) const {
    return one != other && free(one) && free(other) && level_[at(one)] == level_[at(other)] &&
           alike(nodes_[at(one)], nodes_[at(other)]);
  }
  void join(int lower, int upper) {
    partner_[at(lower)] = upper;
    partner_[at(upper)] = lower;
    is_upper_.insert(upper);
  }
  bool joined(int lower, int upper) const {
    return lower >= 0 && partner_[at(lower)] == upper && !is_upper_.contains(lower);
  }

  /// Neighbours at this distance, and what hangs on both.
  void seed(PackedKind kind, int distance) {
    std::map<int, int> by_element;
    for (std::size_t i = 0; i < nodes_.size(); ++i) {
      if (nodes_[i].kind != kind || !nodes_[i].element[0]) continue;
      by_element[*nodes_[i].element[0]] = static_cast<int>(i);
    }
    for (const auto& [element, lower] : by_element) {
      const auto upper = by_element.find(element + distance);
      if (upper == by_element.end() || !free(lower) || !free(upper->second)) continue;
      if (kind == PackedKind::load) {
        if (fits(lower, upper->second)) {
          join(lower, upper->second);
          down(lower, upper->second);
        }
      } else {
        up(lower, upper->second);
      }
    }
  }

  /// Pairs of users that take a pair at the same place and whose other operands are a pair, or
  /// nothing yet.
  void down(int lower, int upper) {
    for (const int user : users_[at(lower)]) {
      for (const int other : users_[at(upper)]) {
        if (!fits(user, other)) continue;
        const PackedNode& u = nodes_[at(user)];
        const PackedNode& o = nodes_[at(other)];
        const bool same_place = (u.a == lower && o.a == upper) || (u.b == lower && o.b == upper);
        if (!same_place) continue;
        const auto complete = [&](int a, int b) { return a < 0 || joined(a, b); };
        if (!complete(u.a, o.a) || !complete(u.b, o.b)) continue;
        if (u.kind == PackedKind::store) continue;
        join(user, other);
        down(user, other);
        break;
      }
    }
  }

  /// Pairs of operands, as far as they do the same.
  void up(int lower, int upper) {
    if (!fits(lower, upper)) return;
    join(lower, upper);
    const PackedNode& l = nodes_[at(lower)];
    const PackedNode& u = nodes_[at(upper)];
    if (l.a >= 0) up(l.a, u.a);
    if (l.b >= 0) up(l.b, u.b);
  }

  void join_by_operands(int node) {
    if (!free(node)) return;
    const PackedNode& n = nodes_[at(node)];
    if (n.a < 0 || free(n.a)) return;
    const int beside = partner_[at(n.a)];
    for (const int other : users_[at(beside)]) {
      if (!fits(node, other) || nodes_[at(other)].a != beside) continue;
      if (is_upper_.contains(n.a)) {
        join(other, node);
      } else {
        join(node, other);
      }
      return;
    }
  }

  /// Vectors in an order in which operands come first.
  Pairing ordered() const {
    std::vector<int> order;
    for (std::size_t i = 0; i < nodes_.size(); ++i) {
      if (!is_upper_.contains(static_cast<int>(i))) order.push_back(static_cast<int>(i));
    }
    std::stable_sort(order.begin(), order.end(),
                     [&](int x, int y) { return level_[at(x)] < level_[at(y)]; });
    Pairing pairing;
    for (const int node : order) pairing.vectors.push_back({node, partner_[at(node)]});
    return pairing;
  }

  const std::vector<PackedNode>& nodes_;
  std::vector<int> partner_;
  std::set<int> is_upper_;
  std::vector<std::vector<int>> users_;
  std::vector<int> level_;
};

/// Signs of lanes, by bits: set where a lane holds the negative.
using Mask = unsigned;

class PairedLowering {
 public:
  PairedLowering(const PackedGraph& graph, const Pairing& pairing, const std::vector<Choice>& forms,
                 FloatType type, bool mirrored)
      : graph_(graph),
        pairing_(pairing),
        forms_(forms),
        block_(2 * graph.halves),
        mirrored_(mirrored),
        place_(graph.nodes.size()),
        values_(pairing.vectors.size()) {
    program_.type = type;
    program_.lanes = block_;
    program_.memory = Memory::paired;
    for (std::size_t v = 0; v < pairing.vectors.size(); ++v) {
      const auto& [lower, upper] = pairing.vectors[v];
      place_[at(lower)] = {static_cast<int>(v), 0};
      if (upper >= 0) place_[at(upper)] = {static_cast<int>(v), 1};
    }
    choose_orders();
  }

  Program run() {
    for (std::size_t v = 0; v < values_.size(); ++v) make(static_cast<int>(v));
    return pruned(program_);
  }

 private:
  struct Place {
    int vector = -1;
    int block = 0;
  };
  /// A value with its parts in either order, and the signs of its lanes.
  struct Held {
    int instruction = kNoOperand;
    Mask signs = 0;
  };
  struct Value {
    Mask signs = 0;                ///< as made
    int order = 0;                 ///< as made
    std::array<Held, 2> by_order;  ///< with the signs as made, parts of lanes exchanged along
  };

  const PackedNode& node(int index) const { return graph_.nodes[at(index)]; }
  bool wide(int vector) const { return pairing_.vectors[at(vector)].upper >= 0; }
  int lanes(int vector) const { return wide(vector) ? 2 * block_ : block_; }
  Mask all(int vector) const { return (1U << lanes(vector)) - 1; }
  int index(int vector, int block) const {
    const auto& pair = pairing_.vectors[at(vector)];
    return block == 0 ? pair.lower : pair.upper;
  }
  const PackedNode& node(int vector, int block) const { return node(index(vector, block)); }

  /// The mask of a condition on block, half and lane of the element.
  template <class Condition>
  Mask mask(int vector, const Condition& condition) const {
    Mask result = 0;
    for (int l = 0; l < lanes(vector); ++l) {
      if (condition(l / block_, l % block_ / 2, l % 2)) result |= 1U << l;
    }
    return result;
  }
  Mask swapped(Mask signs) const {
    constexpr Mask kEven = 0x55555555U;
    return (signs & kEven) << 1 | (signs & ~kEven) >> 1;
  }

  /// The sign in which a sum holds a part.
  bool negated(int index, int part) const {
    const Form form = forms_[at(index)].form;
    return ((form.negated >> (part ^ form.exchanged)) & 1) != 0;
  }
  static bool turned(Turn turn, int part) {
    return turn == Turn::half || (turn == Turn::quarter && part == 0) ||
           (turn == Turn::three_quarters && part == 1);
  }

  Instruction instruction(int vector, Op op, int a, int b = kNoOperand) const {
    Instruction in;
    in.op = op;
    in.a = a;
    in.b = b;
    in.lanes = lanes(vector);
    return in;
  }
  int emit(Instruction in) {
    in.stage = stage_;
    program_.code.push_back(in);
    return static_cast<int>(program_.code.size()) - 1;
  }

  int change_signs(int vector, int from, Mask signs) {
    if (signs == 0) return from;
    Instruction in = instruction(vector, Op::sign, from);
    for (int l = 0; l < lanes(vector); ++l) {
      in.constant[at(l)] = ((signs >> l) & 1) != 0 ? -0.0 : 0.0;
    }
    return emit(in);
  }

  /// Which part of an element stands in the even lanes: each vector takes in turn what spares most
  /// exchanges with its operands and users, until none changes.
  void choose_orders() {
    const std::size_t count = values_.size();
    std::vector<std::vector<std::pair<int, bool>>> beside(count);
    std::vector<int> fixed(count, -1);
    for (std::size_t v = 0; v < count; ++v) {
      const int vector = static_cast<int>(v);
      const PackedNode& n = node(vector, 0);
      if (n.kind == PackedKind::load) fixed[v] = mirrored_ ? 1 : 0;
      if (n.kind == PackedKind::store) fixed[v] = mirrored_ ? 1 : 0;
      for (int block = 0; block < (wide(vector) ? 2 : 1); ++block) {
        const PackedNode& m = node(vector, block);
        for (const int operand : {m.a, m.b}) {
          if (operand < 0 || m.kind == PackedKind::rotate || m.kind == PackedKind::gather) continue;
          const bool crosses = (m.kind == PackedKind::store || operand == m.b) &&
                               m.kind != PackedKind::scale && exchanges_parts(m.turn);
          const int from = place_[at(operand)].vector;
          beside[v].emplace_back(from, crosses);
          beside[at(from)].emplace_back(vector, crosses);
        }
      }
    }
    for (Value& value : values_) value.order = mirrored_ ? 1 : 0;
    for (int sweep = 0; sweep < 20; ++sweep) {
      bool changed = false;
      for (std::size_t v = 0; v < count; ++v) {
        if (fixed[v] >= 0) continue;
        std::array<int, 2> cost{};
        for (const auto& [other, crosses] : beside[v]) {
          for (int order = 0; order < 2; ++order) {
            const int wanted = values_[at(other)].order ^ (crosses ? 1 : 0);
            cost[at(order)] += wanted != order ? 1 : 0;
          }
        }
        const int better = cost[1] < cost[0] ? 1 : cost[0] < cost[1] ? 0 : values_[v].order;
        changed = changed || better != values_[v].order;
        values_[v].order = better;
      }
      if (!changed) break;
    }
  }

  /// A vector in an order, with the signs that it has there.
  Held in_order(int vector, int order) {
    Value& value = values_[at(vector)];
    Held& held = value.by_order[at(order)];
    if (held.instruction == kNoOperand) {
      const Held& other = value.by_order[at(1 - order)];
      held = {emit(instruction(vector, Op::exchange, other.instruction)), swapped(other.signs)};
    }
    return held;
  }

  /// What a vector takes of its operands: the blocks of two nodes, or of one, in an order.
  Held operand(int vector, int lower, int upper, int order) {
    const Place low = place_[at(lower)];
    if (!wide(vector)) {
      if (!wide(low.vector)) return in_order(low.vector, order);
      const auto [known, fresh] = merged_.try_emplace({lower, -1, order});
      if (fresh) {
        const Held from = in_order(low.vector, order);
        Instruction in = instruction(vector, Op::block, from.instruction);
        in.half[0] = low.block;
        known->second = {emit(in), block_signs(from.signs, low.block)};
      }
      return known->second;
    }
    const Place high = place_[at(upper)];
    if (low.vector == high.vector && low.block == 0 && high.block == 1) {
      return in_order(low.vector, order);
    }
    const auto found = merged_.find({lower, upper, order});
    if (found != merged_.end()) return found->second;
    const Held a = in_order(low.vector, order);
    const Held b = in_order(high.vector, order);
    const bool blocks = !wide(low.vector) && !wide(high.vector);
    Instruction in =
        instruction(vector, blocks ? Op::join : Op::merge, a.instruction, b.instruction);
    in.half = {low.block, high.block};
    const Held result{emit(in), block_signs(a.signs, low.block) | block_signs(b.signs, high.block)
                                                                      << block_};
    merged_[{lower, upper, order}] = result;
    return result;
  }
  Mask block_signs(Mask signs, int block) const {
    return (signs >> (block * block_)) & ((1U << block_) - 1);
  }
  Held operand_a(int vector, int order) {
    return operand(vector, node(vector, 0).a, wide(vector) ? node(vector, 1).a : -1, order);
  }
  Held operand_b(int vector, int order) {
    return operand(vector, node(vector, 0).b, wide(vector) ? node(vector, 1).b : -1, order);
  }

  void provide(int vector, int made, Mask signs) {
    Value& value = values_[at(vector)];
    value.by_order[at(value.order)] = {made, signs};
  }

  void make(int vector) {
    const PackedNode& n = node(vector, 0);
    stage_ = n.stage;
    switch (n.kind) {
      case PackedKind::load:
        return provide(vector, load(vector), 0);
      case PackedKind::zero:
        return provide(vector, emit(instruction(vector, Op::zero, kNoOperand)), 0);
      case PackedKind::sum:
        return sum(vector);
      case PackedKind::scale:
        return scale(vector);
      case PackedKind::rotate:
        return rotate(vector);
      case PackedKind::gather:
        return gather(vector);
      case PackedKind::store:
        return store(vector);
    }
  }

  int part(int vector, int lane) const { return lane ^ values_[at(vector)].order; }

  /// a and b in the signs that each lane wants; where both are negative one is negated.
  void sum(int vector) {
    const int order = values_[at(vector)].order;
    const bool crosses = exchanges_parts(node(vector, 0).turn);
    const Held a = operand_a(vector, order);
    const Held b = operand_b(vector, order ^ (crosses ? 1 : 0));
    const Mask held = mask(vector, [&](int block, int /*half*/, int lane) {
      return negated(index(vector, block), part(vector, lane));
    });
    const Mask turn = mask(vector, [&](int block, int /*half*/, int lane) {
      return turned(node(vector, block).turn, part(vector, lane));
    });
    const Mask alpha = held ^ a.signs;
    const Mask beta = held ^ turn ^ b.signs;
    const Mask every = all(vector);
    const Mask even = every & 0x55555555U;
    // The cheapest pair of changes after which one instruction does it.
    struct Way {
      Op op;
      bool turned;
      Mask a, b;
    };
    const Way ways[] = {
        {Op::add, false, 0, 0},           {Op::subtract, false, 0, every},
        {Op::subtract, true, every, 0},   {Op::alternate, false, 0, even},
        {Op::alternate, true, even, 0},   {Op::signed_add, false, 0, beta},
        {Op::signed_add, true, alpha, 0},
    };
    const Way* best = nullptr;
    int least = 100;
    for (const Way& way : ways) {
      const Mask change_a = alpha ^ way.a;
      const Mask change_b = beta ^ way.b;
      const int cost = price(a.instruction, change_a) + price(b.instruction, change_b);
      if (cost < least) {
        least = cost;
        best = &way;
      }
    }
    const int x = variant(vector, a.instruction, alpha ^ best->a);
    const int y = variant(vector, b.instruction, beta ^ best->b);
    Instruction in = instruction(vector, best->op, best->turned ? y : x, best->turned ? x : y);
    if (best->op == Op::signed_add) {
      const Mask minus = best->turned ? best->a : best->b;
      for (int l = 0; l < lanes(vector); ++l) in.constant[at(l)] = ((minus >> l) & 1) != 0 ? -1 : 1;
    }
    provide(vector, emit(in), held);
  }

  int price(int from, Mask change) const {
    return change == 0 || variants_.contains({from, change}) ? 0 : 1;
  }
  int variant(int vector, int from, Mask change) {
    if (change == 0) return from;
    const auto [known, fresh] = variants_.try_emplace({from, change}, kNoOperand);
    if (fresh) known->second = change_signs(vector, from, change);
    return known->second;
  }

  template <class ConstantOf>
  int multiply(int vector, int operand, const ConstantOf& constant_of) {
    Instruction in = instruction(vector, Op::multiply, operand);
    for (int l = 0; l < lanes(vector); ++l) {
      const Wide exact = constant_of(l, node(vector, l / block_).factor[at(l % block_ / 2)]);
      const double number = rounded(exact, program_.type);
      program_.exact.emplace(std::abs(number), abs(exact));
      in.constant[at(l)] = number;
    }
    return emit(in);
  }
  static Wide signed_by(Wide value, Mask signs, int lane) {
    return ((signs >> lane) & 1) != 0 ? -value : value;
  }

  void scale(int vector) {
    const Held a = operand_a(vector, values_[at(vector)].order);
    const Mask held = wanted_signs(vector);
    const int made = multiply(vector, a.instruction, [&](int lane, const WideComplex& factor) {
      return signed_by(factor.re, a.signs ^ held, lane);
    });
    provide(vector, made, held);
  }

  /// The signs that spare the users of a product a change: those in which the first sum adds it.
  Mask wanted_signs(int vector) const {
    return mask(vector, [&](int block, int half, int lane) {
      return wanted(index(vector, block), half, part(vector, lane), 0);
    });
  }
  bool wanted(int of, int half, int part, int steps) const {
    if (steps > 8) return false;
    for (std::size_t u = at(of) + 1; u < graph_.nodes.size(); ++u) {
      const PackedNode& user = graph_.nodes[u];
      if (user.a != of && user.b != of) continue;
      const auto i = static_cast<int>(u);
      if (user.kind == PackedKind::sum) {
        if (user.a == of) return negated(i, part);
        const int result = part ^ (exchanges_parts(user.turn) ? 1 : 0);
        return negated(i, result) != turned(user.turn, result);
      }
      if (user.kind == PackedKind::gather) {
        for (int h = 0; h < 2; ++h) {
          if ((h == 0 ? user.a : user.b) == of && user.half[at(h)] == half) {
            return wanted(i, h, part, steps + 1);
          }
        }
        continue;
      }
      return false;
    }
    return false;
  }

  // Part 0: wr re - wi im; part 1: wr im + wi re.
  void rotate(int vector) {
    const int order = values_[at(vector)].order;
    const Held straight = operand_a(vector, order);
    const Held cross = operand_a(vector, 1 - order);
    const Mask held = mask(vector, [&](int block, int /*half*/, int lane) {
      return negated(index(vector, block), part(vector, lane));
    });
    const int direct =
        multiply(vector, straight.instruction, [&](int lane, const WideComplex& factor) {
          return signed_by(factor.re, straight.signs ^ held, lane);
        });
    const int other = multiply(vector, cross.instruction, [&](int lane, const WideComplex& factor) {
      const bool real_part = part(vector, lane % 2) == 0;
      return signed_by(real_part ? -factor.im : factor.im, cross.signs ^ held, lane);
    });
    provide(vector, emit(instruction(vector, Op::add, direct, other)), held);
  }

  void gather(int vector) {
    const int order = values_[at(vector)].order;
    const auto& n = node(vector, 0);
    const Held a = operand_a(vector, order);
    const Held b = operand_b(vector, order);
    Instruction in = instruction(vector, Op::gather, a.instruction, b.instruction);
    in.half = n.half;
    Mask signs = 0;
    for (int l = 0; l < lanes(vector); ++l) {
      const int half = l % block_ / 2;
      const int from = l / block_ * block_ + 2 * n.half[at(half)] + l % 2;
      signs |= (((half == 0 ? a : b).signs >> from) & 1) << l;
    }
    provide(vector, emit(in), signs);
  }

  /// Whether a load or store moves a vector of neighbours, wherever it begins.
  bool whole(const PackedNode& n) const {
    return graph_.halves == 1 ||
           (n.element[0] && n.element[1] && *n.element[1] == *n.element[0] + 1);
  }
  /// An access to a block's elements; `op` moves whole vectors.
  Instruction access(const PackedNode& n, Op op) const {
    Instruction in;
    in.op = op;
    in.lanes = block_;
    in.address = {2 * n.element[0].value_or(0), 2 * n.element[1].value_or(0)};
    return in;
  }
  Instruction load_of(const PackedNode& n) const {
    return access(n, whole(n) ? Op::load : n.element[1] ? Op::load_pair : Op::load_single);
  }
  int load(int vector) {
    Instruction lower = load_of(node(vector, 0));
    if (!wide(vector)) return emit(lower);
    const Instruction upper = load_of(node(vector, 1));
    if (lower.op == Op::load && upper.op == Op::load &&
        upper.address[0] == lower.address[0] + block_) {
      lower.lanes = 2 * block_;
      return emit(lower);
    }
    const int a = emit(lower);
    return emit(instruction(vector, Op::join, a, emit(upper)));
  }

  void store_block(int vector, int block, int scaled) {
    const PackedNode& n = node(vector, block);
    int from = scaled;
    if (wide(vector)) {
      Instruction in;
      in.op = Op::block;
      in.a = scaled;
      in.half[0] = block;
      in.lanes = block_;
      from = emit(in);
    }
    const bool both = n.element[0] && n.element[1];
    Instruction in = access(n, whole(n)       ? Op::store
                               : both         ? Op::store_pair
                               : n.element[0] ? Op::store_single
                                              : Op::store_upper);
    if (in.op == Op::store_upper) in.address[0] = in.address[1];
    in.a = from;
    emit(in);
  }
  void store(int vector) {
    const bool crosses = exchanges_parts(node(vector, 0).turn);
    const int order = (mirrored_ ? 1 : 0) ^ (crosses ? 1 : 0);
    const Held a = operand_a(vector, order);
    Instruction scaled = instruction(vector, Op::scale, a.instruction);
    for (int l = 0; l < lanes(vector); ++l) {
      const int stored_part = l % 2 ^ (mirrored_ ? 1 : 0);
      const bool minus =
          (((a.signs >> l) & 1) != 0) != turned(node(vector, l / block_).turn, stored_part);
      scaled.constant[at(l)] = minus ? -1.0 : 1.0;
    }
    const int value = emit(scaled);
    if (!wide(vector)) return store_block(vector, 0, value);
    const PackedNode& lower = node(vector, 0);
    const PackedNode& upper = node(vector, 1);
    if (whole(lower) && whole(upper) && *upper.element[0] == *lower.element[0] + graph_.halves) {
      Instruction in = instruction(vector, Op::store, value);
      in.address[0] = 2 * *lower.element[0];
      emit(in);
      return;
    }
    store_block(vector, 0, value);
    store_block(vector, 1, value);
  }

  const PackedGraph& graph_;
  const Pairing& pairing_;
  const std::vector<Choice>& forms_;
  const int block_;  ///< lanes of a vector of the packed graph
  const bool mirrored_;
  std::vector<Place> place_;  ///< of the nodes
  std::vector<Value> values_;
  std::map<std::array<int, 3>, Held> merged_;  ///< by nodes and order
  std::map<std::pair<int, Mask>, int> variants_;
  Program program_;
  std::string stage_;
};

}  // namespace

Pairing pair(const PackedGraph& graph, const Pairs& pairs) { return Pairer(graph).run(pairs); }

Program lower_paired(const PackedGraph& graph, const Pairing& pairing,
                     const std::vector<Choice>& forms, FloatType type, bool mirrored) {
  return PairedLowering(graph, pairing, forms, type, mirrored).run();
}

}  // namespace haldgen::kernelgen
