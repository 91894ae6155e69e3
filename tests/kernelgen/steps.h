// Which intermediate values a graph computes: a factorisation shows in them.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <random>
#include <vector>

#include "kernelgen/evaluate.h"
#include "kernelgen/graph.h"

namespace haldgen::test {

using kernelgen::Wide;
using Wides = std::vector<Wide>;

/// The values of a real graph at random inputs, and which of them it computes on its way.
class Steps {
 public:
  explicit Steps(kernelgen::Graph graph) {
    std::mt19937 engine(1);
    std::vector<kernelgen::WideComplex> inputs;
    for (std::size_t i = 0; i < graph.outputs().size(); ++i) {
      x.emplace_back(static_cast<double>(static_cast<std::int32_t>(engine())) * 0x1p-31);
      inputs.push_back({x.back(), {}});
    }
    std::vector<kernelgen::Value> all;
    for (const int node : live_nodes(graph)) all.push_back({node});
    graph.set_outputs(all);
    for (const auto& value : evaluate(graph, inputs)) values_.push_back(value.re);
  }

  /// Whether a node is this value or its negative.
  bool have(Wide wanted) const {
    for (const Wide value : values_) {
      if (is_negligible(value - wanted) || is_negligible(value + wanted)) return true;
    }
    return false;
  }

  Wides x;

 private:
  Wides values_;
};

}  // namespace haldgen::test
