// The arena and the lists of nodes, operation by operation.
#include "dct4/arena.h"

#include <gtest/gtest.h>

#include <array>
#include <climits>

#include "dct4/plan.h"

namespace haldgen::dct4 {
namespace {

/// A buffer that begins `misalignment` bytes past a multiple of 32, with its arena.
class Buffer {
 public:
  explicit Buffer(int misalignment = 0) : start_(bytes_.data() + misalignment) {
    ArenaReset(arena());
  }
  Arena* arena() { return reinterpret_cast<Arena*>(start_); }
  std::ptrdiff_t offset() { return ArenaPosition(arena()) - start_; }
  NodeList* list() { return ListCellInit(ArenaTake(arena(), kCellSize), arena()); }
  PlanNode* node() {
    auto* const formula = new (ArenaTake(arena(), kNodeSize<RotationFormula>)) RotationFormula{};
    formula->freeOp = Operation::nothing;
    formula->nodeSize = kNodeSize<RotationFormula>;
    return formula;
  }

 private:
  alignas(32) std::array<std::byte, 1024> bytes_{};
  std::byte* start_;
};

TEST(Arena, RoundsUpToMultiplesOf32) {
  EXPECT_EQ(ArenaRound(0), 0);
  EXPECT_EQ(ArenaRound(1), 32);
  EXPECT_EQ(ArenaRound(12), 32);
  EXPECT_EQ(ArenaRound(32), 32);
  EXPECT_EQ(ArenaRound(44), 64);
  EXPECT_EQ(ArenaRound(INT_MAX - 31), INT_MAX - 31);
  EXPECT_EQ(ArenaRound(INT_MAX), INT_MIN);  // wraps
  EXPECT_EQ(ListCellBytes(0), 0);
  EXPECT_EQ(ListCellBytes(3), 96);
}

TEST(Arena, FirstBlockIsTheLowestAlignedOne33BytesIn) {
  for (int misalignment = 0; misalignment < 32; ++misalignment) {
    Buffer buffer(misalignment);
    EXPECT_EQ(buffer.offset(), 64 - misalignment);
    const auto block = reinterpret_cast<std::uintptr_t>(ArenaTake(buffer.arena(), 5));
    EXPECT_EQ(block % 32, 0U);
    EXPECT_EQ(buffer.offset(), 96 - misalignment);
  }
}

TEST(Arena, TakesAndGivesBackRoundedAmounts) {
  Buffer buffer;
  std::byte* const first = ArenaTake(buffer.arena(), 44);
  EXPECT_EQ(ArenaTake(buffer.arena(), 0), first + 64);
  EXPECT_EQ(ArenaTake(buffer.arena(), 1), first + 64);
  EXPECT_EQ(ArenaGiveBack(buffer.arena(), nullptr, 0), 0);
  EXPECT_EQ(buffer.offset(), 160);
  // Which block is said to come back makes no difference.
  EXPECT_EQ(ArenaGiveBack(buffer.arena(), first, 12), 32);
  EXPECT_EQ(ArenaGiveBack(buffer.arena(), nullptr, 44), 64);
  EXPECT_EQ(buffer.offset(), 64);
}

TEST(Lists, HoldTheirFirstItemInTheHead) {
  Buffer buffer;
  NodeList* const list = buffer.list();
  PlanNode* const first = buffer.node();
  PlanNode* const second = buffer.node();
  EXPECT_EQ(ListAt(list, 0), nullptr);
  const auto before = buffer.offset();
  EXPECT_EQ(ListAppend(list, first), first);
  EXPECT_EQ(buffer.offset(), before);
  EXPECT_EQ(ListAppend(list, second), second);
  EXPECT_EQ(buffer.offset(), before + 32);
  EXPECT_EQ(list->next.get()->arena.get(), buffer.arena());

  EXPECT_EQ(ListAt(list, 0), first);
  EXPECT_EQ(ListAt(list, 1), second);
  EXPECT_EQ(ListAt(list, 2), nullptr);
  EXPECT_EQ(ListAt(list, -1), nullptr);
  EXPECT_EQ(ListAt(nullptr, 0), nullptr);
  EXPECT_EQ(ListAt(nullptr, 1), nullptr);
}

TEST(Lists, CellsLieInTheArenaOfTheHead) {
  Buffer one, other;
  NodeList* const list = one.list();
  const auto before = other.offset();
  for (int i = 0; i < 3; ++i) ListAppend(list, one.node());
  EXPECT_EQ(other.offset(), before);
  EXPECT_NE(ListAt(list, 2), nullptr);
}

TEST(Lists, ReleaseGivesBackAllThatWasTaken) {
  Buffer buffer;
  NodeList* const owning = buffer.list();
  NodeList* const referring = buffer.list();
  for (int i = 0; i < 3; ++i) ListAppend(referring, ListAppend(owning, buffer.node()));
  // Three nodes of 36 bytes in 64, and two cells behind each head.
  const auto taken = buffer.offset();
  EXPECT_EQ(taken, 64 + 2 * 32 + 3 * 64 + 4 * 32);
  ListReleaseCells(referring);
  EXPECT_EQ(buffer.offset(), taken - 2 * 32);
  ListFreeItems(owning);
  EXPECT_EQ(buffer.offset(), taken - 2 * 32 - 3 * 64);
  // Nothing is cleared.
  EXPECT_NE(ListAt(owning, 2), nullptr);
  ListReleaseCells(owning);
  EXPECT_EQ(buffer.offset(), 64 + 2 * 32);
}

TEST(Lists, EmptyOnesHaveNothingToRelease) {
  Buffer buffer;
  NodeList* const list = buffer.list();
  const auto before = buffer.offset();
  ListFreeItems(nullptr);
  ListFreeItems(list);
  ListReleaseCells(list);
  EXPECT_EQ(buffer.offset(), before);
}

}  // namespace
}  // namespace haldgen::dct4
