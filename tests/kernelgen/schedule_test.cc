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
  ASSERT_EQ(after.code.size(), before.code.size());
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

}  // namespace
}  // namespace haldgen::kernelgen
