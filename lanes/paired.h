// The words of code that is written in vectors of 128 and 256 bits, beside those of wide.h: arrays
// of complex elements, blocks of the wider vectors.
#pragma once

#include "lanes/wide.h"

namespace haldgen::lanes {

/// Two elements of 32-bit parts, one after the other in a vector; or one, with zeros above.
template <class V>
HALDGEN_INLINE V load_halves(const float* lower, const float* upper) {
  return load_half_blocks<V>([&](int) { return lower; }, [&](int) { return upper; });
}
template <class V>
HALDGEN_INLINE V load_half(const float* from) {
  return load_lower_half_blocks<V>([&](int) { return from; });
}
template <int kHalf, class V>
HALDGEN_INLINE void store_half(float* to, V v) {
  store_half_blocks<kHalf>(v, [&](int) { return to; });
}
template <class V>
HALDGEN_INLINE void store_halves(float* lower, float* upper, V v) {
  store_half<0>(lower, v);
  store_half<1>(upper, v);
}

/// Block kA of a below block kB of b.
template <int kA, int kB, int kLanes>
struct MergedBlocks {
  static constexpr int of(int i) {
    constexpr int kBlock = kLanes / 2;
    return i < kBlock ? i + kA * kBlock : i + kB * kBlock + kBlock;
  }
};
template <int kA, int kB, class W>
HALDGEN_INLINE W merged_blocks(W a, W b) {
  if constexpr (kA == 0 && kB == 0) {
    return joined_blocks(block_of<0>(a), block_of<0>(b));
  } else {
    return shuffled<MergedBlocks<kA, kB, WideTraits<W>::kLanes>>(a, b);
  }
}
/// The same where one vector is one block only, whatever lies above it.
#define HALDGEN_MERGED_WITH_BLOCK(Float)                                        \
  template <int kA, int kB>                                                     \
  HALDGEN_INLINE WideVector<Float, 32> merged_blocks(WideVector<Float, 16> a,   \
                                                     WideVector<Float, 32> b) { \
    return merged_blocks<0, kB>(below_anything(a), b);                          \
  }                                                                             \
  template <int kA, int kB>                                                     \
  HALDGEN_INLINE WideVector<Float, 32> merged_blocks(WideVector<Float, 32> a,   \
                                                     WideVector<Float, 16> b) { \
    return merged_blocks<kA, 0>(a, below_anything(b));                          \
  }
HALDGEN_MERGED_WITH_BLOCK(float)
HALDGEN_MERGED_WITH_BLOCK(double)
#undef HALDGEN_MERGED_WITH_BLOCK

/// a + b where a lane of `signs` is 1, a - b where it is -1: products by these are exact, so that
/// the sum is the only rounding.
template <class V>
HALDGEN_INLINE V add_signed(V a, V b, V signs) {
#if defined(__FMA__)
  return add_product_x86(a, b, signs);
#else
  return a + signs * b;
#endif
}

}  // namespace haldgen::lanes
