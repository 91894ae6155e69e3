// The functions around generated bodies: where each vector of a body lies. A body is a type with
//   Float, kLength
//   run<V>(io, scale)   one group, in vectors of type V
#pragma once

#include "batch/kernels.h"
#include "lanes/wide.h"

namespace haldgen::batch {

template <class Float, Width kWidth = Width::whole>
using Vector = lanes::WideVector<Float, kBytes<kWidth>>;

/// Values of a half spectrum as the three formats have them, or as bins, both parts of each side by
/// side.
enum class Side { plain, half_spectrum, bins };

template <class Body, Width kWidth, bool kInMemory, Side kSrc, Side kDst>
struct RealIo {
  using Float = typename Body::Float;
  using V = Vector<Float, kWidth>;
  static constexpr int kPart = kLanes<Float, kWidth>;
  Values<const Float> src;
  Values<Float> dst;

  template <int k, Side kSide, class Pointer>
  HALDGEN_INLINE static Pointer* place(const Values<Pointer>& values) {
    if constexpr (kSide == Side::half_spectrum && k == 0) return values.first;
    if constexpr (kSide == Side::half_spectrum && k == Body::kLength - 1 &&
                  Body::kLength % 2 == 0) {
      return values.last;
    }
    return values.middle + k * (kInMemory ? values.step : kPart);
  }

  /// The bin of value k.
  template <int k, class Pointer>
  HALDGEN_INLINE static Pointer* bin(const Values<Pointer>& values) {
    return values.first + (k + 1) / 2 * values.step;
  }

  template <int k>
  HALDGEN_INLINE V load() const {
    if constexpr (kSrc == Side::bins) {
      const Float* const from = bin<k>(src);
      constexpr int part = k == 0 ? 0 : 1 - k % 2;
      return lanes::every_second<part>(lanes::load_wide<V>(from),
                                       lanes::load_wide<V>(from + kPart));
    } else {
      return lanes::load_wide<V>(place<k, kSrc>(src));
    }
  }
  template <int k>
  HALDGEN_INLINE void store(V value) const {
    if constexpr (kDst == Side::bins) {
      store<k>(value, V{});
    } else {
      lanes::store_wide<V>(place<k, kDst>(dst), value);
    }
  }
  /// Values k and k + 1, a bin.
  template <int k>
  HALDGEN_INLINE void store(V re, V im) const {
    if constexpr (kDst == Side::bins) {
      lanes::store_wide<V>(bin<k>(dst), lanes::in_turns<0>(re, im));
      lanes::store_wide<V>(bin<k>(dst) + kPart, lanes::in_turns<1>(re, im));
    } else {
      store<k>(re);
      store<k + 1>(im);
    }
  }

  template <Side kSide, class Pointer>
  HALDGEN_INLINE static void advance(Values<Pointer>& values) {
    const int floats = kSide == Side::bins ? 2 * kPart : kPart;
    values.first += floats;
    values.middle += floats;
    values.last += floats;
  }
};

template <class Body, Width kWidth, bool kInMemory, Side kSrc, Side kDst>
void run_real(const RealRun<typename Body::Float>& run) {
  using Float = typename Body::Float;
  using Io = RealIo<Body, kWidth, kInMemory, kSrc, kDst>;
  // Word by word, as it was written: wider copies would wait for the stores.
  Io io{{run.src.first, run.src.middle, run.src.last, run.src.step},
        {run.dst.first, run.dst.middle, run.dst.last, run.dst.step}};
  const Float scale = run.scale;
  for (std::ptrdiff_t group = run.groups; group > 0; --group) {
    Body::template run<Vector<Float, kWidth>>(io, scale);
    Io::template advance<kSrc>(io.src);
    Io::template advance<kDst>(io.dst);
  }
}

/// Long programs in 64 bits have no kernel in the shortest vectors: of two lanes each, it would be
/// twice the code of the single function for little gain.
template <class Body, Width kWidth, Reach kReach, Side kSrc, Side kDst>
constexpr RealKernel<typename Body::Float> real_kernel() {
  constexpr bool kInMemory = kReach != Reach::tiles;
  if constexpr (kWidth == Width::half && !kInMemory && kVectorBytes == 16) {
    return {nullptr, kWidth, kInMemory};
  } else {
    RealKernel<typename Body::Float> kernel{run_real<Body, kWidth, kInMemory, kSrc, kDst>, kWidth,
                                            kInMemory};
    if constexpr (kReach == Reach::bins) {
      constexpr auto as_bins = [](Side side) {
        return side == Side::half_spectrum ? Side::bins : side;
      };
      kernel.bins = run_real<Body, kWidth, kInMemory, as_bins(kSrc), as_bins(kDst)>;
    }
    return kernel;
  }
}

template <class Float>
struct TileIo {
  using V = Vector<Float>;
  const Float* src[2];
  Float* dst[2];

  template <int element, int part>
  HALDGEN_INLINE V load() const {
    return *reinterpret_cast<const V*>(src[part] + 2 * element * kLanes<Float>);
  }
  template <int element>
  HALDGEN_INLINE void store(V re, V im) const {
    *reinterpret_cast<V*>(dst[0] + 2 * element * kLanes<Float>) = re;
    *reinterpret_cast<V*>(dst[1] + 2 * element * kLanes<Float>) = im;
  }
};

template <class Body>
void run_tile(const TileRun<typename Body::Float>& run) {
  using Float = typename Body::Float;
  const TileIo<Float> io{{run.src_re, run.src_im}, {run.dst_re, run.dst_im}};
  Body::template run<Vector<Float>>(io, run.scale);
}

/// Which lane a transform has matters to nobody, so both shuffles stay inside of blocks.
template <class Float, bool kExchanged>
struct ColumnsIo {
  using V = Vector<Float>;
  const Float* src;
  std::ptrdiff_t src_step;
  Float* dst;
  std::ptrdiff_t dst_step;

  template <int element, int part>
  HALDGEN_INLINE V load() const {
    const Float* const from = src + element * src_step;
    constexpr int kPart = kExchanged ? 1 - part : part;
    return lanes::every_second_of_blocks<kPart>(lanes::load_wide<V>(from),
                                                lanes::load_wide<V>(from + kLanes<Float>));
  }
  template <int element>
  HALDGEN_INLINE void store(V re, V im) const {
    Float* const to = dst + element * dst_step;
    if constexpr (kExchanged) std::swap(re, im);
    lanes::store_wide<V>(to, lanes::in_turns_of_blocks<0>(re, im));
    lanes::store_wide<V>(to + kLanes<Float>, lanes::in_turns_of_blocks<1>(re, im));
  }
};

template <class Body, bool kExchanged>
void run_columns(const ColumnsRun<typename Body::Float>& run) {
  using Float = typename Body::Float;
  ColumnsIo<Float, kExchanged> io{run.src, run.src_step, run.dst, run.dst_step};
  const Float scale = run.scale;
  for (std::ptrdiff_t group = run.groups; group > 0; --group) {
    Body::template run<Vector<Float>>(io, scale);
    io.src += 2 * kLanes<Float>;
    io.dst += 2 * kLanes<Float>;
  }
}

/// Rows as blocks of 128 bits, each of one transform: the places of that of block j are
/// `src_row[j]` and `dst_row[j]` behind those of block 0.
template <class FloatType>
struct RowsIo {
  using Float = FloatType;
  using V = Vector<Float>;
  static constexpr int kBlocks = kVectorBytes / 16;
  const Float* src;
  Float* dst;
  std::ptrdiff_t src_row[4];
  std::ptrdiff_t dst_row[4];

  HALDGEN_INLINE auto from(int k) const {
    return [this, k](int j) { return src + src_row[j] + k; };
  }
  HALDGEN_INLINE auto to(int k) const {
    return [this, k](int j) { return dst + dst_row[j] + k; };
  }

  HALDGEN_INLINE V load(int k) const { return lanes::load_blocks<V>(from(k)); }
  HALDGEN_INLINE V load_pair(int lower, int upper) const {
    return lanes::load_half_blocks<V>(from(lower), from(upper));
  }
  HALDGEN_INLINE V load_single(int k) const { return lanes::load_lower_half_blocks<V>(from(k)); }
  HALDGEN_INLINE void store(int k, V v) const { lanes::store_blocks(v, to(k)); }
  template <int kHalf>
  HALDGEN_INLINE void store_half(int k, V v) const {
    lanes::store_half_blocks<kHalf>(v, to(k));
  }
  HALDGEN_INLINE void store_pair(int lower, int upper, V v) const {
    store_half<0>(lower, v);
    store_half<1>(upper, v);
  }

  /// Blocks without a row have the last one's, and store the same.
  HALDGEN_INLINE void set_rows(std::ptrdiff_t count, std::ptrdiff_t src_dist,
                               std::ptrdiff_t dst_dist) {
    for (std::ptrdiff_t j = 0; j < 4; ++j) {
      const std::ptrdiff_t row = j < count ? j : count - 1;
      src_row[j] = row * src_dist;
      dst_row[j] = row * dst_dist;
    }
  }
};

template <class Body>
void run_rows(const RowsRun<typename Body::Float>& run) {
  using Float = typename Body::Float;
  constexpr int kBlocks = RowsIo<Float>::kBlocks;
  const std::ptrdiff_t src_dist = run.src_dist;
  const std::ptrdiff_t dst_dist = run.dst_dist;
  const Float scale = run.scale;
  RowsIo<Float> io{run.src, run.dst, {}, {}};
  io.set_rows(kBlocks, src_dist, dst_dist);
  for (std::ptrdiff_t left = run.count; left > 0; left -= kBlocks) {
    if (left < kBlocks) io.set_rows(left, src_dist, dst_dist);
    Body::template run<Vector<Float>>(io, scale);
    io.src += kBlocks * src_dist;
    io.dst += kBlocks * dst_dist;
  }
}

// The kernels of one direction; exchanged if the body in lanes is the other one's.

template <class Body, bool kExchanged, class Blocks>
constexpr ComplexKernels<typename Body::Float> rows_and_columns() {
  return {.rows = run_rows<Blocks>, .columns = run_columns<Body, kExchanged>};
}
template <class Body, bool kExchanged>
constexpr ComplexKernels<typename Body::Float> tile_and_columns() {
  return {.tile = run_tile<Body>,
          .tile_exchanged = kExchanged,
          .columns = run_columns<Body, kExchanged>};
}
template <class Body, bool kExchanged>
constexpr ComplexKernels<typename Body::Float> tile_only() {
  return {.tile = run_tile<Body>, .tile_exchanged = kExchanged};
}

}  // namespace haldgen::batch
