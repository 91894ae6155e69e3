// A graph rebuilt node by node: what passes over statements have in common.
#pragma once

#include <vector>

#include "kernelgen/graph.h"

namespace haldgen::kernelgen {

/// How often each node is used, by statements and by outputs.
struct Uses {
  explicit Uses(const Graph& graph);
  std::vector<int> by_statements;
  std::vector<int> by_outputs;
  /// Whether a single statement, and no output, uses the node.
  bool single(int node) const;
};

class Rewrite {
 public:
  explicit Rewrite(const Graph& old);

  /// A term of the old graph, over nodes that are rebuilt already, as a term of the new one.
  Term carried(const Term& old);
  /// The same with its constant multiplied.
  Term carried(const Term& old, Constant factor);

  /// The node in the new graph, as a statement of these terms of the new graph, turned. Inputs stay
  /// inputs.
  void rebuild(int node, std::vector<Term> terms, Turn turn = Turn::none);
  /// The node as it was.
  void copy(int node);

  /// The rebuilt node.
  Value at(int node) const { return values_[static_cast<std::size_t>(node)]; }

  /// The new graph, with the outputs of the old one.
  Graph finish();

 private:
  const Graph& old_;
  Graph graph_;
  std::vector<Value> values_;
};

bool has_constant(const Statement& statement);

}  // namespace haldgen::kernelgen
