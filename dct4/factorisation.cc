#include "dct4/factorisation.h"

#include <span>
#include <utility>

#include "dct4/walk.h"
#include "kernelgen/integers.h"
#include "kernelgen/stage.h"
#include "kernelgen/transpose.h"

namespace haldgen::dct4 {
namespace {

using kernelgen::at;
using kernelgen::Field;
using kernelgen::Graph;
using kernelgen::Parts;
using kernelgen::Stage;
using kernelgen::Turn;
using kernelgen::Value;
using kernelgen::Wide;
using kernelgen::WideComplex;

/// exp(i pi numerator / denominator).
WideComplex half_turn(std::int64_t numerator, std::int64_t denominator) {
  return kernelgen::root(2 * denominator, -numerator);
}

/// exp(i pi / 4) a, with the sum and the difference of the parts formed first.
Parts eighth_turn(Parts a) { return sqrt(Wide(0.5)) * (a + turned(a, Turn::quarter)); }

/// S(step u + offset), u = -m/2..m/2-1 for m the step-th part of the length.
Sequence every(const Sequence& s, int step, int offset) {
  Sequence part;
  for (int t = offset; t < static_cast<int>(s.ahead.size()); t += step) {
    part.ahead.push_back(s.ahead[at(t)]);
  }
  for (int t = step - offset; t <= static_cast<int>(s.behind.size()); t += step) {
    part.behind.push_back(s.behind[at(t - 1)]);
  }
  return part;
}

/// The sums over a of i^(a p) x(a), p = 0..3.
std::vector<Parts> four_way(const std::vector<Parts>& x) {
  const Parts even_sum = x[0] + x[2];
  const Parts even_difference = x[0] - x[2];
  const Parts odd_sum = x[1] + x[3];
  const Parts odd_difference = turned(x[1] - x[3], Turn::quarter);
  const Parts y0 = even_sum + odd_sum;
  const Parts y1 = even_difference + odd_difference;
  const Parts y2 = even_sum - odd_sum;
  const Parts y3 = even_difference - odd_difference;
  return {y0, y1, y2, y3};
}

std::vector<Parts> two_way(const std::vector<Parts>& x) {
  const Parts sum = x[0] + x[1];
  const Parts difference = x[0] - x[1];
  return {sum, difference};
}

std::vector<Parts> fold_by(Graph& graph, const Sequence& s, int radix, Division division) {
  const int m = s.length();
  const int quarter = m / (2 * radix);  // outputs of a part
  std::vector<std::vector<Parts>> parts;
  Stage stage(graph, "folds of " + std::to_string(m / radix));
  for (int a = 0; a < radix; ++a) parts.push_back(fold(graph, every(s, radix, a), division));
  std::vector<Parts> z(at(m / 2));
  stage.next("step of radix " + std::to_string(radix));
  for (int b = 0; b < quarter; ++b) {
    std::vector<Parts> row;
    for (int a = 0; a < radix; ++a) {
      const Parts e = parts[at(a)][at(b)];
      const int angle = a * (2 * b + 1);  // in units of pi / m
      if (a == 0) {
        row.push_back(e);
      } else if (4 * angle == m) {
        row.push_back(eighth_turn(e));
      } else {
        row.push_back(full_product(half_turn(angle, m), e));
      }
    }
    const std::vector<Parts> sums = radix == 2 ? two_way(row) : four_way(row);
    for (int p = 0; p < radix; ++p) {
      const int k = b + p * (m / radix);
      if (k < m / 2) {
        z[at(k)] = sums[at(p)];
      } else {
        z[at(m - 1 - k)] = conj(sums[at(p)]);
      }
    }
  }
  return z;
}

/// The sums over a of exp(2 pi i a p / n) x(a), p = 0..n-1, n a power of two, by the split radix:
/// even indices by halves, odd ones by quarters.
std::vector<Parts> dft(const std::vector<Parts>& x) {
  const int n = static_cast<int>(x.size());
  if (n == 1) return x;
  if (n == 2) return two_way(x);
  std::vector<Parts> even;
  std::vector<Parts> first;
  std::vector<Parts> third;
  for (int a = 0; a < n; a += 2) even.push_back(x[at(a)]);
  for (int a = 1; a < n; a += 4) first.push_back(x[at(a)]);
  for (int a = 3; a < n; a += 4) third.push_back(x[at(a)]);
  even = dft(even);
  first = dft(first);
  third = dft(third);
  std::vector<Parts> y(x.size());
  for (int k = 0; k < n / 4; ++k) {
    const auto twiddled = [n](Parts v, int turns) {
      if (turns == 0) return v;
      if (8 * turns == n) return eighth_turn(v);
      if (8 * turns == 3 * n) return turned(eighth_turn(v), Turn::quarter);
      return full_product(kernelgen::root(n, -turns), v);
    };
    const Parts u = twiddled(first[at(k)], k);
    const Parts v = twiddled(third[at(k)], 3 * k);
    const Parts sum = u + v;
    const Parts difference = turned(u - v, Turn::quarter);
    y[at(k)] = even[at(k)] + sum;
    y[at(k + n / 4)] = even[at(k + n / 4)] + difference;
    y[at(k + n / 2)] = even[at(k)] - sum;
    y[at(k + 3 * n / 4)] = even[at(k + n / 4)] - difference;
  }
  return y;
}

Sequence input_sequence(Graph& graph, int length) {
  Sequence s;
  for (int t = 0; t < length / 2; ++t) s.ahead.push_back(graph.input(t));
  for (int t = 0; t < length / 2; ++t) s.behind.push_back(graph.input(length / 2 + t));
  return s;
}

void push_parts(std::vector<Value>& values, Parts a) {
  values.push_back(a.re);
  values.push_back(a.im);
}

/// B = cos p + sin q and A = sin p - cos q of the angle pi numerator / denominator, as B + iA, in
/// three lifting steps.
Parts lifted(Graph& graph, Value p, Value q, int numerator, int denominator) {
  // tan(phi / 2) and sin(phi), phi the complement of the angle.
  const int complement = denominator / 2 - numerator;
  const WideComplex half = half_turn(complement, 2 * std::int64_t{denominator});
  const Wide tangent = half.im / half.re;
  const Wide sine = half_turn(complement, denominator).im;
  const Value tq = graph.multiply(tangent, q);
  const Value a = graph.subtract(p, tq);
  const Value ua = graph.multiply(sine, a);
  const Value b = graph.add(q, ua);
  const Value tb = graph.multiply(tangent, b);
  return {&graph, b, graph.subtract(a, tb)};
}

}  // namespace

std::vector<Parts> fold(Graph& graph, const Sequence& sequence, Division division) {
  const int m = sequence.length();
  if (m == 2) return {{&graph, sequence.ahead[0], -sequence.behind[0]}};
  const bool by_four = division == Division::mixed && (m == 16 || m == 64);
  return fold_by(graph, sequence, by_four ? 4 : 2, division);
}

std::vector<Value> recombine(Graph& graph, const std::vector<Parts>& terms) {
  const int radix = static_cast<int>(terms.size());
  const Graph forward = fold_graph(2 * radix, radix == 32 ? Division::mixed : Division::by_two);
  std::vector<Value> fed;
  for (const Parts& c : terms) push_parts(fed, conj(c));  // Re of a product
  return kernelgen::transpose_into(graph, forward, fed, 2 * radix);
}

Graph fold_graph(int length, Division division) {
  Graph graph(Field::real);
  const Sequence s = input_sequence(graph, length);
  std::vector<Value> outputs;
  for (const Parts& z : fold(graph, s, division)) push_parts(outputs, z);
  graph.set_outputs(outputs);
  return graph;
}

Graph recombine_graph(int radix, int length, int block) {
  Graph graph(Field::real);
  for (int k = 0; k < 2 * radix; ++k) graph.input(k);
  const std::vector<WideComplex> rotations = block_rotations(radix, length, block);
  Stage stage(graph, "rotations");
  std::vector<Parts> terms(at(radix));
  for (int s = 0; s < radix; ++s) {
    const int j = walk_index(radix, s);
    const Parts z{&graph, graph.input(j), graph.input(radix + j)};
    terms[at(j)] = full_product(rotations[at(s)], z);
  }
  stage.next("recombination");
  graph.set_outputs(recombine(graph, terms));
  return graph;
}

Graph inner_recombine_graph(int radix, int length, int block) {
  Graph graph(Field::real);
  for (int k = 0; k < 2 * radix; ++k) graph.input(k);
  const std::vector<WideComplex> rotations = inner_block_rotations(radix, length, block);
  std::vector<Parts> row;
  Stage stage(graph, "rotations");
  for (int a = 0; a < radix; ++a) {
    const Parts e{&graph, graph.input(2 * a), graph.input(2 * a + 1)};
    row.push_back(a == 0 ? e : full_product(rotations[at(a - 1)], e));
  }
  stage.next("DFT of length " + std::to_string(radix));
  const std::vector<Parts> sums = dft(row);
  std::vector<Value> outputs;
  for (int p = 0; p < radix; ++p)
    push_parts(outputs, p < radix / 2 ? sums[at(p)] : conj(sums[at(p)]));
  graph.set_outputs(outputs);
  return graph;
}

Graph fixed_graph(int length) {
  Graph graph(Field::real);
  std::vector<Value> x;
  for (int n = 0; n < length; ++n) x.push_back(graph.input(n));
  const int radix = length == 2 ? 1 : length == 16 ? 4 : 2;
  const int m = length / radix;
  std::vector<std::vector<Parts>> z;  // by j and b
  Stage stage(graph, "folds of " + std::to_string(m));
  for (int j = 0; j < radix; ++j) {
    Sequence s;
    for (int t = 0; t < m / 2; ++t) s.ahead.push_back(x[at(2 * radix * t + j)]);
    for (int t = 1; t <= m / 2; ++t) s.behind.push_back(x[at(2 * radix * t - 1 - j)]);
    z.push_back(fold(graph, s, Division::mixed));
  }
  std::vector<Value> y(at(length));
  for (int b = 0; b < m / 2; ++b) {
    std::vector<Parts> terms;
    stage.next("rotations");
    for (int j = 0; j < radix; ++j) {
      const int angle = (2 * j + 1) * (2 * b + 1);  // in units of pi / 4N
      const Parts folded = z[at(j)][at(b)];
      terms.push_back(length == 4
                          ? lifted(graph, folded.re, -folded.im, angle, 4 * length)
                          : full_product(half_turn(angle, 4 * std::int64_t{length}), folded));
    }
    stage.next("recombination");
    const std::vector<Value> sums = recombine(graph, terms);
    for (int l = 0; l < radix; ++l) {
      y[at(b + m * l)] = sums[at(l)];
      y[at(m - 1 - b + m * l)] = sums[at(radix + l)];
    }
  }
  graph.set_outputs(y);
  return graph;
}

std::vector<WideComplex> block_rotations(int radix, int length, int block) {
  std::vector<WideComplex> rotations;
  for (int s = 0; s < radix; ++s) {
    const std::int64_t angle = std::int64_t{2 * walk_index(radix, s) + 1} * (2 * block + 1);
    rotations.push_back(half_turn(angle, 4 * std::int64_t{length}));
  }
  return rotations;
}

std::vector<WideComplex> inner_block_rotations(int radix, int length, int block) {
  std::vector<WideComplex> rotations;
  for (int a = 1; a < radix; ++a) {
    rotations.push_back(half_turn(std::int64_t{a} * (2 * block + 1), length));
  }
  return rotations;
}

}  // namespace haldgen::dct4
