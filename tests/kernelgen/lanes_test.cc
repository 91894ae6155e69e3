// Lane-parallel programs: the bits of their graph in every lane.
#include <gtest/gtest.h>

#include <algorithm>

#include "kernelgen/emit.h"
#include "kernelgen/lower.h"
#include "kernelgen/schedule.h"
#include "tests/kernelgen/random_graph.h"

namespace haldgen::kernelgen {
namespace {

using test::Dice;

constexpr int kInputs = 8;
const Wide kFromTable = cos_turn(1, 97);

/// Passes over memory behind an accessor.
Target in_slots(FloatType type, bool transposed = false) {
  const int lanes = type == FloatType::f32 ? 4 : 2;
  return {type, lanes, Memory::slots, Scaled::nothing, {}, transposed};
}

/// Products and sums of any number of terms, with constants and without.
Graph random_lane_graph(std::uint32_t seed, bool with_table) {
  Dice dice(seed);
  Graph graph(Field::real);
  std::vector<Value> values;
  for (int i = 0; i < kInputs; ++i) values.push_back(graph.input(i));
  if (with_table) {
    for (int i = 0; i < 3; ++i) values.push_back(graph.multiply(kFromTable, values[at(i)]));
  }
  const auto any = [&] {
    const Value v = values[at(dice.below(static_cast<int>(values.size())))];
    return turned(v, quarters(2 * dice.below(2)));
  };
  for (int i = 0; i < 40; ++i) {
    const Value a = any();
    const Value b = any();
    if (a.node != b.node && dice.chance(30)) {
      std::vector<Term> terms;
      for (int t = 2 + dice.below(3); t > 0; --t) {
        const Value v = any();
        const ConstantId constant = dice.chance(50) ? graph.intern(dice.constant()) : kNoConstant;
        terms.push_back({v.turn, constant, v.node});
      }
      values.push_back(graph.statement(terms));
      continue;
    }
    values.push_back(a.node == b.node || dice.chance(30) ? graph.multiply(dice.constant(), a)
                                                         : graph.add(a, b));
  }
  std::vector<Value> outputs;
  for (int i = 0; i < 6; ++i) outputs.push_back(graph.multiply(sin_turn(1, 50 + i), any()));
  graph.set_outputs(outputs);
  return graph;
}

/// Where element k of a lane's sequence stands among the slots.
std::size_t place(int k, int lane, const Target& target) {
  const int v = target.lanes;
  return target.transposed ? at((k / v * v + lane) * v + k % v) : at(k * v + lane);
}

template <class Float>
void expect_bits_in_every_lane(std::uint32_t seed, const Target& form) {
  Graph graph = random_lane_graph(seed, !form.table.empty());
  Target target = form;
  if (!form.table.empty()) target.table = {{graph.intern(kFromTable), 0}};
  const Program program = lower_real(graph, target);

  Dice dice(seed + 1);
  std::vector<std::vector<Float>> sequences;
  std::vector<Float> slots(at((kInputs + 1) * target.lanes));
  for (int lane = 0; lane < target.lanes; ++lane) {
    sequences.push_back(dice.numbers<Float>(kInputs));
    for (int k = 0; k < kInputs; ++k) {
      slots[place(k, lane, target)] = sequences.back()[at(k)];
    }
    slots[at(kInputs * target.lanes + lane)] = test::rounded_constant<Float>(kFromTable);
  }
  std::vector<Float> results(graph.outputs().size() * at(target.lanes));
  const Float scale = target.scaled == Scaled::nothing ? Float{1} : static_cast<Float>(0.3);
  interpret(program, slots, static_cast<Float>(0.3), results);
  for (int lane = 0; lane < target.lanes; ++lane) {
    const auto expected = test::direct<Float>(graph, sequences[at(lane)], scale);
    for (std::size_t k = 0; k < expected.size(); ++k) {
      ASSERT_EQ(test::bits(results[k * at(target.lanes) + at(lane)]), test::bits(expected[k]))
          << "seed " << seed << ", lane " << lane << ", output " << k;
    }
  }
}

TEST(LaneLowering, GivesTheBitsOfTheGraphInEveryLane) {
  for (std::uint32_t seed = 0; seed < 100; ++seed) {
    for (const FloatType type : {FloatType::f32, FloatType::f64}) {
      const auto expect = type == FloatType::f32 ? expect_bits_in_every_lane<float>
                                                 : expect_bits_in_every_lane<double>;
      for (const bool transposed : {false, true}) {
        Target target = in_slots(type, transposed);
        expect(seed, target);
        target.table = {{1, 0}};
        expect(seed, target);
      }
      Target arrays = in_slots(type);
      arrays.memory = Memory::arrays;
      arrays.scaled = Scaled::result;
      expect(seed, arrays);
      arrays.lanes = 1;
      expect(seed, arrays);
    }
  }
}

TEST(LaneLowering, RefusesWhatFillsNoVectors) {
  Graph graph(Field::real);
  graph.set_outputs({graph.add(graph.input(0), graph.input(2))});
  EXPECT_THROW(lower_real(graph, in_slots(FloatType::f32, true)), std::logic_error);
}

// The accessor's source and destination are different memory, so a store may come before a load.
TEST(LaneLowering, SlotsOrderNothing) {
  Graph graph(Field::real);
  const Value doubled = graph.multiply(sin_turn(1, 5), graph.input(1));
  graph.set_outputs({doubled, graph.multiply(sin_turn(1, 5), graph.input(0))});
  const Program program =
      scheduled(lower_real(graph, in_slots(FloatType::f32)), {Order::bisection, 0});
  const auto first_store = std::find_if(program.code.begin(), program.code.end(),
                                        [](const Instruction& in) { return is_store(in.op); });
  EXPECT_TRUE(std::any_of(first_store, program.code.end(),
                          [](const Instruction& in) { return in.op == Op::load; }));
  const std::string text = emit_body(program);
  EXPECT_NE(text.find("io.template load<1>()"), std::string::npos) << text;
  EXPECT_NE(text.find("io.template store<1>("), std::string::npos) << text;
  EXPECT_EQ(text.find("scale"), std::string::npos) << text;
}

}  // namespace
}  // namespace haldgen::kernelgen
