// The functions of a build of libhaldbatch, all alike, each with the single transform that it is to
// repeat.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "tests/contract/transform.h"

namespace haldgen::test {

/// The build under test.
extern const char* const batch_path;

/// Whether the instructions that the build is for are there.
bool processor_can_run_batches();

/// The address of a function; throws if there is none.
void* batch_function(const std::string& name);

/// src, srcStep, srcDist, dst, dstStep, dstDist, length, count, flag.
using BatchFunction = std::int32_t (*)(const void*, std::ptrdiff_t, std::ptrdiff_t, void*,
                                       std::ptrdiff_t, std::ptrdiff_t, std::int32_t, std::ptrdiff_t,
                                       std::int32_t);

/// One length of one function.
template <class Float>
struct Batch {
  std::string name;
  BatchFunction function;
  const Transform<Float>* single;
  std::size_t src_width, dst_width;  ///< floats in an element of the array

  std::size_t src_elements() const { return single->src_floats / src_width; }
  std::size_t dst_elements() const { return single->dst_floats / dst_width; }
};

/// All lengths of all functions of the floats' type.
template <class Float>
const std::vector<Batch<Float>>& batches();

}  // namespace haldgen::test
