// The work buffer: its size, who brings it, who touches it.
#include <gtest/gtest.h>

#include <climits>

#include "tests/contract/memory.h"
#include "tests/wht/library.h"

namespace haldgen::wht::test {
namespace {

using haldgen::test::faults;
using haldgen::test::GuardedPages;

constexpr std::array<std::int32_t, 9> kBadFlags = {0, 3, 5, 6, 7, 9, 16, -1, INT_MIN};

// Source and destination with room to shift both by one element.
template <class Float>
struct Arrays {
  explicit Arrays(const Kernel<Float>& kernel)
      : input(random_floats<Float>(kernel.points(), 11)), src(input), dst(kernel.points() + 8) {
    src.insert(src.begin(), 1, 0);
    src.resize(src.size() + 8);
  }
  // One element from the start or two; at least one of the two is no multiple of 16 bytes.
  const Float* source(std::size_t shift) {
    std::copy(input.begin(), input.end(), src.begin() + static_cast<std::ptrdiff_t>(shift));
    return src.data() + shift;
  }
  std::vector<Float> result(const Kernel<Float>& kernel) const {
    return {dst.begin(), dst.begin() + static_cast<std::ptrdiff_t>(kernel.points())};
  }

  std::vector<Float> input;
  std::vector<Float> src;
  std::vector<Float> dst;
};

template <class Float>
void check_query() {
  const Query<Float> query = buffer_query<Float>();
  for (int order = 1; order <= kOrders; ++order) {
    std::uint32_t size = 1;
    EXPECT_EQ(query(order, &size), haldStatusOk) << order;
    EXPECT_EQ(size, published_buffer_bytes<Float>(order)) << order;
  }
  for (const std::int32_t order : {0, 14, -1, 15, 64, INT_MIN, INT_MAX}) {
    std::uint32_t size = 12345;
    EXPECT_EQ(query(order, &size), haldStatusSizeError) << order;
    EXPECT_EQ(size, 12345u) << order;
    EXPECT_EQ(query(order, nullptr), haldStatusNullPointer) << order;
  }
  EXPECT_EQ(query(1, nullptr), haldStatusNullPointer);
  EXPECT_EQ(query(13, nullptr), haldStatusNullPointer);
}

TEST(Buffer, QueryTestsTheResultPointerBeforeTheOrder) {
  check_query<float>();
  check_query<double>();
}

TEST(Buffer, WithoutOneThereIsOneAllocationOfTheQueriedSizeAndOneRelease) {
  for_each_kernel([]<class Float>(const Kernel<Float>& kernel) {
    Arrays<Float> arrays(kernel);
    for (const std::size_t shift : {0U, 1U}) {
      for (const std::int32_t flag : kFlags) {
        const Float* const src = arrays.source(shift);
        allocator::reset();
        volatile std::int32_t status = 1;
        ASSERT_FALSE(faults([&] { status = kernel.call(src, arrays.dst.data(), flag, nullptr); }))
            << kernel.name;
        ASSERT_EQ(status, haldStatusOk) << kernel.name;
        const auto size = static_cast<std::int32_t>(published_buffer_bytes<Float>(kernel.order));
        EXPECT_EQ(allocator::requests(), kernel.needs_buffer() ? std::vector<std::int32_t>{size}
                                                               : std::vector<std::int32_t>{})
            << kernel.name;
        EXPECT_TRUE(allocator::settled()) << kernel.name;
        const auto scale = nearest_scale<Float>(kernel.order, flag);
        EXPECT_TRUE(identical(arrays.result(kernel), plain_network(arrays.input, scale)))
            << kernel.name << ", flag " << flag;
      }
    }
  });
}

TEST(Buffer, WithOneThereIsNoAllocation) {
  for_each_kernel([]<class Float>(const Kernel<Float>& kernel) {
    Arrays<Float> arrays(kernel);
    WorkBuffer buffer(published_buffer_bytes<Float>(kernel.order));
    allocator::reset();
    for (const std::size_t shift : {0U, 1U}) {
      EXPECT_EQ(kernel.call(arrays.source(shift), arrays.dst.data(), haldScaleNone, buffer.data()),
                haldStatusOk)
          << kernel.name;
    }
    EXPECT_TRUE(allocator::requests().empty()) << kernel.name;
    EXPECT_TRUE(allocator::settled()) << kernel.name;
  });
}

TEST(Buffer, RefusedCallsNeitherAllocateNorTouchIt) {
  const GuardedPages closed(1);
  closed.allow(GuardedPages::Access::none);
  auto* const untouchable = reinterpret_cast<std::uint8_t*>(closed.bytes().data());
  for_each_kernel([&]<class Float>(const Kernel<Float>& kernel) {
    Arrays<Float> arrays(kernel);
    allocator::reset();
    const auto refusal = [&](const Float* src, Float* dst, std::int32_t flag,
                             std::uint8_t* buffer) {
      volatile std::int32_t status = 1;
      EXPECT_FALSE(faults([&] { status = kernel.call(src, dst, flag, buffer); })) << kernel.name;
      return static_cast<std::int32_t>(status);
    };
    for (std::uint8_t* const buffer : {untouchable, static_cast<std::uint8_t*>(nullptr)}) {
      for (const std::size_t shift : {0U, 1U}) {
        const Float* const src = arrays.source(shift);
        Float* const dst = arrays.dst.data();
        for (const std::int32_t flag : kBadFlags) {
          EXPECT_EQ(refusal(src, dst, flag, buffer), haldStatusFlagError) << kernel.name;
          EXPECT_EQ(refusal(nullptr, dst, flag, buffer), haldStatusNullPointer) << kernel.name;
        }
        for (const std::int32_t flag : kFlags) {
          EXPECT_EQ(refusal(nullptr, dst, flag, buffer), haldStatusNullPointer) << kernel.name;
          EXPECT_EQ(refusal(src, nullptr, flag, buffer), haldStatusNullPointer) << kernel.name;
        }
      }
    }
    EXPECT_TRUE(allocator::requests().empty()) << kernel.name;
    EXPECT_TRUE(allocator::settled()) << kernel.name;
    EXPECT_EQ(arrays.dst, std::vector<Float>(arrays.dst.size())) << kernel.name;
  });
}

TEST(Buffer, SmallOrdersNeverLookAtIt) {
  const GuardedPages closed(1);
  closed.allow(GuardedPages::Access::none);
  auto* const untouchable = reinterpret_cast<std::uint8_t*>(closed.bytes().data());
  for_each_kernel([&]<class Float>(const Kernel<Float>& kernel) {
    if (kernel.needs_buffer()) return;
    Arrays<Float> arrays(kernel);
    for (std::uint8_t* const buffer : {untouchable, untouchable + 1}) {
      for (const std::size_t shift : {0U, 1U}) {
        const Float* const src = arrays.source(shift);
        volatile std::int32_t status = 1;
        ASSERT_FALSE(faults([&] {
          status = kernel.call(src, arrays.dst.data(), haldScaleNone, buffer);
        })) << kernel.name;
        EXPECT_EQ(status, haldStatusOk);
        EXPECT_TRUE(identical(arrays.result(kernel), plain_network(arrays.input, Float{1})))
            << kernel.name;
      }
    }
  });
}

}  // namespace
}  // namespace haldgen::wht::test
