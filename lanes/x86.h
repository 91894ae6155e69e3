// The instructions of vectors.h on x86 processors with SSSE3: the only header with intrinsics.
#pragma once

#include <tmmintrin.h>

namespace haldgen::lanes {

using Float4 = __m128;
using Double2 = __m128d;

inline __m128d broadcast(double value) { return _mm_set1_pd(value); }
inline __m128 broadcast(float value) { return _mm_set1_ps(value); }

/// a - b in even lanes, a + b in odd ones.
inline __m128d alternate(__m128d a, __m128d b) { return _mm_addsub_pd(a, b); }
inline __m128 alternate(__m128 a, __m128 b) { return _mm_addsub_ps(a, b); }

/// Negates the lanes in which `signs` holds -0.
inline __m128d change_sign(__m128d a, __m128d signs) { return _mm_xor_pd(a, signs); }
inline __m128 change_sign(__m128 a, __m128 signs) { return _mm_xor_ps(a, signs); }

/// Real and imaginary part of each element exchanged. The integer shuffle leaves its operand alone,
/// which saves a copy wherever the plain value is needed too.
inline __m128d exchange(__m128d a) {
  return _mm_castsi128_pd(_mm_shuffle_epi32(_mm_castpd_si128(a), 0x4E));
}
inline __m128 exchange(__m128 a) {
  return _mm_castsi128_ps(_mm_shuffle_epi32(_mm_castps_si128(a), 0xB1));
}

/// Element `HalfA` of a below element `HalfB` of b, parts exchanged where Cross is 1.
template <int HalfA, int HalfB, int CrossA, int CrossB>
inline __m128 gather(__m128 a, __m128 b) {
  if constexpr (HalfA == 0 && HalfB == 0 && CrossA == 0 && CrossB == 0) {
    return _mm_movelh_ps(a, b);
  } else if constexpr (HalfA == 1 && HalfB == 1 && CrossA == 0 && CrossB == 0) {
    return _mm_movehl_ps(b, a);
  } else {
    constexpr int kFirst = 2 * HalfA + CrossA;
    constexpr int kSecond = 2 * HalfB + CrossB;
    return _mm_shuffle_ps(a, b, kFirst | (kFirst ^ 1) << 2 | kSecond << 4 | (kSecond ^ 1) << 6);
  }
}

/// Lanes of the lower, or of the upper, halves of a and b in turns.
inline __m128d interleave_lower(__m128d a, __m128d b) { return _mm_unpacklo_pd(a, b); }
inline __m128 interleave_lower(__m128 a, __m128 b) { return _mm_unpacklo_ps(a, b); }
inline __m128d interleave_upper(__m128d a, __m128d b) { return _mm_unpackhi_pd(a, b); }
inline __m128 interleave_upper(__m128 a, __m128 b) { return _mm_unpackhi_ps(a, b); }

/// The first two lanes in 64 bits, and two lanes narrowed, below zeros.
inline __m128d widened_pair(__m128 a) { return _mm_cvtps_pd(a); }
inline __m128 narrowed_pair(__m128d a) { return _mm_cvtpd_ps(a); }

/// All lanes in the opposite order.
inline __m128d reversed(__m128d a) { return exchange(a); }
inline __m128 reversed(__m128 a) {
  return _mm_castsi128_ps(_mm_shuffle_epi32(_mm_castps_si128(a), 0x1B));
}

// Copied, since a float's address need not do for a double.
inline __m128 load_single(const float* from) {
  double element;
  __builtin_memcpy(&element, from, sizeof element);
  return _mm_castpd_ps(_mm_set_sd(element));
}
inline __m128 load_pair(const float* lower, const float* upper) {
  return _mm_loadh_pi(load_single(lower), reinterpret_cast<const __m64*>(upper));
}
inline void store_single(float* to, __m128 a) { _mm_storel_pi(reinterpret_cast<__m64*>(to), a); }
inline void store_upper(float* to, __m128 a) { _mm_storeh_pi(reinterpret_cast<__m64*>(to), a); }

/// Whole vectors at addresses that are multiples of 16.
struct Aligned {
  static __m128d load(const double* from) { return _mm_load_pd(from); }
  static void store(double* to, __m128d a) { _mm_store_pd(to, a); }
  static __m128 load(const float* from) { return _mm_load_ps(from); }
  static void store(float* to, __m128 a) { _mm_store_ps(to, a); }
};

/// Whole vectors anywhere, at once.
struct Anywhere {
  static __m128d load(const double* from) { return _mm_loadu_pd(from); }
  static void store(double* to, __m128d a) { _mm_storeu_pd(to, a); }
  static __m128 load(const float* from) { return _mm_loadu_ps(from); }
  static void store(float* to, __m128 a) { _mm_storeu_ps(to, a); }
};

/// Whole vectors anywhere: those of doubles by their halves, those of floats at once.
struct ByHalves {
  static __m128d load(const double* from) { return _mm_loadh_pd(_mm_load_sd(from), from + 1); }
  static void store(double* to, __m128d a) {
    _mm_storel_pd(to, a);
    _mm_storeh_pd(to + 1, a);
  }
  static __m128 load(const float* from) { return _mm_loadu_ps(from); }
  static void store(float* to, __m128 a) { _mm_storeu_ps(to, a); }
};

}  // namespace haldgen::lanes
