// The tree of nodes, what it takes of the buffer, and its release.
#include "dct4/plan.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>

#include "dct4/passes.h"
#include "tests/dct4/state.h"

namespace haldgen::dct4 {
namespace {

using test::OwnState;

int item_count(const NodeList* list) {
  int count = 0;
  while (list_at(list, count) != nullptr) ++count;
  return count;
}

template <class Float>
class Plan : public ::testing::Test {};
using FloatTypes = ::testing::Types<float, double>;
TYPED_TEST_SUITE(Plan, FloatTypes);

TYPED_TEST(Plan, OfTheSmallestPlannedLength) {
  constexpr int kWidth = kLanes<TypeParam>;
  OwnState<TypeParam> state(64);
  EXPECT_EQ(state->nodeSize, 44);
  EXPECT_EQ(state->sizeClass, 6);
  EXPECT_EQ(state->radix, 8);
  EXPECT_EQ(state->length, 64);
  EXPECT_EQ(state->arena.get(), state.arena());

  // Owned in the order of attachment; stage lists refer to the same nodes.
  ASSERT_EQ(item_count(state->ownedNodes.get()), 3);
  const auto* formula = state.template item<RotationFormula>(state->ownedNodes.get());
  EXPECT_EQ(list_at(state->ownedNodes.get(), 1), state.second_stage());
  EXPECT_EQ(list_at(state->ownedNodes.get(), 2), state.first_stage());
  EXPECT_EQ(formula->nodeSize, 36);
  EXPECT_EQ(formula->rowLength, 16);
  EXPECT_EQ(formula->rowLength2, 16);
  EXPECT_EQ(formula->angleDenominator, 512);
  EXPECT_EQ(formula->rowCount, 4);
  EXPECT_EQ(formula->radix, 8);

  const SecondStage* second = state.second_stage();
  EXPECT_EQ(second->nodeSize, 64);
  EXPECT_EQ(second->hasChild, 1);
  EXPECT_EQ(second->reserved, 0);
  EXPECT_EQ(second->lastIndex, 127);
  EXPECT_EQ(second->innerLength, 8);
  EXPECT_EQ(second->formula.get(), formula);
  ASSERT_EQ(item_count(second->ownedNodes.get()), 2);
  ASSERT_EQ(item_count(second->stageList.get()), 1);
  const auto* view = state.template item<RotationView>(second->ownedNodes.get());
  EXPECT_EQ(view->nodeSize, 28);
  EXPECT_EQ(view->formula.get(), formula);
  EXPECT_EQ(view->groupCount, 4 / kWidth);

  const RecombineNode* recombination = state.recombination();
  EXPECT_EQ(list_at(second->ownedNodes.get(), 1), recombination);
  EXPECT_EQ(recombination->nodeSize, 64);
  EXPECT_EQ(recombination->tableClass, 4);
  EXPECT_EQ(recombination->radix, 8);
  EXPECT_EQ(recombination->rowLength, 16);
  EXPECT_EQ(recombination->vectorStride, 16 * kWidth);
  EXPECT_EQ(recombination->groupCount, 4 / kWidth);
  EXPECT_EQ(recombination->innerLength, 8);
  EXPECT_EQ(recombination->view.get(), view);
  EXPECT_EQ(reinterpret_cast<std::uintptr_t>(recombination->table.get()) % 32, 0U);

  const FirstStage* first = state.first_stage();
  EXPECT_EQ(first->nodeSize, 60);
  EXPECT_EQ(first->hasChild, 1);
  EXPECT_EQ(first->innerLength, 8);
  ASSERT_EQ(item_count(first->ownedNodes.get()), 1);
  const FoldNode* folds = state.folds();
  EXPECT_EQ(list_at(first->ownedNodes.get(), 0), folds);
  EXPECT_EQ(folds->nodeSize, 60);
  EXPECT_EQ(folds->foldClass, 3);
  EXPECT_EQ(folds->laneGroups, 8 / kWidth);
  EXPECT_EQ(item_count(folds->ownedNodes.get()), 0);
}

/// The inner plans from the outside in, as radix and sub-length.
template <class Float>
std::vector<std::pair<int, int>> inner_levels(OwnState<Float>& state) {
  std::vector<std::pair<int, int>> levels;
  const NodeList* list = state.folds()->stageList.get();
  while (const auto* plan = state.template item<InnerPlan>(list)) {
    const auto* folds = state.template item<InnerFoldNode>(plan->firstList.get());
    const auto* step = state.template item<InnerRecombineNode>(plan->secondList.get());
    EXPECT_EQ(item_count(plan->ownedNodes.get()), 3);
    EXPECT_EQ(list_at(plan->ownedNodes.get(), 0), step->formula.get());
    EXPECT_EQ(list_at(plan->ownedNodes.get(), 1), step);
    EXPECT_EQ(list_at(plan->ownedNodes.get(), 2), folds);
    EXPECT_EQ(plan->hasChild, 1);
    EXPECT_EQ(plan->nodeSize, 64);
    EXPECT_EQ(step->nodeSize, 72);
    EXPECT_EQ(folds->nodeSize, 68);
    EXPECT_EQ(step->formula.get()->nodeSize, 24);
    EXPECT_EQ(step->rowCount, plan->foldLength / (2 * plan->innerRadix));
    EXPECT_EQ(1 << step->tableClass, plan->innerRadix);
    EXPECT_EQ(folds->strideA, 2 * state->radix * plan->innerRadix);
    EXPECT_NE(plan->innerScratch.get(), state->scratch.get());
    levels.emplace_back(plan->innerRadix, folds->subLength);
    EXPECT_EQ(folds->foldClass == 7, list_at(folds->stageList.get(), 0) != nullptr);
    list = folds->stageList.get();
  }
  return levels;
}

TYPED_TEST(Plan, InnerPlansNest) {
  using Levels = std::vector<std::pair<int, int>>;
  const std::pair<int, Levels> expected[] = {{2048, {}},
                                             {4096, {{8, 16}}},
                                             {8192, {{16, 16}}},
                                             {16384, {{16, 32}}},
                                             {32768, {{32, 32}}},
                                             {65536, {{32, 64}}},
                                             {131072, {{32, 128}, {8, 16}}}};
  for (const auto& [length, levels] : expected) {
    OwnState<TypeParam> state(length);
    EXPECT_EQ(inner_levels(state), levels) << length;
  }
}

TYPED_TEST(Plan, WordsHave32BitsInTheStatedOrder) {
  OwnState<TypeParam> state(1024);
  std::int32_t words[11];
  std::memcpy(words, state.get(), sizeof words);
  EXPECT_EQ(words[1], 44);
  EXPECT_EQ(words[8], 6);
  EXPECT_EQ(words[9], 32);
  EXPECT_EQ(words[10], 1024);
  // Links are distances from their own places: word 3 leads back to the start of the buffer.
  EXPECT_EQ(words[3], -64 - 12);
}

TYPED_TEST(Plan, FitsAndIsReleasedAtEveryAlignment) {
  const std::pair<int, int> left_over[] = {{2, 0},      {32, 0},     {64, 224},     {2048, 224},
                                           {4096, 384}, {8192, 384}, {131072, 544}, {129, 224}};
  for (const auto& [length, left] : left_over) {
    for (std::size_t misalignment = 0; misalignment < 32; ++misalignment) {
      if (length > 4096 && misalignment % 7 != 0) continue;
      OwnState<TypeParam> state(length, misalignment);
      const auto shift = static_cast<std::ptrdiff_t>(misalignment);
      EXPECT_EQ(*state_size(length, sizeof(TypeParam)) - state.position(), left + shift);
      EXPECT_EQ(reinterpret_cast<std::uintptr_t>(state.get()) % 32, 0U);
      release_state(state.get());
      EXPECT_EQ(state.position(), 64 - shift) << length;
    }
  }
}

}  // namespace
}  // namespace haldgen::dct4
