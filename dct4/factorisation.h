// The factorisation of the DCT-IV as graphs. With N = r m, input x and output y,
//
//   fold       Z(j, b) = sum over t = -m/2..m/2-1 of S(j, t) exp(i pi t (2b+1) / m),
//              S(j, t) = x[2rt + j] for t >= 0 and x[2r|t| - 1 - j] for t < 0,
//   rotate     c(j, b) = exp(i pi (2j+1)(2b+1) / (4N)) Z(j, b),
//   recombine  Y(b, l) = Re sum over j = 0..r-1 of c(j, b) exp(i pi (2j+1) l / (2r)),
//
// for b = 0..m/2-1; then y[b + ml] = Y(b, l) and y[m-1-b + ml] = Y(b, -(l+1)) for l = 0..r-1.
// The matrix of a recombination of radix r is the transpose of that of a fold of length 2r.
#pragma once

#include <vector>

#include "kernelgen/element.h"
#include "kernelgen/graph.h"

namespace haldgen::dct4 {

/// How folds divide: by two throughout, or by four at the lengths 16 and 64.
enum class Division { by_two, mixed };

/// A real sequence S(t), t = -m/2..m/2-1.
struct Sequence {
  std::vector<kernelgen::Value> ahead;   ///< S(0), S(1), ...
  std::vector<kernelgen::Value> behind;  ///< S(-1), S(-2), ...

  int length() const { return static_cast<int>(ahead.size() + behind.size()); }
};

/// Z(0..m/2-1) of a sequence whose length m is a power of two.
std::vector<kernelgen::Parts> fold(kernelgen::Graph& graph, const Sequence& sequence,
                                   Division division);

/// Y(0..r-1) and then Y(-1..-r) of c(0..r-1); a power of two.
std::vector<kernelgen::Value> recombine(kernelgen::Graph& graph,
                                        const std::vector<kernelgen::Parts>& terms);

/// Fold of length m: inputs S(0), S(1), ..., then S(-1), S(-2), ...; outputs Re Z(b), Im Z(b) in
/// turns.
kernelgen::Graph fold_graph(int length, Division division = Division::mixed);

/// Rotation and recombination of block b in a transform of this length: inputs Re Z(0..r-1), then
/// Im Z(0..r-1); outputs as recombine() gives them.
kernelgen::Graph recombine_graph(int radix, int length, int block);

/// The step from r folds E_a of length m/r, a = 0..r-1, to one of length m, at index b of theirs:
///
///   Z(b + pm/r) = sum over a of exp(2 pi i a p / r) exp(i pi a (2b+1) / m) E_a(b),
///
/// where indices k >= m/2 mean the conjugate of Z(m-1-k). Inputs Re E_a(b), Im E_a(b) in turns;
/// outputs, for p = 0..r-1, the parts of Z(b + pm/r) or of Z(m-1 - (b + pm/r)) in turns.
kernelgen::Graph inner_recombine_graph(int radix, int length, int block);

/// The whole DCT-IV of length 2, 4, 8, 16 or 32.
kernelgen::Graph fixed_graph(int length);

/// The rotations by which recombine_graph and inner_recombine_graph depend on their block, in the
/// order in which kernels read them: cosine and sine of each.
std::vector<kernelgen::WideComplex> block_rotations(int radix, int length, int block);
std::vector<kernelgen::WideComplex> inner_block_rotations(int radix, int length, int block);

}  // namespace haldgen::dct4
