// What the transcriptions of complex kernels use of the built library.
#pragma once

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
using haldgen::test::vanishing_inputs;

}  // namespace haldgen::dft_complex::test
