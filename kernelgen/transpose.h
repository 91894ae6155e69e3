// Transposition: the graph of a linear map with its edges reversed computes the transposed map, at
// the same number of multiplications. It gives the way back of a Rader kernel from a block written
// for the way there, and inverse kernels from forward ones.
#pragma once

#include <span>
#include <vector>

#include "kernelgen/graph.h"

namespace haldgen::kernelgen {

/// Builds in `into` the transpose of the real graph `forward`, fed with one value per output of
/// `forward`; returns one value per input 0..inputs-1. Sums of many contributions are added in
/// sequence, those of later uses first.
std::vector<Value> transpose_into(Graph& into, const Graph& forward, std::span<const Value> fed,
                                  int inputs);

/// The same, keeping statements whole: what flows back into a node is one statement, whose terms
/// stand in the order in which the users of the node were written.
std::vector<Value> transpose_statements_into(Graph& into, const Graph& forward,
                                             std::span<const Value> fed, int inputs);

}  // namespace haldgen::kernelgen
