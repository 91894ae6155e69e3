// A transform and the one that undoes it.
#pragma once

#include <cmath>
#include <limits>

#include "tests/contract/transform.h"

namespace haldgen::test {

/// With each flag, `inverse` gives back what `forward` was given, N times as much without a scale.
template <class Float>
void expect_undone(const Transform<Float>& forward, const Transform<Float>& inverse,
                   unsigned seed) {
  const std::vector<Float> src = random_floats<Float>(forward.src_floats, seed);
  for (const std::int32_t flag : flags) {
    const Float factor = flag == haldScaleNone ? static_cast<Float>(forward.points) : 1;
    const std::vector<Float> back = result(inverse, result(forward, src, flag), flag);
    long double error = 0;
    long double norm = 0;
    for (std::size_t i = 0; i < src.size(); ++i) {
      error += std::pow(static_cast<long double>(back[i]) / factor - src[i], 2.0L);
      norm += std::pow(static_cast<long double>(src[i]), 2.0L);
    }
    // The errors of two transforms add like independent ones.
    const long double bound = 1.25L * std::numeric_limits<Float>::epsilon() *
                              std::sqrt(std::log2(static_cast<long double>(forward.points)));
    EXPECT_LE(std::sqrt(error / norm), bound)
        << forward.name << " and " << inverse.name << ", flag " << flag;
  }
}

}  // namespace haldgen::test
