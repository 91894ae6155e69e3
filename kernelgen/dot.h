// A graph as Graphviz text.
#pragma once

#include <string>

#include "kernelgen/graph.h"

namespace haldgen::kernelgen {

std::string to_dot(const Graph& graph);

}  // namespace haldgen::kernelgen
