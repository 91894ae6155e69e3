// The passes that lead a graph to a scalar program, and that program's bits.
#include <gtest/gtest.h>

#include <algorithm>

#include "kernelgen/count.h"
#include "kernelgen/evaluate.h"
#include "kernelgen/lower.h"
#include "kernelgen/parts.h"
#include "kernelgen/precision.h"
#include "tests/kernelgen/random_graph.h"

namespace haldgen::kernelgen {
namespace {

using test::Dice;

constexpr std::uint32_t kSeeds = 200;
const Wide kSine = sin_turn(1, 5);
const Wide kCosine = cos_turn(1, 5);

template <class Float>
void expect_bits_of_graph(const Graph& graph, std::uint32_t seed, Scaled scaled = Scaled::result) {
  Dice dice(seed);
  const auto source = dice.numbers<Float>(test::inputs_of(graph));
  const Float scale = static_cast<Float>(0.3);
  const FloatType type = std::is_same_v<Float, float> ? FloatType::f32 : FloatType::f64;
  std::vector<Float> actual(graph.outputs().size());
  interpret(lower_real(graph, {.type = type, .scaled = scaled}), source, scale, actual);
  ASSERT_TRUE(test::same_bits(actual, test::direct<Float>(graph, source, scale, scaled)))
      << "seed " << seed;
}

template <class Check>
void for_all_graphs(const Check& check) {
  for (std::uint32_t seed = 0; seed < kSeeds; ++seed) {
    ASSERT_NO_FATAL_FAILURE(check(test::random_real_graph(seed), seed)) << "seed " << seed;
  }
}

TEST(ScalarLowering, GivesTheBitsOfTheStatements) {
  for_all_graphs([](const Graph& graph, std::uint32_t seed) {
    expect_bits_of_graph<double>(graph, seed);
    expect_bits_of_graph<float>(graph, seed);
  });
}

TEST(ScalarLowering, RoundsWideStatementsOnce) {
  for_all_graphs([](Graph graph, std::uint32_t seed) {
    widen_products(graph);
    expect_bits_of_graph<float>(graph, seed);
    expect_bits_of_graph<float>(graph, seed, Scaled::kept);
    expect_bits_of_graph<double>(graph, seed);
    Graph gathered = gather_statements(graph);
    widen_products(gathered);
    expect_bits_of_graph<float>(gathered, seed);
  });
}

TEST(ScalarLowering, WideArithmeticIsSeenInTheBits) {
  // Otherwise the test above would pass with everything in 32 bits.
  int different = 0;
  for (std::uint32_t seed = 0; seed < 20; ++seed) {
    Graph graph = gather_statements(test::random_real_graph(seed));
    Dice dice(seed);
    const auto source = dice.numbers<float>(test::inputs_of(graph));
    const auto narrow = test::direct<float>(graph, source, 1.0F);
    widen_products(graph);
    different += test::same_bits(narrow, test::direct<float>(graph, source, 1.0F)) ? 0 : 1;
  }
  EXPECT_GT(different, 10);
}

TEST(ScalarLowering, SixtyFourBitElementsAreNeverWidened) {
  Graph graph = test::random_real_graph(1);
  widen_products(graph);
  for (const Instruction& in : lower_real(graph, {FloatType::f64}).code) {
    EXPECT_FALSE(in.wide || in.op == Op::widen || in.op == Op::narrow);
  }
}

TEST(ScalarLowering, ANegatedOutputIsZeroMinusTheScaledValue) {
  Graph g(Field::real);
  g.set_outputs({-g.input(0)});
  std::vector<double> out(1);
  interpret(lower_real(g, {FloatType::f64}), {0.0}, 0.5, out);
  EXPECT_FALSE(std::signbit(out[0]));
  interpret(lower_real(g, {FloatType::f64}), {3.0}, 0.5, out);
  EXPECT_EQ(out[0], -1.5);
}

// A graph never makes one: it moves a minus that all terms have to the uses of the sum.
TEST(ScalarLowering, RefusesASumOfMinusesOnly) {
  Graph g(Field::real);
  const Value sum = g.add(g.input(0), g.input(1));
  g.set_outputs({sum});
  for (Term& t : g.node(sum.node).terms) t.turn = Turn::half;
  EXPECT_THROW(lower_real(g, {FloatType::f64}), std::logic_error);
}

TEST(WidenProducts, MarksStatementsWithConstantsOnly) {
  Graph g(Field::real);
  const Value sum = g.add(g.input(0), g.input(1));
  const Value product = g.multiply(kSine, sum);
  const Value mixed = g.statement(
      {{Turn::none, kNoConstant, g.input(0).node}, {Turn::none, g.intern(kCosine), sum.node}});
  g.set_outputs({sum, product, mixed});
  widen_products(g);
  EXPECT_EQ(g.node(sum.node).precision, Precision::element);
  EXPECT_EQ(g.node(product.node).precision, Precision::wide);
  EXPECT_EQ(g.node(mixed.node).precision, Precision::wide);
}

TEST(GatherStatements, ALineOfArithmeticWithConstantsIsOneStatement) {
  Graph g(Field::real);
  const Value x = g.input(0);
  const Value p = g.input(1);
  const Value q = g.input(2);
  const Value first = g.add(x, g.multiply(kCosine, p));
  g.set_outputs({g.subtract(first, g.multiply(kSine, q))});
  const Graph gathered = gather_statements(g);
  const Statement& s = gathered.node(gathered.outputs()[0].node);
  ASSERT_EQ(s.terms.size(), 3U);
  EXPECT_EQ(gathered.node(s.terms[0].node).input, 0);
  EXPECT_EQ(gathered.node(s.terms[1].node).input, 1);
  EXPECT_EQ(gathered.node(s.terms[2].node).input, 2);
  EXPECT_EQ(s.terms[0].constant, kNoConstant);
  EXPECT_TRUE(gathered.constant(s.terms[1].constant) == kCosine);
  EXPECT_EQ(s.terms[2].turn, Turn::half);
}

TEST(GatherStatements, WhatIsUsedTwiceStaysAStatement) {
  Graph g(Field::real);
  const Value product = g.multiply(kSine, g.input(0));
  g.set_outputs({g.add(g.input(1), product), g.subtract(g.input(1), product)});
  EXPECT_EQ(live_nodes(gather_statements(g)).size(), 5U);
  Graph h(Field::real);
  const Value output = h.multiply(kSine, h.input(0));
  h.set_outputs({output, h.add(h.input(1), output)});
  EXPECT_EQ(live_nodes(gather_statements(h)).size(), 4U);
}

TEST(GatherStatements, SumsWithoutConstantsStay) {
  Graph g(Field::real);
  g.set_outputs({g.add(g.add(g.input(0), g.input(1)), g.multiply(kSine, g.input(2)))});
  const Graph gathered = gather_statements(g);
  const Statement& s = gathered.node(gathered.outputs()[0].node);
  ASSERT_EQ(s.terms.size(), 2U);
  EXPECT_EQ(gathered.node(s.terms[0].node).terms.size(), 2U);
}

TEST(GatherStatements, ALateSumIsNotOpened) {
  // x + (c y + d z) must not become (x + c y) + d z.
  Graph g(Field::real);
  const Value inner = g.add(g.multiply(kSine, g.input(1)), g.multiply(kCosine, g.input(2)));
  g.set_outputs({g.add(g.input(0), inner)});
  const Graph gathered = gather_statements(g);
  EXPECT_EQ(gathered.node(gathered.outputs()[0].node).terms.size(), 2U);
  EXPECT_EQ(live_nodes(gathered).size(), 5U);
}

TEST(GatherStatements, KeepsBitsAndCounts) {
  for_all_graphs([](const Graph& graph, std::uint32_t seed) {
    const Graph gathered = gather_statements(graph);
    Dice dice(seed);
    const auto source = dice.numbers<double>(test::inputs_of(graph));
    ASSERT_TRUE(test::same_bits(test::direct<double>(gathered, source, 0.3),
                                test::direct<double>(graph, source, 0.3)));
    ASSERT_EQ(count(gathered), count(graph));
  });
}

TEST(SplitParts, KeepsBitsAndCounts) {
  for (std::uint32_t seed = 0; seed < kSeeds; ++seed) {
    Dice dice(seed);
    Graph graph(Field::complex);
    std::vector<Value> values;
    for (int i = 0; i < 4; ++i) values.push_back(graph.input(i));
    for (int i = 0; i < 12; ++i) {
      const Value a =
          turned(values[at(dice.below(static_cast<int>(values.size())))], quarters(dice.below(4)));
      const Value b =
          turned(values[at(dice.below(static_cast<int>(values.size())))], quarters(dice.below(4)));
      values.push_back(a.node == b.node ? graph.multiply(dice.constant(), a) : graph.add(a, b));
      if (dice.chance(20)) values.push_back(graph.twiddle(root(23, 1 + dice.below(22)), a));
    }
    std::vector<Value> outputs;
    for (int i = 0; i < 4; ++i) {
      outputs.push_back(turned(values[values.size() - 1 - at(i)], quarters(dice.below(4))));
    }
    graph.set_outputs(outputs);
    const Graph parts = split_parts(graph);
    ASSERT_EQ(parts.field(), Field::real);
    ASSERT_EQ(count(parts), count(graph)) << "seed " << seed;
    const auto source = dice.numbers<float>(2 * test::inputs_of(graph));
    ASSERT_TRUE(test::same_bits(test::direct<float>(parts, source, 0.3F),
                                test::direct<float>(graph, source, 0.3F)))
        << "seed " << seed;
  }
}

}  // namespace
}  // namespace haldgen::kernelgen
