// Signs of results and the order of terms: the last choices before a real graph becomes a program.
#pragma once

#include <stdexcept>
#include <vector>

#include "kernelgen/graph.h"

namespace haldgen::kernelgen {

/// Thrown where no difference behind an output can be turned around for its sign.
struct UnreachableSign : std::logic_error {
  UnreachableSign(int which, bool minus);
  int output;
};

/// Turns differences behind outputs around, a - b to -(b - a), so that the outputs with a true
/// entry in `negated` carry a minus and the others none. An output that is no difference stays.
Graph turn_differences(const Graph& graph, const std::vector<bool>& negated);

/// The way from an output to a difference: which output, then which term to follow in each
/// statement on the way. Products are followed without a number.
using Way = std::vector<int>;

/// The same for every output: where the statement behind one has no minus to turn, differences
/// further back are turned. A negated output is formed as 0 minus its scaled value. Throws
/// UnreachableSign. Then the differences that the ways in `turned` lead to are
/// turned, one after the other: values stay, exact zeros get the other sign.
Graph orient_outputs(const Graph& graph, const std::vector<bool>& negated,
                     const std::vector<Way>& turned = {});

/// Terms of each sum in the order of their depth, so that a chain of additions waits as little as
/// it can. Of equally deep ones a positive one leads, then all stand as they were written.
Graph order_terms(const Graph& graph);

}  // namespace haldgen::kernelgen
