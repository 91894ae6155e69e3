// The order of stages and sums where several would have the same counts: which intermediate values
// a graph computes.
#include <gtest/gtest.h>

#include <random>
#include <set>
#include <vector>

#include "dft_real/recipes.h"
#include "hartley/recipes.h"
#include "kernelgen/evaluate.h"

namespace haldgen::test {
namespace {

using dft_real::Direction;
using kernelgen::at;
using kernelgen::Wide;
using Wides = std::vector<Wide>;

/// The values of a real graph at random inputs, and which of them it computes on its way.
class Steps {
 public:
  explicit Steps(kernelgen::Graph graph) {
    std::mt19937 engine(1);
    std::vector<kernelgen::WideComplex> inputs;
    for (std::size_t i = 0; i < graph.outputs().size(); ++i) {
      x.emplace_back(static_cast<double>(static_cast<std::int32_t>(engine())) * 0x1p-31);
      inputs.push_back({x.back(), {}});
    }
    std::vector<kernelgen::Value> all;
    for (const int node : live_nodes(graph)) all.push_back({node});
    graph.set_outputs(all);
    for (const auto& value : evaluate(graph, inputs)) values_.push_back(value.re);
  }

  /// Whether a node is this value or its negative.
  bool have(Wide wanted) const {
    for (const Wide value : values_) {
      if (is_negligible(value - wanted) || is_negligible(value + wanted)) return true;
    }
    return false;
  }

  Wides x;

 private:
  Wides values_;
};

/// Element `stride` j + `first`, modulo the length.
Wides strided(const Wides& x, int stride, int first, int count) {
  Wides y;
  for (int j = 0; j < count; ++j) y.push_back(x[at(stride * j + first) % x.size()]);
  return y;
}

Wides sum(const Wides& a, const Wides& b) {
  Wides c;
  for (std::size_t i = 0; i < a.size(); ++i) c.push_back(a[i] + b[i]);
  return c;
}

/// Samples in the order of the powers of a primitive root.
Wides by_powers(const Wides& x, int root) {
  Wides a;
  std::size_t power = 1;
  for (std::size_t q = 0; q + 1 < x.size(); ++q) {
    a.push_back(x[power]);
    power = power * at(root) % x.size();
  }
  return a;
}

/// What the blocks of 11 of a forward kernel run on: of one of its stages one block.
Wides block_of_eleven(int length, const Wides& x) {
  const auto halves_summed = [](const Wides& y) {
    const int m = static_cast<int>(y.size()) / 2;
    return sum(strided(y, 2, 0, m), strided(y, 2, m, m));
  };
  switch (length) {
    case 11:
      return x;
    case 22:
      return halves_summed(x);
    case 23:
      return halves_summed(by_powers(x, 5));
    case 46:
      return halves_summed(by_powers(halves_summed(x), 5));
    case 47:
      return halves_summed(by_powers(strided(by_powers(x, 5), 2, 0, 23), 5));
    default:  // 33, 44, 55: the blocks of 11 come first
      return strided(x, length / 11, 0, 11);
  }
}

TEST(Steps, BinZeroOfElevenAddsThePairsInTheirOrder) {
  for (const int length : {11, 22, 23, 33, 44, 46, 47, 55}) {
    const Steps steps(graph_of(dft_real::design_of(length, Direction::forward)));
    const Wides y = block_of_eleven(length, steps.x);
    Wide total = y[0];
    for (std::size_t k = 1; k <= 5; ++k) {
      total += y[k] + y[11 - k];
      EXPECT_TRUE(steps.have(total)) << length << " after pair " << k;
    }
  }
}

TEST(Steps, EighthRootsOfRadixFourTakeTheSumFirst) {
  for (const int length : {32, 64}) {
    const Steps steps(graph_of(dft_real::design_of(length, Direction::forward)));
    // Bin length/16 of class 2, a quarter of the way round: Re = y0 - y1 + y2 - .. of even places,
    // Im the same of odd ones.
    const Wides y = strided(steps.x, 4, 2, length / 4);
    Wide re, im;
    for (std::size_t j = 0; j < y.size(); j += 2) {
      re += j % 4 == 0 ? y[j] : -y[j];
      im += j % 4 == 0 ? -y[j + 1] : y[j + 1];
    }
    const Wide c = sqrt(Wide(0.5));
    for (const Wide part : {re + im, re - im}) {
      EXPECT_TRUE(steps.have(part)) << length;
      EXPECT_TRUE(steps.have(c * part)) << length;
    }
    EXPECT_FALSE(steps.have(c * re) || steps.have(c * im)) << length;
  }
}

TEST(Steps, EighteenRotatesItsNineByTheSecondAndFourthPower) {
  std::set<double> literals;
  const kernelgen::Graph graph = graph_of(dft_real::design_of(18, Direction::forward));
  for (const int node : live_nodes(graph)) {
    for (const auto& t : graph.node(node).terms) {
      if (t.constant != kernelgen::kNoConstant) literals.insert(graph.literal(t.constant));
    }
  }
  EXPECT_EQ(literals,
            (std::set<double>{0.17364817766693036, 0.3420201433256687, 0.5, 0.8660254037844386,
                              0.9396926207859084, 0.984807753012208}));
}

// Forward, 13 runs before 4; so the inverse begins with blocks of 4 on bins that are alike
// modulo 13.
TEST(Steps, InverseFiftyTwoBeginsWithFour) {
  const Steps steps(graph_of(dft_real::design_of(52, Direction::inverse)));
  const auto re = [&](int bin) { return steps.x[at(bin == 0 ? 0 : 2 * bin - 1)]; };
  EXPECT_TRUE(steps.have(re(0) + re(26)));
  EXPECT_TRUE(steps.have(re(0) - re(26)));
  // Bin 1 and its mates 14, 12 = -(40), 25 = -(27).
  EXPECT_TRUE(steps.have(2.0 * re(1) + 2.0 * re(25)));
  EXPECT_TRUE(steps.have(2.0 * re(14) + 2.0 * re(12)));
}

// The cosets (1, 3, 9) and (2, 6, 5) carry transforms of three points of the sums s; the
// differences d are twisted by twelfth roots before their transform of half the size.
TEST(Steps, ThirteenTwistsFirst) {
  const Steps steps(graph_of(hartley::design_of(13)));
  const auto s = [&](std::size_t j) { return steps.x[j] + steps.x[13 - j]; };
  const auto d = [&](std::size_t j) { return steps.x[j] - steps.x[13 - j]; };
  const Wide half(0.5);
  const Wide c = kernelgen::sin_turn(1, 3);
  EXPECT_TRUE(steps.have(s(1) - half * (s(3) + s(9))));
  EXPECT_TRUE(steps.have(c * (s(3) - s(9))));
  EXPECT_TRUE(steps.have(s(5) - half * (s(2) + s(6))));
  EXPECT_TRUE(steps.have(c * (s(2) - s(6))));
  // z = d[2^q] - i d[2^(q+3)], rotated by exp(-2 pi i q / 12), q = 1 and 2.
  EXPECT_TRUE(steps.have(c * d(2) - half * d(3)));
  EXPECT_TRUE(steps.have(half * d(2) + c * d(3)));
  EXPECT_TRUE(steps.have(half * d(4) - c * d(6)));
  EXPECT_TRUE(steps.have(c * d(4) + half * d(6)));
}

}  // namespace
}  // namespace haldgen::test
