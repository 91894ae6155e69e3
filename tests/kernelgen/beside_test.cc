// Scalar programs two and two in the lanes of vectors.
#include <gtest/gtest.h>

#include <algorithm>

#include "kernelgen/beside.h"
#include "kernelgen/emit.h"
#include "kernelgen/lower.h"
#include "kernelgen/precision.h"
#include "tests/kernelgen/random_graph.h"

namespace haldgen::kernelgen {
namespace {

using test::Dice;

int pairs_in(const Program& program, Op op) {
  return static_cast<int>(std::ranges::count_if(program.code, [&](const Instruction& in) {
    return in.op == op && lanes_of(program, in) == 2;
  }));
}
int instructions_of(const Program& program, Op op) {
  return static_cast<int>(std::ranges::count(program.code, op, &Instruction::op));
}

/// Numbers, some of them zeros of either sign: sums that cancel tell which way they were made.
template <class Float>
std::vector<Float> inputs(const Graph& graph, Dice& dice) {
  auto source = dice.numbers<Float>(test::inputs_of(graph));
  for (std::size_t i = 0; i < source.size(); ++i) {
    if (i % 3 == 0) source[i] = i % 2 == 0 ? Float{0} : -Float{0};
    if (i % 5 == 1) source[i] = source[0];
  }
  return source;
}

template <class Float>
int expect_bits_of_scalar_code(const Graph& graph, std::uint32_t seed) {
  const FloatType type = std::is_same_v<Float, float> ? FloatType::f32 : FloatType::f64;
  const Program scalar = lower_real(graph, {.type = type});
  const int count = static_cast<int>(graph.outputs().size());
  int paired = 0;
  for (const Pairs pairs : {Pairs{1, 1}, Pairs{2, count}, Pairs{count, 2}, Pairs{3, 1}}) {
    const Program program = beside(scalar, pairs);
    EXPECT_LE(estimated_cost(program), estimated_cost(scalar));
    paired += pairs_in(program, Op::add) + pairs_in(program, Op::subtract) +
              pairs_in(program, Op::alternate);
    Dice dice(seed);
    for (int trial = 0; trial < 3; ++trial) {
      const auto source = inputs<Float>(graph, dice);
      const auto scale = static_cast<Float>(trial == 1 ? -1 : 0.3);
      std::vector<Float> expected(graph.outputs().size()), actual(expected);
      interpret(scalar, source, scale, expected);
      interpret(program, source, scale, actual);
      EXPECT_TRUE(test::same_bits(actual, expected)) << "seed " << seed;
    }
  }
  return paired;
}

TEST(Beside, PairsHaveTheBitsOfTheirStatements) {
  int paired = 0;
  for (std::uint32_t seed = 0; seed < 100; ++seed) {
    Graph graph = test::random_real_graph(seed);
    paired += expect_bits_of_scalar_code<double>(graph, seed);
    widen_products(graph);
    paired += expect_bits_of_scalar_code<float>(graph, seed);
  }
  EXPECT_GT(paired, 50);
}

/// Sum and difference of inputs N/2 apart, and the same of either: rotations and their sums.
Graph two_branches() {
  constexpr int kHalf = 4;
  Graph g(Field::real);
  std::vector<Value> outputs;
  for (const bool minus : {false, true}) {
    std::vector<Value> x;
    for (int i = 0; i < kHalf; ++i) {
      const Value a = g.input(i), b = g.input(i + kHalf);
      x.push_back(minus ? g.subtract(a, b) : g.add(a, b));
    }
    for (int i = 0; i < kHalf; i += 2) {
      const Value u = x[at(i)], v = x[at(i + 1)];
      outputs.push_back(g.add(g.multiply(sin_turn(1, 7), u), g.multiply(cos_turn(1, 5), v)));
      outputs.push_back(g.subtract(u, v));
      outputs.push_back(g.multiply(cos_turn(1, 9), v));
    }
  }
  g.set_outputs(outputs);
  return g;
}

TEST(Beside, BranchesOfOneSizeRunInTwoLanes) {
  Graph graph = two_branches();
  widen_products(graph);
  const Program scalar = lower_real(graph, {.type = FloatType::f32});
  const Program program = beside(scalar, {4, 12});
  for (const Op op : {Op::multiply, Op::widen, Op::narrow, Op::scale}) {
    EXPECT_EQ(2 * pairs_in(program, op), instructions_of(scalar, op));
    EXPECT_EQ(pairs_in(program, op), instructions_of(program, op));
  }
  // One load serves both lanes: each input is taken twice by a join, and lanes part for stores
  // only.
  EXPECT_EQ(pairs_in(program, Op::alternate), 4);
  EXPECT_EQ(pairs_in(program, Op::join), 8);
  EXPECT_EQ(instructions_of(program, Op::merge), 0);
  const std::string body = emit_body(program);
  EXPECT_NE(body.find("lanes::alternate("), std::string::npos);
  EXPECT_NE(body.find("lanes::widened_pair("), std::string::npos);
  EXPECT_NE(body.find("double{scale} * "), std::string::npos);
}

}  // namespace
}  // namespace haldgen::kernelgen
