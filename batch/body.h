// The functions around generated bodies: where each vector of a body lies. A body is a type with
//   Float, kLength
//   run<V>(io, scale)   one group, in vectors of type V
#pragma once

#include "batch/kernels.h"
#include "lanes/wide.h"

namespace haldgen::batch {

template <class Float>
using Vector = lanes::WideVector<Float, kVectorBytes>;

enum class Side { plain, half_spectrum };

template <class Float, int kLength, Side kSrc, Side kDst>
struct RealIo {
  using V = Vector<Float>;
  Values<const Float> src;
  Values<Float> dst;

  template <int k, Side kSide, class Pointer>
  HALDGEN_INLINE static Pointer* place(const Values<Pointer>& values) {
    if constexpr (kSide == Side::half_spectrum && k == 0) return values.first;
    if constexpr (kSide == Side::half_spectrum && k == kLength - 1 && kLength % 2 == 0) {
      return values.last;
    }
    return values.middle + k * values.step;
  }

  template <int k>
  HALDGEN_INLINE V load() const {
    return lanes::load_wide<V>(place<k, kSrc>(src));
  }
  template <int k>
  HALDGEN_INLINE void store(V value) const {
    lanes::store_wide<V>(place<k, kDst>(dst), value);
  }

  template <class Pointer>
  HALDGEN_INLINE static void advance(Values<Pointer>& values) {
    values.first += kLanes<Float>;
    values.middle += kLanes<Float>;
    values.last += kLanes<Float>;
  }
};

template <class Body, Side kSrc, Side kDst>
void run_real(const RealRun<typename Body::Float>& run) {
  using Float = typename Body::Float;
  using Io = RealIo<Float, Body::kLength, kSrc, kDst>;
  Io io{run.src, run.dst};
  const Float scale = run.scale;
  for (std::ptrdiff_t group = run.groups; group > 0; --group) {
    Body::template run<Vector<Float>>(io, scale);
    Io::advance(io.src);
    Io::advance(io.dst);
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
    return lanes::every_second_of_blocks < kExchanged
               ? 1 - part
               : part > (lanes::load_wide<V>(from), lanes::load_wide<V>(from + kLanes<Float>));
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

/// The kernels of one direction; exchanged if the body is the other one's.
template <class Body, bool kExchanged>
inline constexpr ComplexKernels<typename Body::Float> kComplexKernels{
    run_tile<Body>, kExchanged, run_columns<Body, kExchanged>};

}  // namespace haldgen::batch
