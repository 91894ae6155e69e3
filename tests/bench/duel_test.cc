// The measuring loop, on contestants that keep a diary. Nothing here depends on how fast the
// machine is.
#include "bench/core/duel.h"

#include <gtest/gtest.h>

#include <chrono>
#include <string>
#include <vector>

namespace haldgen::bench {
namespace {

constexpr double slice_ns = 1000;

/// Stays busy for `ns` nanoseconds per call, and notes its name once per slice.
Contestant busy(const std::string& name, double ns, std::string& diary) {
  return {name, Role::peer, [name, ns, &diary](const Walk&, std::int64_t calls) {
            diary += name;
            const auto end = std::chrono::steady_clock::now() +
                             std::chrono::duration<double, std::nano>(ns * double(calls));
            while (std::chrono::steady_clock::now() < end) continue;
          }};
}

/// The order of the timed slices of one round; each follows its warm-up.
std::string round_order(Duel& duel, std::string& diary) {
  diary.clear();
  duel.round();
  std::string order;
  for (std::size_t i = 0; i < diary.size(); i += 2) {
    EXPECT_EQ(diary[i], diary[i + 1]);
    order += diary[i];
  }
  return order;
}

TEST(Duel, GivesEveryContestantOneSlicePerRound) {
  std::string diary;
  const std::vector<Contestant> contestants = {busy("a", 100, diary), busy("b", 200, diary)};
  Duel duel(contestants, Walk{}, slice_ns);
  for (int i = 0; i < 5; ++i) duel.round();
  ASSERT_EQ(duel.contestants().size(), 2U);
  EXPECT_EQ(duel.contestants()[0].samples.size(), 5U);
  EXPECT_EQ(duel.contestants()[1].samples.size(), 5U);
}

TEST(Duel, ReportsTimePerCall) {
  std::string diary;
  const std::vector<Contestant> contestants = {busy("a", 50, diary), busy("b", 5000, diary)};
  Duel duel(contestants, Walk{}, slice_ns);
  duel.round();
  // A call cannot take less than the contestant stays busy.
  EXPECT_GE(duel.contestants()[0].samples[0], 50);
  EXPECT_GE(duel.contestants()[1].samples[0], 5000);
}

TEST(Duel, RotatesAndReversesTheOrder) {
  std::string diary;
  const std::vector<Contestant> contestants = {busy("a", 100, diary), busy("b", 100, diary),
                                               busy("c", 100, diary)};
  Duel duel(contestants, Walk{}, slice_ns);
  std::vector<std::string> orders;
  for (int i = 0; i < 6; ++i) orders.push_back(round_order(duel, diary));
  const std::vector<std::string> expected = {"abc", "bca", "cab", "acb", "bac", "cba"};
  EXPECT_EQ(orders, expected);
}

}  // namespace
}  // namespace haldgen::bench
