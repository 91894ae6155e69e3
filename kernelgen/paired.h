// Pairing: nodes of a packed graph that do the same work on other data, two and two in the blocks
// of vectors of twice the width. Bits stay: every sum is of the same values in the same signs.
#pragma once

#include <array>
#include <vector>

#include "kernelgen/forms.h"
#include "kernelgen/packed.h"
#include "kernelgen/program.h"

namespace haldgen::kernelgen {

/// The nodes of a packed graph, one or two to a vector, in an order in which operands come first.
struct Pairing {
  struct Vector {
    int lower = -1;
    int upper = -1;  ///< -1: a vector of the packed graph's own width
  };
  std::vector<Vector> vectors;
};

/// Where pairs are looked for: elements of the source that lie so far apart are in the blocks of
/// one vector, and what is done to both, and likewise from the destination upwards.
struct Pairs {
  int source;
  int destination;
};
Pairing pair(const PackedGraph& graph, const Pairs& pairs);

/// The program of a pairing. `forms` settle the signs in which sums are held; which part of an
/// element stands in which lane is chosen anew. Mirrored: parts are exchanged at loads and stores.
Program lower_paired(const PackedGraph& graph, const Pairing& pairing,
                     const std::vector<Choice>& forms, FloatType type, bool mirrored);

}  // namespace haldgen::kernelgen
