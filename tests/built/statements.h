// How transcriptions of algorithms on real data write statements with constants, in the arithmetic
// of an element type.
#pragma once

#include <vector>

#include "tests/built/library.h"

namespace haldgen::test::statements {

constexpr double kHalf = 0.5;
constexpr double kSine3 = 0.8660254037844386;
constexpr double kEighth = 0.7071067811865476;

template <class Float>
using Numbers = std::vector<Float>;

/// Random inputs, and those whose results have exact zeros of both signs.
template <class Float>
std::vector<Numbers<Float>> transcribed_inputs(std::size_t count) {
  auto inputs = vanishing_inputs<Float>(count);
  for (unsigned seed = 0; seed < 50; ++seed) inputs.push_back(random_floats<Float>(count, seed));
  return inputs;
}

/// A statement with constants, whose result is kept: 64-bit, rounded once.
template <class Float>
Float kept(double value) {
  return static_cast<Float>(value);
}

/// 64-bit operand of such a statement.
template <class Float>
double w(Float v) {
  return double{v};
}

/// The block of three: sum, cosine and sine statement.
template <class Float>
struct Block3 {
  Float total, cosine, sine;
  Block3(Float x0, Float x1, Float x2) {
    const Float pair = x1 + x2;
    const Float difference = x1 - x2;
    total = x0 + pair;
    cosine = kept<Float>(w(x0) - kHalf * w(pair));
    sine = kept<Float>(kSine3 * w(difference));
  }
};

}  // namespace haldgen::test::statements
