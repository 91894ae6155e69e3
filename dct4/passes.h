// The passes of a planned DCT-IV, as the generated kernels run them: where each vector of a body
// lies in memory. A vector holds the same element of as many sequences (indices j) or blocks
// (indices b) as it has lanes.
//
// The loads and stores of an accessor are numbered like the inputs and outputs of the graphs in
// factorisation.h. What lies in a state is aligned, the caller's arrays need not be.
#pragma once

#include <algorithm>
#include <cstddef>
#include <type_traits>

#include "dct4/kernel_list.h"
#include "lanes/scalar.h"
#include "lanes/vectors.h"
#include "lanes/wide_lanes.h"
#include "lanes/width.h"

namespace haldgen::dct4 {

using lanes::kLanes;

/// Vectors of 16 bytes, each of a lane group, that a flavour runs at once as the blocks of one
/// wider vector, if that many neighbours are there. Plans count in groups, whatever the flavour.
inline constexpr int kMostGroups = lanes::kVectorBytes / 16;
constexpr int groups_at_once(int groups) {
  int count = kMostGroups;
  while (groups % count != 0) count /= 2;
  return count;
}

/// What a body computes on to run so many groups.
template <class Float, int kGroups>
using GroupLanes = std::conditional_t<kMostGroups == 1, lanes::Lanes<Float, kLanes<Float>>,
                                      lanes::WideLanes<Float, kGroups * kLanes<Float>>>;

/// A vector of each of these groups, which lie `distance` apart.
template <class Lanes>
inline typename Lanes::Value load_groups(const typename Lanes::Float* first,
                                         std::ptrdiff_t distance) {
  if constexpr (Lanes::kLanes == kLanes<typename Lanes::Float>) {
    return Lanes::template load<lanes::Aligned>(first);
  } else {
    return lanes::load_blocks<typename Lanes::Value>([&](int j) { return first + j * distance; });
  }
}

template <class Body, class Lanes, class Io>
inline void run_body(const Io& io) {
  if constexpr (kMostGroups == 1) {
    Body::run(io);
  } else {
    Body::template run<typename Lanes::Value>(io);
  }
}

/// Lane groups that inner plans work on together, and their elements: a cache line, which is then
/// moved once and as a whole.
inline constexpr int kLineGroups = 4;
template <class Float>
inline constexpr int kLine = kLineGroups* kLanes<Float>;

/// Sequences S(j, t) of neighbouring j, as many as lanes: S(0), S(1), ... lie `step` apart from
/// `ahead` on, S(-1), S(-2), ... from `behind` on, there with the lanes reversed.
template <class Float>
struct Sequences {
  const Float* ahead;
  const Float* behind;
  std::ptrdiff_t step;

  /// The sequences of positions t = count u + a.
  Sequences every(int count, int a) const {
    return {ahead + step * a, behind + step * (count - 1 - a), step * count};
  }
};

/// Where Z(b) goes: the real part to `first + block * b`, the imaginary part `imaginary` further
/// on.
template <class Float>
struct Spectrum {
  Float* first;
  std::ptrdiff_t block;
  std::ptrdiff_t imaginary;
};

/// Folds of neighbouring lane groups, each a vector further on, or further back behind.
template <class Float>
struct FoldRun {
  Sequences<Float> from;
  Spectrum<Float> to;
  int groups;
};

/// Rotation and recombination of groups of blocks, in the order of the rotation table. Output l of
/// the first group goes to `ascending + length * l`, output -(l+1) with its lanes reversed to
/// `descending + length * l`; each group stores one vector further up, or down.
template <class Float>
struct RecombineRun {
  const Float* blocks;
  const Float* table;
  Float* ascending;
  Float* descending;
  std::ptrdiff_t length;
  int groups;
};

/// The step from r folds of length `sub_length` to one, for the lane groups of a line. In row b,
/// value a of a group lies 2a lines from the start, its imaginary part a line further on; rows are
/// inner_pitch() apart.
template <class Float>
struct InnerRecombineRun {
  Float* rows;
  const Float* table;
  Spectrum<Float> to;
  int sub_length;
};

/// From a line to the next row of an inner plan. Rows have a spare place, lest all of them fall
/// into the same sets of a cache.
template <class Float>
constexpr std::ptrdiff_t inner_pitch(int radix) {
  return std::ptrdiff_t{2} * kLine<Float> * (radix + 1);
}

template <class Float>
inline void copy_line(Float* to, const Float* from) {
  __builtin_memcpy(to, from, kLine<Float> * sizeof(Float));
}

/// `Known` if it is not 0.
template <std::ptrdiff_t Known>
constexpr std::ptrdiff_t known_or(std::ptrdiff_t at_run_time) {
  return Known == 0 ? at_run_time : Known;
}

/// Steps that are known when a kernel is compiled, 0 where they are not, and groups that there are
/// a multiple of.
template <std::ptrdiff_t StepOfSequence, std::ptrdiff_t BlockOfSpectrum,
          std::ptrdiff_t ImaginaryOfSpectrum, int Groups = 1>
struct FoldShape {
  static constexpr std::ptrdiff_t kStep = StepOfSequence;
  static constexpr std::ptrdiff_t kBlock = BlockOfSpectrum;
  static constexpr std::ptrdiff_t kImaginary = ImaginaryOfSpectrum;
  static constexpr int kGroups = groups_at_once(Groups);

  template <class Float>
  static bool fits(const FoldRun<Float>& run) {
    return (kStep == 0 || run.from.step == kStep) && run.to.block == kBlock &&
           run.to.imaginary == kImaginary && run.groups % kGroups == 0;
  }
};

/// The first pass of a plan of this radix, for folds of length m. Beyond two, it runs no more
/// groups at once than the second pass, of m/2 blocks, does behind it: parts of such stores come
/// late.
template <class Float, int Radix, int M>
using FirstPass = FoldShape<std::ptrdiff_t{2} * Radix, std::ptrdiff_t{2} * Radix, Radix,
                            std::max(M / 2 / kLanes<Float>, 2)>;

/// Whether inner plans bring their sequences together before they are folded. Four visits to a
/// line pay for that; wider vectors come once or twice.
inline constexpr bool kGathers = kMostGroups == 1;

/// A fold of an inner plan of this radix, of lines that follow one another if they are gathered.
template <class Float, int Radix>
using InnerPass =
    FoldShape<(kGathers ? kLine<Float> : 0), inner_pitch<Float>(Radix), kLine<Float>, kLineGroups>;

/// From the first group behind to the last of those that are run at once.
template <class Float, int kGroups>
inline constexpr std::ptrdiff_t kLastBehind = std::ptrdiff_t{kGroups - 1} * kLanes<Float>;

template <class Body, class Shape>
struct FoldIo {
  using Float = typename Body::Float;
  using Lanes = GroupLanes<Float, Shape::kGroups>;
  using V = typename Lanes::Value;
  const Sequences<Float>& from;
  const Spectrum<Float>& to;

  template <int K>
  V load() const {
    constexpr int kHalf = Body::kSize / 2;
    const std::ptrdiff_t step = known_or<Shape::kStep>(from.step);
    if constexpr (K < kHalf) {
      return Lanes::template load<lanes::Anywhere>(from.ahead + K * step);
    } else {
      const Float* const first = from.behind - kLastBehind<Float, Shape::kGroups>;
      return lanes::reversed(Lanes::template load<lanes::Anywhere>(first + (K - kHalf) * step));
    }
  }
  template <int K>
  void store(V value) const {
    const std::ptrdiff_t block = known_or<Shape::kBlock>(to.block);
    const std::ptrdiff_t imaginary = known_or<Shape::kImaginary>(to.imaginary);
    Lanes::template store<lanes::Aligned>(to.first + K / 2 * block + K % 2 * imaginary, value);
  }
};

template <class Body, class Shape>
inline void run_folds(const FoldRun<typename Body::Float>& run) {
  using Io = FoldIo<Body, Shape>;
  constexpr int kWidth = Io::Lanes::kLanes;
  // Member by member: what copies two at once waits for the stores of the caller.
  Sequences<typename Body::Float> from{run.from.ahead, run.from.behind, run.from.step};
  Spectrum<typename Body::Float> to{run.to.first, run.to.block, run.to.imaginary};
  for (int i = 0; i < run.groups; i += Shape::kGroups) {
    run_body<Body, typename Io::Lanes>(Io{from, to});
    from.ahead += kWidth;
    from.behind -= kWidth;
    to.first += kWidth;
  }
}

/// Runs the folds if they have one of the shapes.
template <class Body, class... Shapes>
inline bool run_known_folds(const FoldRun<typename Body::Float>& run) {
  return ((Shapes::fits(run) && (run_folds<Body, Shapes>(run), true)) || ...);
}

/// The radix of a plan, and of an inner plan, is the length of its folds or half of it.
template <class Body>
inline void run_fold(const FoldRun<typename Body::Float>& run) {
  using Float = typename Body::Float;
  constexpr int kSize = Body::kSize;
  if constexpr (kSize == 64) {
    if (run_known_folds<Body, FirstPass<Float, 32, 64>, InnerPass<Float, 32>>(run)) return;
  } else if constexpr (kSize >= 16) {
    if (run_known_folds<Body, FirstPass<Float, kSize, kSize>, FirstPass<Float, kSize / 2, kSize>,
                        InnerPass<Float, kSize>, InnerPass<Float, kSize / 2>>(run)) {
      return;
    }
  } else if constexpr (kSize == 8) {
    if (run_known_folds<Body, FirstPass<Float, 8, 8>>(run)) return;
  }
  run_folds<Body, FoldShape<0, 0, 0>>(run);
}

/// Length is the m of the plan, or 0.
template <class Body, int Length, int kGroups>
struct RecombineIo {
  using Float = typename Body::Float;
  using Lanes = GroupLanes<Float, kGroups>;
  using V = typename Lanes::Value;
  static constexpr int kWidth = kLanes<Float>;
  static constexpr int kGroup = 2 * Body::kSize * kWidth;  ///< elements of a group's blocks
  const RecombineRun<Float>& run;

  template <int K>
  V load() const {
    constexpr int kRow = 2 * Body::kSize;
    if constexpr (K >= kRow) {
      return Lanes::template load<lanes::Aligned>(run.table + (K - kRow) * Lanes::kLanes);
    } else if constexpr (kRow < kWidth) {
      return load_groups<Lanes>(run.blocks + K * kWidth, kGroup);
    } else {
      return load_groups<Lanes>(run.blocks + K % kWidth * kRow + K / kWidth * kWidth, kGroup);
    }
  }
  template <int K>
  void store(V value) const {
    const std::ptrdiff_t length = known_or<Length>(run.length);
    if constexpr (K < Body::kSize) {
      Lanes::template store<lanes::Anywhere>(run.ascending + K * length, value);
    } else {
      Float* const first = run.descending - kLastBehind<Float, kGroups>;
      Lanes::template store<lanes::Anywhere>(first + (K - Body::kSize) * length,
                                             lanes::reversed(value));
    }
  }
};

template <class Body, int Length, int kGroups>
inline void run_recombinations(const RecombineRun<typename Body::Float>& all) {
  using Io = RecombineIo<Body, Length, kGroups>;
  // Member by member: what copies two at once waits for the stores of the caller.
  RecombineRun<typename Body::Float> run{all.blocks,     all.table,  all.ascending,
                                         all.descending, all.length, all.groups};
  constexpr int kWidth = Io::Lanes::kLanes;
  for (int g = 0; g < run.groups; g += kGroups) {
    run_body<Body, typename Io::Lanes>(Io{run});
    run.blocks += 2 * Body::kSize * kWidth;
    run.table += 2 * Body::kSize * kWidth;
    run.ascending += kWidth;
    run.descending -= kWidth;
  }
}

/// The table is laid out for as many groups at once.
template <class Body, int kGroups = kMostGroups>
inline void run_any_recombinations(const RecombineRun<typename Body::Float>& run) {
  if constexpr (kGroups > 1) {
    if (run.groups % kGroups != 0) return run_any_recombinations<Body, kGroups / 2>(run);
  }
  run_recombinations<Body, 0, kGroups>(run);
}

template <class Body>
inline void run_recombine(const RecombineRun<typename Body::Float>& run) {
  constexpr int kSame = Body::kSize >= 8 ? Body::kSize : 0;
  // A plan of length m has m/2 blocks.
  constexpr int kFew = groups_at_once(kSame / 2 / kLanes<typename Body::Float>);
  constexpr int kMany = groups_at_once(kSame / kLanes<typename Body::Float>);
  if (kSame != 0 && run.length == kSame && run.groups % kFew == 0)
    return run_recombinations<Body, kSame, kFew>(run);
  if (kSame != 0 && run.length == 2 * kSame && run.groups % kMany == 0)
    return run_recombinations<Body, 2 * kSame, kMany>(run);
  run_any_recombinations<Body>(run);
}

/// Where the outputs of a row lie: those of the first half of p from `ascending` on, those of the
/// second half, in the opposite order, from `descending` on.
template <class Float>
struct RowOutputs {
  Float* ascending;
  Float* descending;
  std::ptrdiff_t part;  ///< from output p to p + 1
  std::ptrdiff_t imaginary;
};

template <class Body, class Outputs>
struct InnerRecombineIo {
  using Float = typename Body::Float;
  using Lanes = GroupLanes<Float, groups_at_once(kLineGroups)>;
  using V = typename Lanes::Value;
  const Float* row;
  const Float* table;
  Outputs outputs;

  template <int K>
  V load() const {
    constexpr int kRow = 2 * Body::kSize;
    if constexpr (K < kRow) {
      return Lanes::template load<lanes::Aligned>(row + K * kLine<Float>);
    } else {
      return load_groups<Lanes>(table + (K - kRow) * kLanes<Float>, 0);
    }
  }
  template <int K>
  void store(V value) const {
    constexpr int kOutput = K / 2;
    Float* const place = kOutput < Body::kSize / 2
                             ? outputs.ascending + kOutput * outputs.part
                             : outputs.descending + (Body::kSize - 1 - kOutput) * outputs.part;
    Lanes::template store<lanes::Aligned>(place + K % 2 * outputs.imaginary, value);
  }
};

template <class Body, class Outputs>
inline void run_inner_row(InnerRecombineIo<Body, Outputs> io) {
  using Lanes = typename InnerRecombineIo<Body, Outputs>::Lanes;
  for (int i = 0; i < kLine<typename Body::Float>; i += Lanes::kLanes) {
    run_body<Body, Lanes>(io);
    io.row += Lanes::kLanes;
    io.outputs.ascending += Lanes::kLanes;
    io.outputs.descending += Lanes::kLanes;
  }
}

/// Outputs of a row side by side in its own place, to be moved on line by line. Every output
/// depends on all inputs of its lanes, so these are read before the first of them is stored.
template <class Float, int Radix>
struct LineOutputs {
  Float* ascending;
  Float* descending;
  static constexpr std::ptrdiff_t part = 2 * kLine<Float>;
  static constexpr std::ptrdiff_t imaginary = kLine<Float>;

  explicit LineOutputs(Float* lines) : ascending(lines), descending(lines + Radix / 2 * part) {}
  void move_to(const RowOutputs<Float>& to) const {
    for (int p = 0; p < Radix / 2; ++p) {
      copy_line(to.ascending + to.part * p, ascending + part * p);
      copy_line(to.ascending + to.part * p + to.imaginary, ascending + part * p + imaginary);
      copy_line(to.descending + to.part * p, descending + part * p);
      copy_line(to.descending + to.part * p + to.imaginary, descending + part * p + imaginary);
    }
  }
};

template <class Body>
inline void run_inner_recombine(const InnerRecombineRun<typename Body::Float>& run) {
  using Float = typename Body::Float;
  constexpr int kRadix = Body::kSize;
  // So many outputs, a power of two apart, evict one another's lines before these are full.
  constexpr bool kCrowded = kRadix >= 32;
  Float* row = run.rows;
  const Float* table = run.table;
  const std::ptrdiff_t part = run.to.block * run.sub_length;
  RowOutputs<Float> outputs{run.to.first, run.to.first + part - run.to.block, part,
                            run.to.imaginary};
  for (int b = 0; b < run.sub_length / 2; ++b) {
    if constexpr (kCrowded) {
      const LineOutputs<Float, kRadix> tile(row);
      run_inner_row(InnerRecombineIo<Body, LineOutputs<Float, kRadix>>{row, table, tile});
      tile.move_to(outputs);
    } else {
      run_inner_row(InnerRecombineIo<Body, RowOutputs<Float>>{row, table, outputs});
    }
    row += inner_pitch<Float>(kRadix);
    table += 2 * (kRadix - 1) * kLanes<Float>;
    outputs.ascending += run.to.block;
    outputs.descending -= run.to.block;
  }
}

template <class Float>
struct Signatures {
  using fixed = void(const Float* src, Float* dst);
  using fold = void(const FoldRun<Float>& run);
  using recombine = void(const RecombineRun<Float>& run);
  using inner_recombine = void(const InnerRecombineRun<Float>& run);
};

// The generated kernels.
#define HALDGEN_DCT4_DECLARE(part, size) \
  Signatures<float>::part part##_##size; \
  Signatures<double>::part part##_##size;
HALDGEN_DCT4_KERNELS(HALDGEN_DCT4_DECLARE)
#undef HALDGEN_DCT4_DECLARE

/// The same by class, the first of which is 1.
template <class Float>
struct KernelTable {
  using Of = Signatures<Float>;
#define HALDGEN_DCT4_NAME(part, size) part##_##size,
  static constexpr typename Of::fixed* kFixed[] = {HALDGEN_DCT4_FIXED(HALDGEN_DCT4_NAME)};
  static constexpr typename Of::fold* kFold[] = {HALDGEN_DCT4_FOLD(HALDGEN_DCT4_NAME)};
  static constexpr
      typename Of::recombine* kRecombine[] = {HALDGEN_DCT4_RECOMBINE(HALDGEN_DCT4_NAME)};
  static constexpr typename Of::inner_recombine* kInnerRecombine[] = {
      HALDGEN_DCT4_INNER_RECOMBINE(HALDGEN_DCT4_NAME)};
#undef HALDGEN_DCT4_NAME
};

}  // namespace haldgen::dct4
