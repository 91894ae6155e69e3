#include "dct4/execution.h"

#include "dct4/size.h"

namespace haldgen::dct4 {
namespace {

template <class Float>
struct Kernels {
  using Fixed = void (*)(const Float*, Float*);
  using Fold = void (*)(const FoldRun<Float>&);
  using Recombine = void (*)(const RecombineRun<Float>&);
  using InnerRecombine = void (*)(const InnerRecombineRun<Float>&);

  /// By class, the first of which is 1.
  static constexpr Fixed kFixed[] = {fixed_2, fixed_4, fixed_8, fixed_16, fixed_32};
  static constexpr Fold kFold[] = {fold_2, fold_4, fold_8, fold_16, fold_32, fold_64};
  /// No plan has a radix of 1, nor one below the lanes.
  static constexpr Recombine kRecombine[] = {
      nullptr,      kLanes<Float> == 2 ? Recombine{recombine_2} : nullptr,
      recombine_4,  recombine_8,
      recombine_16, recombine_32};
  static constexpr InnerRecombine kInnerRecombine[] = {inner_recombine_2, inner_recombine_4,
                                                       inner_recombine_8, inner_recombine_16,
                                                       inner_recombine_32};
};

template <class Node>
const Node& first_item(const NodeList* list) {
  return *static_cast<const Node*>(ListAt(list, 0));
}

template <class Float>
const Float* floats(const Link<std::byte>& block) {
  return reinterpret_cast<const Float*>(block.get());
}

/// The folds of length m' = m/r' of the positions t = r'u + a, a = 0..r'-1, side by side in the
/// rows of the inner scratch.
template <class Float>
void InnerFoldPass(const InnerFoldNode& node, Float* destination, const Sequences<Float>& source) {
  const int count = node.innerRadix;
  const Spectrum<Float> rows{destination, std::ptrdiff_t{2} * kLanes<Float> * count, kLanes<Float>};
  constexpr std::ptrdiff_t kNext = 2 * kLanes<Float>;
  if (node.foldClass != kPlannedFoldClass) {
    Kernels<Float>::kFold[node.foldClass - 1](
        {source.every(count, 0), rows, source.step, kNext, count});
    return;
  }
  const auto& plan = first_item<InnerPlan>(node.stageList.get());
  for (int a = 0; a < count; ++a) {
    InnerRun(plan, {rows.first + kNext * a, rows.block, rows.imaginary}, source.every(count, a));
  }
}

template <class Float>
void InnerRecombinePass(const InnerRecombineNode& node, const Spectrum<Float>& destination,
                        const Float* source) {
  Kernels<Float>::kInnerRecombine[node.tableClass - 1](
      {source, floats<Float>(node.table), destination, node.subLength});
}

}  // namespace

template <class Float>
int32_t InnerRun(const InnerPlan& plan, const Spectrum<Float>& destination,
                 const Sequences<Float>& source) {
  if (plan.hasChild != 1) return haldStatusBadArgument;
  auto* const scratch = reinterpret_cast<Float*>(plan.innerScratch.get());
  InnerFoldPass(first_item<InnerFoldNode>(plan.firstList.get()), scratch, source);
  InnerRecombinePass<Float>(first_item<InnerRecombineNode>(plan.secondList.get()), destination,
                            scratch);
  return haldStatusOk;
}

template <class Float>
int32_t FoldPass(const FoldNode& node, Float* destination, const Float* source) {
  if (node.foldClass < 1 || node.foldClass > kPlannedFoldClass) return haldStatusBadArgument;
  constexpr int kWidth = kLanes<Float>;
  const std::ptrdiff_t row = node.rowLength;
  Sequences<Float> from{source, source + row - kWidth, row};
  Spectrum<Float> to{destination, row, node.radix};
  if (node.foldClass != kPlannedFoldClass) {
    Kernels<Float>::kFold[node.foldClass - 1]({from, to, kWidth, kWidth, node.laneGroups});
    return haldStatusOk;
  }
  const auto& plan = first_item<InnerPlan>(node.stageList.get());
  for (int32_t i = 0; i < node.laneGroups; ++i) {
    InnerRun(plan, to, from);
    from.ahead += kWidth;
    from.behind -= kWidth;
    to.first += kWidth;
  }
  return haldStatusOk;
}

template <class Float>
int32_t RecombinePass(const RecombineNode& node, Float* destination, const Float* source) {
  if (node.tableClass < 1 || node.tableClass > 6) return haldStatusBadArgument;
  Kernels<Float>::kRecombine[node.tableClass - 1]({source, floats<Float>(node.table), destination,
                                                   destination + node.innerLength - kLanes<Float>,
                                                   node.innerLength, node.groupCount});
  return haldStatusOk;
}

template <class Float>
int32_t RunState(const Float* src, Float* dst, const Dct4State& state) {
  if (state.sizeClass < 1 || state.sizeClass > kPlannedClass) return haldStatusBadArgument;
  if (state.sizeClass != kPlannedClass) {
    Kernels<Float>::kFixed[state.sizeClass - 1](src, dst);
    return haldStatusOk;
  }
  auto* const scratch = reinterpret_cast<Float*>(state.scratch.get());
  const auto& first = first_item<FirstStage>(state.firstStage.get());
  if (first.hasChild == 1) {
    FoldPass(first_item<FoldNode>(first.stageList.get()), scratch, src);
  }
  const auto& second = first_item<SecondStage>(state.secondStage.get());
  if (second.hasChild == 1) {
    RecombinePass<Float>(first_item<RecombineNode>(second.stageList.get()), dst, scratch);
  }
  return haldStatusOk;
}

template int32_t FoldPass<float>(const FoldNode&, float*, const float*);
template int32_t FoldPass<double>(const FoldNode&, double*, const double*);
template int32_t RecombinePass<float>(const RecombineNode&, float*, const float*);
template int32_t RecombinePass<double>(const RecombineNode&, double*, const double*);
template int32_t InnerRun<float>(const InnerPlan&, const Spectrum<float>&, const Sequences<float>&);
template int32_t InnerRun<double>(const InnerPlan&, const Spectrum<double>&,
                                  const Sequences<double>&);
template int32_t RunState<float>(const float*, float*, const Dct4State&);
template int32_t RunState<double>(const double*, double*, const Dct4State&);

}  // namespace haldgen::dct4
