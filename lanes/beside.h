// The words of scalar code that runs two and two in the lanes of vectors. A pair of floats is the
// lower half of a vector; above it stand copies of values, or zeros, that nobody needs.
#pragma once

#include "lanes/vectors.h"

namespace haldgen::lanes {

using FloatPair = Float4;
using DoublePair = Double2;

/// One value below another.
inline FloatPair beside(float lower, float upper) { return FloatPair{lower, upper, 0, 0}; }
inline DoublePair beside(double lower, double upper) { return DoublePair{lower, upper}; }

/// Lane kA of a below lane kB of b. Above them is what the fewest instructions leave there.
template <int kA, int kB>
HALDGEN_INLINE FloatPair beside(FloatPair a, FloatPair b) {
  if constexpr (kA == 1) {
    return beside<0, kB>(__builtin_shufflevector(a, a, 1, 1, 3, 3), b);
  } else if constexpr (kB == 1) {
    return __builtin_shufflevector(a, b, 0, 5, 2, 3);
  } else {
    return __builtin_shufflevector(a, b, 0, 4, 1, 5);
  }
}
/// The same of one pair.
template <int kA, int kB>
HALDGEN_INLINE FloatPair rearranged(FloatPair a) {
  return __builtin_shufflevector(a, a, kA, kB, 2 + kA, 2 + kB);
}
template <int kA, int kB>
HALDGEN_INLINE DoublePair rearranged(DoublePair a) {
  return __builtin_shufflevector(a, a, kA, kB);
}
template <int kA, int kB>
HALDGEN_INLINE DoublePair beside(DoublePair a, DoublePair b) {
  return __builtin_shufflevector(a, b, kA, 2 + kB);
}

template <int kLane>
HALDGEN_INLINE float lane(FloatPair a) {
  return a[kLane];
}
template <int kLane>
HALDGEN_INLINE double lane(DoublePair a) {
  return a[kLane];
}

}  // namespace haldgen::lanes
