// What the network computes on: single elements, or vectors of them. Additions and multiplications
// are the types' own operators. A `Lanes` has
//   Float, Value      the element, and what holds kLanes of them
//   broadcast(s)      s in all lanes
//   transpose(...)    kLanes values as rows of a square matrix, transposed; not for single elements
//   load<alignment>(from), store<alignment>(to, value)
#pragma once

#include <emmintrin.h>

#include <cstddef>

namespace haldgen::wht {

enum class Alignment { vector, none };

template <class FloatType>
struct Single {
  using Float = FloatType;
  using Value = FloatType;
  static constexpr std::size_t kLanes = 1;

  static Value broadcast(Float scale) { return scale; }

  /// Copied, since the address need not even be a multiple of the element's size.
  template <Alignment>
  static Value load(const Float* from) {
    Value value;
    __builtin_memcpy(&value, from, sizeof value);
    return value;
  }
  template <Alignment>
  static void store(Float* to, Value value) {
    __builtin_memcpy(to, &value, sizeof value);
  }
};

struct Float4 {
  using Float = float;
  using Value = __m128;
  static constexpr std::size_t kLanes = 4;

  static Value broadcast(Float scale) { return _mm_set1_ps(scale); }

  static void transpose(Value& a, Value& b, Value& c, Value& d) {
    const Value ab_low = _mm_unpacklo_ps(a, b);
    const Value cd_low = _mm_unpacklo_ps(c, d);
    const Value ab_high = _mm_unpackhi_ps(a, b);
    const Value cd_high = _mm_unpackhi_ps(c, d);
    a = _mm_movelh_ps(ab_low, cd_low);
    b = _mm_movehl_ps(cd_low, ab_low);
    c = _mm_movelh_ps(ab_high, cd_high);
    d = _mm_movehl_ps(cd_high, ab_high);
  }

  template <Alignment kAlignment>
  static Value load(const Float* from) {
    return kAlignment == Alignment::vector ? _mm_load_ps(from) : _mm_loadu_ps(from);
  }
  template <Alignment kAlignment>
  static void store(Float* to, Value value) {
    kAlignment == Alignment::vector ? _mm_store_ps(to, value) : _mm_storeu_ps(to, value);
  }
};

struct Double2 {
  using Float = double;
  using Value = __m128d;
  static constexpr std::size_t kLanes = 2;

  static Value broadcast(Float scale) { return _mm_set1_pd(scale); }

  static void transpose(Value& a, Value& b) {
    const Value low = _mm_unpacklo_pd(a, b);
    b = _mm_unpackhi_pd(a, b);
    a = low;
  }

  template <Alignment kAlignment>
  static Value load(const Float* from) {
    return kAlignment == Alignment::vector ? _mm_load_pd(from) : _mm_loadu_pd(from);
  }
  template <Alignment kAlignment>
  static void store(Float* to, Value value) {
    kAlignment == Alignment::vector ? _mm_store_pd(to, value) : _mm_storeu_pd(to, value);
  }
};

}  // namespace haldgen::wht
