// Kernels to go: the transforms of one length and type as a C file that stands alone, and a header
// for any number of them.
#pragma once

#include <string>
#include <vector>

#include "family/family.h"

namespace haldgen::generate {

/// A kernel that stands alone: a family with transforms, a length, a type.
struct Single {
  const family::Family* family;
  int length;
  family::FloatType type;
  family::Tuning tuning = {};
};

/// The lengths that a family has kernels to go of: those of the library, and those that rules
/// reach. None if the family's functions are no kernels by themselves.
std::vector<int> single_lengths(const family::Family& family);

/// C11 that is C++ as well, for g++ 12 and clang 14 on, any machine with floats of IEEE 754. The
/// functions have the library's names, contract and bits.
std::string single_file(const Single& kernel);

/// Declarations, for programs.
std::string single_header(const std::vector<Single>& kernels);

}  // namespace haldgen::generate
