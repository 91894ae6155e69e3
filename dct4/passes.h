// The passes of a planned DCT-IV, as the generated kernels run them: where each vector of a body
// lies in memory. A vector holds the same element of as many sequences (indices j) or blocks
// (indices b) as it has lanes.
//
// The loads and stores of an accessor are numbered like the inputs and outputs of the graphs in
// factorisation.h. What lies in a state is aligned, the caller's arrays need not be.
#pragma once

#include <cstddef>

#include "kernelgen/lanes.h"

namespace haldgen::dct4 {

template <class Float>
inline constexpr int kLanes = static_cast<int>(16 / sizeof(Float));

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

/// Folds of `count` such sets of sequences; from one to the next the sequences move by
/// `next_sequence`, those behind the other way, and the spectrum by `next_spectrum`.
template <class Float>
struct FoldRun {
  Sequences<Float> from;
  Spectrum<Float> to;
  std::ptrdiff_t next_sequence;
  std::ptrdiff_t next_spectrum;
  int count;
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

/// The step from r folds of length `sub_length` to one. Row b holds their values at index b side by
/// side.
template <class Float>
struct InnerRecombineRun {
  const Float* rows;
  const Float* table;
  Spectrum<Float> to;
  int sub_length;
};

/// `Known` if it is not 0.
template <std::ptrdiff_t Known>
constexpr std::ptrdiff_t known_or(std::ptrdiff_t at_run_time) {
  return Known == 0 ? at_run_time : Known;
}

/// Radix is that of the plan if the fold is the first pass and the radix is one that fold lengths
/// mostly come with; else 0.
template <class Body, int Radix>
struct FoldIo {
  using Float = typename Body::Float;
  using V = typename Body::V;
  const Sequences<Float>& from;
  const Spectrum<Float>& to;

  template <int K>
  V load() const {
    constexpr int kHalf = Body::kSize / 2;
    const std::ptrdiff_t step = known_or<2 * Radix>(from.step);
    if constexpr (K < kHalf) {
      return lanes::Unaligned::load(from.ahead + K * step);
    } else {
      return lanes::reversed(lanes::Unaligned::load(from.behind + (K - kHalf) * step));
    }
  }
  template <int K>
  void store(V value) const {
    const std::ptrdiff_t block = known_or<2 * Radix>(to.block);
    const std::ptrdiff_t imaginary = known_or<Radix>(to.imaginary);
    lanes::Aligned::store(to.first + K / 2 * block + K % 2 * imaginary, value);
  }
};

template <class Body, int Radix>
inline void run_folds(const FoldRun<typename Body::Float>& run) {
  auto from = run.from;
  auto to = run.to;
  for (int i = 0; i < run.count; ++i) {
    Body::run(FoldIo<Body, Radix>{from, to});
    from.ahead += run.next_sequence;
    from.behind -= run.next_sequence;
    to.first += run.next_spectrum;
  }
}

/// Below 4096 points the radix of a plan is its fold length or half of it.
template <class Body>
inline void run_fold(const FoldRun<typename Body::Float>& run) {
  if constexpr (Body::kSize >= 8) {
    constexpr int kSame = Body::kSize <= 32 ? Body::kSize : 0;
    constexpr int kHalf = Body::kSize >= 16 ? Body::kSize / 2 : 0;
    const bool first_pass = 2 * run.to.imaginary == run.to.block && run.to.block == run.from.step;
    if (kSame != 0 && first_pass && run.to.imaginary == kSame) return run_folds<Body, kSame>(run);
    if (kHalf != 0 && first_pass && run.to.imaginary == kHalf) return run_folds<Body, kHalf>(run);
  }
  run_folds<Body, 0>(run);
}

/// Length is the m of the plan, or 0.
template <class Body, int Length>
struct RecombineIo {
  using Float = typename Body::Float;
  using V = typename Body::V;
  static constexpr int kWidth = kLanes<Float>;
  const RecombineRun<Float>& run;

  template <int K>
  V load() const {
    constexpr int kRow = 2 * Body::kSize;
    if constexpr (K < kRow) {
      return lanes::Aligned::load(run.blocks + K % kWidth * kRow + K / kWidth * kWidth);
    } else {
      return lanes::Aligned::load(run.table + (K - kRow) * kWidth);
    }
  }
  template <int K>
  void store(V value) const {
    const std::ptrdiff_t length = known_or<Length>(run.length);
    if constexpr (K < Body::kSize) {
      lanes::Unaligned::store(run.ascending + K * length, value);
    } else {
      lanes::Unaligned::store(run.descending + (K - Body::kSize) * length, lanes::reversed(value));
    }
  }
};

template <class Body, int Length>
inline void run_recombinations(RecombineRun<typename Body::Float> run) {
  constexpr int kWidth = kLanes<typename Body::Float>;
  for (int g = 0; g < run.groups; ++g) {
    Body::run(RecombineIo<Body, Length>{run});
    run.blocks += 2 * Body::kSize * kWidth;
    run.table += 2 * Body::kSize * kWidth;
    run.ascending += kWidth;
    run.descending -= kWidth;
  }
}

template <class Body>
inline void run_recombine(const RecombineRun<typename Body::Float>& run) {
  constexpr int kSame = Body::kSize >= 8 ? Body::kSize : 0;
  if (kSame != 0 && run.length == kSame) return run_recombinations<Body, kSame>(run);
  if (kSame != 0 && run.length == 2 * kSame) return run_recombinations<Body, 2 * kSame>(run);
  run_recombinations<Body, 0>(run);
}

template <class Body>
struct InnerRecombineIo {
  using Float = typename Body::Float;
  using V = typename Body::V;
  static constexpr int kWidth = kLanes<Float>;
  const Float* row;
  const Float* table;
  Float* ascending;
  Float* descending;
  std::ptrdiff_t part;  ///< from output p to p + 1
  std::ptrdiff_t imaginary;

  template <int K>
  V load() const {
    constexpr int kRow = 2 * Body::kSize;
    return lanes::Aligned::load(K < kRow ? row + K * kWidth : table + (K - kRow) * kWidth);
  }
  template <int K>
  void store(V value) const {
    constexpr int kOutput = K / 2;
    Float* const place = kOutput < Body::kSize / 2
                             ? ascending + kOutput * part
                             : descending + (Body::kSize - 1 - kOutput) * part;
    lanes::Aligned::store(place + K % 2 * imaginary, value);
  }
};

template <class Body>
inline void run_inner_recombine(const InnerRecombineRun<typename Body::Float>& run) {
  constexpr int kWidth = kLanes<typename Body::Float>;
  InnerRecombineIo<Body> io{run.rows,
                            run.table,
                            run.to.first,
                            run.to.first + run.to.block * (run.sub_length - 1),
                            run.to.block * run.sub_length,
                            run.to.imaginary};
  for (int b = 0; b < run.sub_length / 2; ++b) {
    Body::run(io);
    io.row += 2 * Body::kSize * kWidth;
    io.table += 2 * (Body::kSize - 1) * kWidth;
    io.ascending += run.to.block;
    io.descending -= run.to.block;
  }
}

// The generated kernels.
#define HALDGEN_DCT4_KERNELS(Float)                             \
  void fixed_2(const Float* src, Float* dst);                   \
  void fixed_4(const Float* src, Float* dst);                   \
  void fixed_8(const Float* src, Float* dst);                   \
  void fixed_16(const Float* src, Float* dst);                  \
  void fixed_32(const Float* src, Float* dst);                  \
  void fold_2(const FoldRun<Float>& run);                       \
  void fold_4(const FoldRun<Float>& run);                       \
  void fold_8(const FoldRun<Float>& run);                       \
  void fold_16(const FoldRun<Float>& run);                      \
  void fold_32(const FoldRun<Float>& run);                      \
  void fold_64(const FoldRun<Float>& run);                      \
  void recombine_2(const RecombineRun<Float>& run);             \
  void recombine_4(const RecombineRun<Float>& run);             \
  void recombine_8(const RecombineRun<Float>& run);             \
  void recombine_16(const RecombineRun<Float>& run);            \
  void recombine_32(const RecombineRun<Float>& run);            \
  void inner_recombine_2(const InnerRecombineRun<Float>& run);  \
  void inner_recombine_4(const InnerRecombineRun<Float>& run);  \
  void inner_recombine_8(const InnerRecombineRun<Float>& run);  \
  void inner_recombine_16(const InnerRecombineRun<Float>& run); \
  void inner_recombine_32(const InnerRecombineRun<Float>& run);
HALDGEN_DCT4_KERNELS(float)
HALDGEN_DCT4_KERNELS(double)
#undef HALDGEN_DCT4_KERNELS

}  // namespace haldgen::dct4
