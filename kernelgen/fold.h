// Constants that follow each other with nothing in between become one: one multiplication less.
#pragma once

#include "kernelgen/graph.h"

namespace haldgen::kernelgen {

enum class Into {
  all,       ///< any statement of products
  foldable,  ///< those that are marked so
  none,
};

/// c * (a*x + b*y), where nothing else uses the sum, becomes (c*a)*x + (c*b)*y. The literal of the
/// product is the product of the literals.
Graph fold_products(const Graph& graph, Into into);

}  // namespace haldgen::kernelgen
