// What the examples of batches transform: rows of noise.
#pragma once

#include <haldgen.h>

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <vector>

inline std::vector<Cplx32> noise(std::size_t count) {
  std::vector<Cplx32> values(count);
  std::uint32_t state = 1;
  const auto next = [&state] {
    state = state * 1664525U + 1013904223U;
    return static_cast<float>(state >> 8U) / 8388608.0F - 1.0F;
  };
  for (Cplx32& value : values) {
    value.re = next();
    value.im = next();
  }
  return values;
}

inline bool same_bits(const std::vector<Cplx32>& a, const std::vector<Cplx32>& b) {
  return a.size() == b.size() && std::memcmp(a.data(), b.data(), a.size() * sizeof(Cplx32)) == 0;
}
