// How blocks write statements with constants.
#pragma once

#include <vector>

#include "kernelgen/element.h"
#include "real_blocks/expand.h"

namespace haldgen::real_blocks {

using kernelgen::Graph;
using kernelgen::Term;
using kernelgen::Value;
using kernelgen::Wide;

inline std::size_t at(int i) { return static_cast<std::size_t>(i); }

/// The literal of a constant of these kernels: the nearest double, but for a few that are frozen.
double literal(Wide magnitude);

inline Term term(Value v) { return {v.turn, kernelgen::kNoConstant, v.node}; }
Term term(Graph& graph, Wide constant, Value v);

/// constant * v as a statement of its own.
Value product(Graph& graph, Wide constant, Value v);

inline Bin conj(Bin a) { return {a.graph, a.re, -a.im}; }

/// exp(-2 pi i k / n) * a: four products in two statements; two, unless full, for an eighth root.
Bin rotated(Bin a, int k, int n, EighthRoot eighth);

/// Puts bin k of a real transform of length n into bins 0..n/2: bins above are conjugates.
void place(Bins& bins, int n, int k, Bin bin);

/// The same for bin j of the odd ones 1, 3, .. of length 2n.
void place_odd(Bins& bins, int n, int j, Bin bin);

Bins rader_bins(Graph& graph, const Recipe& recipe, const Reals& x);

}  // namespace haldgen::real_blocks
