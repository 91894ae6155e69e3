// A prime length P as a convolution of length L = P - 1 over the powers of a primitive root, on
// real data: the outputs g^p and g^(p + L/2) are conjugates, so the even bins of the product of
// spectra give the real parts of half the outputs and the odd bins the imaginary parts.
#include "kernelgen/fold.h"
#include "kernelgen/integers.h"
#include "kernelgen/stage.h"
#include "kernelgen/transpose.h"
#include "real_blocks/statements.h"

namespace haldgen::real_blocks {
namespace {

struct Convolution {
  int prime;
  int root;
  int shift;
  std::vector<Wide> cosines;  ///< at the outputs
  std::vector<Wide> sines;    ///< negative, as the transform has them
  std::vector<WideComplex> roots;

  Convolution(int p, int first) : prime(p), root(kernelgen::primitive_root(p)), shift(first) {
    for (int r = 0; r < length(); ++r) {
      cosines.push_back(kernelgen::cos_turn(output(r), prime));
      sines.push_back(-kernelgen::sin_turn(output(r), prime));
      roots.push_back(kernelgen::root(length(), r));
    }
  }

  int length() const { return prime - 1; }
  int half() const { return length() / 2; }
  /// The output that is made in place p: root^-(p + shift).
  int output(int p) const {
    return kernelgen::power(root, kernelgen::modulo(-(p + shift), length()), prime);
  }
  /// Bin j of the spectrum of cosines (even j) or of -sines (odd j) at the outputs, which as a
  /// whole is real or imaginary symmetric: its two parts.
  WideComplex spectrum(int j) const {
    const std::vector<Wide>& kernel = j % 2 == 0 ? cosines : sines;
    WideComplex sum;
    for (int r = 0; r < length(); ++r) sum = sum + kernel[at(r)] * roots[at(j * r % length())];
    return sum;
  }
};

/// A side of half the length runs transposed: its graph, ready for that.
Graph side_graph(const Recipe& recipe, bool odd) {
  Graph graph(kernelgen::Field::real);
  Reals x;
  for (int i = 0; i < recipe.length; ++i) x.push_back(graph.input(i));
  graph.set_outputs(present_parts(odd ? odd_bins(graph, recipe, x) : real_bins(graph, recipe, x)));
  return kernelgen::fold_products(graph, kernelgen::Into::all);
}

}  // namespace

Bins rader_bins(Graph& g, const Recipe& recipe, const Reals& x) {
  const int prime = recipe.length;
  const Convolution c(prime, recipe.chosen<Rader>().shift);
  const int m = c.half();
  const Wide length(c.length());

  Reals permuted;
  for (int q = 0; q < c.length(); ++q)
    permuted.push_back(x[at(kernelgen::power(c.root, q, prime))]);
  kernelgen::Stage stage(g, kernelgen::kSpectrum);
  const Bins a = real_bins(g, recipe.blocks[0], permuted);
  stage.next(kernelgen::kProducts);

  Bins bins(at(prime / 2 + 1), Bin{nullptr, {}, {}});
  bins[0] = {&g, g.add(x[0], a[0].re), {}};
  // The spectrum is -1/L at bin 0, and at bin L/2 the Gauss sum over L.
  const Value mean = g.statement({term(x[0]), term(g, Wide(-1.0) / length, a[0].re)});
  // u joins the even bins if L/2 is even, else the odd ones. Of its spectrum the part that is not
  // zero: the bin is real.
  const auto middle = c.spectrum(m);
  const Value gauss = product(g, middle.re / length, a[at(m)].re);

  Reals even{mean}, odd;
  for (int j = 1; j < m; ++j) {
    const auto d = c.spectrum(j);
    const Bin out = product({Wide(2.0) * d.re / length, Wide(2.0) * d.im / length}, a[at(j)]);
    // Products with the spectrum: of the constants behind them, some kernels fold only these.
    g.node(out.re.node).foldable = true;
    g.node(out.im.node).foldable = true;
    Reals& side = j % 2 == 0 ? even : odd;
    side.push_back(out.re);
    side.push_back(out.im);
  }
  (m % 2 == 0 ? even : odd).push_back(gauss);

  const auto back = [&](const Recipe& block, const Reals& fed, bool is_odd) {
    return kernelgen::transpose_statements_into(g, side_graph(block, is_odd), fed, m);
  };
  stage.next("even side: real parts");
  const Reals re = back(recipe.blocks[1], even, false);
  stage.next("odd side: imaginary parts");
  const Reals im = back(recipe.blocks[2], odd, true);
  for (int p = 0; p < m; ++p) place(bins, prime, c.output(p), {&g, re[at(p)], im[at(p)]});
  return bins;
}

}  // namespace haldgen::real_blocks
