// The work buffer: its size, who brings it, who touches it.
#include <gtest/gtest.h>

#include <algorithm>
#include <climits>

#include "tests/contract/memory.h"
#include "tests/wht/library.h"

namespace haldgen::wht::test {
namespace {

using haldgen::test::faults;
using haldgen::test::GuardedPages;

// Source and destination; the source can be shifted by one element, off the multiples of 16 bytes.
template <class Float>
struct Arrays {
  explicit Arrays(const Kernel<Float>& kernel)
      : input(random_floats<Float>(kernel.points(), 11)),
        src(input.size() + 1),
        dst(input.size()) {}
  const Float* source(std::size_t shift) {
    std::copy(input.begin(), input.end(), src.begin() + static_cast<std::ptrdiff_t>(shift));
    return src.data() + shift;
  }

  std::vector<Float> input, src, dst;
};

void check_query(std::int32_t (*query)(std::int32_t, std::uint32_t*),
                 std::size_t (*published)(int order)) {
  for (std::int32_t order = -1; order <= 15; ++order) {
    std::uint32_t size = 12345;
    const bool good = order >= 1 && order <= 13;
    EXPECT_EQ(query(order, &size), good ? haldStatusOk : haldStatusSizeError) << order;
    EXPECT_EQ(size, good ? published(order) : 12345) << order;
    EXPECT_EQ(query(order, nullptr), haldStatusNullPointer) << order;
  }
  for (const std::int32_t order : {INT_MIN, INT_MAX}) {
    std::uint32_t size = 0;
    EXPECT_EQ(query(order, &size), haldStatusSizeError) << order;
  }
}

TEST(Buffer, QueryTestsTheResultPointerBeforeTheOrder) {
  check_query(haldgWHTGetBufferSize_32f, published_buffer_bytes<float>);
  check_query(haldgWHTGetBufferSize_64f, published_buffer_bytes<double>);
}

TEST(Buffer, WithoutOneThereIsOneAllocationOfTheQueriedSizeAndOneRelease) {
  for_each_kernel([]<class Float>(const Kernel<Float>& kernel) {
    Arrays<Float> arrays(kernel);
    for (const std::size_t shift : {0U, 1U}) {
      const Float* const src = arrays.source(shift);
      allocator::reset();
      volatile std::int32_t status = 1;
      ASSERT_FALSE(faults([&] {
        status = kernel.call(src, arrays.dst.data(), haldScaleNone, nullptr);
      })) << kernel.name;
      ASSERT_EQ(status, haldStatusOk) << kernel.name;
      const auto size = static_cast<std::int32_t>(published_buffer_bytes<Float>(kernel.order));
      EXPECT_EQ(allocator::requests(), kernel.needs_buffer() ? std::vector<std::int32_t>{size}
                                                             : std::vector<std::int32_t>{})
          << kernel.name;
      EXPECT_TRUE(allocator::settled()) << kernel.name;
      EXPECT_TRUE(identical(arrays.dst, plain_network(arrays.input, Float{1}))) << kernel.name;
    }
  });
}

TEST(Buffer, MayLieAtAnyMultipleOf16) {
  for_each_kernel([]<class Float>(const Kernel<Float>& kernel) {
    Arrays<Float> arrays(kernel);
    const auto expected = plain_network(arrays.input, Float{1});
    const std::size_t size = published_buffer_bytes<Float>(kernel.order);
    const GuardedPages pages(size + 64);
    for (const std::size_t behind : {0U, 16U, 32U, 48U}) {
      std::ranges::fill(pages.bytes(), std::byte{0xA5});
      const auto before = pages.bytes().size() - size - behind;
      auto* const buffer = reinterpret_cast<std::uint8_t*>(pages.bytes().data() + before);
      const Float* const src = arrays.source(0);
      volatile std::int32_t status = 1;
      ASSERT_FALSE(faults([&] {
        status = kernel.call(src, arrays.dst.data(), haldScaleNone, buffer);
      })) << kernel.name;
      ASSERT_EQ(status, haldStatusOk) << kernel.name;
      EXPECT_TRUE(identical(arrays.dst, expected)) << kernel.name;
      for (const auto outside : {pages.bytes().first(before), pages.bytes().last(behind)}) {
        EXPECT_TRUE(std::ranges::count(outside, std::byte{0xA5}) == std::ssize(outside));
      }
    }
  });
}

// There is no status for it, and no result.
TEST(Buffer, WithoutMemoryTheFirstStoreFaults) {
  for_each_kernel([]<class Float>(const Kernel<Float>& kernel) {
    if (!kernel.needs_buffer()) return;
    Arrays<Float> arrays(kernel);
    allocator::reset();
    allocator::exhaust();
    const Float* const src = arrays.source(0);
    EXPECT_TRUE(faults([&] { kernel.call(src, arrays.dst.data(), haldScaleNone, nullptr); }))
        << kernel.name;
    EXPECT_EQ(arrays.dst, std::vector<Float>(arrays.dst.size())) << kernel.name;
  });
}

// A buffer that faults when it is touched: by refused calls, and by small orders at all.
TEST(Buffer, IsNeitherTouchedNorTakenInVain) {
  const GuardedPages closed(1);
  closed.allow(GuardedPages::Access::none);
  auto* const untouchable = reinterpret_cast<std::uint8_t*>(closed.bytes().data());
  for_each_kernel([&]<class Float>(const Kernel<Float>& kernel) {
    Arrays<Float> arrays(kernel);
    allocator::reset();
    const auto status = [&](const Float* src, Float* dst, std::int32_t flag, std::uint8_t* buffer) {
      volatile std::int32_t answer = 1;
      EXPECT_FALSE(faults([&] { answer = kernel.call(src, dst, flag, buffer); })) << kernel.name;
      return static_cast<std::int32_t>(answer);
    };
    for (std::uint8_t* const buffer : {untouchable, static_cast<std::uint8_t*>(nullptr)}) {
      for (const std::size_t shift : {0U, 1U}) {
        const Float* const src = arrays.source(shift);
        Float* const dst = arrays.dst.data();
        for (const std::int32_t flag : {0, 3, 16, -1, INT_MIN}) {
          EXPECT_EQ(status(src, dst, flag, buffer), haldStatusFlagError) << kernel.name;
          EXPECT_EQ(status(nullptr, dst, flag, buffer), haldStatusNullPointer) << kernel.name;
        }
        EXPECT_EQ(status(src, nullptr, haldScaleNone, buffer), haldStatusNullPointer)
            << kernel.name;
      }
    }
    EXPECT_EQ(arrays.dst, std::vector<Float>(arrays.dst.size())) << kernel.name;
    if (!kernel.needs_buffer()) {
      EXPECT_EQ(status(arrays.source(1), arrays.dst.data(), haldScaleNone, untouchable + 1),
                haldStatusOk);
      EXPECT_TRUE(identical(arrays.dst, plain_network(arrays.input, Float{1}))) << kernel.name;
    }
    EXPECT_TRUE(allocator::requests().empty()) << kernel.name;
    EXPECT_TRUE(allocator::settled()) << kernel.name;
  });
}

}  // namespace
}  // namespace haldgen::wht::test
