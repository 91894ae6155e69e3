// The values of the transforms, against their definitions in long double.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <random>

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
      transform.word->word, transform.points, std::vector<long double>(src.begin(), src.end()));
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

// Pack and Perm hold the bits of CCS.
bool repeats_another(const names::Word& family) {
  return family.word.find("Pack") != std::string_view::npos ||
         family.word.find("Perm") != std::string_view::npos;
}

TEST(Value, RandomInputIsWithinTheErrorBounds) {
  for_each_fixed([]<class Float>(const Transform<Float>& transform) {
    if (repeats_another(*transform.word)) return;
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
    // Walsh-Hadamard transforms have no twiddles, and many points.
    if (repeats_another(*transform.word) || transform.word->word == "WHT") return;
    std::vector<Float> src(transform.src_floats);
    for (std::size_t at = 0; at < src.size(); ++at) {
      src[at] = 1;
      EXPECT_LE(error(transform, src).relative(transform), bound_of_one_call)
          << transform.name << ", impulse at float " << at;
      src[at] = 0;
    }
  });
}

// Every output of a DFT depends on every input, so none may stay finite.
TEST(Value, NonFiniteInputReachesEveryBin) {
  for_each_fixed([]<class Float>(const Transform<Float>& transform) {
    const std::string_view word = transform.word->word;
    if (!word.ends_with("CToC") && word != "DFTFwd_RToCCS") return;
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

}  // namespace
}  // namespace haldgen::test
