// The exported functions of the library that a program is linked with, for machines where a library
// cannot be opened by its path. The definition is written by haldgen-framegen.
#pragma once

#include <span>
#include <string_view>

namespace haldgen::frame {

struct LinkedFunction {
  std::string_view name;
  void (*address)();  ///< to be cast to the type of the function before it is called
};

/// All of them, in ascending byte order of their names.
std::span<const LinkedFunction> linked_functions();

}  // namespace haldgen::frame
