// The vocabulary of vector code, be it generated or a template. Code that speaks it names no
// machine; x86.h says what the words are on x86 processors, shuffles.h what they are on all others:
//   Float4, Double2                           the types of 128-bit vectors
//   broadcast(s)                              s in all lanes
//   alternate(a, b), change_sign(a, signs)    signs by lane
//   exchange(a), reversed(a)                  another order of the lanes
//   gather<...>(a, b), interleave_lower(a, b), interleave_upper(a, b)
//                                             lanes of two vectors
//   widened_pair(a), narrowed_pair(a)         two floats as doubles, and back
//   load_single, load_pair, store_single, store_upper
//                                             two floats, half a vector, at any address
//   Aligned, Anywhere, ByHalves               `load` and `store` of whole vectors
// Additions and multiplications are the vector types' own operators; they are never contracted.
#pragma once

#include "lanes/inline.h"
#include "lanes/scalar.h"
#if defined(__x86_64__) || defined(__i386__)
#include "lanes/x86.h"
#else
#include "lanes/shuffles.h"
#endif

namespace haldgen::lanes {

template <class Float, int kCount>
struct VectorOf;
template <>
struct VectorOf<float, 4> {
  using Type = Float4;
};
template <>
struct VectorOf<double, 2> {
  using Type = Double2;
};
template <class Float>
struct VectorOf<Float, 1> {
  using Type = Float;
};

/// kCount lanes of Float; one lane is the element itself.
template <class Float, int kCount>
using Vector = typename VectorOf<Float, kCount>::Type;

/// Lanes of a whole vector.
template <class Float>
inline constexpr int kLanes = static_cast<int>(16 / sizeof(Float));

inline void store_pair(float* lower, float* upper, Float4 a) {
  store_single(lower, a);
  store_upper(upper, a);
}

/// As many vectors as they have lanes, the rows of a square matrix, transposed.
inline void transpose(Double2& a, Double2& b) {
  const Double2 low = interleave_lower(a, b);
  b = interleave_upper(a, b);
  a = low;
}
inline void transpose(Float4& a, Float4& b, Float4& c, Float4& d) {
  const Float4 ab_low = interleave_lower(a, b);
  const Float4 cd_low = interleave_lower(c, d);
  const Float4 ab_high = interleave_upper(a, b);
  const Float4 cd_high = interleave_upper(c, d);
  a = gather<0, 0, 0, 0>(ab_low, cd_low);
  b = gather<1, 1, 0, 0>(ab_low, cd_low);
  c = gather<0, 0, 0, 0>(ab_high, cd_high);
  d = gather<1, 1, 0, 0>(ab_high, cd_high);
}

/// The same words for whole vectors and for single elements, as a type: what a template over the
/// number of lanes computes on. `Access` is one of the three above; single elements lie anywhere.
template <class FloatType, int kCount>
struct Lanes {
  using Float = FloatType;
  using Value = Vector<Float, kCount>;
  static constexpr int kLanes = kCount;

  HALDGEN_INLINE static Value broadcast(Float value) {
    if constexpr (kCount == 1) {
      return value;
    } else {
      return lanes::broadcast(value);
    }
  }

  template <class... Values>
  HALDGEN_INLINE static void transpose(Values&... rows) {
    static_assert(sizeof...(rows) == kCount);
    lanes::transpose(rows...);
  }

  template <class Access>
  HALDGEN_INLINE static Value load(const Float* from) {
    if constexpr (kCount == 1) {
      return scalar::load(from);
    } else {
      return Access::load(from);
    }
  }
  template <class Access>
  HALDGEN_INLINE static void store(Float* to, Value value) {
    if constexpr (kCount == 1) {
      scalar::store(to, value);
    } else {
      Access::store(to, value);
    }
  }
};

}  // namespace haldgen::lanes
