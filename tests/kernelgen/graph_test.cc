// The statement graph: what is shared, what vanishes, what is kept apart; and its exact value.
#include "kernelgen/graph.h"

#include <gtest/gtest.h>

#include "kernelgen/count.h"
#include "kernelgen/evaluate.h"

namespace haldgen::kernelgen {
namespace {

const Wide kThird = Wide(1.0) / Wide(3.0);
const Wide kSine = sin_turn(1, 5);

class ComplexGraph : public testing::Test {
 protected:
  Graph g{Field::complex};
  Value x = g.input(0);
  Value y = g.input(1);
  Value z = g.input(2);
};

class RealGraph : public testing::Test {
 protected:
  Graph g{Field::real};
  Value x = g.input(0);
  Value y = g.input(1);
  Value z = g.input(2);
};

TEST_F(ComplexGraph, AnInputIsOneNode) {
  EXPECT_EQ(g.input(1), y);
  EXPECT_NE(g.input(3), y);
}

TEST_F(ComplexGraph, SumsMeetUpToOrderAndTurn) {
  const Value sum = g.add(x, y);
  const std::size_t nodes = g.nodes().size();
  EXPECT_EQ(g.add(y, x), sum);
  for (const Turn turn : {Turn::none, Turn::quarter, Turn::half, Turn::three_quarters}) {
    EXPECT_EQ(g.add(turned(x, turn), turned(y, turn)), turned(sum, turn));
    EXPECT_EQ(g.add(turned(y, turn), turned(x, turn)), turned(sum, turn));
  }
  const Value difference = g.subtract(x, y);
  EXPECT_EQ(g.subtract(y, x), -difference);
  EXPECT_EQ(g.add(turned(y, Turn::three_quarters), turned(x, Turn::quarter)),
            turned(difference, Turn::quarter));
  EXPECT_EQ(g.nodes().size(), nodes + 1);
  EXPECT_NE(g.add(x, turned(y, Turn::quarter)).node, difference.node);
  EXPECT_NE(g.add(x, turned(y, Turn::quarter)).node,
            g.add(x, turned(y, Turn::three_quarters)).node);
}

TEST_F(RealGraph, SumsMeetUpToOrderAndSign) {
  const Value sum = g.add(x, y);
  EXPECT_EQ(g.add(y, x), sum);
  EXPECT_EQ(g.add(-y, -x), -sum);
  const Value difference = g.subtract(x, y);
  EXPECT_EQ(g.subtract(y, x), -difference);
  EXPECT_NE(sum.node, difference.node);
}

TEST_F(RealGraph, SumsKeepTheSignsTheyWereWrittenWith) {
  const Value v = g.subtract(-x, -y);
  EXPECT_EQ(v.turn, Turn::none);
  EXPECT_EQ(g.node(v.node).terms[0].turn, Turn::half);
  EXPECT_EQ(g.node(v.node).terms[1].turn, Turn::none);
  const Value both = g.subtract(-x, z);
  EXPECT_EQ(both.turn, Turn::half);
  EXPECT_EQ(g.node(both.node).terms[0].turn, Turn::none);
}

TEST_F(RealGraph, LongSumsKeepTheirOrder) {
  const Value first = g.statement({{Turn::none, kNoConstant, x.node},
                                   {Turn::none, kNoConstant, y.node},
                                   {Turn::none, kNoConstant, z.node}});
  const Value second = g.statement({{Turn::none, kNoConstant, y.node},
                                    {Turn::none, kNoConstant, x.node},
                                    {Turn::none, kNoConstant, z.node}});
  EXPECT_NE(first.node, second.node);
  EXPECT_NE(g.add(g.add(x, y), z).node, g.add(x, g.add(y, z)).node);
  const auto terms = g.node(first.node).terms;
  ASSERT_EQ(terms.size(), 3U);
  EXPECT_EQ(terms[0].node, x.node);
  EXPECT_EQ(terms[2].node, z.node);
}

TEST_F(RealGraph, ASumOfProductsIsNotReordered) {
  const ConstantId c = g.intern(kSine);
  const ConstantId d = g.intern(kThird);
  const Value first = g.statement({{Turn::none, c, x.node}, {Turn::none, d, y.node}});
  EXPECT_EQ(g.statement({{Turn::half, c, x.node}, {Turn::half, d, y.node}}), -first);
  EXPECT_NE(g.statement({{Turn::none, d, y.node}, {Turn::none, c, x.node}}).node, first.node);
}

TEST_F(ComplexGraph, ZerosPropagate) {
  const Value zero;
  EXPECT_EQ(g.add(x, zero), x);
  EXPECT_EQ(g.add(zero, turned(x, Turn::quarter)), turned(x, Turn::quarter));
  EXPECT_EQ(g.subtract(zero, x), -x);
  EXPECT_TRUE(is_zero(g.add(zero, zero)));
  EXPECT_TRUE(is_zero(g.multiply(kSine, zero)));
  EXPECT_TRUE(is_zero(g.multiply(0.0, x)));
  EXPECT_TRUE(is_zero(g.twiddle(root(7, 1), zero)));
  EXPECT_TRUE(is_zero(g.add_zero(zero)));
  EXPECT_TRUE(is_zero(g.subtract(x, x)));
  EXPECT_TRUE(is_zero(g.add(turned(x, Turn::quarter), turned(x, Turn::three_quarters))));
}

TEST_F(ComplexGraph, ACarriedZeroIsData) {
  const Value zero = g.carried_zero();
  EXPECT_FALSE(is_zero(zero));
  EXPECT_NE(g.carried_zero(), zero);
  g.set_outputs({g.add(x, zero), g.multiply(kSine, zero)});
  EXPECT_EQ(count(g), (Counts{2, 2, 1}));
  const auto values = evaluate(g, std::vector<WideComplex>{{3.0, 4.0}, {}, {}});
  EXPECT_TRUE(values[0].re == Wide(3.0) && values[0].im == Wide(4.0));
  EXPECT_TRUE(values[1].re == Wide(0.0));
}

TEST_F(ComplexGraph, ProductsTakeSignsAndUnits) {
  EXPECT_EQ(g.multiply(1.0, turned(x, Turn::three_quarters)), turned(x, Turn::three_quarters));
  EXPECT_EQ(g.multiply(-1.0, x), -x);
  EXPECT_EQ(g.multiply(-kSine, x), -g.multiply(kSine, x));
  EXPECT_EQ(g.multiply(kSine, turned(x, Turn::quarter)),
            turned(g.multiply(kSine, x), Turn::quarter));
  EXPECT_EQ(g.add(turned(x, Turn::quarter), turned(x, Turn::quarter)),
            turned(g.multiply(2.0, x), Turn::quarter));
}

TEST_F(ComplexGraph, ApartProductsDoNotMeetPlainOnes) {
  const Value plain = g.multiply(kSine, x);
  const Value apart = g.multiply(kSine, x, true);
  EXPECT_NE(apart.node, plain.node);
  EXPECT_EQ(g.multiply(kSine, x), plain);
}

TEST_F(ComplexGraph, FoldingIsSwitchable) {
  const Value inner = g.multiply(kThird, turned(x, Turn::quarter));
  const Value outer = g.multiply(kSine, -inner);
  EXPECT_EQ(g.node(outer.node).terms[0].node, inner.node);

  g.set_folding(true);
  const Value folded = g.multiply(kSine, -inner);
  const Term term = g.node(folded.node).terms[0];
  EXPECT_EQ(term.node, x.node);
  EXPECT_EQ(term.constant, g.intern(kSine * kThird));
  EXPECT_EQ(term.turn + folded.turn, Turn::three_quarters);  // -i
  EXPECT_EQ(g.multiply(3.0, inner), turned(x, Turn::quarter));
  EXPECT_EQ(g.multiply(2.0, g.add(x, y)), g.multiply(2.0, g.add(x, y)));

  g.set_folding(false);
  EXPECT_EQ(g.multiply(kSine, -inner), outer);
}

TEST_F(ComplexGraph, ConstantsMeetByValue) {
  // The same number by different arithmetic, so with another last digit.
  EXPECT_EQ(g.intern(sqrt(Wide(3.0)) * Wide(0.5)), g.intern(sin_turn(1, 3)));
  EXPECT_EQ(g.intern(kThird * Wide(3.0) * kSine), g.intern(kSine));
  EXPECT_NE(g.intern(kSine + Wide(1e-22)), g.intern(kSine));
  EXPECT_NE(g.intern(kSine), g.intern(cos_turn(1, 5)));
  // Two that round to one double stay two, and each is found again.
  const Wide other = kSine + Wide(1e-22);
  EXPECT_EQ(g.intern(other), g.intern(other));
  EXPECT_EQ(g.intern(kSine), g.intern(kSine));
}

TEST_F(ComplexGraph, TwiddlesAreFreeOnTheAxesAndCopiesOnDemand) {
  for (int k = 0; k < 4; ++k) {
    EXPECT_EQ(g.twiddle(root(4, k), x), turned(x, quarters(-k))) << k;
    const Value copy = g.twiddle(root(4, k), x, true);
    EXPECT_TRUE(is_plain_copy(g.node(copy.node))) << k;
    EXPECT_NE(copy.node, x.node) << k;
  }
  EXPECT_FALSE(is_plain_copy(g.node(g.twiddle(root(5, 1), x, true).node)));
}

TEST_F(ComplexGraph, ATwiddleIsTheProduct) {
  const Value v = g.twiddle(root(11, 4), turned(x, Turn::quarter));
  g.set_outputs({v});
  const WideComplex in{0.5, -0.25};
  const WideComplex expected = root(11, 4) * turned(in, Turn::quarter);
  const WideComplex actual = evaluate(g, std::vector<WideComplex>{in, {}, {}})[0];
  EXPECT_LT(abs(actual.re - expected.re).hi, 1e-31);
  EXPECT_LT(abs(actual.im - expected.im).hi, 1e-31);
  EXPECT_EQ(v.turn, Turn::none);
}

TEST_F(ComplexGraph, PairsOfColumns) {
  std::vector<bool> paired;
  for (int i = 0; i < 3; ++i) {
    g.enter_column(i, 3);
    paired.push_back(g.inside_pair());
    if (i == 2) {
      // An odd column out, whose own fan has pairs.
      g.enter_column(0, 2);
      paired.push_back(g.inside_pair());
      g.leave_column();
      g.enter_column(1, 2);
      g.leave_column();
    }
    g.leave_column();
  }
  EXPECT_EQ(paired, (std::vector<bool>{true, true, false, true}));
  EXPECT_FALSE(g.inside_pair());
  for (const int i : {0, 1}) {
    g.enter_column(i, 2);
    EXPECT_TRUE(g.inside_pair()) << i;
    g.leave_column();
  }
  ASSERT_EQ(g.columns()[0].fans.size(), 2U);
  EXPECT_EQ(g.columns()[0].fans[0].size(), 3U);
}

TEST_F(ComplexGraph, ColumnsRecordTheirCalls) {
  g.enter_column(0, 1);
  const Value sum = g.add(x, y);
  const Value again = g.add(y, x);
  g.leave_column();
  EXPECT_EQ(g.columns()[1].calls, (std::vector<Value>{sum, again}));
}

TEST_F(ComplexGraph, LiveNodesAreThoseOfOutputsAndKeptValues) {
  const Value used = g.add(x, y);
  const Value unused = g.add(y, z);
  const Value kept = g.multiply(kSine, z);
  g.set_outputs({used});
  g.keep(kept);
  EXPECT_EQ(live_nodes(g), (std::vector<int>{x.node, y.node, z.node, used.node, kept.node}));
  EXPECT_EQ(count(g), (Counts{2, 2, 1}));
  EXPECT_NE(unused.node, used.node);
}

TEST_F(ComplexGraph, ValueOfAGraph) {
  const Value sum =
      g.statement({{Turn::none, kNoConstant, x.node}, {Turn::quarter, g.intern(0.5), y.node}});
  g.set_outputs({turned(sum, Turn::three_quarters), {}, x});
  const auto v = evaluate(g, std::vector<WideComplex>{{1.0, 2.0}, {4.0, -6.0}, {}});
  // x + i y / 2 = (1 + 2i) + (3 + 2i), times -i
  EXPECT_TRUE(v[0].re == Wide(4.0) && v[0].im == Wide(-4.0));
  EXPECT_TRUE(v[1].re == Wide(0.0) && v[1].im == Wide(0.0));
  EXPECT_TRUE(v[2].re == Wide(1.0) && v[2].im == Wide(2.0));
}

}  // namespace
}  // namespace haldgen::kernelgen
