// From a length and an element type to a finished kernel: the recipe's graph, the program that
// executes it, and the source file.
#pragma once

#include <string>

#include "hartley/recipes.h"
#include "kernelgen/program.h"
#include "kernelgen/schedule.h"

namespace haldgen::hartley {

/// The frozen order of instructions for the kernel of a length and type.
kernelgen::Ordering tuning_of(int length, kernelgen::FloatType type);

/// The graph that is counted and valued; both element types have it. Inputs and outputs 0..N-1.
kernelgen::Graph kernel_graph(int length);

kernelgen::Program kernel_program(int length, kernelgen::FloatType type,
                                  kernelgen::Ordering ordering);

std::string kernel_source(int length, kernelgen::FloatType type, kernelgen::Ordering ordering);

}  // namespace haldgen::hartley
