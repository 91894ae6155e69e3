// Blocks and conversions of wide.h, for compilers that find their instructions.
#pragma once

#include "lanes/wide.h"

namespace haldgen::lanes {

template <class V, std::size_t... i>
HALDGEN_INLINE auto concatenated(V a, V b, std::index_sequence<i...> /*lanes*/) {
  return __builtin_shufflevector(a, b, static_cast<int>(i)...);
}
template <class V>
HALDGEN_INLINE auto joined_blocks(V a, V b) {
  constexpr std::size_t kLanes = 2 * sizeof(V) / sizeof(a[0]);
  using Result = WideVector<FloatOf<V>, 2 * sizeof(V)>;
  return static_cast<Result>(concatenated(a, b, std::make_index_sequence<kLanes>()));
}
template <class V>
HALDGEN_INLINE auto joined_blocks(V a, V b, V c, V d) {
  return joined_blocks(joined_blocks(a, b), joined_blocks(c, d));
}
/// The first block of a vector whose second one may hold anything.
template <class V>
HALDGEN_INLINE auto below_anything(V v) {
  return joined_blocks(v, v);
}
template <class V>
HALDGEN_INLINE auto joined_halves(V a, V b) {
  return joined_blocks(a, b);
}
template <int kHalf, class V, std::size_t... i>
HALDGEN_INLINE auto half_of(V v, std::index_sequence<i...> /*lanes*/) {
  constexpr int kFirst = kHalf * static_cast<int>(sizeof...(i));
  return __builtin_shufflevector(v, v, (kFirst + static_cast<int>(i))...);
}
template <int kHalf, class V>
HALDGEN_INLINE auto half_of(V v) {
  return half_of<kHalf>(v, std::make_index_sequence<WideTraits<V>::kLanes / 2>());
}

template <int kBlock, class V>
HALDGEN_INLINE auto block_of(V v) {
  if constexpr (WideTraits<V>::kBlocks == 1) {
    return v;
  } else if constexpr (WideTraits<V>::kBlockLanes == 4) {
    constexpr int k = 4 * kBlock;
    return __builtin_shufflevector(v, v, k, k + 1, k + 2, k + 3);
  } else {
    return __builtin_shufflevector(v, v, 2 * kBlock, 2 * kBlock + 1);
  }
}
template <int kHalf, class V>
HALDGEN_INLINE auto widened_half(V v) {
  using D = WideVector<double, sizeof(V)>;
  return __builtin_convertvector(half_of<kHalf>(v), D);
}

template <class V>
HALDGEN_INLINE auto widened(V v) {
  using D = WideVector<double, 2 * sizeof(V)>;
  return __builtin_convertvector(v, D);
}

inline constexpr int kFloatBytes = sizeof(float);
template <class D>
HALDGEN_INLINE auto narrowed(D v) {
  constexpr int kLanes = static_cast<int>(sizeof(D) / sizeof(double));
  using Half [[gnu::vector_size(kLanes * kFloatBytes)]] = float;
  return __builtin_convertvector(v, Half);
}
template <class D>
HALDGEN_INLINE auto narrowed(D low, D high) {
  constexpr std::size_t kLanes = 2 * sizeof(D) / sizeof(double);
  using Result = WideVector<float, sizeof(D)>;
  return static_cast<Result>(
      concatenated(narrowed(low), narrowed(high), std::make_index_sequence<kLanes>()));
}

}  // namespace haldgen::lanes
