// The frozen tuning of each kernel, so that a build gives the same code everywhere. The rows are
// measured and written by script/tune.
#include <algorithm>
#include <iterator>

#include "dft_complex/kernel.h"

namespace haldgen::dft_complex {
namespace {

using kernelgen::FloatType;
using kernelgen::Order;

struct Row {
  int length;
  FloatType type;
  Tuning tuning;
};

constexpr auto c32 = FloatType::f32;
constexpr auto c64 = FloatType::f64;
constexpr auto bisection = Order::bisection;
constexpr auto pressure = Order::pressure;
constexpr auto critical = Order::critical;

constexpr Row kRows[] = {
#include "dft_complex/tuning.inc"
};

}  // namespace

Tuning tuning_of(int length, FloatType type) {
  const auto row = std::find_if(std::begin(kRows), std::end(kRows),
                                [&](const Row& r) { return r.length == length && r.type == type; });
  return row == std::end(kRows) ? Tuning{} : row->tuning;
}

}  // namespace haldgen::dft_complex
