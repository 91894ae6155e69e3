#include "dct4/size.h"

#include "dct4/arena.h"
#include "dct4/plan.h"

namespace haldgen::dct4 {
namespace {

/// A sum of amounts of the arena. Its value modulo 2^32 is what 32-bit arithmetic makes of it, so
/// that one computation gives both the true size and the wrapped one.
class Sum {
 public:
  /// The amounts of blocks that are taken together.
  template <class... Amounts>
  Sum& add(Amounts... amounts) {
    value_ += (std::int64_t{amounts} + ...);
    return tested();
  }
  Sum& add(const Sum& part) {
    value_ += part.value_;
    went_negative_ = went_negative_ || part.went_negative_;
    return tested();
  }

  std::int64_t exact() const { return value_; }
  std::int32_t wrapped() const { return static_cast<std::int32_t>(value_); }
  bool went_negative() const { return went_negative_; }

 private:
  Sum& tested() {
    went_negative_ = went_negative_ || wrapped() < 0;
    return *this;
  }

  std::int64_t value_ = 0;
  bool went_negative_ = false;
};

std::int64_t rounded(std::int64_t n) {
  return (n + kBlockAlignment - 1) / kBlockAlignment * kBlockAlignment;
}

template <class Node>
std::int64_t node() {
  return rounded(kNodeSize<Node>);
}

constexpr std::int64_t kCell = arena_round(kCellSize);

// Sums are asked for lengths that accept_length() takes, all of whose radices exist.

Sum inner_sum(std::int32_t fold_length, std::int64_t node_above, std::int64_t elements) {
  Sum sum;
  if (fold_class(fold_length) != kPlannedFoldClass) return sum.add(node_above, 2 * kCell);
  const std::int32_t radix = pick_radix(fold_length / 2);
  // NOLINTNEXTLINE(clang-analyzer-core.DivideZero)
  const std::int64_t rows = fold_length / (2 * radix);
  sum.add(rounded(rows * inner_row_bytes(radix)), node<InnerRecombineNode>(), kCell);
  sum.add(inner_sum(fold_length / radix, node<InnerFoldNode>(), elements));
  sum.add(elements, node<InnerPlan>(), 3 * kCell, list_cell_bytes(2), node<InnerRotationFormula>(),
          list_cell_bytes(1), list_cell_bytes(2));
  return sum.add(node_above, 2 * kCell, list_cell_bytes(2));
}

Sum state_sum(std::int32_t length, std::int32_t element_size) {
  Sum sum;
  const std::int32_t first_position = 2 * arena_round(1);
  if (size_class(length) != kPlannedClass) {
    return sum.add(node<Dct4State>(), 3 * kCell, first_position);
  }
  const std::int32_t radix = pick_radix(length / 2);
  // NOLINTNEXTLINE(clang-analyzer-core.DivideZero)
  const std::int64_t groups = length / (2 * radix) / (16 / element_size);
  const std::int64_t elements = rounded(std::int64_t{element_size} * length);
  sum.add(rounded(groups * 32 * radix), node<RecombineNode>(), kCell);
  sum.add(node<SecondStage>(), 2 * kCell, list_cell_bytes(2), node<RotationView>(),
          list_cell_bytes(1));
  Sum first_stage = inner_sum(length / radix, node<FoldNode>(), elements);
  first_stage.add(node<FirstStage>(), 2 * kCell, list_cell_bytes(2));
  sum.add(first_stage);
  return sum.add(elements, node<Dct4State>(), 3 * kCell, list_cell_bytes(2),
                 node<RotationFormula>(), list_cell_bytes(1), list_cell_bytes(2), first_position);
}

/// Whether folds of this length can be computed.
bool accept_inner(std::int32_t fold_length) {
  while (fold_class(fold_length) == kPlannedFoldClass) {
    const std::int32_t radix = pick_radix(fold_length / 2);
    if (radix == 0) return false;
    fold_length /= radix;
  }
  return true;
}

}  // namespace

bool accept_length(std::int32_t length, std::int32_t lanes) {
  if (size_class(length) != kPlannedClass) return true;
  const std::int32_t radix = pick_radix(length / 2);
  if (radix == 0) return false;
  const std::int32_t rows = length / (2 * radix);
  return rows % lanes == 0 && radix % lanes == 0 && accept_inner(length / radix);
}

std::int64_t exact_state_size(std::int32_t length, std::int32_t element_size) {
  return state_sum(length, element_size).exact();
}

std::optional<std::int32_t> state_size(std::int32_t length, std::int32_t element_size) {
  if (!accept_length(length, 16 / element_size)) return std::nullopt;
  const Sum sum = state_sum(length, element_size);
  if (sum.went_negative()) return std::nullopt;
  return sum.wrapped();
}

}  // namespace haldgen::dct4
