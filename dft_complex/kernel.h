// From a length, an element type and a direction to a finished kernel: the recipe's graph, the
// program that executes it, and the source file that holds both directions.
#pragma once

#include <string>

#include "dft_complex/recipes.h"
#include "kernelgen/count.h"
#include "kernelgen/packed.h"
#include "kernelgen/program.h"
#include "kernelgen/schedule.h"

namespace haldgen::dft_complex {

/// What a kernel's graph leaves open: which of many choices of forms of like cost both directions
/// have, and the order of the instructions of each. None of it changes a bit of a result, but for
/// the signs of exact zeros where the recipe leaves them open; in them the directions agree.
struct Tuning {
  int seed = 0;
  kernelgen::Ordering forward;
  kernelgen::Ordering inverse;
};

/// The frozen choice for the kernels of a length and type.
Tuning tuning_of(int length, ElementType type);

/// The graph that is counted and valued; both directions have it.
kernelgen::Graph kernel_graph(int length, ElementType type);

/// How 32-bit elements are moved at a length from 6 on: whole pairs where most neighbours are
/// wanted together.
kernelgen::Access access_of(int length);

/// The programs of both directions, in their orders.
struct Programs {
  kernelgen::Program forward;
  kernelgen::Program inverse;
};
Programs kernel_programs(int length, ElementType type, const Tuning& tuning);

/// "32fc" or "64fc".
std::string suffix(ElementType type);

/// The source of the kernels of one length and type, both directions.
std::string kernel_source(int length, ElementType type, const Tuning& tuning);

}  // namespace haldgen::dft_complex
