// The graphs against the definition of the transform, in wide arithmetic.
#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "hartley/kernel.h"
#include "kernelgen/evaluate.h"
#include "tests/kernelgen/steps.h"

namespace haldgen::hartley {
namespace {

using kernelgen::Wide;
using kernelgen::WideComplex;

TEST(Value, EveryGraphIsTheTransform) {
  for (const int n : lengths()) {
    std::mt19937 engine(static_cast<unsigned>(n));
    std::vector<WideComplex> x;
    for (int i = 0; i < n; ++i) {
      x.push_back({static_cast<double>(static_cast<std::int32_t>(engine()) >> 8) * 0x1p-23, 0.0});
    }
    const auto actual = evaluate(kernel_graph(n), x);
    ASSERT_EQ(actual.size(), x.size());
    double error = 0, norm = 0;
    for (int k = 0; k < n; ++k) {
      Wide sum;
      for (int i = 0; i < n; ++i) {
        const int turn = k * i % n;
        sum += (kernelgen::cos_turn(turn, n) + kernelgen::sin_turn(turn, n)) *
               x[static_cast<std::size_t>(i)].re;
      }
      error += std::pow((actual[static_cast<std::size_t>(k)].re - sum).hi, 2);
      norm += std::pow(sum.hi, 2);
    }
    EXPECT_LT(std::sqrt(error / norm), 1e-29) << n;
  }
}

// The cosets (1, 3, 9) and (2, 6, 5) carry transforms of three points of the sums s; the
// differences d are twisted by twelfth roots before their transform of half the size.
TEST(Steps, ThirteenTwistsFirst) {
  const test::Steps steps(kernel_graph(13));
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
}  // namespace haldgen::hartley
