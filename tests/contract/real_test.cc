// The real transforms: what the packed formats hold and hide, and how the formats compare.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>

#include "tests/contract/reference.h"
#include "tests/contract/transform.h"

namespace haldgen::test {
namespace {

/// Visits each length and type once, by its transform to or from CCS.
template <class Visitor>
void for_each_ccs(std::string_view word, Visitor&& visit) {
  int visited = 0;
  for_each_fixed([&](const auto& transform) {
    if (transform.word->word != word) return;
    ++visited;
    visit(transform);
  });
  EXPECT_GT(visited, 0) << word;
}

template <class Float>
std::vector<long double> widened(const std::vector<Float>& values) {
  return {values.begin(), values.end()};
}

TEST(Real, FormatsHoldAndGiveTheSameBits) {
  for_each_ccs("DFTFwd_RToCCS", []<class Float>(const Transform<Float>& forward) {
    const Transform<Float>& inverse = *sibling(forward, "DFTInv_CCSToR");
    const auto samples = forward.src_floats;
    const std::vector<Float> src = random_floats<Float>(samples, 31);
    const std::vector<Float> spectrum = random_floats<Float>(inverse.src_floats, 32);
    for (const std::int32_t flag : flags) {
      const Spectrum bins = unpacked("CCS", samples, widened(result(forward, src, flag)));
      const std::vector<Float> back = result(inverse, spectrum, flag);
      for (const std::string format : {"CCS", "Pack", "Perm"}) {
        const Transform<Float>& to = *sibling(forward, "DFTFwd_RTo" + format);
        EXPECT_EQ(widened(result(to, src, flag)), packed(format, samples, bins))
            << to.name << ", flag " << flag;
        const Transform<Float>& from = *sibling(forward, "DFTInv_" + format + "ToR");
        const auto wide = packed(format, samples, unpacked("CCS", samples, widened(spectrum)));
        const std::vector<Float> same_spectrum(wide.begin(), wide.end());
        EXPECT_TRUE(identical(result(from, same_spectrum, flag), back))
            << from.name << ", flag " << flag;
      }
    }
  });
}

TEST(Real, ZeroSamplesGivePositiveZeros) {
  for_each_fixed([]<class Float>(const Transform<Float>& transform) {
    if (transform.word->elements[0] != names::Element::f32) return;
    const std::vector<Float> src(transform.src_floats);
    for (const std::int32_t flag : flags) {
      EXPECT_TRUE(identical(result(transform, src, flag), std::vector<Float>(transform.dst_floats)))
          << transform.name;
    }
  });
}

// Those of all real DFTs, and of the complex ones without products or with those of 3 and 5.
TEST(Real, ImpulsesAtTheOriginAreExact) {
  for_each_fixed([]<class Float>(const Transform<Float>& transform) {
    const std::string_view word = transform.word->word;
    if (!word.starts_with("DFT") || (word.ends_with("CToC") && transform.size > 5)) return;
    std::vector<Float> src(transform.src_floats);
    src[0] = 1;
    const auto ones = definition(word, transform.points, widened(src));
    for (const std::int32_t flag : {haldScaleNone, haldScaleFwdByN, haldScaleInvByN}) {
      std::vector<long double> expected = ones;
      const auto s = scale<Float>(transform.word->usage.scaling, transform.points, flag);
      for (long double& value : expected) value *= s;
      EXPECT_EQ(widened(result(transform, src, flag)), expected) << transform.name;
    }
  });
}

template <class Float>
Float largest_error(const std::vector<Float>& actual, const std::vector<long double>& expected) {
  long double largest = 0;
  for (std::size_t i = 0; i < expected.size(); ++i) {
    largest = std::max(largest, std::abs(actual[i] - expected[i]));
  }
  return static_cast<Float>(largest);
}

// In the units of the samples: a half spectrum, and the samples that it gives back times N.
TEST(Real, AbsoluteErrorsAreBounded) {
  for_each_ccs("DFTFwd_RToCCS", []<class Float>(const Transform<Float>& forward) {
    const Transform<Float>& inverse = *sibling(forward, "DFTInv_CCSToR");
    const Float forward_bound = sizeof(Float) == sizeof(float) ? Float(2.2e-6) : Float(7.2e-15);
    const Float inverse_bound = sizeof(Float) == sizeof(float) ? Float(1.92e-5) : Float(8.6e-14);
    for (unsigned seed = 40; seed < 60; ++seed) {
      const auto samples = random_floats<Float>(forward.src_floats, seed);
      const auto spectrum = definition("DFTFwd_RToCCS", forward.points, widened(samples));
      EXPECT_LE(largest_error(result(forward, samples), spectrum), forward_bound) << forward.name;
      const std::vector<Float> rounded(spectrum.begin(), spectrum.end());
      std::vector<long double> multiples = widened(samples);
      for (long double& v : multiples) v *= forward.points;
      EXPECT_LE(largest_error(result(inverse, rounded), multiples), inverse_bound) << inverse.name;
    }
  });
}

}  // namespace
}  // namespace haldgen::test
