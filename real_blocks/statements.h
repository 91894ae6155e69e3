// How blocks write statements with constants.
#pragma once

#include <vector>

#include "kernelgen/element.h"
#include "kernelgen/integers.h"
#include "real_blocks/expand.h"

namespace haldgen::real_blocks {

using kernelgen::at;
using kernelgen::congruent;
using kernelgen::Graph;
using kernelgen::Term;
using kernelgen::Turn;
using kernelgen::Value;
using kernelgen::Wide;
using kernelgen::WideComplex;

/// The literal of a constant of these kernels: the nearest double, but for a few that are frozen.
double literal(Wide magnitude);

inline Term term(Value v) { return {v.turn, kernelgen::kNoConstant, v.node}; }
Term term(Graph& graph, Wide constant, Value v);

/// constant * v as a statement of its own.
Value product(Graph& graph, Wide constant, Value v);

/// w * a: four products in two statements.
Bin product(WideComplex w, Bin a);

/// exp(-2 pi i k / n) * a.
Bin rotated(Bin a, int k, int n, EighthRoot eighth);

/// Puts bin k of a real transform of length n into bins 0..n/2: bins above are conjugates.
void place(Bins& bins, int n, int k, Bin bin);

/// The same for bin j of the odd ones 1, 3, .. of length 2n.
void place_odd(Bins& bins, int n, int j, Bin bin);

Bins rader_bins(Graph& graph, const Recipe& recipe, const Reals& x);

}  // namespace haldgen::real_blocks
