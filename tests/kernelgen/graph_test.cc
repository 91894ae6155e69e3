// The statement graph: what is shared, what vanishes, what is kept apart; and its exact value.
#include "kernelgen/graph.h"

#include <gtest/gtest.h>

#include "kernelgen/count.h"
#include "kernelgen/element.h"
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
  // Terms by an odd turn that differ: the sum met turns with them.
  EXPECT_EQ(g.add(y, turned(x, Turn::quarter)),
            turned(g.add(x, turned(y, Turn::three_quarters)), Turn::quarter));
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

TEST_F(ComplexGraph, ConstantsMeetByValue) {
  // The same number by different arithmetic, with another last digit.
  const Wide other = kSine + Wide(0x1p-103);
  ASSERT_FALSE(other == kSine);
  EXPECT_EQ(g.intern(other), g.intern(kSine));
  // Two that round to one double stay two, and each is found again.
  const Wide near = kSine + Wide(1e-22);
  ASSERT_EQ(to_double(near), to_double(kSine));
  EXPECT_NE(g.intern(near), g.intern(kSine));
  EXPECT_EQ(g.intern(near), g.intern(near));
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

}  // namespace
}  // namespace haldgen::kernelgen
