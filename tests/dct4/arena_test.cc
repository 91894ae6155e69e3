// The lists of nodes in an arena, operation by operation.
#include "dct4/arena.h"

#include <gtest/gtest.h>

#include <array>

#include "dct4/plan.h"

namespace haldgen::dct4 {
namespace {

/// A buffer that begins at a multiple of 32, with its arena.
class Buffer {
 public:
  Buffer() { arena_reset(arena()); }
  Arena* arena() { return reinterpret_cast<Arena*>(bytes_.data()); }
  std::ptrdiff_t offset() { return arena_position(arena()) - bytes_.data(); }
  NodeList* list() { return list_cell_init(arena_take(arena(), kCellSize), arena()); }
  PlanNode* node() {
    auto* const formula = new (arena_take(arena(), kNodeSize<RotationFormula>)) RotationFormula{};
    formula->freeOp = Operation::nothing;
    formula->nodeSize = kNodeSize<RotationFormula>;
    return formula;
  }

 private:
  alignas(32) std::array<std::byte, 1024> bytes_{};
};

TEST(Lists, HoldTheirFirstItemInTheHead) {
  Buffer buffer;
  NodeList* const list = buffer.list();
  PlanNode* const first = buffer.node();
  PlanNode* const second = buffer.node();
  EXPECT_EQ(list_at(list, 0), nullptr);
  const auto before = buffer.offset();
  EXPECT_EQ(list_append(list, first), first);
  EXPECT_EQ(buffer.offset(), before);
  EXPECT_EQ(list_append(list, second), second);
  EXPECT_EQ(buffer.offset(), before + 32);
  EXPECT_EQ(list->next.get()->arena.get(), buffer.arena());

  EXPECT_EQ(list_at(list, 0), first);
  EXPECT_EQ(list_at(list, 1), second);
  EXPECT_EQ(list_at(list, 2), nullptr);
  EXPECT_EQ(list_at(list, -1), nullptr);
  EXPECT_EQ(list_at(nullptr, 0), nullptr);
  EXPECT_EQ(list_at(nullptr, 1), nullptr);
}

TEST(Lists, ReleaseGivesBackAllThatWasTaken) {
  Buffer buffer;
  NodeList* const owning = buffer.list();
  NodeList* const referring = buffer.list();
  for (int i = 0; i < 3; ++i) list_append(referring, list_append(owning, buffer.node()));
  // Three nodes of 36 bytes in 64, and two cells behind each head.
  const auto taken = buffer.offset();
  EXPECT_EQ(taken, 64 + 2 * 32 + 3 * 64 + 4 * 32);
  list_release_cells(referring);
  EXPECT_EQ(buffer.offset(), taken - 2L * 32);
  list_free_items(owning);
  EXPECT_EQ(buffer.offset(), taken - 2L * 32 - 3L * 64);
  list_free_items(nullptr);
  // Nothing is cleared.
  EXPECT_NE(list_at(owning, 2), nullptr);
  list_release_cells(owning);
  EXPECT_EQ(buffer.offset(), 64 + 2 * 32);
}

}  // namespace
}  // namespace haldgen::dct4
