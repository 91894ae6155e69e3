// The plan of a DCT-IV: a tree of nodes in the caller's buffer that fixes radices, kernels and
// tables once and for all. The transforms only walk it. Words are 32 bits wide, in the order in
// which the records list them.
//
// With N the length, r its radix, m = N/r and V the lanes of a vector:
//
//   Dct4State ─┬─ RotationFormula
//              ├─ SecondStage ─┬─ RotationView
//              │               └─ RecombineNode     rotates and recombines the N/(2r) blocks
//              └─ FirstStage ─── FoldNode           r folds of length m, and if m > 64
//                                └─ InnerPlan ─┬─ InnerRotationFormula
//                                              ├─ InnerRecombineNode   m'/2 rows of r' values
//                                              └─ InnerFoldNode        r' folds of m' = m/r'
//                                                 └─ InnerPlan ...     so on while m' > 64
#pragma once

#include <haldgen.h>

#include "dct4/arena.h"

namespace haldgen::dct4 {

using std::int32_t;

/// The operations that nodes refer to: one for each kind of node, which says both how it was built
/// and how it is freed, and the element functions of the formulas.
enum class Operation : std::int32_t {
  nothing,
  state_32f,
  state_64f,
  second_stage,
  recombine,
  first_stage,
  fold,
  inner_plan_32f,
  inner_plan_64f,
  inner_recombine,
  inner_fold,
  rotation_element,
  rotation_view_element,
  inner_rotation_element,
};

struct RotationFormula : PlanNode {
  int32_t rowLength;         ///< 2r: cosine and sine of r angles
  int32_t angleDenominator;  ///< 8N
  int32_t rowCount;          ///< N / (2r), the blocks
  int32_t radix;
  int32_t rowLength2;
};

struct RotationView : PlanNode {
  int32_t rowLength;
  int32_t groupCount;  ///< groups of V blocks
  Link<RotationFormula> formula;
};

struct SecondStage : PlanNode {
  Link<NodeList> ownedNodes;
  Link<NodeList> stageList;
  int32_t reserved;
  int32_t hasChild;
  int32_t radix;
  int32_t length;
  int32_t rowLength;
  int32_t rowCount;
  int32_t length2;
  int32_t lastIndex;  ///< 2N - 1
  int32_t innerLength;
  Link<RotationFormula> formula;
};

struct RecombineNode : PlanNode {
  Link<NodeList> ownedNodes;
  Link<std::byte> table;
  int32_t tableClass;
  int32_t radix;
  int32_t length;
  int32_t rowLength;
  int32_t vectorStride;  ///< 2r V, elements of a group
  int32_t groupCount;
  int32_t length2;
  int32_t lastIndex;
  int32_t innerLength;
  Link<RotationView> view;
};

struct FirstStage : PlanNode {
  Link<NodeList> ownedNodes;
  Link<NodeList> stageList;
  int32_t reserved;
  int32_t hasChild;
  int32_t innerLength;
  int32_t length;
  int32_t lastIndex;
  int32_t rowLength;
  int32_t radix;
  int32_t length2;
  int32_t radix2;
};

struct FoldNode : PlanNode {
  Link<NodeList> ownedNodes;
  Link<NodeList> stageList;
  int32_t reserved;
  int32_t foldClass;
  int32_t innerLength;
  int32_t length;
  int32_t lastIndex;
  int32_t rowLength;
  int32_t laneGroups;  ///< groups of V sequences
  int32_t length2;
  int32_t radix;
};

struct InnerPlan : PlanNode {
  Link<NodeList> ownedNodes;
  Link<NodeList> secondList;
  Link<NodeList> firstList;
  Link<std::byte> innerScratch;
  int32_t hasChild;
  int32_t foldLength;
  int32_t innerRadix;
  int32_t length;
  int32_t length2;
  int32_t rowLength;
  int32_t length3;
  int32_t radix;
};

struct InnerRotationFormula : PlanNode {
  int32_t foldLength;
  int32_t innerRadix;
};

struct InnerRecombineNode : PlanNode {
  Link<NodeList> ownedNodes;
  Link<std::byte> table;
  int32_t tableClass;
  int32_t innerRadix;
  int32_t length;
  int32_t radix;
  int32_t rowStride;  ///< 2r r'
  int32_t rowCount;   ///< m / (2r')
  int32_t length2;
  int32_t halfFold;
  int32_t lastFoldIndex;
  int32_t radix2;
  int32_t subLength;
  Link<InnerRotationFormula> formula;
};

struct InnerFoldNode : PlanNode {
  Link<NodeList> ownedNodes;
  Link<NodeList> stageList;
  int32_t reserved;
  int32_t foldClass;
  int32_t subLength;
  int32_t length;
  int32_t length2;
  int32_t strideA;  ///< 2r r', between the positions of one of the r' folds
  int32_t rowLength;
  int32_t innerRadix;
  int32_t length3;
  int32_t strideB;
  int32_t radix;
};

/// The size of a record, which is also that of its block.
template <class Node>
inline constexpr int32_t kNodeSize = static_cast<int32_t>(sizeof(Node));

static_assert(kNodeSize<RotationFormula> == 36 && kNodeSize<RotationView> == 28);
static_assert(kNodeSize<SecondStage> == 64 && kNodeSize<RecombineNode> == 64);
static_assert(kNodeSize<FirstStage> == 60 && kNodeSize<FoldNode> == 60);
static_assert(kNodeSize<InnerPlan> == 64 && kNodeSize<InnerRotationFormula> == 24);
static_assert(kNodeSize<InnerRecombineNode> == 72 && kNodeSize<InnerFoldNode> == 68);

/// Calls a node's free operation.
void free_node(PlanNode* node);

/// Builds a state in a buffer of sufficient size; the length must be accepted.
template <class Float>
Dct4State* build_state(int32_t length, Arena* arena);

/// Releases all that a state holds, and its own block.
void release_state(Dct4State* state);

}  // namespace haldgen::dct4

/// The record at the root of a state.
struct Dct4State : haldgen::dct4::PlanNode {
  haldgen::dct4::Link<haldgen::dct4::NodeList> ownedNodes;
  haldgen::dct4::Link<haldgen::dct4::NodeList> secondStage;
  haldgen::dct4::Link<haldgen::dct4::NodeList> firstStage;
  haldgen::dct4::Link<std::byte> scratch;
  std::int32_t sizeClass;
  std::int32_t radix;
  std::int32_t length;
};
static_assert(haldgen::dct4::kNodeSize<Dct4State> == 44);
