// The packed formats of the half spectrum of N real samples. Its N values have an order of their
// own: R(0), then R(k), I(k) of each bin k = 1..(N-1)/2, then R(N/2) if N is even. A format says at
// which position of the array each of them stands, and which positions hold no value.
#pragma once

#include "lanes/scalar.h"

namespace haldgen::dft_real {

enum class Packing {
  ccs,   ///< bin k at 2k and 2k+1, the parts included that are always zero
  pack,  ///< the values in their order
  perm,  ///< as pack, but for even N the last value second
};

inline constexpr Packing kPackings[] = {Packing::ccs, Packing::pack, Packing::perm};

/// Elements of an array that holds the half spectrum.
constexpr int size(Packing packing, int length) {
  if (packing != Packing::ccs) return length;
  return 2 * (length / 2) + 2;
}

/// Position of a value, 0 <= value < length.
constexpr int position(Packing packing, int length, int value) {
  const bool even = length % 2 == 0;
  if (value == 0) return 0;
  switch (packing) {
    case Packing::ccs:
      return value + 1;
    case Packing::pack:
      return value;
    case Packing::perm:
      if (!even) return value;
      return value == length - 1 ? 1 : value + 1;
  }
  return -1;
}

/// A format as a type, for kernels: `at` for loads and stores, `clear` for the positions without a
/// value, which are written as zeros and never read.
template <Packing P, int N>
struct Format {
  static constexpr int at(int value) { return position(P, N, value); }

  template <class Float>
  static void clear(Float* spectrum) {
    if constexpr (P == Packing::ccs) {
      scalar::store(spectrum + 1, Float{0});
      if constexpr (N % 2 == 0) scalar::store(spectrum + N + 1, Float{0});
    }
  }
};

}  // namespace haldgen::dft_real
