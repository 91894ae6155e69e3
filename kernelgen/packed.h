// Packing: the nodes of a complex graph laid into vectors of one or two elements.
//
// A vector of two elements holds two nodes that do the same work on other data. Equal columns of a
// fan are such work, so columns 2q and 2q+1 share their vectors node by node; where the lanes of a
// later step meet otherwise, a gather takes one half from each of two vectors.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "kernelgen/graph.h"

namespace haldgen::kernelgen {

enum class PackedKind {
  load,    ///< elements `element[h]` of the source
  zero,    ///< zeros
  sum,     ///< a + i^turn b
  scale,   ///< each half by a real constant
  rotate,  ///< each half by a complex constant
  gather,  ///< half `half[0]` of a, half `half[1]` of b
  store,   ///< i^turn a into elements `element[h]` of the destination
};

struct PackedNode {
  PackedKind kind = PackedKind::zero;
  int a = -1;
  int b = -1;
  Turn turn = Turn::none;
  std::array<int, 2> half{0, 0};
  std::array<std::optional<int>, 2> element{};  ///< none: this half is idle
  std::array<WideComplex, 2> factor{};
  std::array<Turn, 2> written{};  ///< as in the statements of the halves
  std::string stage = {};         ///< of the statement that it is, or is first needed by
};

/// How vectors of two elements touch memory.
enum class Access {
  pairs,  ///< elements 2q and 2q+1 at once, by whole vectors; other pairs are gathered from these
  pairs_and_lone,  ///< the same, but a result beside an idle half moves alone, and so does the
                   ///< element that would have been its pair
  singles,         ///< element by element, two of them filling a vector
};

struct PackedGraph {
  int halves = 1;  ///< complex elements in a vector
  Access access = Access::pairs;
  std::vector<PackedNode> nodes;
};

/// Whether a load or store moves a whole vector: neighbours that an aligned array of pairs holds in
/// an aligned vector. Others move element by element.
bool is_whole(const PackedGraph& graph, const PackedNode& node);

/// About as many instructions as the packed graph becomes, whatever forms its values are held in.
int vector_operations(const PackedGraph& graph);

/// `elements_per_vector` is 1 or 2; `access` matters to 2 only.
PackedGraph pack(const Graph& graph, int elements_per_vector, Access access = Access::pairs);

}  // namespace haldgen::kernelgen
