// The graphs against the definition of the transform, in wide arithmetic.
#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "dft_real/kernel.h"
#include "kernelgen/evaluate.h"
#include "kernelgen/integers.h"

namespace haldgen::dft_real {
namespace {

using kernelgen::at;
using kernelgen::Wide;
using kernelgen::WideComplex;

/// Numbers in -1..1 of 24 bits.
std::vector<Wide> random_numbers(int count) {
  std::mt19937 engine(static_cast<unsigned>(count));
  std::vector<Wide> numbers;
  for (int i = 0; i < count; ++i) {
    numbers.emplace_back(static_cast<double>(static_cast<std::int32_t>(engine()) >> 8) * 0x1p-23);
  }
  return numbers;
}

/// Bin k of value i: R(0), R(1), I(1), ..
int bin_of(int i) { return (i + 1) / 2; }
bool is_imaginary(int i) { return i > 0 && i % 2 == 0; }

std::vector<Wide> forward(const std::vector<Wide>& x) {
  const int n = static_cast<int>(x.size());
  std::vector<Wide> values;
  for (int i = 0; i < n; ++i) {
    Wide sum;
    for (int j = 0; j < n; ++j) {
      const int turn = bin_of(i) * j % n;
      sum += (is_imaginary(i) ? -kernelgen::sin_turn(turn, n) : kernelgen::cos_turn(turn, n)) *
             x[at(j)];
    }
    values.push_back(sum);
  }
  return values;
}

std::vector<Wide> inverse(const std::vector<Wide>& values) {
  const int n = static_cast<int>(values.size());
  std::vector<Wide> x;
  for (int j = 0; j < n; ++j) {
    Wide sum;
    for (int i = 0; i < n; ++i) {
      const int k = bin_of(i);
      const int turn = k * j % n;
      const Wide factor =
          is_imaginary(i) ? -kernelgen::sin_turn(turn, n) : kernelgen::cos_turn(turn, n);
      const Wide weight = k == 0 || 2 * k == n ? 1.0 : 2.0;
      sum += weight * factor * values[at(i)];
    }
    x.push_back(sum);
  }
  return x;
}

TEST(Value, EveryGraphIsTheTransform) {
  for (const Direction direction : {Direction::forward, Direction::inverse}) {
    for (int n = kFirstLength; n <= kLastLength; ++n) {
      const std::vector<Wide> source = random_numbers(n);
      const auto expected = direction == Direction::forward ? forward(source) : inverse(source);
      std::vector<WideComplex> inputs;
      for (const Wide v : source) inputs.push_back({v, 0.0});
      const auto actual = evaluate(kernel_graph(n, direction), inputs);
      ASSERT_EQ(actual.size(), expected.size());
      double error = 0, norm = 0;
      for (std::size_t i = 0; i < expected.size(); ++i) {
        error += std::pow((actual[i].re - expected[i]).hi, 2);
        norm += std::pow(expected[i].hi, 2);
      }
      EXPECT_LT(std::sqrt(error / norm), 1e-29)
          << n << (direction == Direction::forward ? " forward" : " inverse");
    }
  }
}

}  // namespace
}  // namespace haldgen::dft_real
