// Which lengths are accepted, how they divide, how large their states are.
#include "dct4/size.h"

#include <gtest/gtest.h>

#include <climits>
#include <set>
#include <string>

#include "tests/kernels/table.h"

namespace haldgen::dct4 {
namespace {

TEST(Sizes, EveryRowOfTheTable) {
  auto rows = haldgen::test::table(SIZES_PATH, "length\tbytes_32f\tbytes_64f");
  EXPECT_EQ(rows.size(), 12U);
  for (const char* length : {"2", "4", "8", "16", "32"}) rows[length] = "224\t224";
  for (const auto& [length, bytes] : rows) {
    const int n = std::stoi(length);
    EXPECT_EQ(haldgen::test::row({*state_size(n, 4), *state_size(n, 8)}), bytes) << length;
  }
}

TEST(Sizes, SumsWrapIn32Bits) {
  const auto last = [](int element_size) { return element_size == 4 ? 26 : 25; };
  for (const int element_size : {4, 8}) {
    for (int k = 6; k <= last(element_size); ++k) {
      EXPECT_EQ(state_size(1 << k, element_size), exact_state_size(1 << k, element_size)) << k;
    }
    for (int k = last(element_size) + 1; k < last(element_size) + 4; ++k) {
      EXPECT_EQ(state_size(1 << k, element_size), std::nullopt) << k;
      EXPECT_EQ(state_size((1 << k) + 1, element_size), std::nullopt) << k;
      EXPECT_GT(exact_state_size(1 << k, element_size), INT_MAX) << k;
    }
    EXPECT_EQ(state_size(1 << 30, element_size), 536874336);
  }
  EXPECT_TRUE(state_size(1 << 29, 8).has_value());
}

TEST(Sizes, RadixByHalfLength) {
  // At each threshold, just below it, and where the larger divisor does not divide.
  const std::pair<int, int> expected[] = {
      {512, 32}, {511, 0}, {496, 16}, {528, 16}, {128, 16},       {112, 8}, {136, 8},
      {32, 8},   {24, 4},  {36, 4},   {16, 4},   {12, 2},         {18, 2},  {4, 2},
      {2, 0},    {17, 0},  {0, 0},    {-512, 0}, {INT_MIN / 2, 0}};
  for (const auto& [v, radix] : expected) EXPECT_EQ(pick_radix(v), radix) << v;
}

TEST(Sizes, AcceptedLengths) {
  for (const int lanes : {4, 2}) {
    std::set<int> expected = {2, 4, 8, 16, 32};
    for (int k = 6; k < 31; ++k) expected.insert(1 << k);
    for (int k = lanes == 4 ? 5 : 3; k < 31; ++k) expected.insert((1 << k) + 1);
    std::set<int> candidates = {INT_MIN, INT_MAX, -64};
    for (int n = -100; n < 70000; ++n) candidates.insert(n);
    // Beyond, multiples of small odd numbers and their neighbours.
    for (int odd = 1; odd < 64; odd += 2) {
      for (int k = 10; std::int64_t{odd} << k < INT_MAX; ++k) {
        for (int d = -3; d <= 3; ++d) candidates.insert((odd << k) + d);
      }
    }
    for (const int n : candidates) {
      EXPECT_EQ(accept_length(n, lanes), expected.count(n) == 1) << n << ", lanes " << lanes;
      if (expected.count(n) == 1) continue;
      EXPECT_EQ(state_size(n, 16 / lanes), std::nullopt) << n;
    }
  }
}

TEST(Sizes, Classes) {
  const int lengths[] = {2, 4, 8, 16, 32, 64};
  for (int k = 0; k < 6; ++k) {
    EXPECT_EQ(size_class(lengths[k]), k + 1);
    EXPECT_EQ(fold_class(lengths[k]), k + 1);
  }
  for (const int other : {-2, 0, 1, 3, 33, 128}) {
    EXPECT_EQ(size_class(other), 6) << other;
    EXPECT_EQ(fold_class(other), 7) << other;
  }
}

}  // namespace
}  // namespace haldgen::dct4
