// The caller's arrays, and their way into tiles and back.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <type_traits>
#include <utility>

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

/// Lanes of a vector type.
template <class V>
inline constexpr int kCount = static_cast<int>(sizeof(V) / sizeof(lanes::FloatOf<V>));

/// Rows and positions that are transposed at once, in pieces of as many lanes; shorter rows are
/// moved by floats.
template <class V>
inline constexpr int kSquare = sizeof(lanes::FloatOf<V>) == 4 || sizeof(V) == 64 ? 4 : 2;

/// The longest transform of a tile: floats of 2^7 real or 2^6 complex numbers, or of the half
/// spectrum of 2^6 real ones.
inline constexpr int kTileFloats = 128;

/// The vector of a position of a tile.
template <class V>
HALDGEN_INLINE V* vectors(lanes::FloatOf<V>* tile, int position) {
  return reinterpret_cast<V*>(tile + position * kCount<V>);
}
template <class V>
HALDGEN_INLINE const V* vectors(const lanes::FloatOf<V>* tile, int position) {
  return reinterpret_cast<const V*>(tile + position * kCount<V>);
}

/// The places of pieces from position 0 on: row r of piece j is that of transform kSquare j + r.
template <class V, class Pointer>
struct RowsOfAll {
  Pointer* first;
  std::ptrdiff_t dist;

  explicit RowsOfAll(const Array<Pointer>& array) : first(array.first), dist(array.dist) {}
  HALDGEN_INLINE Pointer* place(int j, int r, int p) const {
    return first + (kSquare<V> * j + r) * dist + p;
  }
};

/// The same for fewer transforms than lanes: the rest have the row `other`.
template <class V, class Pointer>
struct RowsOfSome {
  Pointer* row[kCount<V>];

  RowsOfSome(const Array<Pointer>& array, int valid, Pointer* other) {
    for (int l = 0; l < kCount<V>; ++l) row[l] = l < valid ? array.from(l).first : other;
  }
  HALDGEN_INLINE Pointer* place(int j, int r, int p) const { return row[kSquare<V> * j + r] + p; }
};

/// A square of each piece, the vectors of as many positions from p on. Straight-line, since
/// compilers would keep vectors that loops index in memory.
template <class V, class Rows, int... r>
HALDGEN_INLINE void load_square(lanes::FloatOf<V>* tile, const Rows& rows, int p,
                                std::integer_sequence<int, r...> /*rows of a piece*/) {
  constexpr int kBytes = sizeof...(r) * sizeof(lanes::FloatOf<V>);
  V square[] = {
      lanes::load_pieces<kBytes, V>([&](int piece) { return rows.place(piece, r, p); })...};
  lanes::transpose_pieces(square);
  ((vectors<V>(tile, p)[r] = square[r]), ...);
}
template <class V, class Rows, int... r>
HALDGEN_INLINE void store_square(const Rows& rows, const lanes::FloatOf<V>* tile, int p,
                                 std::integer_sequence<int, r...> /*rows of a piece*/) {
  constexpr int kBytes = sizeof...(r) * sizeof(lanes::FloatOf<V>);
  V square[] = {vectors<V>(tile, p)[r]...};
  lanes::transpose_pieces(square);
  (lanes::store_pieces<kBytes, V>(square[r], [&](int piece) { return rows.place(piece, r, p); }),
   ...);
}

/// Calls move(p) for squares that cover all positions; the last two may overlap.
template <class V, class Move>
HALDGEN_INLINE void each_square(int positions, const Move& move) {
  constexpr int kSide = kSquare<V>;
  int p = 0;
  for (; p + kSide <= positions; p += kSide) move(p);
  if (p < positions) move(positions - kSide);
}

/// Places are found here: what is copied in words and read in vectors waits for the stores.
template <class V, template <class, class> class Rows, class Float, class... Arguments>
void load_squares(Float* tile, int positions, const Arguments&... arguments) {
  const Rows<V, const Float> rows(arguments...);
  each_square<V>(positions, [&](int p) HALDGEN_INLINE_BODY {
    load_square<V>(tile, rows, p, std::make_integer_sequence<int, kSquare<V>>());
  });
}
template <class V, template <class, class> class Rows, class Float, class... Arguments>
void store_squares(const Float* tile, int positions, const Arguments&... arguments) {
  const Rows<V, Float> rows(arguments...);
  each_square<V>(positions, [&](int p) HALDGEN_INLINE_BODY {
    store_square<V>(rows, tile, p, std::make_integer_sequence<int, kSquare<V>>());
  });
}
template <class V, class Float>
void load_rows(Float* tile, const Array<const Float>& from, int positions, int valid) {
  if (valid == kCount<V>) return load_squares<V, RowsOfAll>(tile, positions, from);
  load_squares<V, RowsOfSome>(tile, positions, from, valid, from.first);
}
template <class V, class Float>
void store_rows(const Array<Float>& to, const Float* tile, int positions, int valid) {
  if (valid == kCount<V>) return store_squares<V, RowsOfAll>(tile, positions, to);
  Float unused[kTileFloats];
  Float* const other = unused;
  store_squares<V, RowsOfSome>(tile, positions, to, valid, other);
}

template <class V, class Float>
void load_columns(Float* tile, const Array<const Float>& from, int elements) {
  for (int e = 0; e < elements; ++e) {
    const Float* const place = from.first + e * from.step;
    const V a = lanes::load_wide<V>(place);
    if (from.parts == 1) {
      *vectors<V>(tile, e) = a;
      continue;
    }
    const V b = lanes::load_wide<V>(place + kCount<V>);
    vectors<V>(tile, 2 * e)[0] = lanes::every_second<0>(a, b);
    vectors<V>(tile, 2 * e)[1] = lanes::every_second<1>(a, b);
  }
}
template <class V, class Float>
void store_columns(const Array<Float>& to, const Float* tile, int elements) {
  for (int e = 0; e < elements; ++e) {
    Float* const place = to.first + e * to.step;
    if (to.parts == 1) {
      lanes::store_wide<V>(place, *vectors<V>(tile, e));
      continue;
    }
    const V re = vectors<V>(tile, 2 * e)[0];
    const V im = vectors<V>(tile, 2 * e)[1];
    lanes::store_wide<V>(place, lanes::in_turns<0>(re, im));
    lanes::store_wide<V>(place + kCount<V>, lanes::in_turns<1>(re, im));
  }
}

/// Calls move(p, t) for all floats of so many transforms, neighbours one after another.
template <class Float, class Move>
HALDGEN_INLINE void each_float(const Array<Float>& array, int positions, int transforms,
                               const Move& move) {
  if (array.is_column()) {
    for (int p = 0; p < positions; ++p) {
      for (int t = 0; t < transforms; ++t) move(p, t);
    }
    return;
  }
  for (int t = 0; t < transforms; ++t) {
    for (int p = 0; p < positions; ++p) move(p, t);
  }
}

/// Any array, float by float, to or from a buffer: position p of transform t lies p * step + t *
/// dist from its start.
template <class Float>
void gather(Float* buffer, const Array<const Float>& from, int positions, int transforms, int step,
            int dist) {
  each_float(from, positions, transforms, [&](int p, int t) {
    buffer[p * step + t * dist] = scalar::load(from.first + from.place(p, t));
  });
}
template <class Float>
void scatter(const Array<Float>& to, const Float* buffer, int positions, int transforms, int step,
             int dist) {
  each_float(to, positions, transforms, [&](int p, int t) {
    scalar::store(to.first + to.place(p, t), buffer[p * step + t * dist]);
  });
}

/// The first `valid` transforms of an array, of so many floats each. Lanes without one hold zeros
/// or another's.
template <class V, class Float>
void load_tile(Float* tile, const Array<const Float>& from, int positions, int valid) {
  const bool all = valid == kCount<V>;
  if (from.is_column() && all) return load_columns<V>(tile, from, positions / from.parts);
  if (from.is_row() && positions >= kSquare<V>) {
    return load_rows<V>(tile, from, positions, valid);
  }
  if (!all) std::memset(tile, 0, static_cast<std::size_t>(positions) * sizeof(V));
  gather(tile, from, positions, valid, kCount<V>, 1);
}
template <class V, class Float>
void store_tile(const Array<Float>& to, const Float* tile, int positions, int valid) {
  const bool all = valid == kCount<V>;
  if (to.is_column() && all) return store_columns<V>(to, tile, positions / to.parts);
  if (to.is_row() && positions >= kSquare<V>) {
    return store_rows<V>(to, tile, positions, valid);
  }
  scatter(to, tile, positions, valid, kCount<V>, 1);
}

}  // namespace haldgen::batch
