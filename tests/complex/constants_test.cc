// Which constants a kernel holds: they show which algorithm it is.
#include <gtest/gtest.h>

#include <cmath>
#include <numeric>
#include <set>

#include "tests/complex/kernels.h"

namespace haldgen::dft_complex {
namespace {

using kernelgen::cos_turn;
using kernelgen::sin_turn;
using kernelgen::to_double;
using kernelgen::Wide;

using Constants = std::set<double>;

/// Magnitudes, rounded to double.
Constants constants_of(int length, FloatType type) {
  const auto graph = graph_of(design_of(length, type));
  Constants all;
  for (const int node : live_nodes(graph)) {
    for (const kernelgen::Term& t : graph.node(node).terms) {
      if (t.constant != kernelgen::kNoConstant) all.insert(to_double(graph.constant(t.constant)));
    }
  }
  return all;
}

double cos_of(int k, int n) { return to_double(abs(cos_turn(k, n))); }
double sin_of(int k, int n) { return to_double(abs(sin_turn(k, n))); }

/// Whether one of the constants has these digits, to half a unit of the last.
bool holds(const Constants& all, double digits) {
  for (const double c : all) {
    if (std::abs(c - digits) <= 0.5e-8) return true;
  }
  return false;
}

Constants joined(Constants a, const Constants& b) {
  a.insert(b.begin(), b.end());
  return a;
}

const Constants kThree{0.5, 0.8660254037844386};
const Constants kSinesOfFive{0.9510565162951535, 0.5877852522924731};
const Constants kFive = joined(kSinesOfFive, {0.30901699437494745, 0.8090169943749475});
const Constants kFoldedFive = joined(kSinesOfFive, {0.5590169943749475, 0.25});

Constants seven() {
  Constants all;
  for (int k = 1; k <= 3; ++k) {
    all.insert(cos_of(k, 7));
    all.insert(sin_of(k, 7));
  }
  return all;
}

TEST(Constants, SmallCompositesHaveThoseOfTheirBlocksOnly) {
  for (const FloatType type : {FloatType::f32, FloatType::f64}) {
    const bool f64 = type == FloatType::f64;
    EXPECT_EQ(constants_of(6, type), kThree) << complex_suffix(type);
    EXPECT_EQ(constants_of(10, type), f64 ? kFoldedFive : kFive) << complex_suffix(type);
    EXPECT_EQ(constants_of(12, type), kThree) << complex_suffix(type);
    EXPECT_EQ(constants_of(14, type), seven()) << complex_suffix(type);
    EXPECT_EQ(constants_of(15, type), joined(kThree, kFive)) << complex_suffix(type);
  }
}

TEST(Constants, PowersOfTwo) {
  const double r = 0.7071067811865476;
  const double c = 0.9238795325112867;
  const double s = 0.3826834323650898;
  for (const FloatType type : {FloatType::f32, FloatType::f64}) {
    EXPECT_EQ(constants_of(4, type), Constants{});
    EXPECT_EQ(constants_of(8, type), Constants{r});
    EXPECT_EQ(constants_of(16, type), (Constants{r, c, s}));
    EXPECT_EQ(constants_of(32, type).size(), 7U);
    EXPECT_EQ(constants_of(64, type).size(), 15U);
  }
}

TEST(Constants, NineIsBuiltOfOtherTwiddlesIn64Bits) {
  const Constants second_and_fourth{cos_of(2, 9), sin_of(2, 9), cos_of(4, 9), sin_of(4, 9)};
  EXPECT_EQ(constants_of(9, FloatType::f64), joined(kThree, second_and_fourth));
  EXPECT_EQ(constants_of(9, FloatType::f32),
            joined(joined(kThree, second_and_fourth), {cos_of(1, 9), sin_of(1, 9)}));
  for (const double digits :
       {0.76604444, 0.64278761, 0.17364818, 0.98480775, 0.93969262, 0.34202014}) {
    EXPECT_TRUE(holds(constants_of(9, FloatType::f32), digits)) << digits;
  }
}

TEST(Constants, FortyDegreesDoNotOccurIn64Bits) {
  for (const int n : {9, 18, 27, 36, 45, 54, 63}) {
    const Constants c64 = constants_of(n, FloatType::f64);
    EXPECT_FALSE(holds(c64, 0.76604444) || holds(c64, 0.64278761)) << n;
    EXPECT_TRUE(holds(c64, 0.17364818)) << n;
    const Constants c32 = constants_of(n, FloatType::f32);
    EXPECT_TRUE(holds(c32, 0.76604444) && holds(c32, 0.64278761)) << n;
  }
}

TEST(Constants, TwiddlesOfTheFullOrderIn32BitsOnly) {
  for (const int n : {24, 40, 48, 56}) {
    Constants twiddles;
    for (int k = 1; k < n; ++k) {
      if (std::gcd(k, n) == 1) twiddles.insert(cos_of(k, n));
    }
    const auto shared = [&](FloatType type) {
      int count = 0;
      for (const double c : constants_of(n, type)) count += static_cast<int>(twiddles.count(c));
      return count;
    };
    EXPECT_GT(shared(FloatType::f32), 0) << n;
    EXPECT_EQ(shared(FloatType::f64), 0) << n;
  }
}

TEST(Constants, PrimesHoldTheirConvolutionsSpectrum) {
  const Constants c64 = constants_of(13, FloatType::f64);
  for (const double digits : {0.60047727, 0.5, 0.75, 0.4330127}) {
    EXPECT_TRUE(holds(c64, digits)) << digits;
  }
  const Constants c32 = constants_of(13, FloatType::f32);
  EXPECT_TRUE(holds(c32, 0.30023864));
  EXPECT_FALSE(holds(c32, 0.60047727));
  // The spectrum's common magnitude is sqrt(p) / (p - 1), real at half its length.
  EXPECT_TRUE(holds(c32, 0.30046261));
  EXPECT_TRUE(holds(constants_of(7, FloatType::f32), 0.44095855));
  EXPECT_EQ(constants_of(7, FloatType::f64), seven());
}

TEST(Constants, OneNumberIsOneConstant) {
  // Two constants that agree in the digits of a double and are two all the same would hide sharing.
  for (const auto& kernel : test::all_kernels()) {
    const auto graph = graph_of(design_of(kernel.length, kernel.type));
    std::set<int> ids;
    for (const int node : live_nodes(graph)) {
      for (const kernelgen::Term& t : graph.node(node).terms) {
        if (t.constant != kernelgen::kNoConstant) ids.insert(t.constant);
      }
    }
    EXPECT_EQ(ids.size(), constants_of(kernel.length, kernel.type).size()) << kernel.text();
  }
}

}  // namespace
}  // namespace haldgen::dft_complex
