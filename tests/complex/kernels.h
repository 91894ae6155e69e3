// All complex kernels, to loop over.
#pragma once

#include <string>
#include <vector>

#include "dft_complex/kernel.h"

namespace haldgen::dft_complex::test {

struct KernelName {
  int length;
  ElementType type;

  std::string text() const { return std::to_string(length) + "_" + suffix(type); }
};

inline std::vector<KernelName> all_kernels() {
  std::vector<KernelName> all;
  for (int length = kFirstLength; length <= kLastLength; ++length) {
    for (const ElementType type : {ElementType::c32, ElementType::c64}) {
      all.push_back({length, type});
    }
  }
  return all;
}

}  // namespace haldgen::dft_complex::test
