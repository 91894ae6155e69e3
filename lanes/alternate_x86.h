// The sums of wide.h and paired.h with signs of their own in each lane, for which x86 processors
// have instructions.
#pragma once

#include "lanes/wide.h"

namespace haldgen::lanes {

/// Whether there is one for vectors of this type.
template <class V>
#if defined(__AVX512F__)
inline constexpr bool has_alternate = true;
#elif defined(__AVX__)
inline constexpr bool has_alternate = sizeof(V) <= 32;
#elif defined(__SSE3__)
inline constexpr bool has_alternate = sizeof(V) == 16;
#else
inline constexpr bool has_alternate = false;
#endif

#ifdef __SSE3__
HALDGEN_INLINE WideVector<float, 16> alternate_x86(WideVector<float, 16> a,
                                                   WideVector<float, 16> b) {
  return __builtin_ia32_addsubps(a, b);
}
HALDGEN_INLINE WideVector<double, 16> alternate_x86(WideVector<double, 16> a,
                                                    WideVector<double, 16> b) {
  return __builtin_ia32_addsubpd(a, b);
}
#endif
#ifdef __AVX__
HALDGEN_INLINE WideVector<float, 32> alternate_x86(WideVector<float, 32> a,
                                                   WideVector<float, 32> b) {
  return __builtin_ia32_addsubps256(a, b);
}
HALDGEN_INLINE WideVector<double, 32> alternate_x86(WideVector<double, 32> a,
                                                    WideVector<double, 32> b) {
  return __builtin_ia32_addsubpd256(a, b);
}
#endif
#ifdef __AVX512F__
/// Instructions of 512 bits are told how to round: as the processor is set.
inline constexpr int kCurrentRounding = 4;
/// Masks as the compiler's built-in functions take them.
#ifdef __clang__
using Mask16 = unsigned short;
using Mask8 = unsigned char;
#else
using Mask16 = short;
using Mask8 = char;
#endif
// Of 512 bits there is one that multiplies before: by one, which is exact.
HALDGEN_INLINE WideVector<float, 64> alternate_x86(WideVector<float, 64> a,
                                                   WideVector<float, 64> b) {
  return __builtin_ia32_vfmaddsubps512_mask(a, splat<WideVector<float, 64>>(1), b, Mask16(-1),
                                            kCurrentRounding);
}
HALDGEN_INLINE WideVector<double, 64> alternate_x86(WideVector<double, 64> a,
                                                    WideVector<double, 64> b) {
  return __builtin_ia32_vfmaddsubpd512_mask(a, splat<WideVector<double, 64>>(1), b, Mask8(-1),
                                            kCurrentRounding);
}
#endif

#ifdef __FMA__
/// a + b c, rounded once.
HALDGEN_INLINE WideVector<float, 16> add_product_x86(WideVector<float, 16> a,
                                                     WideVector<float, 16> b,
                                                     WideVector<float, 16> c) {
  return __builtin_ia32_vfmaddps(b, c, a);
}
HALDGEN_INLINE WideVector<double, 16> add_product_x86(WideVector<double, 16> a,
                                                      WideVector<double, 16> b,
                                                      WideVector<double, 16> c) {
  return __builtin_ia32_vfmaddpd(b, c, a);
}
HALDGEN_INLINE WideVector<float, 32> add_product_x86(WideVector<float, 32> a,
                                                     WideVector<float, 32> b,
                                                     WideVector<float, 32> c) {
  return __builtin_ia32_vfmaddps256(b, c, a);
}
HALDGEN_INLINE WideVector<double, 32> add_product_x86(WideVector<double, 32> a,
                                                      WideVector<double, 32> b,
                                                      WideVector<double, 32> c) {
  return __builtin_ia32_vfmaddpd256(b, c, a);
}

// The other way round: sums in even lanes, differences in odd ones. There are only instructions
// that multiply before: by one, which is exact.
HALDGEN_INLINE WideVector<float, 32> sums_and_differences_x86(WideVector<float, 32> a,
                                                              WideVector<float, 32> b) {
  return __builtin_ia32_vfmaddsubps256(a, splat<WideVector<float, 32>>(1), -b);
}
HALDGEN_INLINE WideVector<double, 32> sums_and_differences_x86(WideVector<double, 32> a,
                                                               WideVector<double, 32> b) {
  return __builtin_ia32_vfmaddsubpd256(a, splat<WideVector<double, 32>>(1), -b);
}
#endif
#ifdef __AVX512F__
HALDGEN_INLINE WideVector<float, 64> sums_and_differences_x86(WideVector<float, 64> a,
                                                              WideVector<float, 64> b) {
  return alternate_x86(a, -b);
}
HALDGEN_INLINE WideVector<double, 64> sums_and_differences_x86(WideVector<double, 64> a,
                                                               WideVector<double, 64> b) {
  return alternate_x86(a, -b);
}
#endif

}  // namespace haldgen::lanes
