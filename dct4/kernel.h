// From a part of the DCT-IV to its generated kernel: graph and program.
#pragma once

#include <span>
#include <string>

#include "dct4/factorisation.h"
#include "kernelgen/count.h"
#include "kernelgen/program.h"
#include "kernelgen/schedule.h"

namespace haldgen::dct4 {

/// The kernels: whole transforms, scalar, and the bodies of the passes of planned transforms, each
/// over as many sequences or blocks as a vector has lanes.
enum class Part { fixed, fold, recombine, inner_recombine };

struct Kernel {
  Part part;
  int size;  ///< length of a transform or fold, radix of a recombination
  kernelgen::FloatType type;
};

/// All kernels of the library.
std::span<const Kernel> kernels();

/// Such as "fold_16".
std::string name(const Kernel& kernel);

/// What one sequence or block costs, and what is computed from it. Recombinations are those of
/// block 0; other blocks differ in their rotations only.
kernelgen::Graph kernel_graph(const Kernel& kernel);

kernelgen::Program kernel_program(const Kernel& kernel, kernelgen::Ordering ordering);

/// What a whole transform executes in real operations: its kernels as often as its plan runs them.
/// The depth is that of the parts one after another.
kernelgen::Counts transform_counts(int length);

}  // namespace haldgen::dct4
