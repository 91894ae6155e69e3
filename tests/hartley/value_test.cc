// The graphs against the definition of the transform, in wide arithmetic.
#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "hartley/kernel.h"
#include "kernelgen/evaluate.h"

namespace haldgen::hartley {
namespace {

using kernelgen::Wide;
using kernelgen::WideComplex;

TEST(Value, EveryGraphIsTheTransform) {
  for (int n = kFirstLength; n <= kLastLength; ++n) {
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

}  // namespace
}  // namespace haldgen::hartley
