// The vocabulary of lanes/ once more, in C, for files that stand alone: one type of vectors each,
// on x86 by intrinsics and elsewhere by the vector types of compilers, as lanes/ has it and why. On
// x86 without SSE3 its alternating sum is made of two instructions.
#pragma once

#include <string_view>

namespace haldgen::generate {

inline constexpr std::string_view scalar_words = R"(
WORD Float load(const Float* from) {
  Float value;
  memcpy(&value, from, sizeof value);
  return value;
}
WORD void store(Float* to, Float value) { memcpy(to, &value, sizeof value); }
)";

inline constexpr std::string_view vector_includes = R"(#if defined(__SSE3__)
#include <pmmintrin.h>
#elif defined(__SSE2__)
#include <emmintrin.h>
#endif
)";

inline constexpr std::string_view vector_words_32 = R"(
#if defined(__SSE2__)
typedef __m128 V;
WORD V vector(float a, float b, float c, float d) { return _mm_setr_ps(a, b, c, d); }
WORD V broadcast(float a) { return _mm_set1_ps(a); }
WORD V change_sign(V a, V signs) { return _mm_xor_ps(a, signs); }
WORD V exchange(V a) {
  return _mm_castsi128_ps(_mm_shuffle_epi32(_mm_castps_si128(a), 0xB1));
}
#define gather(half_a, half_b, cross_a, cross_b, a, b)                                      \
  ((half_a) + (half_b) + (cross_a) + (cross_b) == 0 ? _mm_movelh_ps(a, b)                   \
   : (half_a) + (half_b) == 2 && (cross_a) + (cross_b) == 0                                 \
       ? _mm_movehl_ps(b, a)                                                                \
       : _mm_shuffle_ps(a, b,                                                               \
                        (2 * (half_a) + (cross_a)) | (2 * (half_a) + 1 - (cross_a)) << 2 |  \
                            (2 * (half_b) + (cross_b)) << 4 |                               \
                            (2 * (half_b) + 1 - (cross_b)) << 6))
WORD V load(const float* from, int aligned) {
  return aligned ? _mm_load_ps(from) : _mm_loadu_ps(from);
}
WORD void store(float* to, V a, int aligned) {
  if (aligned) {
    _mm_store_ps(to, a);
  } else {
    _mm_storeu_ps(to, a);
  }
}
WORD V load_single(const float* from) {
  double element;
  memcpy(&element, from, sizeof element);
  return _mm_castpd_ps(_mm_set_sd(element));
}
WORD V load_pair(const float* lower, const float* upper) {
  return _mm_loadh_pi(load_single(lower), (const __m64*)upper);
}
WORD void store_single(float* to, V a) { _mm_storel_pi((__m64*)to, a); }
WORD void store_upper(float* to, V a) { _mm_storeh_pi((__m64*)to, a); }
#if defined(__SSE3__)
WORD V alternate(V a, V b) { return _mm_addsub_ps(a, b); }
#else
WORD V alternate(V a, V b) { return a + change_sign(b, vector(-0.0f, 0.0f, -0.0f, 0.0f)); }
#endif
#else
typedef float V __attribute__((vector_size(16), may_alias));
typedef double D __attribute__((vector_size(16), may_alias));
typedef int I __attribute__((vector_size(16)));
typedef float Anywhere __attribute__((vector_size(16), may_alias, aligned(1)));
WORD V vector(float a, float b, float c, float d) {
  const V v = {a, b, c, d};
  return v;
}
WORD V broadcast(float a) { return vector(a, a, a, a); }
WORD V change_sign(V a, V signs) { return (V)((I)a ^ (I)signs); }
WORD V exchange(V a) { return __builtin_shufflevector(a, a, 1, 0, 3, 2); }
#define HALVES(half_a, half_b, a, b) \
  ((V)__builtin_shufflevector((D)(a), (D)(b), half_a, 2 + (half_b)))
#define gather(half_a, half_b, cross_a, cross_b, a, b)                                 \
  ((cross_a) + (cross_b) == 2 ? exchange(HALVES(half_a, half_b, a, b))                 \
                              : HALVES(half_a, half_b, (cross_a) ? exchange(a) : (a),  \
                                       (cross_b) ? exchange(b) : (b)))
WORD V load(const float* from, int aligned) {
  return aligned ? *(const V*)from : *(const Anywhere*)from;
}
WORD void store(float* to, V a, int aligned) {
  if (aligned) {
    *(V*)to = a;
  } else {
    *(Anywhere*)to = a;
  }
}
WORD double two_floats(const float* from) {
  double element;
  memcpy(&element, from, sizeof element);
  return element;
}
WORD V load_pair(const float* lower, const float* upper) {
  const D v = {two_floats(lower), two_floats(upper)};
  return (V)v;
}
WORD V load_single(const float* from) {
  const D v = {two_floats(from), 0};
  return (V)v;
}
WORD void store_single(float* to, V a) {
  const double element = ((D)a)[0];
  memcpy(to, &element, sizeof element);
}
WORD void store_upper(float* to, V a) {
  const double element = ((D)a)[1];
  memcpy(to, &element, sizeof element);
}
WORD V alternate(V a, V b) { return a + change_sign(b, vector(-0.0f, 0.0f, -0.0f, 0.0f)); }
#endif
WORD void store_pair(float* lower, float* upper, V a) {
  store_single(lower, a);
  store_upper(upper, a);
}
)";

inline constexpr std::string_view vector_words_64 = R"(
#if defined(__SSE2__)
typedef __m128d V;
WORD V vector(double a, double b) { return _mm_setr_pd(a, b); }
WORD V broadcast(double a) { return _mm_set1_pd(a); }
WORD V change_sign(V a, V signs) { return _mm_xor_pd(a, signs); }
WORD V exchange(V a) {
  return _mm_castsi128_pd(_mm_shuffle_epi32(_mm_castpd_si128(a), 0x4E));
}
WORD V load(const double* from, int aligned) {
  return aligned ? _mm_load_pd(from) : _mm_loadh_pd(_mm_load_sd(from), from + 1);
}
WORD void store(double* to, V a, int aligned) {
  if (aligned) {
    _mm_store_pd(to, a);
  } else {
    _mm_storel_pd(to, a);
    _mm_storeh_pd(to + 1, a);
  }
}
#if defined(__SSE3__)
WORD V alternate(V a, V b) { return _mm_addsub_pd(a, b); }
#else
WORD V alternate(V a, V b) { return a + change_sign(b, vector(-0.0, 0.0)); }
#endif
#else
typedef double V __attribute__((vector_size(16), may_alias));
typedef long long I __attribute__((vector_size(16)));
typedef double Anywhere __attribute__((vector_size(16), may_alias, aligned(1)));
WORD V vector(double a, double b) {
  const V v = {a, b};
  return v;
}
WORD V broadcast(double a) { return vector(a, a); }
WORD V change_sign(V a, V signs) { return (V)((I)a ^ (I)signs); }
WORD V exchange(V a) { return __builtin_shufflevector(a, a, 1, 0); }
WORD V load(const double* from, int aligned) {
  return aligned ? *(const V*)from : *(const Anywhere*)from;
}
WORD void store(double* to, V a, int aligned) {
  if (aligned) {
    *(V*)to = a;
  } else {
    *(Anywhere*)to = a;
  }
}
WORD V alternate(V a, V b) { return a + change_sign(b, vector(-0.0, 0.0)); }
#endif
)";

}  // namespace haldgen::generate
