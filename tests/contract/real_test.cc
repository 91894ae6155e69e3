// The real transforms: what the packed formats hold and hide, and how the formats compare.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>

#include "tests/contract/reference.h"
#include "tests/contract/round_trip.h"
#include "tests/contract/transform.h"

namespace haldgen::test {
namespace {

constexpr std::array<std::string_view, 3> formats = {"CCS", "Pack", "Perm"};

std::string forward_word(std::string_view format) { return "DFTFwd_RTo" + std::string(format); }
std::string inverse_word(std::string_view format) {
  return "DFTInv_" + std::string(format) + "ToR";
}

/// Visits each length and type once, by its transform to or from CCS.
template <class Visitor>
void for_each_ccs(std::string_view word, Visitor&& visit) {
  int visited = 0;
  for_each_fixed([&](const auto& transform) {
    if (transform.family->word != word) return;
    ++visited;
    visit(transform);
  });
  EXPECT_EQ(visited, 126) << word;
}

template <class Float>
std::vector<long double> widened(const std::vector<Float>& values) {
  return {values.begin(), values.end()};
}

TEST(Real, ForwardFormatsHoldTheSameBits) {
  for_each_ccs("DFTFwd_RToCCS", []<class Float>(const Transform<Float>& ccs) {
    const std::vector<Float> src = random_floats<Float>(ccs.src_floats, 31);
    for (const std::int32_t flag : flags) {
      const Spectrum bins = unpacked("CCS", src.size(), widened(result(ccs, src, flag)));
      for (const auto format : formats) {
        const Transform<Float>& other = *sibling(ccs, forward_word(format));
        EXPECT_EQ(widened(result(other, src, flag)), packed(format, src.size(), bins))
            << other.name << ", flag " << flag;
      }
    }
  });
}

TEST(Real, InverseFormatsGiveTheSameBits) {
  for_each_ccs("DFTInv_CCSToR", []<class Float>(const Transform<Float>& ccs) {
    const auto samples = static_cast<std::size_t>(ccs.points);
    const std::vector<Float> src = random_floats<Float>(ccs.src_floats, 32);
    const Spectrum bins = unpacked("CCS", samples, widened(src));
    for (const std::int32_t flag : flags) {
      const std::vector<Float> expected = result(ccs, src, flag);
      for (const auto format : formats) {
        const Transform<Float>& other = *sibling(ccs, inverse_word(format));
        const std::vector<long double> wide = packed(format, samples, bins);
        const std::vector<Float> other_src(wide.begin(), wide.end());
        EXPECT_TRUE(same_bits(result(other, other_src, flag), expected))
            << other.name << ", flag " << flag;
      }
    }
  });
}

TEST(Real, ZerosOfCcsAreWrittenAndNeverRead) {
  const auto zero_places = [](int points) {
    std::vector<std::size_t> places{1};
    if (points % 2 == 0) places.push_back(static_cast<std::size_t>(points) + 1);
    return places;
  };
  for_each_ccs("DFTFwd_RToCCS", [&]<class Float>(const Transform<Float>& forward) {
    std::vector<Float> src = random_floats<Float>(forward.src_floats, 33);
    src[0] = -std::numeric_limits<Float>::infinity();
    for (const std::int32_t flag : flags) {
      const std::vector<Float> dst = result(forward, src, flag);
      for (const std::size_t place : zero_places(forward.points)) {
        EXPECT_TRUE(dst[place] == 0 && !std::signbit(dst[place])) << forward.name;
      }
    }
  });
  for_each_ccs("DFTInv_CCSToR", [&]<class Float>(const Transform<Float>& inverse) {
    std::vector<Float> src = random_floats<Float>(inverse.src_floats, 34);
    const std::vector<Float> expected = result(inverse, src);
    for (const std::size_t place : zero_places(inverse.points)) {
      src[place] = std::numeric_limits<Float>::quiet_NaN();
    }
    EXPECT_TRUE(same_bits(result(inverse, src), expected)) << inverse.name;
  });
}

TEST(Real, ZeroSamplesGivePositiveZeros) {
  for_each_fixed([]<class Float>(const Transform<Float>& transform) {
    if (transform.family->elements[0] != frame::Element::f32) return;
    const std::vector<Float> src(transform.src_floats);
    for (const std::int32_t flag : flags) {
      EXPECT_TRUE(same_bits(result(transform, src, flag), std::vector<Float>(transform.dst_floats)))
          << transform.name;
    }
  });
}

TEST(Real, ImpulsesAtTheOriginAreExact) {
  for_each_fixed([]<class Float>(const Transform<Float>& transform) {
    const std::string_view word = transform.family->word;
    const bool forward = word.starts_with("DFTFwd_RTo");
    if (!forward && !(word.starts_with("DFTInv_") && word.ends_with("ToR"))) return;
    std::vector<Float> src(transform.src_floats);
    src[0] = 1;
    const std::int32_t by_n = forward ? haldScaleFwdByN : haldScaleInvByN;
    for (const std::int32_t flag : {std::int32_t{haldScaleNone}, by_n}) {
      const Float s = flag == by_n ? 1 / static_cast<Float>(transform.points) : 1;
      std::vector<long double> expected(transform.dst_floats, s);
      if (forward) {
        const auto bins = static_cast<std::size_t>(transform.points) / 2 + 1;
        expected = packed(word.substr(10), static_cast<std::size_t>(transform.points),
                          Spectrum(bins, static_cast<long double>(s)));
      }
      EXPECT_EQ(widened(result(transform, src, flag)), expected) << transform.name;
    }
  });
}

// Every value of a spectrum depends on every sample but those that a real bin's sine skips; the
// real parts on all of them.
TEST(Real, NonFiniteSamplesReachEveryBin) {
  for_each_ccs("DFTFwd_RToCCS", []<class Float>(const Transform<Float>& forward) {
    constexpr Float inf = std::numeric_limits<Float>::infinity();
    for (const Float value : {std::numeric_limits<Float>::quiet_NaN(), inf, -inf}) {
      for (std::size_t at = 0; at < forward.src_floats; ++at) {
        std::vector<Float> src = random_floats<Float>(forward.src_floats, 35);
        src[at] = value;
        const std::vector<Float> dst = result(forward, src);
        for (std::size_t k = 0; k < dst.size(); k += 2) {
          EXPECT_FALSE(std::isfinite(dst[k]) && std::isfinite(dst[k + 1]))
              << forward.name << ", " << value << " at " << at << ", bin " << k / 2;
        }
      }
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

TEST(Real, InverseUndoesForwardOfTheSameFlag) {
  for_each_fixed([]<class Float>(const Transform<Float>& forward) {
    if (!forward.family->word.starts_with("DFTFwd_RTo")) return;
    const std::string word = inverse_word(forward.family->word.substr(10));
    expect_undone(forward, *sibling(forward, word), 36);
  });
}

TEST(Hartley, UndoesItself) {
  // With a flag that divides in both directions, twice divides twice.
  for_each_fixed([]<class Float>(const Transform<Float>& hartley) {
    if (hartley.family->word != "Hartley") return;
    const std::vector<Float> src = random_floats<Float>(hartley.src_floats, 37);
    const auto once = result(hartley, src, haldScaleNone);
    const auto back = result(hartley, once, haldScaleInvByN);
    const auto rooted = result(hartley, result(hartley, src, haldScaleBySqrtN), haldScaleBySqrtN);
    for (std::size_t i = 0; i < src.size(); ++i) {
      const Float bound = 16 * std::numeric_limits<Float>::epsilon();
      EXPECT_NEAR(back[i], src[i], bound) << hartley.name;
      EXPECT_NEAR(rooted[i], src[i], bound) << hartley.name;
    }
  });
}

}  // namespace
}  // namespace haldgen::test
