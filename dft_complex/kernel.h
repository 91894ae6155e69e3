// From a length, an element type and a direction to a finished kernel: the recipe's graph, the
// program that executes it, and the source file that holds both directions.
#pragma once

#include <optional>
#include <string>

#include "dft_complex/recipes.h"
#include "kernelgen/count.h"
#include "kernelgen/program.h"
#include "kernelgen/schedule.h"

namespace haldgen::dft_complex {

/// What is left open by a kernel's graph: the order of its instructions, and which of many choices
/// of forms of like cost.
struct Schedule {
  kernelgen::Order order = kernelgen::Order::bisection;
  int cap = 0;   ///< of live values, in list schedules
  int seed = 0;  ///< of the choice of forms
};

/// The frozen choice for a kernel.
Schedule schedule_of(int length, ElementType type, bool inverse);

/// The graph that is counted and valued; both directions have it.
kernelgen::Graph kernel_graph(int length, ElementType type);

/// The program of one direction, scheduled.
kernelgen::Program kernel_program(int length, ElementType type, bool inverse,
                                  const Schedule& schedule);

/// "32fc" or "64fc".
std::string suffix(ElementType type);

/// The source of the kernels of one length and type; `override_schedule` is for measuring orders.
std::string kernel_source(int length, ElementType type,
                          const std::optional<Schedule>& override_schedule);

}  // namespace haldgen::dft_complex
