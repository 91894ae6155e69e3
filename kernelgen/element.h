// The two ways in which a block sees a complex number, with one algebra, so that each block is
// written once:
//   Whole   one node of a complex graph;
//   Parts   a real and an imaginary part, each a node: the parts are formal when the block runs on
//           real data, or on vectors whose lanes are data of their own. A part that is zero
//           vanishes, which is how real inputs halve a block.
#pragma once

#include "kernelgen/graph.h"
#include "kernelgen/integers.h"

namespace haldgen::kernelgen {

/// How a multiplication by an eighth root of unity is formed.
enum class EighthRoot {
  sum_first,       ///< sum and difference of the parts, then two multiplications
  products_first,  ///< two multiplications, then sum and difference
  full_product,    ///< four multiplications, like any other root
};

struct Whole {
  Graph* graph;
  Value value;
};

struct Parts {
  Graph* graph;
  Value re;
  Value im;
};

inline Whole operator+(Whole a, Whole b) { return {a.graph, a.graph->add(a.value, b.value)}; }
inline Whole operator-(Whole a) { return {a.graph, -a.value}; }
inline Whole operator-(Whole a, Whole b) { return a + (-b); }
inline Whole turned(Whole a, Turn turn) { return {a.graph, turned(a.value, turn)}; }
/// The same of a sum that its block writes down turned, part by part: where the sum's terms cancel,
/// it makes another zero. Formal parts keep the signs of the sum.
inline Whole written_turned(Whole a, Turn turn) {
  const Value v = turned(a.value, turn);
  a.graph->node(v.node).written = v.turn;
  return {a.graph, v};
}
inline Whole operator*(Wide c, Whole a) { return {a.graph, a.graph->multiply(c, a.value)}; }
inline Whole add_zero(Whole a) { return {a.graph, a.graph->add_zero(a.value)}; }
inline Whole zero_like(Whole a) { return {a.graph, {}}; }
inline Whole carried_zero(Whole a) { return {a.graph, a.graph->carried_zero()}; }
/// The general product: four multiplications and two additions.
inline Whole full_product(WideComplex w, Whole a, bool keep_trivial = false) {
  return {a.graph, a.graph->twiddle(w, a.value, keep_trivial)};
}

// Nodes are numbered as they are made, so every order of evaluation below is fixed: braces evaluate
// from left to right, arguments of calls in no set order.
inline Parts operator+(Parts a, Parts b) {
  return {a.graph, a.graph->add(a.re, b.re), a.graph->add(a.im, b.im)};
}
inline Parts operator-(Parts a) { return {a.graph, -a.re, -a.im}; }
inline Parts operator-(Parts a, Parts b) { return a + (-b); }
inline Parts conj(Parts a) { return {a.graph, a.re, -a.im}; }
inline Parts turned(Parts a, Turn turn) {
  switch (turn) {
    case Turn::quarter:
      return {a.graph, -a.im, a.re};
    case Turn::half:
      return -a;
    case Turn::three_quarters:
      return {a.graph, a.im, -a.re};
    case Turn::none:
      break;
  }
  return a;
}
inline Parts written_turned(Parts a, Turn turn) { return turned(a, turn); }
inline Parts operator*(Wide c, Parts a) {
  return {a.graph, a.graph->multiply(c, a.re), a.graph->multiply(c, a.im)};
}
inline Parts add_zero(Parts a) {
  return {a.graph, a.graph->add_zero(a.re), a.graph->add_zero(a.im)};
}
inline Parts zero_like(Parts a) { return {a.graph, {}, {}}; }
inline Parts carried_zero(Parts a) {
  return {a.graph, a.graph->carried_zero(), a.graph->carried_zero()};
}
/// w * a on formal parts. Where the parts of w are of one magnitude, `apart` makes two products of
/// each part of a all the same.
inline Parts product(WideComplex w, Parts a, bool apart) {
  Graph& g = *a.graph;
  if (is_negligible(w.im)) return w.re * a;
  if (is_negligible(w.re)) return w.im * turned(a, Turn::quarter);
  const Value re_re = g.multiply(w.re, a.re);
  const Value im_im = g.multiply(w.im, a.im, apart);
  const Value re = g.subtract(re_re, im_im);
  const Value re_im = g.multiply(w.re, a.im);
  const Value im_re = g.multiply(w.im, a.re, apart);
  return {a.graph, re, g.add(re_im, im_re)};
}
inline Parts full_product(WideComplex w, Parts a, bool /*keep_trivial*/ = false) {
  return product(w, a, true);
}

/// exp(-2 pi i k / n) * a. Powers of i are free, eighth roots are formed as `eighth` says, and
/// `product` writes a general w * a.
template <class Element, class Product>
Element twiddle(Element a, int n, int k, EighthRoot eighth, const Product& product) {
  k = modulo(k, n);
  if (4 * k % n == 0) return turned(a, -quarters(4 * k / n));
  if (8 * k % n == 0 && eighth != EighthRoot::full_product) {
    // (1 - i) / sqrt 2, turned as the exponent asks.
    const Element quarter = turned(a, -quarters((8 * k / n) / 2));
    const Wide c = sqrt(Wide(0.5));
    if (eighth == EighthRoot::sum_first)
      return c * (quarter + turned(quarter, Turn::three_quarters));
    const Element products = c * quarter;
    return products + turned(products, Turn::three_quarters);
  }
  return product(root(n, k), a);
}
template <class Element>
Element twiddle(Element a, int n, int k, EighthRoot eighth) {
  return twiddle(a, n, k, eighth, [](WideComplex w, Element b) { return full_product(w, b); });
}

}  // namespace haldgen::kernelgen
