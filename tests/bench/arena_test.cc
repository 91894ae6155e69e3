// Where the buffers of the measurements lie.
#include "bench/core/arena.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <vector>

namespace haldgen::bench {
namespace {

std::uintptr_t address(const std::byte* pointer) {
  return reinterpret_cast<std::uintptr_t>(pointer);
}

class ArenaLayout : public testing::TestWithParam<std::size_t> {};

TEST_P(ArenaLayout, KeepsBuffersAlignedAndHalfAPageApart) {
  for (const Mode mode : {Mode::hot, Mode::ring}) {
    const Arena arena(mode, GetParam(), GetParam());
    const Walk& walk = arena.walk();
    for (std::ptrdiff_t pair = 0; pair < walk.pairs; ++pair) {
      const std::uintptr_t src = address(walk.src + pair * walk.src_stride);
      const std::uintptr_t dst = address(walk.dst + pair * walk.dst_stride);
      ASSERT_EQ(src % 64, 0U);
      ASSERT_EQ(dst % 64, 0U);
      ASSERT_EQ((dst - src) % 4096, 2048U);
    }
  }
}

TEST_P(ArenaLayout, RingIsLargerThanAFirstLevelCache) {
  const Arena arena(Mode::ring, GetParam(), GetParam());
  const Walk& walk = arena.walk();
  const auto bytes = static_cast<std::size_t>(walk.pairs * (walk.src_stride + walk.dst_stride));
  EXPECT_LE(bytes, ring_bytes);
  EXPECT_GT(bytes, ring_bytes * 9 / 10);
  EXPECT_GE(walk.src_stride, static_cast<std::ptrdiff_t>(GetParam()));
}

TEST_P(ArenaLayout, FillsEverySource) {
  std::vector<std::byte> data(GetParam());
  for (std::size_t i = 0; i < data.size(); ++i) data[i] = std::byte(i % 251 + 1);
  Arena arena(Mode::ring, data.size(), data.size());
  arena.fill_sources(data);
  const Walk& walk = arena.walk();
  for (std::ptrdiff_t pair = 0; pair < walk.pairs; ++pair) {
    const std::byte* const src = walk.src + pair * walk.src_stride;
    ASSERT_TRUE(std::equal(data.begin(), data.end(), src)) << "pair " << pair;
  }
}

INSTANTIATE_TEST_SUITE_P(Bytes, ArenaLayout, testing::Values(16, 24, 104, 512, 976, 1024));

TEST(Arena, HotModeHasOnePair) { EXPECT_EQ(Arena(Mode::hot, 128, 128).walk().pairs, 1); }

TEST(Walk, VisitsThePairsInTurn) {
  std::vector<std::byte> src(30);
  std::vector<std::byte> dst(60);
  const Walk walk{src.data(), dst.data(), 10, 20, 3};
  std::vector<std::pair<std::ptrdiff_t, std::ptrdiff_t>> visits;
  walk_calls(walk, 5, [&](const std::byte* from, std::byte* to) {
    visits.emplace_back(from - src.data(), to - dst.data());
  });
  const decltype(visits) expected = {{0, 0}, {10, 20}, {20, 40}, {0, 0}, {10, 20}};
  EXPECT_EQ(visits, expected);
}

}  // namespace
}  // namespace haldgen::bench
