// The DCT-IV's functions by float type, and which lengths they promise to take.
#pragma once

#include <haldgen.h>

#include <bit>
#include <limits>

#include "fuzz/calls.h"

namespace haldgen::fuzz {

struct Planned {
  const char* name;
  std::size_t float_bytes;
  std::int32_t shortest_odd;  ///< least length 2^k + 1
  std::int32_t longest;       ///< greatest length that can be set up
  std::int32_t (*get_size)(std::int32_t length, std::int32_t* size);
  std::int32_t (*init)(Dct4State** state, std::int32_t length, std::uint8_t* buffer);
  std::int32_t (*init_alloc)(Dct4State** state, std::int32_t length);
  std::int32_t (*release)(Dct4State* state);

  std::int32_t call(const void* src, void* dst, Dct4State* state) const {
    if (float_bytes == sizeof(float)) {
      return haldgDCT4_32f(static_cast<const float*>(src), static_cast<float*>(dst), state);
    }
    return haldgDCT4_64f(static_cast<const double*>(src), static_cast<double*>(dst), state);
  }
  bool same_bits(const void* a, const void* b, std::size_t count) const {
    return float_bytes == sizeof(float) ? same<float>(a, b, count) : same<double>(a, b, count);
  }
  /// Powers of two from 2 up, and from some length on 2^k + 1.
  bool has(std::int32_t length) const {
    if (length < 2) return false;
    const auto n = static_cast<std::uint32_t>(length);
    return std::has_single_bit(n) || (length >= shortest_odd && std::has_single_bit(n - 1));
  }
};

inline constexpr Planned kPlanned[] = {
    {"DCT4_32f", sizeof(float), 33, (1 << 26) + 1, haldgDCT4GetSize_32f, haldgDCT4Init_32f,
     haldgDCT4InitAlloc_32f, haldgDCT4Free_32f},
    {"DCT4_64f", sizeof(double), 9, (1 << 25) + 1, haldgDCT4GetSize_64f, haldgDCT4Init_64f,
     haldgDCT4InitAlloc_64f, haldgDCT4Free_64f}};

/// Mostly a length that there is, or next to one. Longer ones seldom, as they take their time.
inline std::int32_t take_length(Choices& choices) {
  if (choices.chance(16)) return choices.take<std::int32_t>();
  const unsigned bits = choices.chance(32) ? choices.below(31) : choices.below(12);
  return static_cast<std::int32_t>((1U << bits) + (choices.chance(4) ? choices.below(5) - 2U : 0U));
}

}  // namespace haldgen::fuzz
