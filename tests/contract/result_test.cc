// Equal bits: by flag, by entry, from thread to thread.
#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <cmath>
#include <thread>

#include "tests/contract/transform.h"

namespace haldgen::test {
namespace {

// The forward real kernels of 32-bit elements scale 64-bit results before they narrow them.
template <class Float>
bool scales_narrow_results(const Transform<Float>& transform) {
  return sizeof(Float) == sizeof(double) || !transform.word->word.starts_with("DFTFwd_RTo");
}

TEST(Result, ScaleIsOneMultiplicationOfTheUnscaledResult) {
  for_each_fixed([]<class Float>(const Transform<Float>& transform) {
    if (!scales_narrow_results(transform)) return;
    const std::vector<Float> src = random_floats<Float>(transform.src_floats, 3);
    const std::vector<Float> unscaled = result(transform, src, haldScaleNone);
    for (const std::int32_t flag : flags) {
      const auto factor = scale<Float>(transform.word->usage.scaling, transform.points, flag);
      std::vector<Float> expected = unscaled;
      for (Float& value : expected) value *= factor;
      EXPECT_TRUE(identical(result(transform, src, flag), expected))
          << transform.name << ", flag " << flag;
    }
  });
}

template <class Float>
void check_general_bits() {
  for (const Transform<Float>& general : live<Float>().through_general) {
    const Transform<Float>* fixed = sibling(general, general.word->word);
    ASSERT_NE(fixed, nullptr) << general.name;
    const std::vector<Float> src = random_floats<Float>(general.src_floats, 4);
    for (const std::int32_t flag : flags) {
      EXPECT_TRUE(identical(result(general, src, flag), result(*fixed, src, flag)))
          << general.name << ", flag " << flag;
    }
  }
}

TEST(Result, GeneralEntriesGiveTheBitsOfTheFixedSizes) {
  check_general_bits<float>();
  check_general_bits<double>();
}

// One source for four threads, another for the other four: values kept outside the call would mix.
TEST(Result, ThreadsDoNotDisturbOneAnother) {
  constexpr int kThreads = 8;
  for_each_fixed([]<class Float>(const Transform<Float>& transform) {
    std::array<std::vector<Float>, 2> src;
    std::array<std::vector<Float>, 2> expected;
    for (unsigned i = 0; i < 2; ++i) {
      src[i] = random_floats<Float>(transform.src_floats, 5 + i);
      expected[i] = result(transform, src[i]);
    }
    std::atomic<int> waiting = kThreads;
    std::atomic<int> different = 0;
    std::vector<std::thread> threads;
    for (std::size_t thread = 0; thread < kThreads; ++thread) {
      threads.emplace_back([&, which = thread % 2] {
        std::vector<Float> dst(transform.dst_floats);
        --waiting;
        while (waiting > 0) std::this_thread::yield();
        for (int call = 0; call < 250; ++call) {
          std::fill(dst.begin(), dst.end(), Float{0});
          if (transform.call(src[which].data(), dst.data(), haldScaleNone) != haldStatusOk ||
              !identical(dst, expected[which])) {
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
