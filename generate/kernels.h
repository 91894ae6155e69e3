// Kernels by the names that commands give them.
#pragma once

#include <string>
#include <vector>

#include "family/family.h"

namespace haldgen::generate {

constexpr family::FloatType kTypes[] = {family::FloatType::f32, family::FloatType::f64};

inline std::string suffix(const family::Family& family, family::FloatType type) {
  return std::string(
      names::suffix(family.words.front().elements[type == family::FloatType::f32 ? 0 : 1]));
}

/// Numbers of a family's kernels in the library.
inline std::vector<int> kernels_of(const family::Family& family) {
  std::vector<int> numbers(family.sizes.begin(), family.sizes.end());
  for (std::size_t i = 0; i < family.generated->kernels.size(); ++i) {
    numbers.push_back(static_cast<int>(i));
  }
  return numbers;
}

inline std::string kernel_name(const family::Family& family, int number) {
  const auto& names = family.generated->kernels;
  return names.empty() ? std::to_string(number) : names[static_cast<std::size_t>(number)];
}

}  // namespace haldgen::generate
