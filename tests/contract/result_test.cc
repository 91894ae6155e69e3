// Equal bits: by flag, by entry, from thread to thread.
#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <cmath>
#include <thread>

#include "tests/contract/transform.h"

namespace haldgen::test {
namespace {

// Rounded once: at none of these N does the long double lie next to the middle of two floats.
template <class Float>
Float scale(frame::Scaling scaling, int points, std::int32_t flag) {
  const auto n = static_cast<long double>(points);
  const bool divides =
      scaling == frame::Scaling::directionless ||
      flag == (scaling == frame::Scaling::forward ? haldScaleFwdByN : haldScaleInvByN);
  if (flag == haldScaleNone) return 1;
  if (flag == haldScaleBySqrtN) return static_cast<Float>(1 / std::sqrt(n));
  return divides ? static_cast<Float>(1 / n) : 1;
}

// The forward real kernels of 32-bit elements scale 64-bit results before they narrow them.
template <class Float>
bool scales_narrow_results(const Transform<Float>& transform) {
  return sizeof(Float) == sizeof(double) || !transform.family->word.starts_with("DFTFwd_RTo");
}

TEST(Result, ScaleIsOneMultiplicationOfTheUnscaledResult) {
  for_each_fixed([]<class Float>(const Transform<Float>& transform) {
    if (!scales_narrow_results(transform)) return;
    const std::vector<Float> src = random_floats<Float>(transform.src_floats, 3);
    const std::vector<Float> unscaled = result(transform, src, haldScaleNone);
    for (const std::int32_t flag : flags) {
      const Float factor = scale<Float>(transform.family->scaling, transform.points, flag);
      std::vector<Float> expected = unscaled;
      for (Float& value : expected) value *= factor;
      EXPECT_TRUE(same_bits(result(transform, src, flag), expected))
          << transform.name << ", flag " << flag;
    }
  });
}

template <class Float>
void check_general_bits() {
  for (const Transform<Float>& general : live<Float>().through_general) {
    const Transform<Float>* fixed = sibling(general, general.family->word);
    ASSERT_NE(fixed, nullptr) << general.name;
    const std::vector<Float> src = random_floats<Float>(general.src_floats, 4);
    for (const std::int32_t flag : flags) {
      EXPECT_TRUE(same_bits(result(general, src, flag), result(*fixed, src, flag)))
          << general.name << ", flag " << flag;
    }
  }
}

TEST(Result, GeneralEntriesGiveTheBitsOfTheFixedSizes) {
  check_general_bits<float>();
  check_general_bits<double>();
}

// One source for two threads, another for the other two: values kept outside the call would mix.
TEST(Result, ThreadsDoNotDisturbOneAnother) {
  for_each_fixed([]<class Float>(const Transform<Float>& transform) {
    std::array<std::vector<Float>, 2> src;
    std::array<std::vector<Float>, 2> expected;
    for (unsigned i = 0; i < 2; ++i) {
      src[i] = random_floats<Float>(transform.src_floats, 5 + i);
      expected[i] = result(transform, src[i]);
    }
    std::atomic<int> waiting = 4;
    std::atomic<int> different = 0;
    std::vector<std::thread> threads;
    for (std::size_t thread = 0; thread < 4; ++thread) {
      threads.emplace_back([&, which = thread % 2] {
        std::vector<Float> dst(transform.dst_floats);
        --waiting;
        while (waiting > 0) std::this_thread::yield();
        for (int call = 0; call < 2000; ++call) {
          std::fill(dst.begin(), dst.end(), Float{0});
          if (transform.call(src[which].data(), dst.data(), haldScaleNone) != haldStatusOk ||
              !same_bits(dst, expected[which])) {
            ++different;
          }
        }
      });
    }
    for (std::thread& thread : threads) thread.join();
    EXPECT_EQ(different, 0) << transform.name;
  });
}

}  // namespace
}  // namespace haldgen::test
