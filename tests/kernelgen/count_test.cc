// Operation counts and depth of small graphs counted by hand.
#include "kernelgen/count.h"

#include <gtest/gtest.h>

namespace haldgen::kernelgen {
namespace {

const Wide kSine = sin_turn(1, 5);

TEST(Count, ComplexStatementsAreTwoRealOnes) {
  Graph g(Field::complex);
  const Value x = g.input(0);
  const Value y = g.input(1);
  g.set_outputs({g.add(x, turned(y, Turn::quarter)), g.multiply(kSine, x)});
  EXPECT_EQ(count(g), (Counts{2, 2, 1}));
}

TEST(Count, AFullTwiddleIsFourProductsAndTwoSums) {
  Graph g(Field::complex);
  g.set_outputs({g.twiddle(root(7, 1), g.input(0))});
  EXPECT_EQ(count(g), (Counts{2, 4, 2}));
}

TEST(Count, PlainCopiesAreNoWork) {
  Graph g(Field::complex);
  const Value copy = g.twiddle(root(4, 1), g.input(0), true);
  g.set_outputs({g.add(copy, g.input(1))});
  EXPECT_EQ(count(g), (Counts{2, 0, 1}));
}

TEST(Count, AnExecutedZeroIsAnAddition) {
  Graph g(Field::complex);
  g.set_outputs({g.add_zero(g.input(0))});
  EXPECT_EQ(count(g), (Counts{2, 0, 1}));
}

TEST(Count, SharedWorkCountsOnce) {
  Graph g(Field::real);
  const Value x = g.input(0);
  const Value y = g.input(1);
  g.set_outputs({g.add(x, y), -g.add(y, x), g.add(x, y)});
  EXPECT_EQ(count(g), (Counts{1, 0, 1}));
}

TEST(Count, NothingForWiresAndUnusedStatements) {
  Graph g(Field::real);
  const Value x = g.input(0);
  g.multiply(kSine, g.add(x, g.input(1)));
  g.set_outputs({-x, {}});
  EXPECT_EQ(count(g), Counts{});
}

TEST(Count, DepthOfALongSumFollowsItsOrder) {
  // ((a + b) + deep): the late operand decides; (deep + a) + b: two sums follow it.
  const auto depth_of = [](bool deep_first) {
    Graph g(Field::real);
    const Value a = g.input(0);
    const Value b = g.input(1);
    const Value deep = g.multiply(kSine, g.multiply(kSine, g.multiply(kSine, g.input(2))));
    std::vector<Term> terms{{Turn::none, kNoConstant, a.node}, {Turn::none, kNoConstant, b.node}};
    terms.insert(deep_first ? terms.begin() : terms.end(), {Turn::none, kNoConstant, deep.node});
    g.set_outputs({g.statement(terms)});
    return count(g).depth;
  };
  EXPECT_EQ(depth_of(false), 4);
  EXPECT_EQ(depth_of(true), 5);
}

TEST(Count, DepthOfAProductInsideASum) {
  Graph g(Field::real);
  const Value x = g.input(0);
  const Value y = g.input(1);
  g.set_outputs(
      {g.statement({{Turn::none, kNoConstant, x.node}, {Turn::none, g.intern(kSine), y.node}})});
  EXPECT_EQ(count(g), (Counts{1, 1, 2}));
}

}  // namespace
}  // namespace haldgen::kernelgen
