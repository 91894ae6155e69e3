// The values of the transforms, against their definitions in long double.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <iostream>
#include <limits>

#include "tests/contract/reference.h"
#include "tests/contract/transform.h"

namespace haldgen::test {
namespace {

// Bound of the error of every kernel: the L2 norm of the difference over that of the exact result,
// in units of epsilon * sqrt(log2(N)). Epsilon is the distance from 1 to the next float.
constexpr long double error_bound = 0.5L;

template <class Float>
long double relative_error(const Transform<Float>& transform, const std::vector<Float>& src) {
  const std::vector<long double> exact =
      definition(transform.family->word, std::vector<long double>(src.begin(), src.end()));
  const std::vector<Float> computed = result(transform, src);
  long double error = 0;
  long double norm = 0;
  for (std::size_t i = 0; i < exact.size(); ++i) {
    const long double difference = computed[i] - exact[i];
    error += difference * difference;
    norm += exact[i] * exact[i];
  }
  return std::sqrt(error / norm);
}

template <class Float>
long double in_units(const Transform<Float>& transform, long double error) {
  return error / std::numeric_limits<Float>::epsilon() /
         std::sqrt(std::log2(static_cast<long double>(transform.points)));
}

// Random floats whose magnitudes spread over many binary orders.
template <class Float>
std::vector<Float> spread_floats(std::size_t count, unsigned seed) {
  std::vector<Float> floats = random_floats<Float>(count, seed);
  std::mt19937 random(seed);
  for (Float& value : floats) value = std::ldexp(value, static_cast<int>(random() % 41) - 20);
  return floats;
}

template <class Float>
std::vector<Float> impulse(std::size_t count, std::size_t at, Float value) {
  std::vector<Float> floats(count);
  floats[at] = value;
  return floats;
}

TEST(Value, RandomInputIsWithinTheErrorBound) {
  for_each_fixed([]<class Float>(const Transform<Float>& transform) {
    long double worst = 0;
    for (unsigned seed = 10; seed < 30; ++seed) {
      worst = std::max(
          {worst, relative_error(transform, random_floats<Float>(transform.src_floats, seed)),
           relative_error(transform, spread_floats<Float>(transform.src_floats, seed))});
    }
    EXPECT_LE(in_units(transform, worst), error_bound) << transform.name;
  });
}

TEST(Value, ImpulsesAreWithinTheErrorBound) {
  for_each_fixed([]<class Float>(const Transform<Float>& transform) {
    for (std::size_t at = 0; at < transform.src_floats; ++at) {
      const auto src = impulse<Float>(transform.src_floats, at, 1);
      EXPECT_LE(in_units(transform, relative_error(transform, src)), error_bound)
          << transform.name << ", impulse at float " << at;
    }
  });
}

// No rounding depends on the exponent, far from overflow and underflow.
TEST(Value, PowersOfTwoPassThrough) {
  for_each_fixed([]<class Float>(const Transform<Float>& transform) {
    const int reach = std::numeric_limits<Float>::max_exponent / 2;
    const std::vector<Float> src = random_floats<Float>(transform.src_floats, 6);
    const std::vector<Float> plain = result(transform, src);
    for (const int exponent : {-reach, reach}) {
      std::vector<Float> scaled = src;
      std::vector<Float> expected = plain;
      for (Float& value : scaled) value = std::ldexp(value, exponent);
      for (Float& value : expected) value = std::ldexp(value, exponent);
      EXPECT_TRUE(same_bits(result(transform, scaled), expected))
          << transform.name << ", input scaled by 2^" << exponent;
    }
  });
}

bool is_complex_dft(const frame::Family& family) {
  return family.word == "DFTFwd_CToC" || family.word == "DFTInv_CToC";
}

// Every output of a DFT depends on every input, so none may stay finite.
TEST(Value, NonFiniteInputReachesEveryOutputOfTheComplexTransforms) {
  for_each_fixed([]<class Float>(const Transform<Float>& transform) {
    if (!is_complex_dft(*transform.family)) return;
    constexpr Float inf = std::numeric_limits<Float>::infinity();
    for (const Float value : {std::numeric_limits<Float>::quiet_NaN(), inf, -inf}) {
      for (std::size_t at = 0; at < transform.src_floats; ++at) {
        std::vector<Float> src = random_floats<Float>(transform.src_floats, 7);
        src[at] = value;
        const std::vector<Float> dst = result(transform, src);
        for (std::size_t k = 0; k < dst.size(); k += 2) {
          const bool reached = std::isnan(value)
                                   ? std::isnan(dst[k]) || std::isnan(dst[k + 1])
                                   : !std::isfinite(dst[k]) || !std::isfinite(dst[k + 1]);
          EXPECT_TRUE(reached) << transform.name << ", " << value << " at float " << at
                               << ", output " << k / 2;
        }
      }
    }
  });
}

TEST(Value, UnitImpulseIsExactAtTheSmallestComplexLengths) {
  int checked = 0;
  for_each_fixed([&]<class Float>(const Transform<Float>& transform) {
    if (!is_complex_dft(*transform.family) || transform.size > 5) return;
    ++checked;
    const std::vector<Float> src = impulse<Float>(transform.src_floats, 0, 1);
    const std::int32_t by_n =
        transform.family->scaling == frame::Scaling::forward ? haldScaleFwdByN : haldScaleInvByN;
    const std::vector<Float> ones = result(transform, src, haldScaleNone);
    const std::vector<Float> fractions = result(transform, src, by_n);
    for (std::size_t k = 0; k < ones.size(); k += 2) {
      EXPECT_EQ(ones[k], 1) << transform.name;
      EXPECT_EQ(ones[k + 1], 0) << transform.name;
      EXPECT_EQ(fractions[k], 1 / static_cast<Float>(transform.size)) << transform.name;
      EXPECT_EQ(fractions[k + 1], 0) << transform.name;
    }
  });
  EXPECT_GT(checked, 0);
}

}  // namespace
}  // namespace haldgen::test
