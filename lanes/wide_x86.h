// Blocks and conversions of wide.h for g++ on x86 processors, which makes more instructions of
// shuffles to another width and converts vectors by their elements. Its built-in functions, since
// the header of intrinsics takes longer to read than a kernel to compile.
#pragma once

#include "lanes/alternate_x86.h"
#include "lanes/wide.h"

namespace haldgen::lanes {

using BuiltinF4 [[gnu::vector_size(16)]] = float;
using BuiltinD2 [[gnu::vector_size(16)]] = double;

inline WideVector<double, 16> first_doubles(WideVector<float, 16> v) {
  return __builtin_ia32_cvtps2pd(v);
}
template <int kHalf>
HALDGEN_INLINE WideVector<double, 16> widened_half(WideVector<float, 16> v) {
  if constexpr (kHalf == 0) return first_doubles(v);
  return first_doubles(__builtin_shufflevector(v, v, 2, 3, 2, 3));
}
HALDGEN_INLINE WideVector<float, 16> narrowed(WideVector<double, 16> low,
                                              WideVector<double, 16> high) {
  const BuiltinF4 a = __builtin_ia32_cvtpd2ps(low);
  const BuiltinF4 b = __builtin_ia32_cvtpd2ps(high);
  return __builtin_shufflevector(a, b, 0, 1, 4, 5);
}

template <int kBlock>
HALDGEN_INLINE WideVector<float, 16> block_of(WideVector<float, 16> v) {
  return v;
}
template <int kBlock>
HALDGEN_INLINE WideVector<double, 16> block_of(WideVector<double, 16> v) {
  return v;
}

#ifdef __AVX__
template <int kBlock>
HALDGEN_INLINE WideVector<float, 16> block_of(WideVector<float, 32> v) {
  return __builtin_ia32_vextractf128_ps256(v, kBlock);
}
template <int kBlock>
HALDGEN_INLINE WideVector<double, 16> block_of(WideVector<double, 32> v) {
  return __builtin_ia32_vextractf128_pd256(v, kBlock);
}
HALDGEN_INLINE WideVector<float, 32> joined_blocks(WideVector<float, 16> a,
                                                   WideVector<float, 16> b) {
  return __builtin_ia32_vinsertf128_ps256(__builtin_ia32_ps256_ps(a), b, 1);
}
HALDGEN_INLINE WideVector<double, 32> joined_blocks(WideVector<double, 16> a,
                                                    WideVector<double, 16> b) {
  return __builtin_ia32_vinsertf128_pd256(__builtin_ia32_pd256_pd(a), b, 1);
}
/// The first block of a vector whose second one may hold anything.
HALDGEN_INLINE WideVector<float, 32> below_anything(WideVector<float, 16> v) {
  return __builtin_ia32_ps256_ps(v);
}
HALDGEN_INLINE WideVector<double, 32> below_anything(WideVector<double, 16> v) {
  return __builtin_ia32_pd256_pd(v);
}
HALDGEN_INLINE WideVector<double, 32> widened(WideVector<float, 16> v) {
  return __builtin_ia32_cvtps2pd256(v);
}
HALDGEN_INLINE WideVector<float, 16> narrowed(WideVector<double, 32> v) {
  return __builtin_ia32_cvtpd2ps256(v);
}
template <int kHalf>
HALDGEN_INLINE WideVector<double, 32> widened_half(WideVector<float, 32> v) {
  constexpr int k = 4 * kHalf;
  return widened(__builtin_shufflevector(v, v, k, k + 1, k + 2, k + 3));
}
HALDGEN_INLINE WideVector<float, 32> narrowed(WideVector<double, 32> low,
                                              WideVector<double, 32> high) {
  return joined_blocks(narrowed(low), narrowed(high));
}
#endif

#ifdef __AVX512DQ__
template <int kBlock>
HALDGEN_INLINE WideVector<float, 16> block_of(WideVector<float, 64> v) {
  return __builtin_ia32_extractf32x4_mask(v, kBlock, WideVector<float, 16>{}, -1);
}
template <int kBlock>
HALDGEN_INLINE WideVector<double, 16> block_of(WideVector<double, 64> v) {
  return __builtin_ia32_extractf64x2_512_mask(v, kBlock, WideVector<double, 16>{}, -1);
}
template <int kHalf>
HALDGEN_INLINE WideVector<float, 32> half_of(WideVector<float, 64> v) {
  return __builtin_ia32_extractf32x8_mask(v, kHalf, WideVector<float, 32>{}, -1);
}
template <int kHalf>
HALDGEN_INLINE WideVector<double, 32> half_of(WideVector<double, 64> v) {
  return __builtin_ia32_extractf64x4_mask(v, kHalf, WideVector<double, 32>{}, -1);
}
HALDGEN_INLINE WideVector<float, 64> joined_halves(WideVector<float, 32> a,
                                                   WideVector<float, 32> b) {
  const WideVector<float, 64> low = __builtin_ia32_ps512_256ps(a);
  return __builtin_ia32_insertf32x8_mask(low, b, 1, low, -1);
}
HALDGEN_INLINE WideVector<double, 64> joined_halves(WideVector<double, 32> a,
                                                    WideVector<double, 32> b) {
  const WideVector<double, 64> low = __builtin_ia32_pd512_256pd(a);
  return __builtin_ia32_insertf64x4_mask(low, b, 1, low, -1);
}
HALDGEN_INLINE WideVector<float, 64> joined_blocks(WideVector<float, 16> a, WideVector<float, 16> b,
                                                   WideVector<float, 16> c,
                                                   WideVector<float, 16> d) {
  return joined_halves(joined_blocks(a, b), joined_blocks(c, d));
}
HALDGEN_INLINE WideVector<double, 64> joined_blocks(WideVector<double, 16> a,
                                                    WideVector<double, 16> b,
                                                    WideVector<double, 16> c,
                                                    WideVector<double, 16> d) {
  return joined_halves(joined_blocks(a, b), joined_blocks(c, d));
}
HALDGEN_INLINE WideVector<double, 64> widened(WideVector<float, 32> v) {
  return __builtin_ia32_cvtps2pd512_mask(v, WideVector<double, 64>{}, -1, kCurrentRounding);
}
HALDGEN_INLINE WideVector<float, 32> narrowed(WideVector<double, 64> v) {
  return __builtin_ia32_cvtpd2ps512_mask(v, WideVector<float, 32>{}, -1, kCurrentRounding);
}
template <int kHalf>
HALDGEN_INLINE WideVector<double, 64> widened_half(WideVector<float, 64> v) {
  constexpr int k = 8 * kHalf;
  return widened(__builtin_shufflevector(v, v, k, k + 1, k + 2, k + 3, k + 4, k + 5, k + 6, k + 7));
}
HALDGEN_INLINE WideVector<float, 64> narrowed(WideVector<double, 64> low,
                                              WideVector<double, 64> high) {
  return joined_halves(narrowed(low), narrowed(high));
}
#endif

}  // namespace haldgen::lanes
