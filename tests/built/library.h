// The built library's fixed-size transforms, and memory to call them on.
#pragma once

#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <limits>
#include <random>
#include <stdexcept>
#include <string>
#include <vector>

#include "frame/families.h"

namespace haldgen::test {

/// src, dst, flag; the pointers are to floats of the element's type.
using KernelFunction = std::int32_t (*)(const void*, void*, std::int32_t);

struct BuiltKernel {
  std::string name;
  const frame::Family* family;
  frame::Element element;
  int length;
  KernelFunction function;
};

/// Those that are built and take these arguments.
const std::vector<BuiltKernel>& built_kernels();

/// One of them; throws if it is not built.
KernelFunction built_kernel(const std::string& name);

/// Up to 128 floats, beginning `misalignment` bytes past a multiple of 64.
template <class Float>
class Floats {
 public:
  Floats(const std::vector<Float>& values, std::size_t misalignment)
      : count_(values.size()), start_(bytes_.data() + misalignment) {
    if (count_ > kCapacity) throw std::length_error("too many floats");
    std::memcpy(start_, values.data(), count_ * sizeof(Float));
  }
  Floats(const Floats&) = delete;
  Floats& operator=(const Floats&) = delete;

  void* data() { return start_; }
  std::vector<Float> values() const {
    std::vector<Float> result(count_);
    std::memcpy(result.data(), start_, count_ * sizeof(Float));
    return result;
  }

 private:
  static constexpr std::size_t kCapacity = 128;
  std::size_t count_;
  alignas(64) std::array<unsigned char, kCapacity * sizeof(Float) + 64> bytes_{};
  unsigned char* start_;
};

/// Same bytes: signs of zeros count.
template <class Float>
bool identical(const std::vector<Float>& a, const std::vector<Float>& b) {
  return a.size() == b.size() && std::memcmp(a.data(), b.data(), a.size() * sizeof(Float)) == 0;
}

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

/// Inputs that are hard on bits: random ones, near overflow and underflow, of widely differing
/// magnitudes, zeros of both signs. `length` is that of the transform.
template <class Float>
std::vector<std::vector<Float>> trying_inputs(std::size_t count, double length) {
  using Limits = std::numeric_limits<Float>;
  std::vector<std::vector<Float>> all;
  for (unsigned seed = 0; seed < 4; ++seed) {
    all.push_back(random_floats<Float>(count, seed));
  }
  // Near overflow, results that are denormal, inputs that are.
  for (const double factor : {Limits::max() / (8.0 * length * length), 8.0 * Limits::min(),
                              100.0 * Limits::denorm_min()}) {
    auto values = random_floats<Float>(count, 17);
    for (Float& v : values) v = static_cast<Float>(v * factor);
    all.push_back(values);
  }
  // Magnitudes that differ widely: every sum rounds.
  auto mixed = random_floats<Float>(count, 18);
  for (std::size_t i = 0; i < count; ++i) {
    mixed[i] = std::ldexp(mixed[i], static_cast<int>(i * 7 % 31) - 15);
  }
  all.push_back(mixed);
  // Zeros of both signs alone, then among ones, so that sums vanish too.
  for (const unsigned seed : {19U, 20U, 22U, 23U}) {
    auto zeros = random_floats<Float>(count, seed);
    for (Float& v : zeros) {
      v = std::copysign(seed >= 22U && std::abs(v) < 0.5 ? Float{1} : Float{0}, v);
    }
    all.push_back(zeros);
  }
  return all;
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
        values.push_back(kNumbers[digits % base]);
      }
      all.push_back(values);
    }
  }
  return all;
}

}  // namespace haldgen::test
