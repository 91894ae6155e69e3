// The exported functions of the library that a program is linked with, and how to call each. The
// definition is written by haldgen-framegen, so that programs on machines without the registry, or
// where a library cannot be opened by its path, know them.
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string_view>

#include "names/signature.h"

namespace haldgen::frame {

struct LinkedFunction {
  std::string_view name;
  void (*address)();      ///< to be cast to the type of the function before it is called
  std::string_view word;  ///< what functions of other sizes and elements have in common
  names::Signature signature;
  names::Element element;

  // The rest is 0 unless the size is in the name.
  std::int32_t size;        ///< length or order
  std::int32_t points;      ///< the N of the definition
  std::int32_t src_floats;  ///< floats in src, the parts of complex elements counted one by one
  std::int32_t dst_floats;
  std::array<std::int32_t, 2> src_gaps;  ///< positions in src that are never read, none of them 0
};

/// All of them, in ascending byte order of their names.
std::span<const LinkedFunction> linked_functions();

struct LinkedBatch {
  std::string_view name;
  void (*address)();
};

/// Those of the library of batches, in any order; defined where a program is linked with it.
std::span<const LinkedBatch> linked_batches();

}  // namespace haldgen::frame
