// The built library's fixed-size transforms, and memory to call them on.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
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

}  // namespace haldgen::test
