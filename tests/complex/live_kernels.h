// The complex kernels of the built library.
#pragma once

#include <string>
#include <vector>

#include "dft_complex/recipes.h"
#include "tests/built/library.h"

namespace haldgen::dft_complex {
using kernelgen::FloatType;
}

namespace haldgen::dft_complex::test {

using haldgen::test::built_kernel;
using haldgen::test::Floats;
using haldgen::test::identical;
using haldgen::test::KernelFunction;
using haldgen::test::random_floats;

struct LiveKernel {
  std::string name;
  int length;
  FloatType type;
  bool inverse;
  KernelFunction function;
};

inline const std::vector<LiveKernel>& live_kernels() {
  static const std::vector<LiveKernel> kernels = [] {
    std::vector<LiveKernel> complex;
    for (const auto& k : haldgen::test::built_kernels()) {
      const bool inverse = k.family->word == "DFTInv_CToC";
      if (!inverse && k.family->word != "DFTFwd_CToC") continue;
      const bool c32 = k.element == frame::Element::c32;
      complex.push_back(
          {k.name, k.length, c32 ? FloatType::f32 : FloatType::f64, inverse, k.function});
    }
    return complex;
  }();
  return kernels;
}

}  // namespace haldgen::dft_complex::test
