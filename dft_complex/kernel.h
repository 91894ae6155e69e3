// From a length, an element type and a direction to a finished kernel: the recipe's graph, the
// program that executes it, and the source file that holds both directions.
#pragma once

#include <string>

#include "dft_complex/recipes.h"
#include "kernelgen/schedule.h"

namespace haldgen::dft_complex {

/// What a kernel's graph leaves open: which of many choices of forms of like cost both directions
/// have, and the order of the instructions of each. None of it changes a bit of a result, but for
/// the signs of zeros, in which the directions agree.
struct Tuning {
  int seed = 0;
  kernelgen::Ordering forward;
  kernelgen::Ordering inverse;
};

/// The frozen choice for the kernels of a length and type.
Tuning tuning_of(int length, kernelgen::FloatType type);

/// The programs of both directions, in their orders.
Programs kernel_programs(int length, kernelgen::FloatType type, const Tuning& tuning);

/// "32fc" or "64fc".
std::string complex_suffix(kernelgen::FloatType type);

/// The source of the kernels of one length and type, both directions.
std::string kernel_source(int length, kernelgen::FloatType type, const Tuning& tuning);

}  // namespace haldgen::dft_complex
