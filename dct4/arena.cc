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

void ArenaReset(Arena* arena) {
  constexpr std::ptrdiff_t kFirst = std::ptrdiff_t{2} * ArenaRound(1);
  const auto beyond = reinterpret_cast<std::uintptr_t>(arena) % kBlockAlignment;
  set_position(arena, reinterpret_cast<std::byte*>(arena) + kFirst - beyond);
}

std::byte* ArenaPosition(const Arena* arena) {
  std::byte* position = nullptr;
  std::memcpy(&position, arena->position, sizeof position);
  return position;
}

std::byte* ArenaTake(Arena* arena, std::int32_t n) {
  std::byte* const block = ArenaPosition(arena);
  set_position(arena, block + ArenaRound(n));
  return block;
}

std::int32_t ArenaGiveBack(Arena* arena, const void* /*block*/, std::int32_t n) {
  const std::int32_t amount = ArenaRound(n);
  set_position(arena, ArenaPosition(arena) - amount);
  return amount;
}

NodeList* ListCellInit(void* cell, Arena* arena) {
  auto* const list = new (cell) NodeList;
  list->arena = arena;
  return list;
}

PlanNode* ListAppend(NodeList* head, PlanNode* item) {
  NodeList* last = head;
  while (NodeList* const next = last->next.get()) last = next;
  if (last->item.get() != nullptr) {
    Arena* const arena = head->arena.get();
    NodeList* const cell = ListCellInit(ArenaTake(arena, kCellSize), arena);
    last->next = cell;
    last = cell;
  }
  last->item = item;
  return item;
}

void ListReleaseCells(const NodeList* head) {
  const NodeList* cell = head->next.get();
  while (cell != nullptr) {
    const NodeList* const next = cell->next.get();
    ArenaGiveBack(cell->arena.get(), cell, kCellSize);
    cell = next;
  }
}

void ListFreeItems(const NodeList* head) {
  for (const NodeList* cell = head; cell != nullptr; cell = cell->next.get()) {
    PlanNode* const item = cell->item.get();
    if (item == nullptr) continue;
    const std::int32_t size = item->nodeSize;
    FreeNode(item);
    ArenaGiveBack(cell->arena.get(), item, size);
  }
}

}  // namespace haldgen::dct4
