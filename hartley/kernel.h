// From a length and an element type to a finished kernel: the recipe's graph, the program that
// executes it, and the source file.
#pragma once

#include <string>

#include "hartley/recipes.h"
#include "kernelgen/program.h"
#include "kernelgen/schedule.h"

namespace haldgen::hartley {

/// The order of a program's instructions; the cap of live values matters to list schedules only.
struct Tuning {
  kernelgen::Order order = kernelgen::Order::bisection;
  int cap = 0;
};

/// The frozen choice for the kernel of a length and type.
Tuning tuning_of(int length, kernelgen::FloatType type);

/// The graph that is counted and valued; both element types have it. Inputs and outputs 0..N-1.
kernelgen::Graph kernel_graph(int length);

kernelgen::Program kernel_program(int length, kernelgen::FloatType type, const Tuning& tuning);

std::string kernel_source(int length, kernelgen::FloatType type, const Tuning& tuning);

}  // namespace haldgen::hartley
