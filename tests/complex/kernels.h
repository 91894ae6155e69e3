// All complex kernels, to loop over.
#pragma once

#include <string>
#include <vector>

#include "dft_complex/kernel.h"

namespace haldgen::dft_complex {
using kernelgen::FloatType;
}

namespace haldgen::dft_complex::test {

struct KernelName {
  int length;
  FloatType type;

  std::string text() const { return std::to_string(length) + "_" + complex_suffix(type); }
};

inline std::vector<KernelName> all_kernels() {
  std::vector<KernelName> all;
  for (const int length : lengths()) {
    for (const FloatType type : {FloatType::f32, FloatType::f64}) {
      all.push_back({length, type});
    }
  }
  return all;
}

}  // namespace haldgen::dft_complex::test
