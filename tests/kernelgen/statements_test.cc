// The passes over real statement graphs: folding of constants, signs and order of terms, choice of
// precision, transposition of whole statements; and the tally of programs.
#include <gtest/gtest.h>

#include <cmath>

#include "kernelgen/count.h"
#include "kernelgen/evaluate.h"
#include "kernelgen/fold.h"
#include "kernelgen/lower.h"
#include "kernelgen/orient.h"
#include "kernelgen/precision.h"
#include "kernelgen/transpose.h"
#include "tests/kernelgen/random_graph.h"

namespace haldgen::kernelgen {
namespace {

using test::Dice;

const Wide kSine = sin_turn(1, 7);
const Wide kCosine = cos_turn(1, 7);

const Statement& behind(const Graph& graph, std::size_t output) {
  return graph.node(graph.outputs()[output].node);
}

Term plain(Value v) { return {v.turn, kNoConstant, v.node}; }
Term times(Graph& g, Wide c, Value v) { return {v.turn, g.intern(c), v.node}; }

/// The passes must not change what a graph computes.
void expect_same_value(const Graph& a, const Graph& b) {
  Dice dice(1);
  std::vector<WideComplex> inputs;
  for (int i = 0; i < 16; ++i) inputs.push_back({dice.number(), 0.0});
  const auto x = evaluate(a, inputs);
  const auto y = evaluate(b, inputs);
  ASSERT_EQ(x.size(), y.size());
  for (std::size_t k = 0; k < x.size(); ++k) EXPECT_LT(std::abs((x[k].re - y[k].re).hi), 1e-28);
}

TEST(FoldProducts, AConstantGoesIntoTheSumThatOnlyItMultiplies) {
  Graph g(Field::real);
  const Value sum = g.statement({times(g, kSine, g.input(0)), times(g, kCosine, -g.input(1))});
  g.set_outputs({-g.statement({times(g, kCosine, sum)})});
  const Graph folded = fold_products(g, Into::all);
  expect_same_value(folded, g);
  EXPECT_EQ(count(folded).multiplications, 2);
  const Statement& s = behind(folded, 0);
  ASSERT_EQ(s.terms.size(), 2U);
  EXPECT_TRUE(folded.constant(s.terms[0].constant) == kCosine * kSine);
  // The literal is the product of two literals, not the nearest to the product.
  const double literal = to_double(kCosine) * to_double(kSine);
  ASSERT_NE(literal, to_double(kCosine * kSine));
  EXPECT_EQ(folded.literal(s.terms[0].constant), literal);
}

TEST(FoldProducts, SumsWithOtherUsesOrPlainTermsStay) {
  Graph g(Field::real);
  const Value shared = g.statement({times(g, kSine, g.input(0)), times(g, kCosine, g.input(1))});
  const Value mixed = g.statement({times(g, kSine, g.input(0)), plain(g.input(1))});
  g.set_outputs(
      {g.statement({times(g, kCosine, shared)}), shared, g.statement({times(g, kCosine, mixed)})});
  EXPECT_EQ(count(fold_products(g, Into::all)), count(g));
}

TEST(FoldProducts, IntoFoldableStatementsOnlyIfAsked) {
  Graph g(Field::real);
  const Value sum = g.statement({times(g, kSine, g.input(0)), times(g, kCosine, g.input(1))});
  g.set_outputs({g.statement({times(g, kCosine, sum)})});
  EXPECT_EQ(count(fold_products(g, Into::foldable)), count(g));
  EXPECT_EQ(count(fold_products(g, Into::none)), count(g));
  g.node(sum.node).foldable = true;
  EXPECT_EQ(count(fold_products(g, Into::foldable)).multiplications, 2);
  EXPECT_EQ(count(fold_products(g, Into::none)), count(g));
}

TEST(OrientOutputs, TurnsADifferenceFurtherBackForASum) {
  Graph g(Field::real);
  const Value difference = g.subtract(g.input(0), g.input(1));
  g.set_outputs({g.add(difference, g.input(2)), difference});
  const Graph oriented = orient_outputs(g, {true, true});
  expect_same_value(oriented, g);
  EXPECT_EQ(oriented.outputs()[0].turn, Turn::half);
  EXPECT_EQ(oriented.outputs()[1].turn, Turn::half);
  EXPECT_EQ(count(oriented), count(g));
  // The difference cannot be turned for the one and stay for the other.
  EXPECT_THROW(orient_outputs(g, {true, false}), std::logic_error);
}

TEST(OrientOutputs, TurnsDifferencesThatAreNamedByTheWay) {
  Graph g(Field::real);
  const Value difference = g.subtract(g.input(0), g.input(1));
  const Value scaled = g.multiply(kSine, difference);
  g.set_outputs({g.add(g.input(2), scaled), g.subtract(g.input(2), scaled)});
  const Graph oriented = orient_outputs(g, {false, false}, {{0, 1}});
  expect_same_value(oriented, g);
  EXPECT_EQ(count(oriented), count(g));
  EXPECT_EQ(behind(oriented, 0).terms[1].turn, Turn::half);
  EXPECT_EQ(behind(oriented, 1).terms[1].turn, Turn::none);
  EXPECT_THROW(orient_outputs(g, {false, false}, {{0, 0}}), std::logic_error);
}

TEST(OrientOutputs, RefusesWhatHasNoMinus) {
  Graph g(Field::real);
  g.set_outputs({g.add(g.input(0), g.input(1))});
  EXPECT_THROW(orient_outputs(g, {true}), std::logic_error);
  // The lenient form leaves it.
  EXPECT_EQ(turn_differences(g, {true}).outputs()[0].turn, Turn::none);
}

TEST(OrderTerms, ShallowFirstThenAPositiveOne) {
  Graph g(Field::real);
  const Value deep = g.add(g.add(g.input(0), g.input(1)), g.input(2));
  const Value x = g.input(3), y = g.input(4), z = g.input(5);
  g.set_outputs({g.statement({plain(deep), plain(-x), plain(y), plain(-z)})});
  const Graph ordered = order_terms(g);
  expect_same_value(ordered, g);
  const Statement& s = behind(ordered, 0);
  ASSERT_EQ(s.terms.size(), 4U);
  std::vector<int> inputs;
  for (const Term& t : s.terms) inputs.push_back(ordered.node(t.node).input.value_or(-1));
  EXPECT_EQ(inputs, (std::vector{4, 3, 5, -1}));
  EXPECT_EQ(count(ordered).depth, 3);
  EXPECT_EQ(count(g).depth, 5);
}

/// x+y is used by statements with constants only, x-y by a plain one too; y+z costs conversions.
struct Sums {
  Graph graph{Field::real};
  Value sum, difference, other;
  Sums() {
    Graph& g = graph;
    const Value x = g.input(0), y = g.input(1), z = g.input(2);
    sum = g.add(x, y);
    difference = g.subtract(x, y);
    other = g.add(z, g.input(3));
    g.set_outputs({g.statement({times(g, kSine, sum), times(g, kCosine, x)}),
                   g.statement({times(g, kSine, difference), times(g, kCosine, y)}),
                   g.add(difference, z), g.statement({times(g, kSine, other)})});
    widen_products(g);
  }
  bool is_wide(Value v) const { return graph.node(v.node).precision == Precision::wide; }
};

TEST(WidenSums, TakesTheOnesThatCostFewestConversions) {
  Sums s;
  widen_sums(s.graph, {1});
  EXPECT_TRUE(s.is_wide(s.sum));
  EXPECT_FALSE(s.is_wide(s.other));
  EXPECT_FALSE(s.is_wide(s.difference));
  Sums both;
  widen_sums(both.graph, {2});
  EXPECT_TRUE(both.is_wide(both.sum) && both.is_wide(both.other));
}

TEST(WidenSums, OrAsManyConversionsAsAsked) {
  Sums s;
  widen_sums(s.graph, {1, 1});
  EXPECT_TRUE(s.is_wide(s.other));
  EXPECT_FALSE(s.is_wide(s.sum));
  EXPECT_THROW(widen_sums(s.graph, {1, 5}), std::logic_error);
  EXPECT_THROW(widen_sums(s.graph, {3}), std::logic_error);
}

TEST(WidenSums, AreNeverNarrowed) {
  Sums s;
  const auto before = tally(lower_real(s.graph, {FloatType::f32}));
  widen_sums(s.graph, {1});
  const auto after = tally(lower_real(s.graph, {FloatType::f32}));
  EXPECT_EQ(after.in64.additions, before.in64.additions + 1);
  EXPECT_EQ(after.in32.additions, before.in32.additions - 1);
  EXPECT_EQ(after.narrowings, before.narrowings);
  EXPECT_EQ(after.widenings, before.widenings - 1);
}

TEST(WidenProducts, DoublingsAreExactInTheirOwnPrecision) {
  Graph g(Field::real);
  const Value doubled = g.multiply(2.0, g.input(0));
  g.set_outputs({g.add(doubled, g.input(1)), g.statement({times(g, kSine, doubled)})});
  widen_products(g);
  const Tally t = tally(lower_real(g, {FloatType::f32}));
  EXPECT_EQ(t.in32.products, 1);
  EXPECT_EQ(t.in64.products, 1);
}

Graph transposed(const Graph& graph, int inputs) {
  Graph result(Field::real);
  std::vector<Value> fed;
  for (std::size_t k = 0; k < graph.outputs().size(); ++k) {
    fed.push_back(result.input(static_cast<int>(k)));
  }
  result.set_outputs(transpose_statements_into(result, graph, fed, inputs));
  return result;
}

TEST(TransposeStatements, TermsStandInTheOrderOfTheirStatements) {
  Graph g(Field::real);
  const Value x = g.input(0), y = g.input(1), z = g.input(2);
  const Value sum = g.add(y, z), difference = g.subtract(y, z);
  g.set_outputs({g.statement({plain(x), times(g, kCosine, sum), times(g, kSine, difference)}),
                 g.statement({plain(x), times(g, kSine, sum), times(g, kCosine, -difference)}),
                 g.statement({plain(x), times(g, kSine, difference)})});
  const Graph once = transposed(g, 3);
  std::vector<int> of_x;
  for (const Term& t : behind(once, 0).terms) of_x.push_back(once.node(t.node).input.value());
  EXPECT_EQ(of_x, (std::vector{0, 1, 2}));
  // y is in the sum, then in the difference.
  const auto& of_y = behind(once, 1).terms;
  ASSERT_EQ(of_y.size(), 2U);
  EXPECT_TRUE(once.constant(once.node(of_y[0].node).terms[0].constant) == kCosine);
  EXPECT_TRUE(once.constant(once.node(of_y[1].node).terms[0].constant) == kSine);
  expect_same_value(transposed(once, 3), g);
}

}  // namespace
}  // namespace haldgen::kernelgen
