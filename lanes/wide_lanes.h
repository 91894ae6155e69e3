// Vectors of more than 128 bits as a type like lanes::Lanes: what templates over the number of
// lanes compute on in flavours.
#pragma once

#include <cstddef>
#include <type_traits>
#include <utility>

#include "lanes/vectors.h"
#include "lanes/wide.h"

namespace haldgen::lanes {

/// Such vectors lie anywhere, whatever the access.
template <class FloatType, int kCount>
struct WideLanes {
  using Float = FloatType;
  using Value = WideVector<Float, kCount* static_cast<int>(sizeof(Float))>;
  static constexpr int kLanes = kCount;

  HALDGEN_INLINE static Value broadcast(Float value) { return splat<Value>(value); }
  template <class Access>
  HALDGEN_INLINE static Value load(const Float* from) {
    return load_wide<Value>(from);
  }
  template <class Access>
  HALDGEN_INLINE static void store(Float* to, Value value) {
    store_wide<Value>(to, value);
  }
};

/// Lanes that take so many bytes; those of one Float are the element itself.
template <class Float, int kBytes>
using LanesOfBytes =
    std::conditional_t<(kBytes > 16), WideLanes<Float, kBytes / int{sizeof(Float)}>,
                       Lanes<Float, kBytes / int{sizeof(Float)}>>;

/// The lower halves of a and b, or their upper ones.
template <int kLanes, int kHalf>
struct SameHalves {
  static constexpr int of(int i) {
    return i + (i < kLanes / 2 ? 0 : kLanes / 2) + kHalf * kLanes / 2;
  }
};
template <int kHalf, class V>
HALDGEN_INLINE V same_halves(V a, V b) {
  return shuffled<SameHalves<WideTraits<V>::kLanes, kHalf>>(a, b);
}

/// All lanes in the opposite order.
template <int kLanes>
struct Backwards {
  static constexpr int of(int i) { return kLanes - 1 - i; }
};
template <class V>
HALDGEN_INLINE V reversed(V a) {
  return shuffled<Backwards<WideTraits<V>::kLanes>>(a, a);
}

/// Into each lane the value of that whose number differs in this bit.
template <int kBit>
struct Crossed {
  static constexpr int of(int i) { return i ^ kBit; }
};
template <int kBit, class V>
HALDGEN_INLINE V crossed(V a) {
  return shuffled<Crossed<kBit>>(a, a);
}

/// The lanes of b in whose number this bit is set, and those of a in between.
template <int kBit, int kLanes>
struct ChosenByBit {
  static constexpr int of(int i) { return (i & kBit) != 0 ? kLanes + i : i; }
};
/// a - b in the lanes in whose number this bit is set, a + b in those in between. Signs of lanes
/// would do it in one sum less, but change those of NaN.
template <int kBit, class V>
HALDGEN_INLINE V sums_and_differences(V a, V b) {
#ifdef __FMA__
  if constexpr (kBit == 1) return sums_and_differences_x86(a, b);
#endif
  return shuffled<ChosenByBit<kBit, WideTraits<V>::kLanes>>(a + b, a - b);
}

}  // namespace haldgen::lanes
