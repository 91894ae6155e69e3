// The values of the transforms, against their definitions in long double.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>

#include "tests/contract/reference.h"
#include "tests/contract/transform.h"

namespace haldgen::test {
namespace {

// Bounds of the error of every kernel, prime lengths included: the L2 norm of the difference over
// that of the exact result, in units of epsilon * sqrt(log2(N)). Epsilon is the distance from 1 to
// the next float.
constexpr long double bound_of_one_call = 0.9L;
constexpr long double bound_of_root_mean_square = 0.65L;

// Sums of squares over the outputs of one or more calls.
struct Error {
  long double difference = 0;
  long double exact = 0;

  Error& operator+=(const Error& other) {
    difference += other.difference;
    exact += other.exact;
    return *this;
  }
  template <class Float>
  long double relative(const Transform<Float>& transform) const {
    if (difference == 0) return 0;
    return std::sqrt(difference / exact) / std::numeric_limits<Float>::epsilon() /
           std::sqrt(std::log2(static_cast<long double>(transform.points)));
  }
};

template <class Float>
Error error(const Transform<Float>& transform, const std::vector<Float>& src) {
  const std::vector<long double> exact = definition(
      transform.family->word, transform.points, std::vector<long double>(src.begin(), src.end()));
  const std::vector<Float> computed = result(transform, src);
  Error sums;
  for (std::size_t i = 0; i < exact.size(); ++i) {
    const long double difference = computed[i] - exact[i];
    sums += {difference * difference, exact[i] * exact[i]};
  }
  return sums;
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

TEST(Value, RandomInputIsWithinTheErrorBounds) {
  for_each_fixed([]<class Float>(const Transform<Float>& transform) {
    long double worst = 0;
    Error all;
    for (unsigned seed = 10; seed < 30; ++seed) {
      const Error even = error(transform, random_floats<Float>(transform.src_floats, seed));
      const Error spread = error(transform, spread_floats<Float>(transform.src_floats, seed));
      worst = std::max({worst, even.relative(transform), spread.relative(transform)});
      all += even;
    }
    EXPECT_LE(worst, bound_of_one_call) << transform.name;
    EXPECT_LE(all.relative(transform), bound_of_root_mean_square) << transform.name;
  });
}

TEST(Value, ImpulsesAreWithinTheErrorBound) {
  for_each_fixed([]<class Float>(const Transform<Float>& transform) {
    for (std::size_t at = 0; at < transform.src_floats; ++at) {
      const auto src = impulse<Float>(transform.src_floats, at, 1);
      EXPECT_LE(error(transform, src).relative(transform), bound_of_one_call)
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
