// The caller's arrays, and their way into tiles and back.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>

#include "batch/body.h"
#include "lanes/scalar.h"

namespace haldgen::batch {

/// One side of a batch, counted in floats: elements of one or two, `step` from one to the next,
/// `dist` from one transform to the next.
template <class Float>
struct Array {
  Float* first;
  std::ptrdiff_t step;
  std::ptrdiff_t dist;
  int parts;

  Array from(std::ptrdiff_t transform) const {
    return {first + transform * dist, step, dist, parts};
  }
  /// Float p of a transform, and transform t.
  std::ptrdiff_t place(int p, int t) const {
    return (parts == 1 ? p : p / 2) * step + (parts == 1 ? 0 : p % 2) + t * dist;
  }
  bool is_row() const { return step == parts; }
  bool is_column() const { return dist == parts; }
};

/// Two blocks in each direction are transposed at once; rows that are shorter are moved by floats.
template <class Float>
inline constexpr int kSquare = 16 / static_cast<int>(sizeof(Float));

/// Rows of a tile as vectors.
template <class Float>
inline Vector<Float>* vectors(Float* tile, int position) {
  return reinterpret_cast<Vector<Float>*>(tile + position * kLanes<Float>);
}
template <class Float>
inline const Vector<Float>* vectors(const Float* tile, int position) {
  return reinterpret_cast<const Vector<Float>*>(tile + position * kLanes<Float>);
}

/// Calls visit(p) for first positions of squares, which cover all; the last two may overlap.
template <class Float, class Visit>
HALDGEN_INLINE void each_square(int positions, const Visit& visit) {
  constexpr int kSide = kSquare<Float>;
  int p = 0;
  for (; p + kSide <= positions; p += kSide) visit(p);
  if (p < positions) visit(positions - kSide);
}

/// Lanes without a transform have the last one's.
template <class Float>
void load_rows(Float* tile, const Array<const Float>& from, int positions, int valid) {
  using V = Vector<Float>;
  constexpr int kSide = kSquare<Float>;
  const Float* row[kLanes<Float>];
  for (int l = 0; l < kLanes<Float>; ++l)
    row[l] = from.first + (l < valid ? l : valid - 1) * from.dist;
  each_square<Float>(positions, [&](int p) {
    V square[kSide];
    for (int r = 0; r < kSide; ++r) {
      square[r] = lanes::load_blocks<V>([&](int block) { return row[block * kSide + r] + p; });
    }
    lanes::transpose_blocks(square);
    for (int r = 0; r < kSide; ++r) vectors(tile, p)[r] = square[r];
  });
}
template <class Float>
void store_rows(const Array<Float>& to, const Float* tile, int positions, int valid) {
  using V = Vector<Float>;
  constexpr int kSide = kSquare<Float>;
  Float unused[kSide];
  each_square<Float>(positions, [&](int p) {
    V square[kSide];
    for (int r = 0; r < kSide; ++r) square[r] = vectors(tile, p)[r];
    lanes::transpose_blocks(square);
    for (int r = 0; r < kSide; ++r) {
      lanes::store_blocks<V>(square[r], [&](int block) {
        const int l = block * kSide + r;
        return l < valid ? to.first + l * to.dist + p : unused;
      });
    }
  });
}

template <class Float>
void load_columns(Float* tile, const Array<const Float>& from, int elements) {
  using V = Vector<Float>;
  for (int e = 0; e < elements; ++e) {
    const Float* const place = from.first + e * from.step;
    const V a = lanes::load_wide<V>(place);
    if (from.parts == 1) {
      *vectors(tile, e) = a;
      continue;
    }
    const V b = lanes::load_wide<V>(place + kLanes<Float>);
    vectors(tile, 2 * e)[0] = lanes::every_second<0>(a, b);
    vectors(tile, 2 * e)[1] = lanes::every_second<1>(a, b);
  }
}
template <class Float>
void store_columns(const Array<Float>& to, const Float* tile, int elements) {
  using V = Vector<Float>;
  for (int e = 0; e < elements; ++e) {
    Float* const place = to.first + e * to.step;
    if (to.parts == 1) {
      lanes::store_wide<V>(place, *vectors(tile, e));
      continue;
    }
    const V re = vectors(tile, 2 * e)[0];
    const V im = vectors(tile, 2 * e)[1];
    lanes::store_wide<V>(place, lanes::in_turns<0>(re, im));
    lanes::store_wide<V>(place + kLanes<Float>, lanes::in_turns<1>(re, im));
  }
}

/// Any array, float by float. Lanes without a transform hold zeros.
template <class Float>
void load_anywhere(Float* tile, const Array<const Float>& from, int positions, int valid) {
  const auto bytes = static_cast<std::size_t>(positions) * kVectorBytes;
  if (valid < kLanes<Float>) std::memset(tile, 0, bytes);
  const auto move = [&](int p, int l) {
    tile[p * kLanes<Float> + l] = scalar::load(from.first + from.place(p, l));
  };
  if (from.is_column()) {
    for (int p = 0; p < positions; ++p) {
      for (int l = 0; l < valid; ++l) move(p, l);
    }
    return;
  }
  for (int l = 0; l < valid; ++l) {
    for (int p = 0; p < positions; ++p) move(p, l);
  }
}
template <class Float>
void store_anywhere(const Array<Float>& to, const Float* tile, int positions, int valid) {
  const auto move = [&](int p, int l) {
    scalar::store(to.first + to.place(p, l), tile[p * kLanes<Float> + l]);
  };
  if (to.is_column()) {
    for (int p = 0; p < positions; ++p) {
      for (int l = 0; l < valid; ++l) move(p, l);
    }
    return;
  }
  for (int l = 0; l < valid; ++l) {
    for (int p = 0; p < positions; ++p) move(p, l);
  }
}

/// The first `valid` transforms of an array, of so many floats each.
template <class Float>
void load_tile(Float* tile, const Array<const Float>& from, int positions, int valid) {
  if (from.is_column() && valid == kLanes<Float>) {
    return load_columns(tile, from, positions / from.parts);
  }
  if (from.is_row() && positions >= kSquare<Float>) return load_rows(tile, from, positions, valid);
  load_anywhere(tile, from, positions, valid);
}
template <class Float>
void store_tile(const Array<Float>& to, const Float* tile, int positions, int valid) {
  if (to.is_column() && valid == kLanes<Float>) {
    return store_columns(to, tile, positions / to.parts);
  }
  if (to.is_row() && positions >= kSquare<Float>) return store_rows(to, tile, positions, valid);
  store_anywhere(to, tile, positions, valid);
}

}  // namespace haldgen::batch
