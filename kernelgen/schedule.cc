#include "kernelgen/schedule.h"

#include <algorithm>
#include <map>
#include <set>
#include <stdexcept>

#include "kernelgen/integers.h"

namespace haldgen::kernelgen {
namespace {

/// Who needs what. In place a store overwrites an input, so every load of an array's place comes
/// before the store to it: an edge that orders but holds no register.
struct Dependences {
  Dependences(const Program& program, const Overlap& overlap)
      : operands(program.code.size()), users(operands) {
    std::map<int, std::vector<int>> loads;  // by address
    for (std::size_t i = 0; i < program.code.size(); ++i) {
      const Instruction& in = program.code[i];
      const int index = static_cast<int>(i);
      operands[i] = kernelgen::operands(in);
      if (in.a == in.b && !operands[i].empty()) operands[i].pop_back();
      for (const int operand : operands[i]) users[at(operand)].push_back(index);
      for (const int address : touched(program, in)) {
        if (program.memory == Memory::slots) continue;
        if (is_load(in.op)) loads[address].push_back(index);
        if (is_store(in.op)) stores_.emplace_back(index, address);
      }
    }
    before.resize(program.code.size());
    for (const auto& [store, address] : stores_) {
      for (const auto& [from, all] : loads) {
        if (!overlap(from, address)) continue;
        before[at(store)].insert(before[at(store)].end(), all.begin(), all.end());
      }
    }
  }

  std::vector<std::vector<int>> operands;
  std::vector<std::vector<int>> users;
  std::vector<std::vector<int>> before;  ///< loads that a store must not overtake

 private:
  /// First floats of the elements that an instruction reads or writes.
  static std::vector<int> touched(const Program& program, const Instruction& in) {
    switch (in.op) {
      case Op::load:
      case Op::store: {
        std::vector<int> all;
        for (int l = 0; l < lanes_of(program, in); l += 2) all.push_back(in.address[0] + l);
        return all;
      }
      case Op::load_pair:
      case Op::store_pair:
        return {in.address[0], in.address[1]};
      case Op::load_single:
      case Op::store_single:
      case Op::store_upper:
        return {in.address[0]};
      default:
        return {};
    }
  }

  std::vector<std::pair<int, int>> stores_;
};

class Bisection {
 public:
  explicit Bisection(const Dependences& dependences) : dependences_(dependences) {}

  std::vector<int> run() {
    std::vector<int> all(dependences_.operands.size());
    for (std::size_t i = 0; i < all.size(); ++i) all[i] = static_cast<int>(i);
    order(all);
    return std::move(result_);
  }

 private:
  void order(const std::vector<int>& part) {
    if (part.size() <= 2) {
      result_.insert(result_.end(), part.begin(), part.end());
      return;
    }
    const std::set<int> inside(part.begin(), part.end());
    const auto within = [&](const std::vector<int>& all) {
      std::vector<int> some;
      for (const int i : all) {
        if (inside.contains(i)) some.push_back(i);
      }
      return some;
    };
    std::map<int, std::vector<int>> from, to;
    for (const int i : part) {
      from[i] = within(dependences_.operands[at(i)]);
      to[i] = within(dependences_.users[at(i)]);
    }
    const auto components = connected(part, from, to);
    if (components.size() > 1) {
      for (const auto& component : components) order(component);
      return;
    }
    // Grow a first half from what needs nothing and a second from what nothing needs, in turns.
    std::set<int> first, second, rest;
    for (const int i : part) {
      if (from[i].empty()) {
        first.insert(i);
      } else if (to[i].empty()) {
        second.insert(i);
      } else {
        rest.insert(i);
      }
    }
    if (first.empty() || second.empty()) {
      result_.insert(result_.end(), part.begin(), part.end());
      return;
    }
    const auto grow = [&rest](std::set<int>& half, std::map<int, std::vector<int>>& edges) {
      std::vector<int> joined;
      for (const int i : rest) {
        const auto& need = edges[i];
        if (std::all_of(need.begin(), need.end(), [&](int n) { return half.contains(n); })) {
          joined.push_back(i);
        }
      }
      for (const int i : joined) {
        half.insert(i);
        rest.erase(i);
      }
    };
    while (!rest.empty()) {
      grow(first, from);
      grow(second, to);
    }
    order({first.begin(), first.end()});
    order({second.begin(), second.end()});
  }

  static std::vector<std::vector<int>> connected(const std::vector<int>& part,
                                                 const std::map<int, std::vector<int>>& from,
                                                 const std::map<int, std::vector<int>>& to) {
    std::set<int> seen;
    std::vector<std::vector<int>> components;
    for (const int start : part) {
      if (!seen.insert(start).second) continue;
      std::vector<int> component, stack{start};
      while (!stack.empty()) {
        const int i = stack.back();
        stack.pop_back();
        component.push_back(i);
        for (const auto* edges : {&from, &to}) {
          for (const int next : edges->at(i)) {
            if (seen.insert(next).second) stack.push_back(next);
          }
        }
      }
      std::sort(component.begin(), component.end());
      components.push_back(std::move(component));
    }
    return components;
  }

  const Dependences& dependences_;
  std::vector<int> result_;
};

/// The order closest to `wanted` that respects operands, loads just before their first use.
std::vector<int> repaired(const Program& program, const Dependences& dependences,
                          const std::vector<int>& wanted) {
  std::vector<char> placed(program.code.size(), 0);
  std::vector<int> order;
  const auto place = [&](auto&& self, int i) -> void {
    if (placed[at(i)]) return;
    placed[at(i)] = 1;
    for (const int load : dependences.before[at(i)]) self(self, load);
    for (const int operand : dependences.operands[at(i)]) self(self, operand);
    order.push_back(i);
  };
  for (const int i : wanted) {
    if (!is_load(program.code[at(i)].op)) place(place, i);
  }
  return order;
}

/// Greedy list schedules. Loads are made when their first user is.
class ListSchedule {
 public:
  ListSchedule(const Program& program, const Dependences& dependences, std::vector<int> rank,
               int cap)
      : program_(program), dependences_(dependences), rank_(std::move(rank)), cap_(cap) {
    const std::size_t n = program.code.size();
    waiting_.assign(n, 0);
    uses_left_.assign(n, 0);
    loaded_.assign(n, 0);
    height_.assign(n, 0);
    for (std::size_t i = n; i-- > 0;) {
      for (const int user : dependences.users[i]) {
        height_[i] = std::max(height_[i], height_[at(user)]);
      }
      height_[i] += latency(program.code[i].op);
    }
    for (std::size_t i = 0; i < n; ++i) {
      uses_left_[i] = static_cast<int>(dependences.users[i].size());
      if (load(static_cast<int>(i))) continue;
      for (const int operand : dependences.operands[i]) waiting_[i] += load(operand) ? 0 : 1;
      if (waiting_[i] == 0) ready_.push_back(static_cast<int>(i));
    }
  }

  std::vector<int> run(bool critical) {
    while (!ready_.empty()) {
      const auto best = std::min_element(ready_.begin(), ready_.end(), [&](int x, int y) {
        return key(x, critical) < key(y, critical);
      });
      const int next = *best;
      ready_.erase(best);
      issue(next);
    }
    return std::move(order_);
  }

 private:
  bool load(int i) const { return is_load(program_.code[at(i)].op); }

  static int latency(Op op) {
    switch (op) {
      case Op::add:
      case Op::subtract:
      case Op::alternate:
      case Op::multiply:
      case Op::product:
      case Op::scale:
        return 3;
      case Op::widen:
      case Op::narrow:
        return 4;
      default:
        return 1;
    }
  }

  /// Change of the number of live values if `i` comes next.
  int growth(int i) const {
    int change = is_store(program_.code[at(i)].op) ? 0 : 1;
    for (const int operand : dependences_.operands[at(i)]) {
      const bool live = !load(operand) || loaded_[at(operand)];
      if (uses_left_[at(operand)] == 1) {
        change -= live ? 1 : 0;
      } else {
        change += live ? 0 : 1;
      }
    }
    return change;
  }

  std::array<int, 3> key(int i, bool critical) const {
    const int change = growth(i);
    if (critical) {
      const bool fits = live_ + change <= cap_;
      return {fits ? 0 : 1, fits ? -height_[at(i)] : change, rank_[at(i)]};
    }
    return {live_ >= cap_ - 3 ? change : 0, rank_[at(i)], 0};
  }

  void issue(int i) {
    for (const int operand : dependences_.operands[at(i)]) {
      if (load(operand)) fetch(operand);
    }
    for (const int before : dependences_.before[at(i)]) fetch(before);
    order_.push_back(i);
    for (const int operand : dependences_.operands[at(i)]) {
      if (--uses_left_[at(operand)] == 0) --live_;
    }
    if (!is_store(program_.code[at(i)].op)) ++live_;
    for (const int user : dependences_.users[at(i)]) {
      if (--waiting_[at(user)] == 0) ready_.push_back(user);
    }
  }

  void fetch(int i) {
    if (loaded_[at(i)]) return;
    loaded_[at(i)] = 1;
    order_.push_back(i);
    ++live_;
  }

  const Program& program_;
  const Dependences& dependences_;
  std::vector<int> rank_;
  int cap_;
  int live_ = 0;
  std::vector<int> waiting_, uses_left_, height_, ready_, order_;
  std::vector<char> loaded_;
};

Program permuted(const Program& program, const std::vector<int>& order) {
  if (order.size() != program.code.size()) throw std::logic_error("a schedule lost instructions");
  Program result = program;
  std::vector<int> place(order.size());
  for (std::size_t i = 0; i < order.size(); ++i) {
    place[at(order[i])] = static_cast<int>(i);
    result.code[i] = relocated(program.code[at(order[i])], place);
  }
  return result;
}

constexpr std::array<std::string_view, 4> kNames{"program", "bisection", "pressure", "critical"};

}  // namespace

Order order_named(std::string_view name) {
  for (std::size_t i = 0; i < kNames.size(); ++i) {
    if (kNames[i] == name) return static_cast<Order>(i);
  }
  throw std::invalid_argument("no such order");
}

std::string_view name_of(Order order) { return kNames[static_cast<std::size_t>(order)]; }

Program scheduled(const Program& program, Ordering ordering, const Overlap& overlap) {
  const auto [order, cap] = ordering;
  const Dependences dependences(program, overlap);
  std::vector<int> natural(program.code.size());
  for (std::size_t i = 0; i < natural.size(); ++i) natural[i] = static_cast<int>(i);
  if (order == Order::program) {
    return permuted(program, repaired(program, dependences, natural));
  }
  const std::vector<int> halved = Bisection(dependences).run();
  if (order == Order::bisection) {
    return permuted(program, repaired(program, dependences, halved));
  }
  std::vector<int> rank(halved.size());
  for (std::size_t i = 0; i < halved.size(); ++i) rank[at(halved[i])] = static_cast<int>(i);
  return permuted(program,
                  ListSchedule(program, dependences, rank, cap).run(order == Order::critical));
}

}  // namespace haldgen::kernelgen
