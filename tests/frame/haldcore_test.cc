// Memory and processor features of haldcore.
#include <gtest/gtest.h>
#include <haldcore.h>

#include <climits>
#include <cstdint>
#include <cstring>
#include <vector>

namespace {

TEST(Haldcore, MemoryIsAlignedAndWritable) {
  std::vector<void*> blocks;
  for (const int32_t size : {1, 2, 63, 64, 65, 127, 128, 1000, 4096, 1 << 20}) {
    void* block = haldMalloc(size);
    ASSERT_NE(block, nullptr) << size;
    EXPECT_EQ(reinterpret_cast<std::uintptr_t>(block) % haldMallocAlignment, 0u) << size;
    std::memset(block, 0xA5, static_cast<std::size_t>(size));
    blocks.push_back(block);
  }
  EXPECT_GE(haldMallocAlignment, 64);
  for (void* block : blocks) haldFree(block);
}

TEST(Haldcore, SizesThatAreNotPositiveGiveNull) {
  for (const int32_t size : {0, -1, -64, INT_MIN}) EXPECT_EQ(haldMalloc(size), nullptr) << size;
}

TEST(Haldcore, LargestSizeIsServedOrRefused) {
  void* block = haldMalloc(INT_MAX);
  EXPECT_EQ(reinterpret_cast<std::uintptr_t>(block) % haldMallocAlignment, 0u);
  haldFree(block);
}

TEST(Haldcore, FreeAcceptsNull) { haldFree(nullptr); }

#if defined(__x86_64__) || defined(__i386__)
TEST(Haldcore, FeaturesAgreeWithTheCompilersProbe) {
  const std::uint64_t features = haldGetEnabledCpuFeatures();
  const auto has = [features](std::uint64_t feature) { return (features & feature) != 0; };
  __builtin_cpu_init();
  EXPECT_EQ(has(haldCpuSse), __builtin_cpu_supports("sse") != 0);
  EXPECT_EQ(has(haldCpuSse2), __builtin_cpu_supports("sse2") != 0);
  EXPECT_EQ(has(haldCpuSse3), __builtin_cpu_supports("sse3") != 0);
  EXPECT_EQ(has(haldCpuSsse3), __builtin_cpu_supports("ssse3") != 0);
  EXPECT_EQ(has(haldCpuSse41), __builtin_cpu_supports("sse4.1") != 0);
  EXPECT_EQ(has(haldCpuSse42), __builtin_cpu_supports("sse4.2") != 0);
  EXPECT_EQ(has(haldCpuAvx), __builtin_cpu_supports("avx") != 0);
  EXPECT_EQ(has(haldCpuAvx2), __builtin_cpu_supports("avx2") != 0);
  EXPECT_EQ(has(haldCpuFma), __builtin_cpu_supports("fma") != 0);
  EXPECT_EQ(features & ~std::uint64_t{0x7FC}, 0u);
}
#else
TEST(Haldcore, FeaturesAreThoseOfX86Alone) { EXPECT_EQ(haldGetEnabledCpuFeatures(), 0U); }
#endif

}  // namespace
