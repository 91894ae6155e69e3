// The built library's fixed-size transforms, and memory to call them on.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <set>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "registry/registry.h"
#include "tests/built/floats.h"

namespace haldgen::test {

/// src, dst, flag; the pointers are to floats of the element's type.
using KernelFunction = std::int32_t (*)(const void*, void*, std::int32_t);

struct BuiltKernel {
  std::string name;
  const names::Word* word;
  names::Element element;
  int length;
  KernelFunction function;
};

/// Those that are built and take these arguments.
const std::vector<BuiltKernel>& built_kernels();

/// One of them; throws if it is not built.
KernelFunction built_kernel(const std::string& name);

/// The lengths that functions of a word have in their names.
std::set<int> lengths_of(std::string_view word);

/// Floats that begin `misalignment` bytes past a multiple of 64.
template <class Float>
class Floats {
 public:
  Floats(const std::vector<Float>& values, std::size_t misalignment)
      : count_(values.size()), bytes_(count_ * sizeof(Float) + 128) {
    void* start = bytes_.data();
    std::size_t space = bytes_.size();
    start_ = static_cast<std::byte*>(std::align(64, 1, start, space)) + misalignment;
    std::ranges::copy(std::as_bytes(std::span(values)), start_);
  }
  Floats(const Floats&) = delete;
  Floats& operator=(const Floats&) = delete;

  void* data() { return start_; }
  std::vector<Float> values() const {
    std::vector<Float> result(count_);
    std::copy_n(start_, count_ * sizeof(Float), std::as_writable_bytes(std::span(result)).begin());
    return result;
  }

 private:
  std::size_t count_;
  std::vector<std::byte> bytes_;
  std::byte* start_;
};

}  // namespace haldgen::test
