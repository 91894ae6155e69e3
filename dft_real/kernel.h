// From a length, a direction and an element type to a finished kernel: the recipe's graph, the
// program that executes it, and the source file that holds the kernels of all packed formats.
#pragma once

#include <string>

#include "dft_real/recipes.h"
#include "kernelgen/program.h"
#include "kernelgen/schedule.h"

namespace haldgen::dft_real {

/// The frozen order of instructions for the kernels of a length, direction and type.
kernelgen::Ordering tuning_of(int length, Direction direction, kernelgen::FloatType type);

/// The graph that is counted and valued; both element types have it, and all formats. Its inputs or
/// outputs are the samples on one side, the values of the half spectrum in their order on the
/// other.
kernelgen::Graph kernel_graph(int length, Direction direction);

kernelgen::Program kernel_program(int length, Direction direction, kernelgen::FloatType type,
                                  kernelgen::Ordering ordering);

/// The source of the kernels of one length, direction and type, in all formats.
std::string kernel_source(int length, Direction direction, kernelgen::FloatType type,
                          kernelgen::Ordering ordering);

}  // namespace haldgen::dft_real
