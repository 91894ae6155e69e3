// Every bit of every result, wherever the arrays lie.
#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <limits>
#include <random>
#include <span>

#include "tests/contract/memory.h"
#include "tests/wht/library.h"

namespace haldgen::wht::test {
namespace {

using haldgen::test::faults;
using haldgen::test::GuardedPages;
using haldgen::test::Placement;

template <class Float>
std::vector<Float> call(const Kernel<Float>& kernel, const std::vector<Float>& src,
                        std::int32_t flag) {
  WorkBuffer buffer(published_buffer_bytes<Float>(kernel.order));
  std::vector<Float> dst(src.size());
  EXPECT_EQ(kernel.call(src.data(), dst.data(), flag, buffer.data()), haldStatusOk) << kernel.name;
  return dst;
}

// Random floats of widely different magnitudes, which meet in every kind of rounding.
template <class Float>
std::vector<Float> spread_floats(std::size_t count, unsigned seed) {
  std::vector<Float> floats = random_floats<Float>(count, seed);
  std::mt19937 random(seed);
  for (Float& value : floats) value = std::ldexp(value, static_cast<int>(random() % 61) - 30);
  return floats;
}

// Inputs on which a kernel with other arithmetic would give itself away.
template <class Float>
std::vector<std::vector<Float>> inputs(std::size_t count) {
  using Limits = std::numeric_limits<Float>;
  std::vector<std::vector<Float>> all = {random_floats<Float>(count, 1),
                                         spread_floats<Float>(count, 2),
                                         std::vector<Float>(count, Float{-0.0})};
  std::vector<Float> zeros = random_floats<Float>(count, 3);
  for (Float& value : zeros) value = std::copysign(Float{0}, value);
  all.push_back(zeros);
  std::vector<Float> subnormal = random_floats<Float>(count, 4);
  for (Float& value : subnormal) value *= 100 * Limits::denorm_min();
  all.push_back(subnormal);
  std::vector<Float> huge = random_floats<Float>(count, 5);
  for (Float& value : huge) value *= Limits::max();
  all.push_back(huge);
  for (const Float value : {Limits::infinity(), -Limits::infinity(), Limits::quiet_NaN()}) {
    all.push_back(random_floats<Float>(count, 6));
    all.back()[count * 2 / 3] = value;
  }
  return all;
}

TEST(Bits, EqualThePlainNetwork) {
  for_each_kernel([]<class Float>(const Kernel<Float>& kernel) {
    int number = 0;
    for (const std::vector<Float>& src : inputs<Float>(kernel.points())) {
      for (const std::int32_t flag : kFlags) {
        const auto scale = nearest_scale<Float>(kernel.order, flag);
        EXPECT_TRUE(identical(call(kernel, src, flag), plain_network(src, scale)))
            << kernel.name << ", input " << number << ", flag " << flag;
      }
      ++number;
    }
  });
}

TEST(Bits, ScalesAreThePublishedOnes) {
  constexpr std::array<float, 7> roots = {0.70710677f,  0.35355338f,  0.17677669f, 0.088388346f,
                                          0.044194173f, 0.022097087f, 0.011048543f};
  for_each_kernel([&]<class Float>(const Kernel<Float>& kernel) {
    std::vector<Float> impulse(kernel.points());
    impulse[0] = 1;
    for (const std::int32_t flag : kFlags) {
      auto scale = nearest_scale<Float>(kernel.order, flag);
      if (flag == haldScaleBySqrtN && kernel.order % 2 == 1 && sizeof(Float) == sizeof(float)) {
        scale = roots[static_cast<std::size_t>(kernel.order / 2)];
      }
      if (flag == haldScaleBySqrtN && kernel.order == 1 && sizeof(Float) == sizeof(double)) {
        scale = static_cast<Float>(0.7071067811865476);
      }
      EXPECT_EQ(call(kernel, impulse, flag), std::vector<Float>(kernel.points(), scale))
          << kernel.name << ", flag " << flag;
    }
  });
}

// The definition: an impulse at n gives the signs of row n, a constant gives N times itself.
TEST(Bits, SignsAreThoseOfTheNaturalOrder) {
  for_each_kernel([]<class Float>(const Kernel<Float>& kernel) {
    std::mt19937 random(7);
    for (int i = 0; i < 40; ++i) {
      const std::size_t at = random() % kernel.points();
      std::vector<Float> src(kernel.points());
      std::vector<Float> expected(kernel.points());
      src[at] = 3;
      for (std::size_t k = 0; k < kernel.points(); ++k) {
        expected[k] = std::popcount(k & at) % 2 == 0 ? Float{3} : Float{-3};
      }
      ASSERT_EQ(call(kernel, src, haldScaleNone), expected) << kernel.name << ", impulse at " << at;
    }
    std::vector<Float> expected(kernel.points());
    expected[0] = static_cast<Float>(kernel.points()) * 5;
    EXPECT_EQ(call(kernel, std::vector<Float>(kernel.points(), 5), haldScaleNone), expected)
        << kernel.name;
  });
}

// On integers, sums and the scale by N are exact.
TEST(Bits, TwoCallsGiveTheInputBack) {
  for_each_kernel([]<class Float>(const Kernel<Float>& kernel) {
    std::mt19937 random(8);
    std::vector<Float> src(kernel.points());
    for (Float& value : src) value = static_cast<Float>(static_cast<int>(random() % 1001) - 500);
    for (const std::int32_t by_n : {haldScaleFwdByN, haldScaleInvByN}) {
      EXPECT_EQ(call(kernel, call(kernel, src, haldScaleNone), by_n), src) << kernel.name;
      EXPECT_EQ(call(kernel, call(kernel, src, by_n), haldScaleNone), src) << kernel.name;
    }
    if (kernel.order % 2 == 0) {
      EXPECT_EQ(call(kernel, call(kernel, src, haldScaleBySqrtN), haldScaleBySqrtN), src)
          << kernel.name;
    }
  });
}

constexpr std::byte kCanary{0xA5};

// An array in guarded pages that otherwise hold the canary.
class Arena {
 public:
  explicit Arena(std::size_t size) : size_(size), pages_(size + 64) {}

  std::byte* place(const Placement& at) {
    std::fill(pages_.bytes().begin(), pages_.bytes().end(), kCanary);
    array_ = pages_.bytes().subspan(at.offset(size_, pages_.bytes().size()), size_);
    return array_.data();
  }
  template <class Float>
  std::byte* place(const Placement& at, const std::vector<Float>& contents) {
    place(at);
    std::memcpy(array_.data(), contents.data(), size_);
    return array_.data();
  }
  bool surroundings_intact() const {
    const auto intact = [](const std::byte* from, const std::byte* to) {
      return std::all_of(from, to, [](std::byte byte) { return byte == kCanary; });
    };
    const std::byte* const first = pages_.bytes().data();
    return intact(first, array_.data()) &&
           intact(array_.data() + array_.size(), first + pages_.bytes().size());
  }
  template <class Float>
  bool holds(const std::vector<Float>& contents) const {
    return std::memcmp(array_.data(), contents.data(), size_) == 0 && surroundings_intact();
  }

 private:
  std::size_t size_;
  GuardedPages pages_;
  std::span<std::byte> array_;
};

// Both ends of the pages, at multiples of `step` bytes up to `last`.
std::vector<Placement> every(std::size_t step, std::size_t last) {
  std::vector<Placement> all;
  for (const bool at_end : {false, true}) {
    for (std::size_t distance = 0; distance <= last; distance += step) {
      all.push_back({at_end, distance});
    }
  }
  return all;
}

// Arrays at every byte, so also at none of the element's own multiples.
TEST(Bits, NoPlacementOfArraysOrBufferMatters) {
  for_each_kernel([]<class Float>(const Kernel<Float>& kernel) {
    const std::vector<Float> input = random_floats<Float>(kernel.points(), 9);
    const std::vector<Float> expected =
        plain_network(input, nearest_scale<Float>(kernel.order, haldScaleBySqrtN));
    Arena src(kernel.bytes());
    Arena dst(kernel.bytes());
    Arena buffer(published_buffer_bytes<Float>(kernel.order));
    const std::vector<Placement> buffer_places = every(16, 48);
    std::size_t turn = 0;
    for (const Placement& from : every(1, 16)) {
      const auto* source = reinterpret_cast<const Float*>(src.place(from, input));
      for (const Placement& to : every(1, 16)) {
        const Placement& work = buffer_places[turn++ % buffer_places.size()];
        auto* result = reinterpret_cast<Float*>(dst.place(to));
        auto* area = reinterpret_cast<std::uint8_t*>(buffer.place(work));
        const std::string where =
            kernel.name + ", src " + from.text() + ", dst " + to.text() + ", buffer " + work.text();
        volatile std::int32_t status = 1;
        ASSERT_FALSE(faults([&] { status = kernel.call(source, result, haldScaleBySqrtN, area); }))
            << where;
        ASSERT_EQ(status, haldStatusOk) << where;
        ASSERT_TRUE(dst.holds(expected)) << where;
        ASSERT_TRUE(src.holds(input)) << where;
        ASSERT_TRUE(buffer.surroundings_intact()) << where;
      }
    }
  });
}

TEST(Bits, InPlaceIsTheSame) {
  for_each_kernel([]<class Float>(const Kernel<Float>& kernel) {
    const std::vector<Float> input = random_floats<Float>(kernel.points(), 10);
    const std::vector<Float> expected =
        plain_network(input, nearest_scale<Float>(kernel.order, haldScaleFwdByN));
    Arena array(kernel.bytes());
    WorkBuffer buffer(published_buffer_bytes<Float>(kernel.order));
    for (const Placement& place : every(1, 16)) {
      for (std::uint8_t* const area : {buffer.data(), static_cast<std::uint8_t*>(nullptr)}) {
        auto* both = reinterpret_cast<Float*>(array.place(place, input));
        ASSERT_EQ(kernel.call(both, both, haldScaleFwdByN, area), haldStatusOk) << kernel.name;
        ASSERT_TRUE(array.holds(expected)) << kernel.name << ", " << place.text();
      }
    }
  });
}

}  // namespace
}  // namespace haldgen::wht::test
