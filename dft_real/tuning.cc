// The frozen order of each kernel's instructions, so that a build gives the same code everywhere.
// The rows are measured and written by script/tune.
#include <algorithm>
#include <iterator>

#include "dft_real/kernel.h"

namespace haldgen::dft_real {
namespace {

using kernelgen::FloatType;
using kernelgen::Order;
using kernelgen::Ordering;

struct Row {
  int length;
  Direction direction;
  FloatType type;
  Ordering ordering;
};

constexpr auto forward = Direction::forward;
constexpr auto inverse = Direction::inverse;
constexpr auto f32 = FloatType::f32;
constexpr auto f64 = FloatType::f64;
constexpr auto program = Order::program;
constexpr auto pressure = Order::pressure;
constexpr auto critical = Order::critical;

constexpr Row kRows[] = {
#include "dft_real/tuning.inc"
};

}  // namespace

Ordering tuning_of(int length, Direction direction, FloatType type) {
  const auto row = std::find_if(std::begin(kRows), std::end(kRows), [&](const Row& r) {
    return r.length == length && r.direction == direction && r.type == type;
  });
  return row == std::end(kRows) ? Ordering{} : row->ordering;
}

}  // namespace haldgen::dft_real
