#include "dct4/arena.h"

#include <cstring>
#include <new>

#include "dct4/plan.h"

namespace haldgen::dct4 {
namespace {

void set_position(Arena* arena, std::byte* position) {
  std::memcpy(arena->position, &position, sizeof position);
}

}  // namespace

void arena_reset(Arena* arena) {
  constexpr std::ptrdiff_t kFirst = std::ptrdiff_t{2} * arena_round(1);
  const auto beyond = reinterpret_cast<std::uintptr_t>(arena) % kBlockAlignment;
  set_position(arena, reinterpret_cast<std::byte*>(arena) + kFirst - beyond);
}

std::byte* arena_position(const Arena* arena) {
  std::byte* position = nullptr;
  // Every cell has an arena.
  // NOLINTNEXTLINE(clang-analyzer-core.NonNullParamChecker)
  std::memcpy(&position, arena->position, sizeof position);
  return position;
}

std::byte* arena_take(Arena* arena, std::int32_t n) {
  std::byte* const block = arena_position(arena);
  set_position(arena, block + arena_round(n));
  return block;
}

std::int32_t arena_give_back(Arena* arena, const void* /*block*/, std::int32_t n) {
  const std::int32_t amount = arena_round(n);
  set_position(arena, arena_position(arena) - amount);
  return amount;
}

NodeList* list_cell_init(void* cell, Arena* arena) {
  auto* const list = new (cell) NodeList;
  list->arena = arena;
  return list;
}

PlanNode* list_append(NodeList* head, PlanNode* item) {
  NodeList* last = head;
  while (NodeList* const next = last->next.get()) last = next;
  if (last->item.get() != nullptr) {
    Arena* const arena = head->arena.get();
    NodeList* const cell = list_cell_init(arena_take(arena, kCellSize), arena);
    last->next = cell;
    last = cell;
  }
  last->item = item;
  return item;
}

void list_release_cells(const NodeList* head) {
  const NodeList* cell = head->next.get();
  while (cell != nullptr) {
    const NodeList* const next = cell->next.get();
    arena_give_back(cell->arena.get(), cell, kCellSize);
    cell = next;
  }
}

void list_free_items(const NodeList* head) {
  for (const NodeList* cell = head; cell != nullptr; cell = cell->next.get()) {
    PlanNode* const item = cell->item.get();
    if (item == nullptr) continue;
    const std::int32_t size = item->nodeSize;
    free_node(item);
    arena_give_back(cell->arena.get(), item, size);
  }
}

}  // namespace haldgen::dct4
