// The exact value of a graph: its statements in wide arithmetic, without the rounding of a kernel.
#pragma once

#include <span>
#include <vector>

#include "kernelgen/graph.h"

namespace haldgen::kernelgen {

/// One value per output. Inputs of a real graph have no imaginary part.
std::vector<WideComplex> evaluate(const Graph& graph, std::span<const WideComplex> inputs);

}  // namespace haldgen::kernelgen
