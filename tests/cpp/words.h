// What tests of the C++ headers share: all transforms, each as C and as C++ knows it.
#pragma once

#include <gtest/gtest.h>

#include <cstring>
#include <haldgen.hpp>
#include <random>
#include <vector>

namespace haldgen::test {

inline constexpr scale kScales[] = {scale::forward_by_n, scale::inverse_by_n, scale::by_sqrt_n,
                                    scale::none};
inline constexpr std::size_t kFirst = 2, kLast = 64;

inline std::int32_t flag(scale s) { return static_cast<std::int32_t>(s); }

/// Numbers in [-1, 1).
template <class T>
std::vector<T> noise(std::size_t size) {
  static std::mt19937 bits;
  std::vector<T> numbers(size);
  for (T& x : numbers) x = static_cast<T>(static_cast<std::int32_t>(bits())) / T(0x1p31);
  return numbers;
}

/// Whether two arrays have the same bits.
bool same(const auto& found, const auto& expected) {
  static_assert(sizeof found[0] == sizeof expected[0]);
  return std::size(found) == std::size(expected) &&
         std::memcmp(std::data(found), std::data(expected), sizeof found[0] * std::size(found)) ==
             0;
}

template <class T>
constexpr auto of_type(auto float_function, auto double_function) {
  if constexpr (std::is_same_v<T, float>) {
    return float_function;
  } else {
    return double_function;
  }
}

/// Elements of a block of Element whose transform has blocks of Other on its other side.
template <class Element, class Other>
constexpr std::size_t elements(std::size_t points) {
  return !real<Element> && real<Other> ? points / 2 + 1 : points;
}

/// Calls f<Src, Dst, function of C>(name, call, look_up) for each transform of a length: call is
/// the function of C++, on blocks or batches; look_up that of a length.
template <class T>
void for_each_word(const auto& f) {
  using Z = std::complex<T>;
  using K = kernel<T>;
#define HALDGEN_TEST_WORD(Src, Dst, C, r, call, look_up)                             \
  f.template operator()<Src, Dst, of_type<T>(&haldg##C##_32##r, &haldg##C##_64##r)>( \
      #C, [](const auto& x, auto&& X, scale s) { return call(x, X, s); },            \
      [](std::size_t n) { return look_up(n); })
  using enum packing;
  HALDGEN_TEST_WORD(Z, Z, DFTFwd_CToC, fc, dft, K::dft);
  HALDGEN_TEST_WORD(Z, Z, DFTInv_CToC, fc, inverse_dft, K::inverse_dft);
  HALDGEN_TEST_WORD(T, Z, DFTFwd_RToCCS, f, real_dft, K::real_dft);
  HALDGEN_TEST_WORD(T, T, DFTFwd_RToPack, f, real_dft<pack>, K::template real_dft<pack>);
  HALDGEN_TEST_WORD(T, T, DFTFwd_RToPerm, f, real_dft<perm>, K::template real_dft<perm>);
  HALDGEN_TEST_WORD(Z, T, DFTInv_CCSToR, f, inverse_real_dft, K::inverse_real_dft);
  HALDGEN_TEST_WORD(T, T, DFTInv_PackToR, f, inverse_real_dft<pack>,
                    K::template inverse_real_dft<pack>);
  HALDGEN_TEST_WORD(T, T, DFTInv_PermToR, f, inverse_real_dft<perm>,
                    K::template inverse_real_dft<perm>);
  HALDGEN_TEST_WORD(T, T, Hartley, f, hartley, K::hartley);
#undef HALDGEN_TEST_WORD
}

/// The C function.
template <auto function>
void call_general(const auto* x, auto* X, std::size_t length, scale s) {
  [&]<class Src, class Dst>(std::int32_t (*call)(const Src*, Dst*, std::int32_t, std::int32_t)) {
    const void* const src = x;
    void* const dst = X;
    ASSERT_EQ(call(static_cast<const Src*>(src), static_cast<Dst*>(dst),
                   static_cast<std::int32_t>(length), flag(s)),
              haldStatusOk);
  }(function);
}

}  // namespace haldgen::test
