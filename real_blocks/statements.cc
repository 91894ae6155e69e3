#include "real_blocks/statements.h"

#include <array>
#include <cmath>
#include <stdexcept>

#include "kernelgen/integers.h"

namespace haldgen::real_blocks {

double literal(Wide magnitude) {
  // The bits of results are promised, and these were given out one unit off the nearest double:
  // spectra of the convolutions of 13 and 11.
  constexpr std::array kFrozen{0.30711137115908277, 0.6004772719326652, 0.3004626062886657,
                               0.527221112864967,   0.4140324199662142, 0.33166247903554};
  const double nearest = to_double(magnitude);
  for (const double frozen : kFrozen) {
    if (std::nextafter(nearest, frozen) == frozen) return frozen;
  }
  return nearest;
}

Term term(Graph& graph, Wide constant, Value v) {
  if (constant.hi < 0) v = -v;
  const Wide magnitude = abs(constant);
  return {v.turn, graph.intern({magnitude, literal(magnitude)}), v.node};
}

Value product(Graph& graph, Wide constant, Value v) {
  return graph.statement({term(graph, constant, v)});
}

Bin product(WideComplex w, Bin a) {
  Graph& g = *a.graph;
  const Term re_re = term(g, w.re, a.re), re_im = term(g, -w.im, a.im);
  const Value re = g.statement({re_re, re_im});
  const Term im_im = term(g, w.re, a.im), im_re = term(g, w.im, a.re);
  return {&g, re, g.statement({im_im, im_re})};
}

Bin rotated(Bin a, int k, int n, EighthRoot eighth) {
  return twiddle(a, n, k, eighth, [](WideComplex w, Bin b) { return product(w, b); });
}

void place(Bins& bins, int n, int k, Bin bin) {
  k %= n;
  if (2 * k > n) {
    k = n - k;
    bin = conj(bin);
  }
  if (k == 0 || 2 * k == n) bin.im = {};
  if (bins[at(k)].graph != nullptr) throw std::logic_error("a bin twice");
  bins[at(k)] = bin;
}

void place_odd(Bins& bins, int n, int j, Bin bin) {
  j %= 2 * n;
  if (j > n) {
    j = 2 * n - j;
    bin = conj(bin);
  }
  if (j == n) bin.im = {};
  Bin& target = bins[at(j / 2)];
  if (target.graph != nullptr) throw std::logic_error("an odd bin twice");
  target = bin;
}

}  // namespace haldgen::real_blocks
