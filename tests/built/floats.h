// Floats to call transforms on, the scales that flags select, and equality of bits.
#pragma once

#include <haldgen.h>

#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <random>
#include <vector>

#include "bits/inputs.h"
#include "registry/registry.h"

namespace haldgen::test {

inline constexpr std::array<std::int32_t, 4> flags = {haldScaleFwdByN, haldScaleInvByN,
                                                      haldScaleBySqrtN, haldScaleNone};

/// Full-width random numbers in -1..1 by a seed.
template <class Float>
std::vector<Float> random_floats(std::size_t count, unsigned seed) {
  std::mt19937_64 engine(seed);
  std::vector<Float> result;
  for (std::size_t i = 0; i < count; ++i) {
    const double unit = static_cast<double>(static_cast<std::int64_t>(engine()) >> 10) * 0x1p-53;
    result.push_back(static_cast<Float>(unit));
  }
  return result;
}

/// Inputs that are hard on bits, for a transform of so many points.
template <class Float>
std::vector<std::vector<Float>> hard_inputs(std::size_t count, int points) {
  std::vector<std::vector<Float>> all;
  for (const bits::InputSet& set : bits::input_sets<Float>(points)) {
    all.push_back(bits::numbers<Float>(set, all.size(), count));
  }
  return all;
}

/// Same bytes: signs of zeros count.
template <class Float>
bool identical(const std::vector<Float>& a, const std::vector<Float>& b) {
  return a.size() == b.size() &&
         (a.empty() || std::memcmp(a.data(), b.data(), a.size() * sizeof(Float)) == 0);
}

/// Rounded once: at none of these N does the long double lie next to the middle of two floats.
template <class Float>
Float scale(names::Scaling scaling, int points, std::int32_t flag) {
  const auto n = static_cast<long double>(points);
  const bool divides =
      scaling == names::Scaling::directionless ||
      flag == (scaling == names::Scaling::forward ? haldScaleFwdByN : haldScaleInvByN);
  if (flag == haldScaleNone) return 1;
  if (flag == haldScaleBySqrtN) return static_cast<Float>(1 / std::sqrt(n));
  return divides ? static_cast<Float>(1 / n) : 1;
}

/// Inputs of zeros of both signs, and of these with ones of both signs, on which sums of many kinds
/// vanish: all of them if they are few, else drawn ones.
template <class Float>
std::vector<std::vector<Float>> vanishing_inputs(std::size_t count) {
  constexpr std::array<Float, 4> kNumbers{Float{0}, -Float{0}, Float{1}, -Float{1}};
  constexpr std::size_t kMost = 4096;
  std::vector<std::vector<Float>> all;
  std::mt19937_64 engine(count);
  for (const std::size_t base : {2U, 4U}) {
    const double possible = std::pow(static_cast<double>(base), static_cast<double>(count));
    const bool drawn = possible > static_cast<double>(kMost);
    const std::size_t inputs = drawn ? kMost : static_cast<std::size_t>(possible);
    for (std::size_t i = 0; i < inputs; ++i) {
      std::uint64_t digits = drawn ? engine() : i;
      std::vector<Float> values;
      for (std::size_t j = 0; j < count; ++j, digits /= base) {
        values.push_back(kNumbers[static_cast<std::size_t>(digits % base)]);
      }
      all.push_back(values);
    }
  }
  return all;
}

}  // namespace haldgen::test
