// Compiled with all the optimisation that a compiler offers, at the kernels' instruction set.
#include "bench/peers/plain_wht.h"

#include <array>
#include <cstddef>
#include <utility>

namespace haldgen::bench {
namespace {

template <class Float>
void plain(const Float* src, Float* dst, int order, Float scale) {
  const std::size_t n = std::size_t{1} << order;
  for (std::size_t i = 0; i < n; ++i) dst[i] = src[i];
  for (std::size_t half = 1; half < n; half *= 2) {
    for (std::size_t first = 0; first < n; first += 2 * half) {
      for (std::size_t i = first; i < first + half; ++i) {
        const Float a = dst[i];
        const Float b = dst[i + half];
        dst[i] = a + b;
        dst[i + half] = a - b;
      }
    }
  }
  for (std::size_t i = 0; i < n; ++i) dst[i] *= scale;
}

template <class Float, std::size_t kPoints, std::size_t kHalf>
inline void levels_from(Float* __restrict x) {
  if constexpr (kHalf < kPoints) {
    for (std::size_t first = 0; first < kPoints; first += 2 * kHalf) {
      for (std::size_t i = first; i < first + kHalf; ++i) {
        const Float a = x[i];
        const Float b = x[i + kHalf];
        x[i] = a + b;
        x[i + kHalf] = a - b;
      }
    }
    levels_from<Float, kPoints, 2 * kHalf>(x);
  }
}

template <class Float, int kOrder>
void fixed(const Float* __restrict src, Float* __restrict dst, int /*order*/, Float scale) {
  constexpr std::size_t kPoints = std::size_t{1} << kOrder;
  for (std::size_t i = 0; i < kPoints; ++i) dst[i] = src[i];
  levels_from<Float, kPoints, 1>(dst);
  for (std::size_t i = 0; i < kPoints; ++i) dst[i] *= scale;
}

template <class Float, int... kOrder>
PlainWht<Float> fixed_by_order(int order, std::integer_sequence<int, kOrder...> /*orders*/) {
  constexpr std::array<PlainWht<Float>, sizeof...(kOrder)> kByOrder = {fixed<Float, kOrder>...};
  return kByOrder.at(static_cast<std::size_t>(order));
}

}  // namespace

template <class Float>
PlainWht<Float> plain_wht() {
  return plain<Float>;
}
template <class Float>
PlainWht<Float> fixed_plain_wht(int order) {
  return fixed_by_order<Float>(order, std::make_integer_sequence<int, 14>());
}

template PlainWht<float> plain_wht<float>();
template PlainWht<double> plain_wht<double>();
template PlainWht<float> fixed_plain_wht<float>(int order);
template PlainWht<double> fixed_plain_wht<double>(int order);

}  // namespace haldgen::bench
