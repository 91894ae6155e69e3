#include "kernelgen/beside.h"

#include <algorithm>
#include <array>
#include <map>
#include <numeric>
#include <set>
#include <utility>

#include "kernelgen/integers.h"

namespace haldgen::kernelgen {
namespace {

bool is_sum(const Instruction& in) { return in.op == Op::add || in.op == Op::subtract; }

/// Whether two lanes of a vector can do both.
bool alike(const Instruction& one, const Instruction& other) {
  if (is_load(one.op) || is_store(one.op)) return false;
  return one.wide == other.wide && (one.op == other.op || (is_sum(one) && is_sum(other)));
}

bool takes(const Instruction& in, int one, int other) {
  return (in.a == one && in.b == other) || (in.a == other && in.b == one);
}

/// Levels rise along every edge, so that pairs of one level cannot wait for one another in a
/// circle. Those of sums count sums alone: conversions and products that one of two branches does
/// without leave their sums side by side.
std::vector<int> levels_of(const std::vector<Instruction>& code) {
  constexpr int kBetween = 16;
  std::vector<int> sums(code.size(), 0);
  std::vector<int> levels(code.size(), 0);
  for (std::size_t i = 0; i < code.size(); ++i) {
    for (const int operand : operands(code[i])) {
      sums[i] = std::max(sums[i], sums[at(operand)]);
      levels[i] = std::max(levels[i], levels[at(operand)] + 1);
    }
    if (is_sum(code[i])) levels[i] = std::max(levels[i], kBetween * ++sums[i]);
  }
  return levels;
}

/// Which instructions are side by side.
class Pairer {
 public:
  Pairer(const std::vector<Instruction>& code, const std::vector<int>& levels)
      : code_(code), level_(levels), partner_(code.size(), -1), users_(code.size()) {
    for (std::size_t i = 0; i < code_.size(); ++i) {
      for (const int operand : distinct(code_[i]))
        users_[at(operand)].push_back(static_cast<int>(i));
    }
  }

  void seed(const Pairs& pairs) {
    seed_loads(pairs.source);
    seed_stores(pairs.destination);
  }

  /// What is left: sums of the same operands or, first, of operands that are pairs.
  void join_rest(bool butterflies_first) {
    for (const bool butterflies : {butterflies_first, !butterflies_first}) {
      for (std::size_t i = 0; i < code_.size(); ++i) {
        const int node = static_cast<int>(i);
        if (!free(node) || is_load(code_[i].op) || is_store(code_[i].op)) continue;
        const int other = butterflies ? other_of_butterfly(node) : beside_operands(node);
        if (other < 0) continue;
        const bool swap = code_[i].op == Op::add && code_[at(other)].op == Op::subtract;
        join(swap ? other : node, swap ? node : other);
        grow();
      }
    }
  }

  /// For each instruction the one in the upper lane beside it; -1 if it has none or is one.
  std::vector<int> uppers() const {
    std::vector<int> result(partner_.size(), -1);
    for (std::size_t i = 0; i < partner_.size(); ++i) {
      if (!is_upper_.contains(static_cast<int>(i))) result[i] = partner_[i];
    }
    return result;
  }

 private:
  static std::vector<int> distinct(const Instruction& in) {
    std::vector<int> all = operands(in);
    if (all.size() == 2 && all[0] == all[1]) all.pop_back();
    return all;
  }

  bool free(int node) const { return partner_[at(node)] < 0; }
  bool fits(int one, int other) const {
    return one != other && free(one) && free(other) && level_[at(one)] == level_[at(other)] &&
           alike(code_[at(one)], code_[at(other)]);
  }
  bool joined(int lower, int upper) const {
    return partner_[at(lower)] == upper && !is_upper_.contains(lower);
  }
  void join(int lower, int upper) {
    partner_[at(lower)] = upper;
    partner_[at(upper)] = lower;
    is_upper_.insert(upper);
    fresh_.emplace_back(lower, upper);
  }

  /// How well two values go together as the operands of a pair.
  int affinity(int lower, int upper) const {
    if (joined(lower, upper)) return 4;
    const bool loads = is_load(code_[at(lower)].op) && is_load(code_[at(upper)].op);
    if (loads) return lower == upper ? 3 : 2;
    return fits(lower, upper) ? 2 : 0;
  }
  int affinity_of_operands(int lower, int upper, bool crossed) const {
    const Instruction& l = code_[at(lower)];
    const Instruction& u = code_[at(upper)];
    if (l.b == kNoOperand) return affinity(l.a, u.a);
    return affinity(l.a, crossed ? u.b : u.a) + affinity(l.b, crossed ? u.a : u.b);
  }
  bool crossed(int lower, int upper) const {
    return code_[at(lower)].b != kNoOperand &&
           affinity_of_operands(lower, upper, true) > affinity_of_operands(lower, upper, false);
  }

  /// Users and operands of fresh pairs.
  void grow() {
    while (!fresh_.empty()) {
      const auto [lower, upper] = fresh_.front();
      fresh_.erase(fresh_.begin());
      join_operands(lower, upper);
      join_users(lower, upper);
    }
  }
  void join_operands(int lower, int upper) {
    const Instruction& l = code_[at(lower)];
    const Instruction& u = code_[at(upper)];
    const bool cross = crossed(lower, upper);
    const auto follow = [&](int a, int b) {
      if (a != kNoOperand && fits(a, b)) join(a, b);
    };
    follow(l.a, cross ? u.b : u.a);
    follow(l.b, cross ? u.a : u.b);
  }
  void join_users(int lower, int upper) {
    for (const int user : users_[at(lower)]) {
      int best = -1;
      int most = 0;
      for (const int other : users_[at(upper)]) {
        if (!fits(user, other)) continue;
        const Instruction& x = code_[at(user)];
        const Instruction& y = code_[at(other)];
        const bool straight = (x.a == lower && y.a == upper) || (x.b == lower && y.b == upper);
        const bool across = (x.a == lower && y.b == upper) || (x.b == lower && y.a == upper);
        int merit = 0;
        if (straight) merit = affinity_of_operands(user, other, false);
        if (across) merit = std::max(merit, affinity_of_operands(user, other, true) - 1);
        merit = 4 * merit + (x.op == y.op ? 2 : 0) + (x.constant == y.constant ? 1 : 0);
        const int enough = x.b == kNoOperand ? 8 : 20;
        if (merit >= enough && merit > most) {
          most = merit;
          best = other;
        }
      }
      if (best >= 0) join(user, best);
    }
  }

  /// The sum of the same operands as a difference, or the other way round.
  int other_of_butterfly(int node) const {
    const Instruction& in = code_[at(node)];
    if (!is_sum(in)) return -1;
    for (const int other : users_[at(in.a)]) {
      const Instruction& o = code_[at(other)];
      if (takes(o, in.a, in.b) && fits(node, other) && o.op != in.op) return other;
    }
    return -1;
  }
  /// One that takes what stands beside the operands.
  int beside_operands(int node) const {
    for (const int operand : distinct(code_[at(node)])) {
      if (free(operand)) continue;
      const int beside = partner_[at(operand)];
      for (const int other : users_[at(beside)]) {
        if (fits(node, other)) return other;
      }
    }
    return -1;
  }

  void seed_loads(int distance) {
    std::map<int, int> by_address;
    for (std::size_t i = 0; i < code_.size(); ++i) {
      if (code_[i].op == Op::load) by_address[code_[i].address[0]] = static_cast<int>(i);
    }
    const int count = static_cast<int>(by_address.size());
    if (distance >= count) return;
    for (const auto& [address, one] : by_address) {
      const auto found = by_address.find((address + distance) % count);
      if (found == by_address.end()) continue;
      const int other = found->second;
      bool butterfly = false;
      for (const int user : users_[at(one)]) {
        const Instruction& in = code_[at(user)];
        if (in.op != Op::subtract || !takes(in, one, other)) continue;
        const int sum = free(user) ? other_of_butterfly(user) : -1;
        butterfly = true;
        if (sum >= 0) join(user, sum);
      }
      if (!butterfly) join_users(one, other);
      grow();
    }
  }

  /// What is stored, before conversion, scale and sign.
  int stripped(int node) const {
    while (code_[at(node)].b == kNoOperand && !is_load(code_[at(node)].op) &&
           code_[at(node)].op != Op::multiply) {
      node = code_[at(node)].a;
    }
    return node;
  }
  void seed_stores(int distance) {
    std::map<int, int> by_address;
    for (const Instruction& in : code_) {
      if (in.op == Op::store) by_address[in.address[0]] = in.a;
    }
    const int count = static_cast<int>(by_address.size());
    if (distance >= count) return;
    for (const auto& [address, value] : by_address) {
      const auto found = by_address.find((address + distance) % count);
      if (found == by_address.end()) continue;
      const int one = stripped(value);
      const int other = stripped(found->second);
      const Instruction& x = code_[at(one)];
      const Instruction& y = code_[at(other)];
      if (is_sum(x) && is_sum(y) && one != other && takes(y, x.a, x.b)) {
        if (fits(x.a, x.b)) join(x.a, x.b);
      } else if (fits(value, found->second)) {
        join(value, found->second);
      }
      grow();
    }
  }

  const std::vector<Instruction>& code_;
  const std::vector<int>& level_;
  std::vector<int> partner_;
  std::set<int> is_upper_;
  std::vector<std::vector<int>> users_;
  std::vector<std::pair<int, int>> fresh_;
};

/// The program of a pairing.
class PairLowering {
 public:
  PairLowering(const std::vector<Instruction>& scalar, const std::vector<int>& uppers,
               const std::vector<int>& order)
      : scalar_(scalar), uppers_(uppers), order_(order), place_(scalar.size()) {
    for (std::size_t i = 0; i < scalar.size(); ++i) {
      if (uppers[i] < 0) continue;
      place_[i].lane = 0;
      place_[at(uppers[i])].lane = 1;
    }
  }

  std::vector<Instruction> run() {
    code_.reserve(scalar_.size());
    for (const int node : order_) {
      if (place_[at(node)].lane == 1) continue;
      if (uppers_[at(node)] >= 0) {
        make_pair(node, uppers_[at(node)]);
      } else {
        make_single(node);
      }
    }
    return std::move(code_);
  }

 private:
  struct Place {
    int instruction = kNoOperand;
    int lane = -1;           ///< of a pair
    int alone = kNoOperand;  ///< taken out of the pair
  };

  int emit(const Instruction& in) {
    code_.push_back(in);
    return static_cast<int>(code_.size()) - 1;
  }

  int scalar(int node) {
    Place& place = place_[at(node)];
    if (place.lane < 0) return place.instruction;
    if (place.alone == kNoOperand) {
      Instruction in;
      in.op = Op::block;
      in.a = place.instruction;
      in.half[0] = place.lane;
      in.wide = held_wide(node);
      in.stage = scalar_[at(node)].stage;
      place.alone = emit(in);
    }
    return place.alone;
  }
  /// Whether the value of an instruction is one of 64 bits.
  bool held_wide(int node) const {
    return scalar_[at(node)].wide && scalar_[at(node)].op != Op::narrow;
  }

  int vector(int lower, int upper) {
    const Place& l = place_[at(lower)];
    const Place& u = place_[at(upper)];
    if (uppers_[at(lower)] == upper) return l.instruction;
    const auto known = vectors_.find({lower, upper});
    if (known != vectors_.end()) return known->second;
    Instruction in;
    in.lanes = 2;
    in.wide = held_wide(lower);
    in.stage = scalar_[at(lower)].stage;
    if (l.lane >= 0 && u.lane >= 0) {
      in.op = Op::merge;
      in.a = l.instruction;
      in.b = u.instruction;
      in.half = {l.lane, u.lane};
    } else {
      in.op = Op::join;
      in.a = scalar(lower);
      in.b = scalar(upper);
    }
    return vectors_[{lower, upper}] = emit(in);
  }

  void make_single(int node) {
    Instruction in = scalar_[at(node)];
    if (in.a != kNoOperand) in.a = scalar(in.a);
    if (in.b != kNoOperand) in.b = scalar(in.b);
    place_[at(node)].instruction = emit(in);
  }

  void make_pair(int lower, int upper) {
    const Instruction& l = scalar_[at(lower)];
    const Instruction& u = scalar_[at(upper)];
    Instruction in = l;
    in.lanes = 2;
    for (std::size_t i = 0; i < in.constant.size(); ++i) {
      in.constant[i] = i % 2 == 0 ? l.constant[0] : u.constant[0];
    }
    if (is_sum(l)) {
      in = sum(lower, upper);
    } else {
      in.a = vector(l.a, u.a);
      if (l.b != kNoOperand) in.b = vector(l.b, u.b);
    }
    const int made = emit(in);
    place_[at(lower)].instruction = made;
    place_[at(upper)].instruction = made;
  }

  /// What it takes to have two values in a vector.
  int effort(int lower, int upper) const {
    if (uppers_[at(lower)] == upper || vectors_.contains({lower, upper})) return 0;
    return lower == upper && is_load(scalar_[at(lower)].op) ? 0 : 1;
  }

  Instruction sum(int lower, int upper) {
    const Instruction& l = scalar_[at(lower)];
    const Instruction& u = scalar_[at(upper)];
    struct Lane {
      std::array<int, 2> operand;
      std::array<bool, 2> minus;
    };
    const auto lane = [](const Instruction& in, bool swapped) {
      const bool minus = in.op == Op::subtract;
      return swapped ? Lane{{in.b, in.a}, {minus, false}} : Lane{{in.a, in.b}, {false, minus}};
    };
    // The order of the operands in each lane that takes least.
    Lane best_lower = lane(l, false);
    Lane best_upper = lane(u, false);
    int least = 1 << 20;
    for (const bool swap_lower : {false, true}) {
      for (const bool swap_upper : {false, true}) {
        const Lane x = lane(l, swap_lower);
        const Lane y = lane(u, swap_upper);
        int total = effort(x.operand[0], y.operand[0]) + effort(x.operand[1], y.operand[1]);
        total *= 2;
        const bool alternates = !x.minus[0] && !y.minus[0] && x.minus[1] && !y.minus[1];
        const bool same = x.minus[0] == y.minus[0] && x.minus[1] == y.minus[1];
        if (!alternates && !same) {
          total += 2 * ((x.minus[0] || y.minus[0] ? 1 : 0) + (x.minus[1] || y.minus[1] ? 1 : 0));
        }
        if (total < least) {
          least = total;
          best_lower = x;
          best_upper = y;
        }
      }
    }
    if (best_lower.minus[0] && best_upper.minus[0]) {
      std::swap(best_lower.operand[0], best_lower.operand[1]);
      std::swap(best_upper.operand[0], best_upper.operand[1]);
      std::swap(best_lower.minus[0], best_lower.minus[1]);
      std::swap(best_upper.minus[0], best_upper.minus[1]);
    }
    Instruction in = l;
    in.lanes = 2;
    in.op = Op::add;
    in.a = vector(best_lower.operand[0], best_upper.operand[0]);
    in.b = vector(best_lower.operand[1], best_upper.operand[1]);
    if (!best_lower.minus[0] && !best_upper.minus[0] && best_lower.minus[1]) {
      in.op = best_upper.minus[1] ? Op::subtract : Op::alternate;
      return in;
    }
    in.a = with_signs(in.a, best_lower.minus[0], best_upper.minus[0], in);
    in.b = with_signs(in.b, best_lower.minus[1], best_upper.minus[1], in);
    return in;
  }
  int with_signs(int vector, bool lower, bool upper, const Instruction& of) {
    if (!lower && !upper) return vector;
    Instruction in;
    in.op = Op::sign;
    in.a = vector;
    in.lanes = 2;
    in.wide = of.wide;
    in.stage = of.stage;
    in.constant = {};
    for (std::size_t i = 0; i < in.constant.size(); ++i) {
      in.constant[i] = (i % 2 == 0 ? lower : upper) ? -0.0 : 0.0;
    }
    return emit(in);
  }

  const std::vector<Instruction>& scalar_;
  const std::vector<int>& uppers_;
  const std::vector<int>& order_;
  std::vector<Instruction> code_;
  std::vector<Place> place_;
  std::map<std::pair<int, int>, int> vectors_;
};

/// What a program is taken to cost: instructions, where a conversion between 32 and 64 bits is two,
/// and what one load does for two lanes is none.
int cost(const std::vector<Instruction>& code, FloatType type) {
  int total = 0;
  for (const Instruction& in : code) {
    switch (in.op) {
      case Op::load:
      case Op::zero:
        break;
      case Op::widen:
        total += is_load(code[at(in.a)].op) ? 1 : 2;
        break;
      case Op::narrow:
        total += 2;
        break;
      case Op::join:
        total += in.a == in.b && is_load(code[at(in.a)].op) ? 0 : 1;
        break;
      case Op::merge:
        // Lanes of floats cross in no single instruction.
        total += type == FloatType::f32 && !in.wide && in.half[0] == 1 && in.a != in.b ? 2 : 1;
        break;
      case Op::block:
        total += in.half[0];
        break;
      default:
        ++total;
    }
  }
  return total;
}

}  // namespace

Program beside(const Program& scalar, const Pairs& pairs) {
  // Stages are for readers only, and slow to copy.
  std::vector<Instruction> bare = scalar.code;
  for (Instruction& in : bare) in.stage.clear();
  const std::vector<int> levels = levels_of(bare);
  std::vector<int> best(bare.size(), -1);
  int least = cost(bare, scalar.type);
  std::vector<int> order(bare.size());
  std::iota(order.begin(), order.end(), 0);
  std::stable_sort(order.begin(), order.end(),
                   [&](int x, int y) { return levels[at(x)] < levels[at(y)]; });
  for (const bool butterflies_first : {false, true}) {
    Pairer pairer(bare, levels);
    pairer.seed(pairs);
    pairer.join_rest(butterflies_first);
    std::vector<int> uppers = pairer.uppers();
    const auto cost_now = [&] {
      return cost(PairLowering(bare, uppers, order).run(), scalar.type);
    };
    int now = cost_now();
    for (bool better = true; better;) {
      better = false;
      for (int& upper : uppers) {
        if (upper < 0) continue;
        const int kept = std::exchange(upper, -1);
        const int without = cost_now();
        better = better || without < now;
        if (without > now) upper = kept;
        now = std::min(now, without);
      }
    }
    if (now < least) {
      least = now;
      best = std::move(uppers);
    }
  }
  Program result = scalar;
  result.code = PairLowering(scalar.code, best, order).run();
  return result;
}

int estimated_cost(const Program& program) { return cost(program.code, program.type); }

}  // namespace haldgen::kernelgen
