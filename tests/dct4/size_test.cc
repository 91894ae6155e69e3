// Which lengths are accepted, how they divide, how large their states are.
#include "dct4/size.h"

#include <gtest/gtest.h>

#include <climits>
#include <fstream>
#include <set>
#include <sstream>

namespace haldgen::dct4 {
namespace {

TEST(Sizes, EveryRowOfTheTable) {
  std::ifstream file(SIZES_PATH);
  std::string line;
  std::getline(file, line);
  ASSERT_EQ(line, "length\tbytes_32f\tbytes_64f");
  int rows = 0;
  while (std::getline(file, line)) {
    ++rows;
    std::istringstream columns(line);
    int length = 0, bytes_32f = 0, bytes_64f = 0;
    columns >> length >> bytes_32f >> bytes_64f;
    EXPECT_EQ(state_size(length, 4), bytes_32f) << length;
    EXPECT_EQ(state_size(length, 8), bytes_64f) << length;
  }
  EXPECT_EQ(rows, 12);
}

TEST(Sizes, FixedLengthsAllNeedTheSame) {
  for (const int length : {2, 4, 8, 16, 32}) {
    EXPECT_EQ(state_size(length, 4), 224) << length;
    EXPECT_EQ(state_size(length, 8), 224) << length;
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
  const auto radix = [](int v) { return pick_radix(v); };
  // At each threshold, just below it, and where the larger divisor does not divide.
  EXPECT_EQ(radix(512), 32);
  EXPECT_EQ(radix(511), 0);
  EXPECT_EQ(radix(496), 16);
  EXPECT_EQ(radix(528), 16);
  EXPECT_EQ(radix(128), 16);
  EXPECT_EQ(radix(112), 8);
  EXPECT_EQ(radix(136), 8);
  EXPECT_EQ(radix(32), 8);
  EXPECT_EQ(radix(24), 4);
  EXPECT_EQ(radix(36), 4);
  EXPECT_EQ(radix(16), 4);
  EXPECT_EQ(radix(12), 2);
  EXPECT_EQ(radix(18), 2);
  EXPECT_EQ(radix(4), 2);
  EXPECT_EQ(radix(2), 0);
  EXPECT_EQ(radix(17), 0);
  EXPECT_EQ(radix(0), 0);
  EXPECT_EQ(radix(-512), 0);
  EXPECT_EQ(radix(INT_MIN / 2), 0);
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
