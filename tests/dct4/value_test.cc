// The values of the transform against its definition in long double.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>
#include <random>

#include "tests/dct4/functions.h"

namespace haldgen::dct4 {
namespace {

using test::random_floats;
using test::State;

template <class Float>
class Value : public ::testing::Test {};
TYPED_TEST_SUITE(Value, test::FloatTypes);

/// cos(pi i / (4N)) for i = 0..8N-1.
class Definition {
 public:
  explicit Definition(std::int32_t length) : length_(length) {
    const long double step =
        std::numbers::pi_v<long double> / (4 * static_cast<long double>(length));
    for (std::int64_t i = 0; i < 8 * std::int64_t{length}; ++i) {
      cosines_.push_back(std::cos(step * static_cast<long double>(i)));
    }
  }
  template <class Float>
  long double output(const std::vector<Float>& x, std::int32_t k) const {
    const std::uint64_t mask = 8 * static_cast<std::uint64_t>(length_) - 1;
    std::uint64_t index = 2 * static_cast<std::uint64_t>(k) + 1;
    const std::uint64_t step = 2 * index;
    long double sum = 0;
    for (const Float value : x) {
      sum += value * cosines_[static_cast<std::size_t>(index & mask)];
      index += step;
    }
    return sum;
  }

 private:
  std::int32_t length_;
  std::vector<long double> cosines_;
};

struct Error {
  long double difference = 0;  ///< sum of squares
  long double exact = 0;
  long double largest = 0;

  /// The L2 norm of the difference over that of the result, in units of epsilon sqrt(log2(N)).
  template <class Float>
  long double relative(std::int32_t length) const {
    return std::sqrt(difference / exact) / std::numeric_limits<Float>::epsilon() /
           std::sqrt(std::log2(static_cast<long double>(length)));
  }
};

/// Over all outputs, or over `samples` of them.
template <class Float>
Error error(const Definition& definition, const std::vector<Float>& x, const std::vector<Float>& y,
            int samples = 0) {
  Error sums;
  std::mt19937 random(1);
  const auto length = static_cast<std::int32_t>(x.size());
  const int count = samples == 0 ? length : samples;
  for (int i = 0; i < count; ++i) {
    const std::int32_t k =
        samples == 0 ? i : static_cast<std::int32_t>(random() % static_cast<unsigned>(length));
    const long double exact = definition.output(x, k);
    const long double difference = y[static_cast<std::size_t>(k)] - exact;
    sums.difference += difference * difference;
    sums.exact += exact * exact;
    sums.largest = std::max(sums.largest, std::abs(difference));
  }
  return sums;
}

// At 4 points, where rotations are chains of lifting steps, single calls come near the first; all
// others stay below 0.9.
constexpr long double bound_of_one_call = 1.1L;
constexpr long double bound_of_root_mean_square = 0.5L;

TYPED_TEST(Value, RandomInputIsWithinTheErrorBounds) {
  for (std::int32_t length = 2; length <= 1 << 18; length *= 2) {
    State<TypeParam> state(length);
    const Definition definition(length);
    Error all;
    const unsigned calls = length <= 512 ? 20 : 2;
    for (unsigned seed = 0; seed < calls; ++seed) {
      const auto x = random_floats<TypeParam>(length, seed);
      const Error one = error(definition, x, state(x), length <= 2048 ? 0 : 150);
      EXPECT_LE(one.relative<TypeParam>(length), bound_of_one_call) << length;
      all.difference += one.difference;
      all.exact += one.exact;
    }
    EXPECT_LE(all.relative<TypeParam>(length), bound_of_root_mean_square) << length;
  }
}

// For typical input of at most 1: half of the random vectors stay below the bound.
TYPED_TEST(Value, LargestErrorAt4096Points) {
  constexpr std::int32_t kLength = 4096;
  const long double bound = sizeof(TypeParam) == 4 ? 2e-5L : 2e-11L;
  State<TypeParam> state(kLength);
  const Definition definition(kLength);
  std::vector<long double> largest;
  for (unsigned seed = 0; seed < 5; ++seed) {
    const auto x = random_floats<TypeParam>(kLength, 100 + seed);
    largest.push_back(error(definition, x, state(x)).largest);
  }
  std::sort(largest.begin(), largest.end());
  EXPECT_LE(largest[2], bound);
  EXPECT_LE(largest.back(), 2 * bound);
}

// Each input reaches each output by its cosine, so every index is in its place.
TYPED_TEST(Value, ImpulsesGiveTheRowsOfTheMatrix) {
  for (std::int32_t length = 2; length <= 512; length *= 2) {
    State<TypeParam> state(length);
    const Definition definition(length);
    for (std::size_t n = 0; n < static_cast<std::size_t>(length); ++n) {
      std::vector<TypeParam> x(static_cast<std::size_t>(length));
      x[n] = 1;
      const Error one = error(definition, x, state(x));
      EXPECT_LE(one.relative<TypeParam>(length), bound_of_one_call)
          << length << ", impulse at " << n;
    }
  }
}

TYPED_TEST(Value, TwiceIsHalfTheLengthTimesTheInput) {
  for (std::int32_t length = 2; length <= 1 << 20; length *= 2) {
    State<TypeParam> state(length);
    const auto x = random_floats<TypeParam>(length, 3);
    const auto back = state(state(x));
    const TypeParam half = static_cast<TypeParam>(length) / 2;
    TypeParam worst = 0;
    for (std::size_t n = 0; n < x.size(); ++n)
      worst = std::max(worst, std::abs(back[n] / half - x[n]));
    EXPECT_LE(worst, 16 * std::numeric_limits<TypeParam>::epsilon()) << length;
  }
}

}  // namespace
}  // namespace haldgen::dct4
