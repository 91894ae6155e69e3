// The built library's Walsh-Hadamard functions, the network that they must equal, and an allocator
// that watches them.
#pragma once

#include <haldgen.h>

#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <functional>
#include <string>
#include <vector>

#include "tests/built/floats.h"

namespace haldgen::wht::test {

using haldgen::test::flags;
using haldgen::test::identical;
using haldgen::test::random_floats;

inline constexpr int kLastWithoutBuffer = 7;

/// One way to call one kernel: by its own name, or through the general entry.
template <class FloatType>
struct Kernel {
  using Float = FloatType;
  std::string name;
  int order;
  std::function<std::int32_t(const Float* src, Float* dst, std::int32_t flag, std::uint8_t* buffer)>
      call;

  std::size_t points() const { return std::size_t{1} << order; }
  std::size_t bytes() const { return points() * sizeof(Float); }
  bool needs_buffer() const { return order > kLastWithoutBuffer; }
};

/// The kernels of all orders by their own names, and through the general entry.
template <class Float>
const std::vector<Kernel<Float>>& kernels();

/// Visits the kernels of both types.
template <class Visitor>
void for_each_kernel(Visitor&& visit) {
  for (const auto& kernel : kernels<float>()) visit(kernel);
  for (const auto& kernel : kernels<double>()) visit(kernel);
}

/// Size of the work buffer as published.
template <class Float>
std::size_t published_buffer_bytes(int order) {
  constexpr std::array<std::size_t, 6> single = {1024, 2048, 4096, 8192, 18432, 34816};
  constexpr std::array<std::size_t, 6> twofold = {2048, 4096, 8192, 18432, 34816, 73728};
  if (order <= kLastWithoutBuffer) return 0;
  const auto at = static_cast<std::size_t>(order - kLastWithoutBuffer - 1);
  return sizeof(Float) == sizeof(float) ? single[at] : twofold[at];
}

/// Sums and differences level by level, in the element type, then one multiplication.
template <class Float>
std::vector<Float> plain_network(std::vector<Float> x, Float scale) {
  for (std::size_t bit = 1; bit < x.size(); bit *= 2) {
    for (std::size_t i = 0; i < x.size(); ++i) {
      if ((i & bit) != 0) continue;
      const Float first = x[i];
      const Float second = x[i | bit];
      x[i] = first + second;
      x[i | bit] = first - second;
    }
  }
  for (Float& value : x) value *= scale;
  return x;
}

/// The nearest float to the scale: a root of an odd power of two is the correctly rounded root of
/// a half times a power of two.
template <class Float>
Float nearest_scale(int order, std::int32_t flag) {
  if (flag == haldScaleNone) return 1;
  if (flag != haldScaleBySqrtN) return std::ldexp(Float{1}, -order);
  const Float root = order % 2 == 0 ? Float{1} : std::sqrt(Float{0.5});
  return std::ldexp(root, -(order / 2));
}

/// What the library asked of haldMalloc and haldFree, which this program brings itself. The memory
/// that it hands out ends at an inaccessible page and begins full of NaNs.
namespace allocator {
void reset();
/// From now on there is no memory.
void exhaust();
const std::vector<std::int32_t>& requests();
/// Whether everything handed out has come back, each piece once, and nothing else.
bool settled();
}  // namespace allocator

}  // namespace haldgen::wht::test
