// From a length, a direction and an element type to a finished kernel: the recipe's graph, the
// program that executes it, and the source file that holds the kernels of all packed formats.
#pragma once

#include <string>

#include "dft_real/recipes.h"
#include "kernelgen/program.h"
#include "kernelgen/schedule.h"

namespace haldgen::dft_real {

/// The order of a program's instructions; the cap of live values matters to list schedules only.
struct Tuning {
  kernelgen::Order order = kernelgen::Order::bisection;
  int cap = 0;
};

/// The frozen choice for the kernels of a length, direction and type.
Tuning tuning_of(int length, Direction direction, kernelgen::FloatType type);

/// The graph that is counted and valued; both element types have it, and all formats. Its inputs or
/// outputs are the samples on one side, the values of the half spectrum in their order on the
/// other.
kernelgen::Graph kernel_graph(int length, Direction direction);

kernelgen::Program kernel_program(int length, Direction direction, kernelgen::FloatType type,
                                  const Tuning& tuning);

/// The source of the kernels of one length, direction and type, in all formats.
std::string kernel_source(int length, Direction direction, kernelgen::FloatType type,
                          const Tuning& tuning);

}  // namespace haldgen::dft_real
