// A state is one flat buffer of the caller's. Everything in it is carved out by a bump allocator,
// the arena, and hangs together by lists of plan nodes.
//
// Records keep 32-bit words on every machine, so that a state has the same size everywhere and can
// be read as bytes: a link is the distance to its target, an operation an index. Only the arena's
// own word, the first of the buffer, is as wide as a pointer.
#pragma once

#include <cstddef>
#include <cstdint>

namespace haldgen::dct4 {

/// The first word of the buffer: the address of the next free byte. The buffer need not be aligned.
struct Arena {
  std::byte position[sizeof(std::byte*)];
};

/// A pointer into the same buffer, as its distance from here in bytes; 0 is null.
template <class Target>
class Link {
 public:
  Link() = default;
  Link(const Link&) = delete;
  Link& operator=(const Link&) = delete;
  Link& operator=(const Target* target) {
    distance_ = target == nullptr
                    ? 0
                    : static_cast<std::int32_t>(reinterpret_cast<std::intptr_t>(target) - here());
    return *this;
  }
  Target* get() const {
    return distance_ == 0 ? nullptr : reinterpret_cast<Target*>(here() + distance_);
  }

 private:
  // A number: a pointer to this member could not be moved beyond it.
  std::intptr_t here() const { return reinterpret_cast<std::intptr_t>(this); }

  std::int32_t distance_ = 0;
};

/// An operation of a kind of node, by its index (plan.h).
enum class Operation : std::int32_t;

/// What every node begins with.
struct PlanNode {
  Operation freeOp{};     ///< releases what the node holds, not the node's own block
  std::int32_t nodeSize;  ///< as given to arena_take
  Operation setupOp{};    ///< what built the node; of a formula, its element function
  Link<Arena> arena;
};

/// Cell of a singly linked list; a list is known by its head cell. The head of an empty list holds
/// no item, any other cell holds one.
struct NodeList {
  Link<PlanNode> item;
  Link<NodeList> next;
  Link<Arena> arena;
};
inline constexpr std::int32_t kCellSize = 12;
static_assert(sizeof(NodeList) == kCellSize);

/// Blocks are rounded up to multiples of this, and begin at such.
inline constexpr std::int32_t kBlockAlignment = 32;

constexpr std::int32_t arena_round(std::int32_t n) {
  // Unsigned, so that amounts beyond the range wrap.
  constexpr std::uint32_t kLowBits = kBlockAlignment - 1;
  return static_cast<std::int32_t>((static_cast<std::uint32_t>(n) + kLowBits) & ~kLowBits);
}

constexpr std::int32_t list_cell_bytes(std::int32_t count) {
  return count * arena_round(kCellSize);
}

/// Empties the arena: the first block will begin at the lowest boundary that lies at least 33 bytes
/// behind the buffer's start.
void arena_reset(Arena* arena);

std::byte* arena_position(const Arena* arena);

/// The next arena_round(n) bytes; no bound is tested.
std::byte* arena_take(Arena* arena, std::int32_t n);

/// Moves the position back by arena_round(n), which it returns. Amounts of releases need to add up;
/// their order means nothing, and so the block is not looked at.
std::int32_t arena_give_back(Arena* arena, const void* block, std::int32_t n);

/// Makes a new, empty head cell of a block.
NodeList* list_cell_init(void* cell, Arena* arena);

/// Puts the item behind the last one, in a new cell unless it is the first. Returns the item.
PlanNode* list_append(NodeList* head, PlanNode* item);

/// The item at an index, null past the end and at negative indices.
inline PlanNode* list_at(const NodeList* head, std::int32_t index) {
  if (index < 0) return nullptr;
  while (head != nullptr && index-- > 0) head = head->next.get();
  return head == nullptr ? nullptr : head->item.get();
}

/// Gives back all cells but the head.
void list_release_cells(const NodeList* head);

/// Calls each item's free operation and gives its block back. For lists that own their items.
void list_free_items(const NodeList* head);

}  // namespace haldgen::dct4
