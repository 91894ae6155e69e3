// The kernels of batches, and what they are given. A group is as many transforms as a vector has
// lanes. A tile holds the floats of a group, position by position: those of all its transforms at
// one position of their arrays are one vector.
#pragma once

#include <cstddef>

#include "lanes/width.h"

namespace haldgen::batch {

using lanes::kVectorBytes;

/// Whole vectors, or half of them.
enum class Width { whole, half };
template <Width kWidth>
inline constexpr int kBytes =
    kWidth == Width::half&& kVectorBytes > 16 ? kVectorBytes / 2 : kVectorBytes;

template <class Float, Width kWidth = Width::whole>
inline constexpr int kLanes = kBytes<kWidth> / static_cast<int>(sizeof(Float));

/// Where the arrays of a kernel of real data may lie: in tiles; in columns as well; in columns of
/// bins as well.
enum class Reach { tiles, columns, bins };

/// Values of transforms of real data. Value k is the vector at `middle + k * step`; of a half
/// spectrum the first lies at `first`, and the last of an even number at `last`.
template <class Float>
struct Values {
  Float* first;
  Float* middle;
  Float* last;
  std::ptrdiff_t step;
};

/// Groups of real data, each a vector behind the one before.
template <class Float>
struct RealRun {
  Values<const Float> src;
  Values<Float> dst;
  std::ptrdiff_t groups;
  Float scale;
};
template <class Float>
struct RealKernel {
  void (*run)(const RealRun<Float>& run);  ///< null: only the single function does it
  Width width;
  bool in_memory;  ///< takes values at any steps; else tiles only
  /// Columns of samples and of bins, these at `first`; null: bins in tiles only.
  void (*bins)(const RealRun<Float>& run) = nullptr;
};

/// A group in tiles, the parts of each element one behind the other.
template <class Float>
struct TileRun {
  const Float* src_re;
  const Float* src_im;
  Float* dst_re;
  Float* dst_im;
  Float scale;
};

/// Groups of neighbouring transforms, elements so many floats apart.
template <class Float>
struct ColumnsRun {
  const Float* src;
  std::ptrdiff_t src_step;
  Float* dst;
  std::ptrdiff_t dst_step;
  std::ptrdiff_t groups;
  Float scale;
};

/// Transforms of neighbouring elements, so many floats apart.
template <class Float>
struct RowsRun {
  const Float* src;
  std::ptrdiff_t src_dist;
  Float* dst;
  std::ptrdiff_t dst_dist;
  std::ptrdiff_t count;
  Float scale;
};

/// The kernels of one direction: that of tiles, or that of rows, and perhaps that of columns.
template <class Float>
struct ComplexKernels {
  void (*tile)(const TileRun<Float>& run) = nullptr;
  bool tile_exchanged = false;  ///< it is the other direction's: parts are exchanged on both sides
  void (*rows)(const RowsRun<Float>& run) = nullptr;
  void (*columns)(const ColumnsRun<Float>& run) = nullptr;
};

/// Both directions of a length.
template <class Float>
struct ComplexPair {
  ComplexKernels<Float> forward;
  ComplexKernels<Float> inverse;
};

}  // namespace haldgen::batch
