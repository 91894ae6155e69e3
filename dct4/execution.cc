#include "dct4/execution.h"

#include <cstdint>
#include <cstring>
#include <iterator>

#include "dct4/size.h"
#include "lanes/stack.h"

namespace haldgen::dct4 {
namespace {

static_assert(std::size(KernelTable<float>::kFixed) == kPlannedClass - 1);
static_assert(std::size(KernelTable<float>::kFold) == kPlannedFoldClass - 1);

template <class Node>
const Node& first_item(const NodeList* list) {
  return *static_cast<const Node*>(list_at(list, 0));
}

template <class Float>
const Float* floats(const Link<std::byte>& block) {
  return reinterpret_cast<const Float*>(block.get());
}

/// The first line that begins there or behind.
template <class Float>
Float* at_line(Float* place) {
  constexpr std::uintptr_t kBytes = kLine<Float> * sizeof(Float);
  const auto beyond = reinterpret_cast<std::uintptr_t>(place) % kBytes;
  return beyond == 0 ? place : place + (kBytes - beyond) / sizeof(Float);
}

/// The sequences of a line, brought together. In the source their elements lie a power of two
/// apart, many of them in the same set of a cache, and would be evicted between lane groups.
template <class Float>
Sequences<Float> gathered(const Sequences<Float>& source, int length, Float* lines) {
  Float* const second = lines + length / 2 * kLine<Float>;
  const Float* const behind = source.behind + kLanes<Float> - kLine<Float>;
  for (int t = 0; t < length / 2; ++t) {
    copy_line(lines + t * kLine<Float>, source.ahead + source.step * t);
    copy_line(second + t * kLine<Float>, behind + source.step * t);
  }
  return {lines, second + kLine<Float> - kLanes<Float>, kLine<Float>};
}

/// The folds of length m' = m/r' of the positions t = r'u + a, a = 0..r'-1, side by side in the
/// rows of the inner scratch. It holds as many elements as the whole transform has; the rows take
/// little more than half of them, what is gathered lies behind.
template <class Float>
void inner_fold_pass(const InnerFoldNode& node, Float* destination,
                     const Sequences<Float>& source) {
  Float* const lines =
      at_line(destination + node.subLength / 2 * inner_pitch<Float>(node.innerRadix));
  // Each record is made where it is read: copies of what has just been stored wait for it.
  const auto column = [&](int a) {
    return Spectrum<Float>{destination + 2 * a * kLine<Float>, inner_pitch<Float>(node.innerRadix),
                           kLine<Float>};
  };
  for (int a = 0; a < node.innerRadix; ++a) {
    if (node.foldClass == kPlannedFoldClass) {
      inner_run(first_item<InnerPlan>(node.stageList.get()), column(a),
                source.every(node.innerRadix, a));
    } else {
      const auto part = [&] { return source.every(node.innerRadix, a); };
      KernelTable<Float>::kFold[node.foldClass - 1](
          {kGathers ? gathered(part(), node.subLength, lines) : part(), column(a), kLineGroups});
    }
  }
}

template <class Float>
void inner_recombine_pass(const InnerRecombineNode& node, const Spectrum<Float>& destination,
                          Float* source) {
  KernelTable<Float>::kInnerRecombine[node.tableClass - 1](
      {source, floats<Float>(node.table), destination, node.subLength});
}

/// Bytes between rows of the output from which on the rows compete for few sets of a cache, so that
/// a line would be evicted between the stores of its vectors.
constexpr std::ptrdiff_t kFarRows = 4096;

/// The recombination of 16 blocks at a time into a tile, as if it were all of a transform with rows
/// of 32, and from there by whole lines into the output.
template <class Float>
void recombine_by_tiles(typename Signatures<Float>::recombine* kernel, const RecombineNode& node,
                        Float* destination, const Float* source, Float* tile) {
  constexpr int kRow = 32;
  constexpr int kBlocks = kRow / 2;
  constexpr int kGroups = kBlocks / kLanes<Float>;
  const auto* table = floats<Float>(node.table);
  const std::ptrdiff_t length = node.innerLength;
  Float* ascending = destination;
  Float* descending = destination + length - kBlocks;
  for (int g = 0; g < node.groupCount; g += kGroups) {
    kernel({source, table, tile, tile + kRow - kLanes<Float>, kRow, kGroups});
    for (int l = 0; l < node.radix; ++l) {
      std::memcpy(ascending + length * l, tile + kRow * l, kBlocks * sizeof(Float));
      std::memcpy(descending + length * l, tile + kRow * l + kBlocks, kBlocks * sizeof(Float));
    }
    source += kGroups * node.vectorStride;
    table += kGroups * node.vectorStride;
    ascending += kBlocks;
    descending -= kBlocks;
  }
}

/// Memory of the first pass, for the second: the scratch of the inner plan, if there is one.
template <class Float>
Float* spare(const FirstStage& stage) {
  const auto& node = first_item<FoldNode>(stage.stageList.get());
  if (node.foldClass != kPlannedFoldClass) return nullptr;
  auto* const scratch = first_item<InnerPlan>(node.stageList.get()).innerScratch.get();
  return reinterpret_cast<Float*>(scratch);
}

/// The passes of a plan. What they call, here and in other libraries, relies on a stack aligned to
/// 16 bytes. The kernels of fixed lengths see to theirs themselves, as most have nothing on it.
template <class Float>
[[gnu::noinline]] HALDGEN_REALIGNED void run_plan(const Float* src, Float* dst,
                                                  const Dct4State& state) {
  auto* const scratch = reinterpret_cast<Float*>(state.scratch.get());
  const auto& first = first_item<FirstStage>(state.firstStage.get());
  if (first.hasChild == 1) {
    fold_pass(first_item<FoldNode>(first.stageList.get()), scratch, src);
  }
  const auto& second = first_item<SecondStage>(state.secondStage.get());
  if (second.hasChild == 1) {
    recombine_pass<Float>(first_item<RecombineNode>(second.stageList.get()), dst, scratch,
                          spare<Float>(first));
  }
}

}  // namespace

template <class Float>
int32_t inner_run(const InnerPlan& plan, const Spectrum<Float>& destination,
                  const Sequences<Float>& source) {
  if (plan.hasChild != 1) return haldStatusBadArgument;
  auto* const scratch = reinterpret_cast<Float*>(plan.innerScratch.get());
  inner_fold_pass(first_item<InnerFoldNode>(plan.firstList.get()), scratch, source);
  inner_recombine_pass<Float>(first_item<InnerRecombineNode>(plan.secondList.get()), destination,
                              scratch);
  return haldStatusOk;
}

template <class Float>
int32_t fold_pass(const FoldNode& node, Float* destination, const Float* source) {
  if (node.foldClass < 1 || node.foldClass > kPlannedFoldClass) return haldStatusBadArgument;
  const std::ptrdiff_t row = node.rowLength;
  FoldRun<Float> run{
      {source, source + row - kLanes<Float>, row}, {destination, row, node.radix}, node.laneGroups};
  if (node.foldClass != kPlannedFoldClass) {
    KernelTable<Float>::kFold[node.foldClass - 1](run);
    return haldStatusOk;
  }
  // Plans with an inner one have a radix of 32, a multiple of a line.
  const auto& plan = first_item<InnerPlan>(node.stageList.get());
  for (int32_t i = 0; i < node.laneGroups; i += kLineGroups) {
    inner_run(plan, run.to, run.from);
    run.from.ahead += kLine<Float>;
    run.from.behind -= kLine<Float>;
    run.to.first += kLine<Float>;
  }
  return haldStatusOk;
}

template <class Float>
int32_t recombine_pass(const RecombineNode& node, Float* destination, const Float* source,
                       Float* tile) {
  constexpr auto kClasses = static_cast<int32_t>(std::size(KernelTable<Float>::kRecombine));
  if (node.tableClass < 1 || node.tableClass > kClasses) return haldStatusBadArgument;
  auto* const kernel = KernelTable<Float>::kRecombine[node.tableClass - 1];
  const std::ptrdiff_t length = node.innerLength;
  const auto* const table = floats<Float>(node.table);
  if (length * static_cast<std::ptrdiff_t>(sizeof(Float)) < kFarRows) {
    kernel({source, table, destination, destination + length - kLanes<Float>, length,
            node.groupCount});
  } else {
    recombine_by_tiles<Float>(kernel, node, destination, source, at_line(tile));
  }
  return haldStatusOk;
}

template <class Float>
int32_t run_state(const Float* src, Float* dst, const Dct4State& state) {
  if (state.sizeClass < 1 || state.sizeClass > kPlannedClass) return haldStatusBadArgument;
  if (state.sizeClass != kPlannedClass) {
    KernelTable<Float>::kFixed[state.sizeClass - 1](src, dst);
    return haldStatusOk;
  }
  run_plan(src, dst, state);
  return haldStatusOk;
}

template int32_t fold_pass<float>(const FoldNode&, float*, const float*);
template int32_t fold_pass<double>(const FoldNode&, double*, const double*);
template int32_t recombine_pass<float>(const RecombineNode&, float*, const float*, float*);
template int32_t recombine_pass<double>(const RecombineNode&, double*, const double*, double*);
template int32_t inner_run<float>(const InnerPlan&, const Spectrum<float>&,
                                  const Sequences<float>&);
template int32_t inner_run<double>(const InnerPlan&, const Spectrum<double>&,
                                   const Sequences<double>&);
template int32_t run_state<float>(const float*, float*, const Dct4State&);
template int32_t run_state<double>(const double*, double*, const Dct4State&);

}  // namespace haldgen::dct4
