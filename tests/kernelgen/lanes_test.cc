// Lane-parallel programs: the bits of their graph in every lane.
#include <gtest/gtest.h>

#include <algorithm>

#include "kernelgen/emit.h"
#include "kernelgen/lower.h"
#include "kernelgen/schedule.h"
#include "tests/kernelgen/random_graph.h"

namespace haldgen::kernelgen {
namespace {

using test::at;
using test::Dice;

constexpr int kInputs = 8;
const Wide kFromTable = cos_turn(1, 97);

/// Products and sums of two.
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
    return turned(v, 2 * dice.below(2));
  };
  for (int i = 0; i < 40; ++i) {
    const Value a = any();
    const Value b = any();
    values.push_back(a.node == b.node || dice.chance(30) ? graph.multiply(dice.constant(), a)
                                                         : graph.add(a, b));
  }
  std::vector<Value> outputs;
  for (int i = 0; i < 6; ++i) outputs.push_back(graph.multiply(sin_turn(1, 50 + i), any()));
  graph.set_outputs(outputs);
  return graph;
}

/// Where element k of a lane's sequence stands among the slots.
std::size_t place(int k, int lane, const LaneInputs& inputs) {
  const int v = inputs.lanes;
  return inputs.transposed ? at((k / v * v + lane) * v + k % v) : at(k * v + lane);
}

template <class Float>
void expect_bits_in_every_lane(std::uint32_t seed, const LaneInputs& form) {
  Graph graph = random_lane_graph(seed, !form.table.empty());
  LaneInputs inputs = form;
  if (!form.table.empty()) inputs.table = {{graph.intern(kFromTable), 0}};
  const FloatType type = sizeof(Float) == 4 ? FloatType::f32 : FloatType::f64;
  const Program program = lower_lanes(graph, type, inputs);

  Dice dice(seed + 1);
  std::vector<std::vector<Float>> sequences;
  std::vector<Float> slots(at((kInputs + 1) * inputs.lanes));
  for (int lane = 0; lane < inputs.lanes; ++lane) {
    sequences.push_back(dice.numbers<Float>(kInputs));
    for (int k = 0; k < kInputs; ++k) {
      slots[place(k, lane, inputs)] = sequences.back()[at(k)];
    }
    slots[at(kInputs * inputs.lanes + lane)] = test::rounded_constant<Float>(kFromTable);
  }
  std::vector<Float> results(graph.outputs().size() * at(inputs.lanes));
  interpret(program, slots, Float{1}, results);
  for (int lane = 0; lane < inputs.lanes; ++lane) {
    const auto expected = test::direct<Float>(graph, sequences[at(lane)], Float{1});
    for (std::size_t k = 0; k < expected.size(); ++k) {
      ASSERT_EQ(test::bits(results[k * at(inputs.lanes) + at(lane)]), test::bits(expected[k]))
          << "seed " << seed << ", lane " << lane << ", output " << k;
    }
  }
}

TEST(LaneLowering, GivesTheBitsOfTheGraphInEveryLane) {
  const std::map<ConstantId, int> any_table = {{1, 0}};
  for (std::uint32_t seed = 0; seed < 100; ++seed) {
    for (const bool transposed : {false, true}) {
      expect_bits_in_every_lane<float>(seed, {4, {}, transposed});
      expect_bits_in_every_lane<float>(seed, {4, any_table, transposed});
      expect_bits_in_every_lane<double>(seed, {2, {}, transposed});
      expect_bits_in_every_lane<double>(seed, {2, any_table, transposed});
    }
    expect_bits_in_every_lane<float>(seed, {1, {}, false});
  }
}

TEST(LaneLowering, RefusesWhatFillsNoVectors) {
  Graph graph(Field::real);
  graph.set_outputs({graph.add(graph.input(0), graph.input(2))});
  EXPECT_THROW(lower_lanes(graph, FloatType::f32, {4, {}, true}), std::logic_error);
}

// The accessor's source and destination are different memory, so a store may come before a load.
TEST(LaneLowering, SlotsOrderNothing) {
  Graph graph(Field::real);
  const Value doubled = graph.multiply(sin_turn(1, 5), graph.input(1));
  graph.set_outputs({doubled, graph.multiply(sin_turn(1, 5), graph.input(0))});
  const Program program =
      scheduled(lower_lanes(graph, FloatType::f32, {4, {}, false}), {Order::bisection, 0});
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
