// What a transform reads and writes, and which bits nothing changes.
#include <gtest/gtest.h>

#include <atomic>
#include <thread>

#include "tests/contract/memory.h"
#include "tests/dct4/functions.h"

namespace haldgen::dct4 {
namespace {

using haldgen::test::GuardedPages;
using test::Functions;
using test::identical;
using test::random_floats;
using test::State;

template <class Float>
class Transform : public ::testing::Test {};
TYPED_TEST_SUITE(Transform, test::FloatTypes);

constexpr std::int32_t lengths[] = {2,   4,    8,    16,   32,   64,    128,   256,
                                    512, 1024, 2048, 4096, 8192, 16384, 131072};

TYPED_TEST(Transform, NullPointersOutrankABrokenState) {
  using F = Functions<TypeParam>;
  State<TypeParam> state(64);
  std::vector<TypeParam> x(64), y(64, TypeParam{7});
  const auto before = y;
  // The class is the ninth word of the record.
  const std::int32_t bad = 7;
  std::memcpy(reinterpret_cast<std::byte*>(state.get()) + 32, &bad, sizeof bad);
  EXPECT_EQ(F::transform(nullptr, y.data(), state.get()), haldStatusNullPointer);
  EXPECT_EQ(F::transform(x.data(), nullptr, state.get()), haldStatusNullPointer);
  EXPECT_EQ(F::transform(x.data(), y.data(), nullptr), haldStatusNullPointer);
  EXPECT_EQ(F::transform(x.data(), y.data(), state.get()), haldStatusBadArgument);
  EXPECT_EQ(y, before);
  const std::int32_t good = 6;
  std::memcpy(reinterpret_cast<std::byte*>(state.get()) + 32, &good, sizeof good);
}

/// Places an array of `count` floats so that it ends `distance` bytes before an inaccessible page.
template <class Float>
Float* place(const GuardedPages& pages, std::int32_t count, std::size_t distance) {
  const std::size_t bytes = static_cast<std::size_t>(count) * sizeof(Float);
  return reinterpret_cast<Float*>(pages.bytes().data() + pages.bytes().size() - bytes - distance);
}

// The source is read-only and both arrays end at a guard at distance 0.
TYPED_TEST(Transform, NoPlacementChangesABit) {
  using Float = TypeParam;
  for (const std::int32_t length : lengths) {
    State<Float> state(length);
    const std::vector<Float> x = random_floats<Float>(length, 1);
    const std::vector<Float> expected = state(x);
    const std::size_t bytes = x.size() * sizeof(Float);
    const GuardedPages src(bytes + 64), dst(bytes + 64);
    // Any byte address will do.
    for (std::size_t from = 0; from<32; from += length> 4096 ? 9 : 3) {
      src.allow(GuardedPages::Access::write);
      auto* const source = place<Float>(src, length, from);
      std::memcpy(static_cast<void*>(source), x.data(), bytes);
      src.allow(GuardedPages::Access::read);
      for (std::size_t to = 0; to<32; to += length> 4096 ? 7 : 1) {
        const auto inner = dst.bytes();
        std::fill(inner.begin(), inner.end(), std::byte{0xA5});
        auto* const target = place<Float>(dst, length, to);
        ASSERT_FALSE(haldgen::test::faults([&] { state.run(source, target); }))
            << length << ", " << from << ", " << to;
        EXPECT_EQ(std::memcmp(target, expected.data(), bytes), 0)
            << length << ", " << from << ", " << to;
        const auto* const first = reinterpret_cast<const std::byte*>(target);
        EXPECT_EQ(first[-1], std::byte{0xA5}) << length;
        EXPECT_TRUE(to == 0 || first[bytes] == std::byte{0xA5}) << length;
      }
      auto* const both = place<Float>(dst, length, from);
      std::memcpy(static_cast<void*>(both), x.data(), bytes);
      state.run(both, both);
      EXPECT_EQ(std::memcmp(both, expected.data(), bytes), 0) << length << " in place, " << from;
    }
  }
}

// A transform leaves nothing in its scratch memory on which the next depends.
TYPED_TEST(Transform, StatesCanBeUsedAgain) {
  for (const std::int32_t length : lengths) {
    State<TypeParam> state(length);
    const std::vector<TypeParam> x = random_floats<TypeParam>(length, 3);
    const std::vector<TypeParam> first = state(x);
    state(random_floats<TypeParam>(length, 4));
    EXPECT_TRUE(identical(state(x), first)) << length;
    State<TypeParam> other(length);
    EXPECT_TRUE(identical(other(x), first)) << length;
  }
}

TYPED_TEST(Transform, StatesOfThreadsWithOneSourceAreIndependent) {
  for (const std::int32_t length : {32, 256, 4096, 131072}) {
    const std::vector<TypeParam> x = random_floats<TypeParam>(length, 5);
    const std::vector<TypeParam> expected = State<TypeParam>(length)(x);
    std::atomic<int> different = 0;
    std::vector<std::thread> threads;
    for (int thread = 0; thread < 8; ++thread) {
      threads.emplace_back([&] {
        State<TypeParam> state(length);
        for (std::int32_t call = 0; call < 1 + 65536 / length; ++call) {
          different += identical(state(x), expected) ? 0 : 1;
        }
      });
    }
    for (std::thread& thread : threads) thread.join();
    EXPECT_EQ(different, 0) << length;
  }
}

// The plan of 2^k + 1 is that of 2^k: one output is never written, and the rest are finite.
TYPED_TEST(Transform, LengthsBesidePowersOfTwoWriteAllButTheLast) {
  std::vector<std::int32_t> odd = {33, 65, 129, 1025, 4097};
  if (sizeof(TypeParam) == 8) odd.insert(odd.end(), {9, 17});
  for (const std::int32_t length : odd) {
    const std::vector<TypeParam> x = random_floats<TypeParam>(length, 8);
    std::vector<TypeParam> y(x.size(), TypeParam{1000000});
    State<TypeParam>(length).run(x.data(), y.data());
    for (std::size_t k = 0; k + 1 < y.size(); ++k) {
      EXPECT_LT(std::abs(y[k]), TypeParam{1000}) << length << ", " << k;
    }
    EXPECT_EQ(y.back(), TypeParam{1000000}) << length;
  }
}

}  // namespace
}  // namespace haldgen::dct4
