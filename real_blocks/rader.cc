// A prime length P as a convolution of length L = P - 1 over the powers of a primitive root, on
// real data: the outputs g^p and g^(p + L/2) are conjugates, so the even bins of the product of
// spectra give the real parts of half the outputs and the odd bins the imaginary parts.
#include <stdexcept>

#include "kernelgen/fold.h"
#include "kernelgen/transpose.h"
#include "real_blocks/statements.h"

namespace haldgen::real_blocks {
namespace {

int power(int base, int exponent, int modulus) {
  int result = 1;
  for (int i = 0; i < exponent; ++i) result = result * base % modulus;
  return result;
}

int smallest_primitive_root(int prime) {
  for (int g = 2; g < prime; ++g) {
    int order = 1;
    for (int v = g; v != 1; v = v * g % prime) ++order;
    if (order == prime - 1) return g;
  }
  throw std::logic_error("not a prime");
}

struct Convolution {
  int prime;
  int root;
  int shift;

  int length() const { return prime - 1; }
  int half() const { return length() / 2; }
  /// The output that is made in place p: root^-(p + shift).
  int output(int p) const {
    return power(root, (length() - (p + shift) % length()) % length(), prime);
  }
  /// Bin j of the spectrum of cosines (even j) or of -sines (odd j) at the outputs, which as a
  /// whole is real or imaginary symmetric: its two parts.
  kernelgen::WideComplex spectrum(int j) const {
    kernelgen::WideComplex sum;
    for (int r = 0; r < length(); ++r) {
      const int k = output(r);
      const Wide cosine = kernelgen::cos_turn(k, prime);
      const Wide sine = -kernelgen::sin_turn(k, prime);
      const Wide kernel = j % 2 == 0 ? cosine : sine;
      const int turn = j * r % length();
      sum = sum + kernel * kernelgen::root(length(), turn);
    }
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
  const Convolution c{prime, smallest_primitive_root(prime), recipe.shift};
  const int m = c.half();
  const Wide length(c.length());

  Reals permuted;
  for (int q = 0; q < c.length(); ++q) permuted.push_back(x[at(power(c.root, q, prime))]);
  const Bins a = real_bins(g, recipe.blocks[0], permuted);

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
    const Wide re = Wide(2.0) * d.re / length;
    const Wide im = Wide(2.0) * d.im / length;
    const Bin& bin = a[at(j)];
    const Term re_re = term(g, re, bin.re), re_im = term(g, -im, bin.im);
    const Value out_re = g.statement({re_re, re_im});
    const Term im_im = term(g, re, bin.im), im_re = term(g, im, bin.re);
    const Value out_im = g.statement({im_im, im_re});
    // Products with the spectrum: of the constants behind them, some kernels fold only these.
    g.node(out_re.node).foldable = true;
    g.node(out_im.node).foldable = true;
    Reals& side = j % 2 == 0 ? even : odd;
    side.push_back(out_re);
    side.push_back(out_im);
  }
  (m % 2 == 0 ? even : odd).push_back(gauss);

  const auto back = [&](const Recipe& block, const Reals& fed, bool is_odd) {
    return kernelgen::transpose_statements_into(g, side_graph(block, is_odd), fed, m);
  };
  const Reals re = back(recipe.blocks[1], even, false);
  const Reals im = back(recipe.blocks[2], odd, true);
  for (int p = 0; p < m; ++p) place(bins, prime, c.output(p), {&g, re[at(p)], im[at(p)]});
  return bins;
}

}  // namespace haldgen::real_blocks
