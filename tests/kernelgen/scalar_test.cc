// The passes that lead a graph to a scalar program, and that program's bits.
#include <gtest/gtest.h>

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

template <class Float>
void expect_bits_of_graph(const Graph& graph, std::uint32_t seed, Scaled scaled = Scaled::result) {
  Dice dice(seed);
  const auto source = dice.numbers<Float>(test::inputs_of(graph));
  const auto scale = static_cast<Float>(0.3);
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

TEST(ScalarLowering, GivesTheBitsOfTheStatementsAndRoundsWideOnesOnce) {
  for_all_graphs([](Graph graph, std::uint32_t seed) {
    expect_bits_of_graph<double>(graph, seed);
    expect_bits_of_graph<float>(graph, seed);
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

TEST(SplitParts, KeepsBits) {
  for (std::uint32_t seed = 0; seed < kSeeds; ++seed) {
    Dice dice(seed);
    const Graph graph = test::random_complex_graph(seed);
    const Graph parts = split_parts(graph);
    ASSERT_EQ(parts.field(), Field::real);
    const auto source = dice.numbers<float>(2 * test::inputs_of(graph));
    ASSERT_TRUE(test::same_bits(test::direct<float>(parts, source, 0.3F),
                                test::direct<float>(graph, source, 0.3F)))
        << "seed " << seed;
  }
}

}  // namespace
}  // namespace haldgen::kernelgen
