// Building and releasing plans. The order in which blocks are taken and nodes are appended is part
// of the design of the state; so is that the amounts given back add up to those taken.
#include "dct4/plan.h"

#include <new>

#include "dct4/passes.h"
#include "dct4/size.h"
#include "dct4/tables.h"

namespace haldgen::dct4 {
namespace {

template <class Float>
inline constexpr int32_t kElementSize = static_cast<int32_t>(sizeof(Float));

template <class Float>
inline constexpr bool kIsSingle = kElementSize<Float> == 4;

template <class Node>
Node* take_node(Arena* arena, Operation free_operation, Operation setup_operation) {
  auto* const node = new (arena_take(arena, kNodeSize<Node>)) Node{};
  node->freeOp = free_operation;
  node->nodeSize = kNodeSize<Node>;
  node->setupOp = setup_operation;
  node->arena = arena;
  return node;
}

template <class Node>
Node* take_node(Arena* arena, Operation operation) {
  return take_node<Node>(arena, operation, operation);
}

template <class Formula>
Formula* take_formula(Arena* arena, Operation element_function) {
  return take_node<Formula>(arena, Operation::nothing, element_function);
}

NodeList* take_list(Arena* arena) { return list_cell_init(arena_take(arena, kCellSize), arena); }

/// 1 + log2 of a radix.
int32_t radix_class(int32_t radix) {
  int32_t result = 1;
  while (radix > 1) {
    radix /= 2;
    ++result;
  }
  return result;
}

template <class Float>
void build_inner_plan(InnerPlan* plan, int32_t fold_length, int32_t length, int32_t radix);

/// A plan for folds of this length, under the node that owns it.
template <class Float, class Parent>
void add_inner_plan(Parent* parent, int32_t fold_length, int32_t length, int32_t radix) {
  Arena* const arena = parent->arena.get();
  auto* const plan = take_node<InnerPlan>(
      arena, kIsSingle<Float> ? Operation::inner_plan_32f : Operation::inner_plan_64f);
  plan->secondList = take_list(arena);
  plan->firstList = take_list(arena);
  plan->ownedNodes = take_list(arena);
  list_append(parent->stageList.get(), list_append(parent->ownedNodes.get(), plan));
  build_inner_plan<Float>(plan, fold_length, length, radix);
}

template <class Float>
void add_inner_recombination(InnerPlan* plan) {
  Arena* const arena = plan->arena.get();
  auto* const node = take_node<InnerRecombineNode>(arena, Operation::inner_recombine);
  auto* const formula =
      take_formula<InnerRotationFormula>(arena, Operation::inner_rotation_element);
  formula->foldLength = plan->foldLength;
  formula->innerRadix = plan->innerRadix;
  list_append(plan->ownedNodes.get(), formula);

  node->tableClass = radix_class(plan->innerRadix) - 1;
  node->innerRadix = plan->innerRadix;
  node->length = node->length2 = plan->length;
  node->radix = node->radix2 = plan->radix;
  node->rowStride = plan->rowLength * plan->innerRadix;
  // accept_length() has seen to it that there are radices.
  // NOLINTNEXTLINE(clang-analyzer-core.DivideZero)
  node->rowCount = plan->foldLength / (2 * plan->innerRadix);
  node->halfFold = plan->foldLength / 2;
  node->lastFoldIndex = plan->foldLength - 1;
  node->subLength = plan->foldLength / plan->innerRadix;
  node->formula = formula;
  node->ownedNodes = take_list(arena);
  list_append(plan->secondList.get(), list_append(plan->ownedNodes.get(), node));

  node->table = arena_take(arena, node->rowCount * inner_row_bytes(node->innerRadix));
  fill_inner_table<Float>(*node);
}

template <class Float>
void add_inner_fold(InnerPlan* plan) {
  Arena* const arena = plan->arena.get();
  auto* const node = take_node<InnerFoldNode>(arena, Operation::inner_fold);
  node->subLength = plan->foldLength / plan->innerRadix;
  node->length = node->length2 = node->length3 = plan->length;
  node->strideA = plan->innerRadix * plan->rowLength;
  node->rowLength = plan->rowLength;
  node->innerRadix = plan->innerRadix;
  node->strideB = plan->innerRadix * plan->radix;
  node->radix = plan->radix;
  node->stageList = take_list(arena);
  node->ownedNodes = take_list(arena);
  list_append(plan->firstList.get(), list_append(plan->ownedNodes.get(), node));
  node->foldClass = fold_class(node->subLength);
  if (node->foldClass == kPlannedFoldClass) {
    add_inner_plan<Float>(node, node->subLength, plan->length, plan->radix);
  }
}

template <class Float>
void build_inner_plan(InnerPlan* plan, int32_t fold_length, int32_t length, int32_t radix) {
  plan->hasChild = 1;
  plan->foldLength = fold_length;
  plan->innerRadix = pick_radix(fold_length / 2);
  plan->length = plan->length2 = plan->length3 = length;
  plan->rowLength = 2 * radix;
  plan->radix = radix;
  add_inner_recombination<Float>(plan);
  add_inner_fold<Float>(plan);
  plan->innerScratch = arena_take(plan->arena.get(), length * kElementSize<Float>);
}

RotationFormula* make_rotation_formula(const Dct4State* state) {
  auto* const formula =
      take_formula<RotationFormula>(state->arena.get(), Operation::rotation_element);
  formula->rowLength = formula->rowLength2 = 2 * state->radix;
  formula->angleDenominator = 8 * state->length;
  // accept_length() has seen to it that there is a radix.
  // NOLINTNEXTLINE(clang-analyzer-core.DivideZero)
  formula->rowCount = state->length / (2 * state->radix);
  formula->radix = state->radix;
  return formula;
}

template <class Float>
void add_recombination(SecondStage* stage) {
  Arena* const arena = stage->arena.get();
  auto* const node = take_node<RecombineNode>(arena, Operation::recombine);
  auto* const view = take_formula<RotationView>(arena, Operation::rotation_view_element);
  view->rowLength = stage->rowLength;
  view->groupCount = stage->rowCount / kLanes<Float>;
  view->formula = stage->formula.get();
  list_append(stage->ownedNodes.get(), view);

  node->tableClass = radix_class(stage->radix);
  node->radix = stage->radix;
  node->length = node->length2 = stage->length;
  node->rowLength = stage->rowLength;
  node->vectorStride = stage->rowLength * kLanes<Float>;
  node->groupCount = view->groupCount;
  node->lastIndex = stage->lastIndex;
  node->innerLength = stage->innerLength;
  node->view = view;
  node->ownedNodes = take_list(arena);
  list_append(stage->stageList.get(), list_append(stage->ownedNodes.get(), node));

  node->table = arena_take(arena, node->groupCount * node->vectorStride * kElementSize<Float>);
  fill_rotation_table<Float>(*node);
}

template <class Float>
void add_second_stage(Dct4State* state) {
  Arena* const arena = state->arena.get();
  auto* const stage = take_node<SecondStage>(arena, Operation::second_stage);
  RotationFormula* const formula = make_rotation_formula(state);
  list_append(state->ownedNodes.get(), formula);
  stage->hasChild = 1;
  stage->radix = state->radix;
  stage->length = stage->length2 = state->length;
  stage->rowLength = formula->rowLength;
  stage->rowCount = formula->rowCount;
  stage->lastIndex = 2 * state->length - 1;
  stage->innerLength = state->length / state->radix;
  stage->formula = formula;
  stage->stageList = take_list(arena);
  stage->ownedNodes = take_list(arena);
  list_append(state->secondStage.get(), list_append(state->ownedNodes.get(), stage));
  add_recombination<Float>(stage);
}

template <class Float>
void add_folds(FirstStage* stage) {
  Arena* const arena = stage->arena.get();
  auto* const node = take_node<FoldNode>(arena, Operation::fold);
  node->innerLength = stage->innerLength;
  node->length = node->length2 = stage->length;
  node->lastIndex = stage->lastIndex;
  node->rowLength = stage->rowLength;
  node->laneGroups = stage->radix / kLanes<Float>;
  node->radix = stage->radix;
  node->stageList = take_list(arena);
  node->ownedNodes = take_list(arena);
  list_append(stage->stageList.get(), list_append(stage->ownedNodes.get(), node));
  node->foldClass = fold_class(node->innerLength);
  if (node->foldClass == kPlannedFoldClass) {
    add_inner_plan<Float>(node, node->innerLength, node->length, node->radix);
  }
}

template <class Float>
void add_first_stage(Dct4State* state) {
  Arena* const arena = state->arena.get();
  auto* const stage = take_node<FirstStage>(arena, Operation::first_stage);
  stage->hasChild = 1;
  stage->innerLength = state->length / state->radix;
  stage->length = stage->length2 = state->length;
  stage->lastIndex = 2 * state->length - 1;
  stage->rowLength = 2 * state->radix;
  stage->radix = stage->radix2 = state->radix;
  stage->stageList = take_list(arena);
  stage->ownedNodes = take_list(arena);
  list_append(state->firstStage.get(), list_append(state->ownedNodes.get(), stage));
  add_folds<Float>(stage);
}

/// A list that only refers to its items.
void release_references(const NodeList* list) {
  Arena* const arena = list->arena.get();
  list_release_cells(list);
  arena_give_back(arena, list, kCellSize);
}

void release_owned(const NodeList* list) {
  list_free_items(list);
  release_references(list);
}

template <class Stage>
void free_stage(const Stage* stage) {
  if (stage->hasChild == 1) arena_give_back(stage->arena.get(), nullptr, stage->reserved);
  release_references(stage->stageList.get());
  release_owned(stage->ownedNodes.get());
}

template <class Node>
void free_fold(const Node* node) {
  if (node->foldClass >= 1 && node->foldClass <= kPlannedFoldClass) {
    arena_give_back(node->arena.get(), nullptr, node->reserved);
  }
  release_references(node->stageList.get());
  release_owned(node->ownedNodes.get());
}

void free_recombination(const RecombineNode* node) {
  arena_give_back(node->arena.get(), node->table.get(), node->groupCount << (4 + node->tableClass));
  release_owned(node->ownedNodes.get());
}

void free_inner_recombination(const InnerRecombineNode* node) {
  arena_give_back(node->arena.get(), node->table.get(),
                  node->rowCount * inner_row_bytes(node->innerRadix));
  release_owned(node->ownedNodes.get());
}

template <class Float>
void free_inner_plan(const InnerPlan* plan) {
  if (plan->hasChild == 1) {
    arena_give_back(plan->arena.get(), plan->innerScratch.get(),
                    plan->length * kElementSize<Float>);
  }
  release_references(plan->secondList.get());
  release_references(plan->firstList.get());
  release_owned(plan->ownedNodes.get());
}

template <class Float>
void free_state(const Dct4State* state) {
  const int32_t scratch =
      state->sizeClass == kPlannedClass ? state->length * kElementSize<Float> : 0;
  arena_give_back(state->arena.get(), state->scratch.get(), scratch);
  release_references(state->secondStage.get());
  release_references(state->firstStage.get());
  release_owned(state->ownedNodes.get());
}

}  // namespace

void free_node(PlanNode* node) {
  switch (node->freeOp) {
    case Operation::state_32f:
      return free_state<float>(static_cast<Dct4State*>(node));
    case Operation::state_64f:
      return free_state<double>(static_cast<Dct4State*>(node));
    case Operation::second_stage:
      return free_stage(static_cast<SecondStage*>(node));
    case Operation::recombine:
      return free_recombination(static_cast<RecombineNode*>(node));
    case Operation::first_stage:
      return free_stage(static_cast<FirstStage*>(node));
    case Operation::fold:
      return free_fold(static_cast<FoldNode*>(node));
    case Operation::inner_plan_32f:
      return free_inner_plan<float>(static_cast<InnerPlan*>(node));
    case Operation::inner_plan_64f:
      return free_inner_plan<double>(static_cast<InnerPlan*>(node));
    case Operation::inner_recombine:
      return free_inner_recombination(static_cast<InnerRecombineNode*>(node));
    case Operation::inner_fold:
      return free_fold(static_cast<InnerFoldNode*>(node));
    case Operation::nothing:
    case Operation::rotation_element:
    case Operation::rotation_view_element:
    case Operation::inner_rotation_element:
      return;
  }
}

template <class Float>
Dct4State* build_state(int32_t length, Arena* arena) {
  arena_reset(arena);
  auto* const state =
      take_node<Dct4State>(arena, kIsSingle<Float> ? Operation::state_32f : Operation::state_64f);
  state->length = length;
  state->secondStage = take_list(arena);
  state->firstStage = take_list(arena);
  state->ownedNodes = take_list(arena);
  state->sizeClass = size_class(length);
  if (state->sizeClass != kPlannedClass) return state;
  state->radix = pick_radix(length / 2);
  add_second_stage<Float>(state);
  add_first_stage<Float>(state);
  state->scratch = arena_take(arena, length * kElementSize<Float>);
  return state;
}

void release_state(Dct4State* state) {
  Arena* const arena = state->arena.get();
  const int32_t size = state->nodeSize;
  free_node(state);
  arena_give_back(arena, state, size);
}

template Dct4State* build_state<float>(int32_t, Arena*);
template Dct4State* build_state<double>(int32_t, Arena*);

}  // namespace haldgen::dct4
