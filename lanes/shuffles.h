// The instructions of vectors.h in the vector types that compilers have for every machine.
#pragma once

namespace haldgen::lanes {

using Float4 [[gnu::vector_size(16), gnu::may_alias]] = float;
using Double2 [[gnu::vector_size(16), gnu::may_alias]] = double;

// The same bits as numbers, and vectors at any address.
using Int4 [[gnu::vector_size(16)]] = int;
using Int2 [[gnu::vector_size(16)]] = long long;
using Float4Anywhere [[gnu::vector_size(16), gnu::may_alias, gnu::aligned(1)]] = float;
using Double2Anywhere [[gnu::vector_size(16), gnu::may_alias, gnu::aligned(1)]] = double;

inline Double2 broadcast(double value) { return Double2{value, value}; }
inline Float4 broadcast(float value) { return Float4{value, value, value, value}; }

/// Negates the lanes in which `signs` holds -0.
inline Double2 change_sign(Double2 a, Double2 signs) {
  return reinterpret_cast<Double2>(reinterpret_cast<Int2>(a) ^ reinterpret_cast<Int2>(signs));
}
inline Float4 change_sign(Float4 a, Float4 signs) {
  return reinterpret_cast<Float4>(reinterpret_cast<Int4>(a) ^ reinterpret_cast<Int4>(signs));
}

/// a - b in even lanes, a + b in odd ones.
inline Double2 alternate(Double2 a, Double2 b) { return a + change_sign(b, Double2{-0.0, 0.0}); }
inline Float4 alternate(Float4 a, Float4 b) {
  return a + change_sign(b, Float4{-0.0F, 0.0F, -0.0F, 0.0F});
}

/// Real and imaginary part of each element exchanged.
inline Double2 exchange(Double2 a) { return __builtin_shufflevector(a, a, 1, 0); }
inline Float4 exchange(Float4 a) { return __builtin_shufflevector(a, a, 1, 0, 3, 2); }

/// Element `HalfA` of a below element `HalfB` of b, parts exchanged where Cross is 1. Of exchanges
/// and whole halves, for which processors have instructions; any four lanes would take a table.
template <int HalfA, int HalfB, int CrossA, int CrossB>
inline Float4 gather(Float4 a, Float4 b) {
  if constexpr (CrossA == 1 && CrossB == 1) {
    return exchange(gather<HalfA, HalfB, 0, 0>(a, b));
  } else {
    const auto x = reinterpret_cast<Double2>(CrossA == 1 ? exchange(a) : a);
    const auto y = reinterpret_cast<Double2>(CrossB == 1 ? exchange(b) : b);
    return reinterpret_cast<Float4>(__builtin_shufflevector(x, y, HalfA, 2 + HalfB));
  }
}

/// Lanes of the lower, or of the upper, halves of a and b in turns.
inline Double2 interleave_lower(Double2 a, Double2 b) {
  return __builtin_shufflevector(a, b, 0, 2);
}
inline Float4 interleave_lower(Float4 a, Float4 b) {
  return __builtin_shufflevector(a, b, 0, 4, 1, 5);
}
inline Double2 interleave_upper(Double2 a, Double2 b) {
  return __builtin_shufflevector(a, b, 1, 3);
}
inline Float4 interleave_upper(Float4 a, Float4 b) {
  return __builtin_shufflevector(a, b, 2, 6, 3, 7);
}

/// The first two lanes in 64 bits, and two lanes narrowed, below zeros.
inline Double2 widened_pair(Float4 a) { return Double2{a[0], a[1]}; }
inline Float4 narrowed_pair(Double2 a) {
  return Float4{static_cast<float>(a[0]), static_cast<float>(a[1]), 0, 0};
}

/// All lanes in the opposite order.
inline Double2 reversed(Double2 a) { return exchange(a); }
inline Float4 reversed(Float4 a) { return __builtin_shufflevector(a, a, 3, 2, 1, 0); }

// Two floats are one 64-bit lane; copied, since a float's address need not do for a double.
inline double two_floats(const float* from) {
  double element;
  __builtin_memcpy(&element, from, sizeof element);
  return element;
}
inline void put_two_floats(float* to, double element) {
  __builtin_memcpy(to, &element, sizeof element);
}
inline Float4 load_single(const float* from) {
  return reinterpret_cast<Float4>(Double2{two_floats(from), 0});
}
inline Float4 load_pair(const float* lower, const float* upper) {
  return reinterpret_cast<Float4>(Double2{two_floats(lower), two_floats(upper)});
}
inline void store_single(float* to, Float4 a) {
  put_two_floats(to, reinterpret_cast<Double2>(a)[0]);
}
inline void store_upper(float* to, Float4 a) {
  put_two_floats(to, reinterpret_cast<Double2>(a)[1]);
}

/// Whole vectors at addresses that are multiples of 16.
struct Aligned {
  static Double2 load(const double* from) { return *reinterpret_cast<const Double2*>(from); }
  static void store(double* to, Double2 a) { *reinterpret_cast<Double2*>(to) = a; }
  static Float4 load(const float* from) { return *reinterpret_cast<const Float4*>(from); }
  static void store(float* to, Float4 a) { *reinterpret_cast<Float4*>(to) = a; }
};

/// Whole vectors anywhere, at once.
struct Anywhere {
  static Double2 load(const double* from) {
    return *reinterpret_cast<const Double2Anywhere*>(from);
  }
  static void store(double* to, Double2 a) { *reinterpret_cast<Double2Anywhere*>(to) = a; }
  static Float4 load(const float* from) { return *reinterpret_cast<const Float4Anywhere*>(from); }
  static void store(float* to, Float4 a) { *reinterpret_cast<Float4Anywhere*>(to) = a; }
};

/// No processor but those of x86.h gains by halves.
using ByHalves = Anywhere;

}  // namespace haldgen::lanes
