// Orders of instructions: permutations that respect operands and memory, and so keep the bits.
#include "kernelgen/schedule.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <map>
#include <set>
#include <tuple>

#include "kernelgen/forms.h"
#include "kernelgen/lower.h"
#include "tests/kernelgen/random_graph.h"

namespace haldgen::kernelgen {
namespace {

using test::Dice;

constexpr Order kOrders[] = {Order::program, Order::bisection, Order::pressure, Order::critical};

Program vector_program(std::uint32_t seed, int halves) {
  const PackedGraph packed = pack(test::random_complex_graph(seed), halves);
  return lower_packed(packed, choose_forms(packed, 5),
                      halves == 2 ? FloatType::f32 : FloatType::f64);
}

Program scalar_program(std::uint32_t seed) {
  return lower_real(test::random_real_graph(seed), {FloatType::f64});
}

/// Programs of all kinds, each in each order; some caps are too small to be kept to.
template <class Check>
void for_all_schedules(const Check& check) {
  for (std::uint32_t seed = 0; seed < 60; ++seed) {
    for (const Program& program :
         {vector_program(seed, 1), vector_program(seed, 2), scalar_program(seed)}) {
      for (const Order order : kOrders) {
        const int cap = 3 + static_cast<int>(seed % 14);
        ASSERT_NO_FATAL_FAILURE(check(program, scheduled(program, {order, cap})))
            << "seed " << seed << " " << name_of(order);
      }
    }
  }
}

/// An instruction without its operands' names.
auto essence(const Instruction& in) {
  return std::tuple(in.op, in.constant, in.address, in.half, in.cross, in.wide);
}

/// First floats of the places that an instruction touches.
std::vector<int> places(const Program& program, const Instruction& in) {
  if (in.op == Op::load_pair || in.op == Op::store_pair) return {in.address[0], in.address[1]};
  if (in.op == Op::zero || (!is_load(in.op) && !is_store(in.op))) return {};
  if (program.lanes == 4 && (in.op == Op::load || in.op == Op::store)) {
    return {in.address[0], in.address[0] + 2};
  }
  return {in.address[0]};
}

TEST(Schedule, IsAPermutation) {
  for_all_schedules([](const Program& before, const Program& after) {
    const auto all = [](const Program& program) {
      std::vector<decltype(essence({}))> result;
      for (const Instruction& in : program.code) result.push_back(essence(in));
      std::sort(result.begin(), result.end());
      return result;
    };
    ASSERT_EQ(after.lanes, before.lanes);
    ASSERT_EQ(after.type, before.type);
    ASSERT_EQ(all(after), all(before));
  });
}

TEST(Schedule, OperandsComeFirst) {
  for_all_schedules([](const Program&, const Program& after) {
    for (std::size_t i = 0; i < after.code.size(); ++i) {
      const Instruction& in = after.code[i];
      ASSERT_LT(in.a, static_cast<int>(i));
      ASSERT_LT(in.b, static_cast<int>(i));
      ASSERT_FALSE(in.a >= 0 && is_store(after.code[at(in.a)].op));
    }
  });
}

TEST(Schedule, NoStoreComesBeforeALoadOfItsPlace) {
  for_all_schedules([](const Program&, const Program& after) {
    std::vector<int> stored;
    for (const Instruction& in : after.code) {
      for (const int place : places(after, in)) {
        if (is_store(in.op)) {
          stored.push_back(place);
        } else {
          ASSERT_EQ(std::count(stored.begin(), stored.end(), place), 0) << place;
        }
      }
    }
  });
}

TEST(Schedule, StoresOfHalvesKnowLoadsOfWholeVectors) {
  // Elements 0, 1 are overwritten early, by a whole vector or by halves, and read late.
  const auto make = [](Op op, int a, int b, std::array<int, 2> address) {
    Instruction in;
    in.op = op;
    in.a = a;
    in.b = b;
    in.address = address;
    in.constant = {1, 1, 1, 1};
    return in;
  };
  const std::vector<Instruction> early_stores[] = {
      {make(Op::store, 1, -1, {0, 0})},
      {make(Op::store_pair, 1, -1, {2, 0})},
      {make(Op::store_single, 1, -1, {2, 0}), make(Op::store_upper, 1, -1, {0, 0})},
  };
  const Instruction late_loads[] = {
      make(Op::load, -1, -1, {0, 0}), make(Op::load_pair, -1, -1, {6, 2}),
      make(Op::load_pair, -1, -1, {0, 6}), make(Op::load_single, -1, -1, {2, 0})};
  for (const auto& stores : early_stores) {
    for (const Instruction& late : late_loads) {
      Program program{FloatType::f32, 4, {}};
      auto& code = program.code;
      code = {make(Op::load, -1, -1, {4, 0}), make(Op::scale, 0, -1, {}), late};
      code.insert(code.end(), stores.begin(), stores.end());
      code.push_back(make(Op::exchange, 2, -1, {}));
      code.push_back(make(Op::store, static_cast<int>(code.size()) - 1, -1, {4, 0}));
      for (const Order order : kOrders) {
        const Program after = scheduled(program, {order, 4});
        const auto position = [&](auto matches) {
          return std::find_if(after.code.begin(), after.code.end(), matches) - after.code.begin();
        };
        const auto load =
            position([&](const Instruction& in) { return essence(in) == essence(late); });
        const auto store = position([&](const Instruction& in) {
          return std::any_of(stores.begin(), stores.end(), [&](const Instruction& s) {
            const auto touched = places(program, late);
            const auto written = places(program, s);
            return essence(in) == essence(s) &&
                   std::find_first_of(touched.begin(), touched.end(), written.begin(),
                                      written.end()) != touched.end();
          });
        });
        EXPECT_LT(load, store) << name_of(order);
      }
    }
  }
}

template <class Float>
void expect_same_bits(const Program& before, const Program& after) {
  Dice dice(5);
  const auto source = dice.numbers<Float>(256);
  std::vector<Float> expected(256), actual(256);
  interpret(before, source, static_cast<Float>(0.3), expected);
  interpret(after, source, static_cast<Float>(0.3), actual);
  ASSERT_EQ(actual, expected);
  auto in_place = source;
  interpret(after, in_place, static_cast<Float>(0.3), in_place);
  for (const Instruction& in : after.code) {
    if (!is_store(in.op)) continue;
    for (const int place : places(after, in)) {
      ASSERT_EQ(in_place[at(place)], expected[at(place)]);
    }
  }
}

TEST(Schedule, KeepsTheBitsAlsoInPlace) {
  for_all_schedules([](const Program& before, const Program& after) {
    if (before.type == FloatType::f64) {
      expect_same_bits<double>(before, after);
    } else {
      expect_same_bits<float>(before, after);
    }
  });
}

TEST(Schedule, IsReproducible) {
  const Program program = vector_program(3, 2);
  for (const Order order : kOrders) {
    const Program first = scheduled(program, {order, 12});
    const Program second = scheduled(program, {order, 12});
    for (std::size_t i = 0; i < first.code.size(); ++i) {
      ASSERT_EQ(essence(first.code[i]), essence(second.code[i]));
      ASSERT_EQ(first.code[i].a, second.code[i].a);
      ASSERT_EQ(first.code[i].b, second.code[i].b);
    }
  }
}

TEST(Schedule, NamesAreReadBack) {
  for (const Order order : kOrders) EXPECT_EQ(order_named(name_of(order)), order);
  EXPECT_THROW(order_named("alphabetical"), std::invalid_argument);
}

/// Pairs of inputs summed; as lowered, all loads of a wide tree come first.
Program sum_of(int inputs) {
  Graph g(Field::real);
  std::vector<Value> level;
  for (int i = 0; i < inputs; ++i) level.push_back(g.input(i));
  while (level.size() > 1) {
    std::vector<Value> next;
    for (std::size_t i = 0; i + 1 < level.size(); i += 2) {
      next.push_back(g.add(level[i], level[i + 1]));
    }
    level = next;
  }
  g.set_outputs({level[0]});
  return lower_real(g, {FloatType::f64});
}

/// The most values that live at once.
std::size_t most_live(const Program& program) {
  std::map<int, std::size_t> last_use;
  for (std::size_t i = 0; i < program.code.size(); ++i) {
    for (const int operand : operands(program.code[i])) last_use[operand] = i;
  }
  std::size_t most = 0;
  std::set<int> live;
  for (std::size_t i = 0; i < program.code.size(); ++i) {
    std::erase_if(live, [&](int value) { return last_use[value] == i; });
    if (!is_store(program.code[i].op)) live.insert(static_cast<int>(i));
    most = std::max(most, live.size());
  }
  return most;
}

TEST(Schedule, BisectionKeepsATreeInFewRegisters) {
  const Program tree = sum_of(64);
  EXPECT_GE(most_live(scheduled(tree, {Order::program, 16})), 32U);
  EXPECT_LE(most_live(scheduled(tree, {Order::bisection, 16})), 2 * 6U);  // two a level
}

}  // namespace
}  // namespace haldgen::kernelgen
