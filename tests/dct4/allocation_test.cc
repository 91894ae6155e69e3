// Set-up and release: statuses, the caller's memory, and the allocator, which this program
// replaces.
#include <gtest/gtest.h>
#include <haldgen.h>

#include <algorithm>
#include <atomic>
#include <climits>
#include <cstdlib>
#include <cstring>

#include "tests/contract/memory.h"
#include "tests/dct4/functions.h"

namespace {

std::atomic<int> mallocs = 0;
std::atomic<int> frees = 0;
std::atomic<std::int32_t> last_size = 0;
std::atomic<void*> last_block = nullptr;
std::atomic<void*> last_freed = nullptr;
void* last_position = nullptr;  // the first word of what was freed, where its arena goes on
bool out_of_memory = false;

}  // namespace

extern "C" {
void* haldMalloc(std::int32_t size) {
  ++mallocs;
  last_size = size;
  last_block = out_of_memory
                   ? nullptr
                   : std::aligned_alloc(64, (static_cast<std::size_t>(size) + 63) / 64 * 64);
  return last_block;
}
void haldFree(void* memory) {
  ++frees;
  last_freed = memory;
  if (memory != nullptr) std::memcpy(&last_position, memory, sizeof last_position);
  std::free(memory);
}
}

namespace haldgen::dct4 {
namespace {

using haldgen::test::GuardedPages;
using test::Functions;

template <class Float>
class Setup : public ::testing::Test {
 protected:
  void SetUp() override {
    mallocs = frees = 0;
    last_block = last_freed = nullptr;
    out_of_memory = false;
  }
  /// A value of the caller's state pointer that no call shall change.
  Dct4State* untouched() { return reinterpret_cast<Dct4State*>(&mallocs); }
};
TYPED_TEST_SUITE(Setup, test::FloatTypes);

constexpr std::int32_t refused[] = {INT_MIN, -64, -1, 0,   1,   3,   7,    48,
                                    63,      66,  96, 100, 192, 320, 4098, INT_MAX};

TYPED_TEST(Setup, RefusalsWriteNothingAndAllocateNothing) {
  using F = Functions<TypeParam>;
  std::vector<std::uint8_t> buffer(8192, 0xA5);
  const auto before = buffer;
  Dct4State* state = this->untouched();
  std::int32_t size = 12345;
  EXPECT_EQ(F::get_size(64, nullptr), haldStatusNullPointer);
  EXPECT_EQ(F::get_size(3, nullptr), haldStatusNullPointer);
  EXPECT_EQ(F::init(nullptr, 64, buffer.data()), haldStatusNullPointer);
  EXPECT_EQ(F::init(&state, 64, nullptr), haldStatusNullPointer);
  EXPECT_EQ(F::init(&state, 3, nullptr), haldStatusNullPointer);
  EXPECT_EQ(F::init_alloc(nullptr, 64), haldStatusNullPointer);
  EXPECT_EQ(F::release(nullptr), haldStatusNullPointer);
  for (const std::int32_t length : refused) {
    EXPECT_EQ(F::get_size(length, &size), haldStatusSizeError) << length;
    EXPECT_EQ(F::init(&state, length, buffer.data()), haldStatusSizeError) << length;
    EXPECT_EQ(F::init_alloc(&state, length), haldStatusSizeError) << length;
  }
  // Sizes that wrapped: no buffer can be large enough.
  for (const std::int32_t length : {1 << 27, 1 << 28, (1 << 29) + 1, 1 << 30, (1 << 30) + 1}) {
    EXPECT_EQ(F::init(&state, length, buffer.data()), haldStatusSizeError) << length;
  }
  EXPECT_EQ(size, 12345);
  EXPECT_EQ(state, this->untouched());
  EXPECT_EQ(buffer, before);
  EXPECT_EQ(mallocs, 0);
  EXPECT_EQ(frees, 0);
}

TYPED_TEST(Setup, WithoutMemoryThereIsNoState) {
  using F = Functions<TypeParam>;
  for (const std::int32_t length : {2, 64, 4096}) {
    Dct4State* state = this->untouched();
    out_of_memory = true;
    EXPECT_EQ(F::init_alloc(&state, length), haldStatusNullPointer);
    EXPECT_EQ(state, this->untouched());
  }
}

TYPED_TEST(Setup, ABlockTooSmallForItsLengthIsReturned) {
  using F = Functions<TypeParam>;
  Dct4State* state = this->untouched();
  EXPECT_EQ(F::init_alloc(&state, 1 << 30), haldStatusSizeError);
  EXPECT_EQ(last_size, 536874336);
  EXPECT_EQ(frees, mallocs);
  EXPECT_EQ(last_freed, last_block);
  EXPECT_EQ(state, this->untouched());
}

TYPED_TEST(Setup, AllocatesTheQueriedSizeAndReleasesTheBlock) {
  using F = Functions<TypeParam>;
  for (const std::int32_t length : {2, 4, 8, 16, 32, 33, 64, 1024, 4096, 131072}) {
    std::int32_t size = 0;
    Dct4State* state = nullptr;
    mallocs = frees = 0;
    if (F::get_size(length, &size) != haldStatusOk) FAIL() << length;
    ASSERT_EQ(F::init_alloc(&state, length), haldStatusOk);
    EXPECT_EQ(mallocs, 1);
    EXPECT_EQ(last_size, size);
    EXPECT_GT(static_cast<void*>(state), last_block);
    EXPECT_EQ(F::release(state), haldStatusOk);
    EXPECT_EQ(frees, 1);
    EXPECT_EQ(last_freed, last_block);
    // The state was released first: its arena is empty.
    EXPECT_EQ(last_position, static_cast<std::byte*>(last_freed.load()) + 64) << length;
  }
}

// The buffer ends at, or the stated number of bytes before, an inaccessible page, and the bytes
// around it keep their values, through set-up and transform.
TYPED_TEST(Setup, BuffersOfTheQueriedSizeSufficeAtAnyAlignment) {
  using F = Functions<TypeParam>;
  constexpr std::byte canary{0xA5};
  for (const std::int32_t length : {2, 32, 33, 64, 128, 256, 512, 1024, 2048, 4096, 8192, 131072}) {
    std::int32_t size = 0;
    ASSERT_EQ(F::get_size(length, &size), haldStatusOk);
    const auto bytes = static_cast<std::size_t>(size);
    const std::vector<TypeParam> x = test::random_floats<TypeParam>(length, 1);
    const std::vector<TypeParam> expected = test::State<TypeParam>(length)(x);
    const GuardedPages pages(bytes + 64);
    for (std::size_t distance = 0; distance < 32; ++distance) {
      if (length > 4096 && distance % 9 != 0) continue;
      std::fill(pages.bytes().begin(), pages.bytes().end(), canary);
      const std::size_t start = pages.bytes().size() - bytes - distance;
      Dct4State* state = nullptr;
      std::vector<TypeParam> y(x.size());
      volatile std::int32_t built = 1, ran = 1;
      ASSERT_FALSE(haldgen::test::faults([&] {
        built =
            F::init(&state, length, reinterpret_cast<std::uint8_t*>(pages.bytes().data() + start));
        ran = F::transform(x.data(), y.data(), state);
      })) << length
          << ", " << distance;
      ASSERT_EQ(built, haldStatusOk);
      ASSERT_EQ(ran, haldStatusOk);
      EXPECT_TRUE(test::identical(y, expected)) << length << ", " << distance;
      const auto is_canary = [](std::byte b) { return b == canary; };
      const auto outside_before = pages.bytes().first(start);
      const auto outside_behind = pages.bytes().last(distance);
      EXPECT_TRUE(std::all_of(outside_before.begin(), outside_before.end(), is_canary));
      EXPECT_TRUE(std::all_of(outside_behind.begin(), outside_behind.end(), is_canary));
    }
  }
}

}  // namespace
}  // namespace haldgen::dct4
