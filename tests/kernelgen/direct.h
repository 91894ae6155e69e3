// The direct evaluation of a graph in the arithmetic of an element type.
#pragma once

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <type_traits>
#include <vector>

#include "kernelgen/graph.h"
#include "kernelgen/integers.h"
#include "kernelgen/lower.h"
#include "kernelgen/rewrite.h"

namespace haldgen::kernelgen::test {

template <class Float>
struct Element {
  Float re = 0;
  Float im = 0;
};

template <class Float>
Element<Float> turned(Element<Float> v, Turn turn) {
  switch (turn) {
    case Turn::quarter:
      return {-v.im, v.re};
    case Turn::half:
      return {-v.re, -v.im};
    case Turn::three_quarters:
      return {v.im, -v.re};
    case Turn::none:
      break;
  }
  return v;
}

template <class Float>
Float rounded_constant(Wide c) {
  if constexpr (std::is_same_v<Float, float>) {
    return to_float(c);
  } else {
    return to_double(c);
  }
}

/// The sum of one statement in the arithmetic of `Float`, term after term.
template <class Float, class Operand>
Element<Float> sum_of(const Graph& graph, const Statement& s, const Operand& operand) {
  Element<Float> sum;
  bool first = true;
  for (const Term& t : s.terms) {
    Element<Float> v = turned<Float>(operand(t.node), t.turn);
    if (t.constant != kNoConstant) {
      const auto c = rounded_constant<Float>(graph.constant(t.constant));
      v = {c * v.re, c * v.im};
    }
    sum = first ? v : Element<Float>{sum.re + v.re, sum.im + v.im};
    first = false;
  }
  return sum;
}

/// The outputs of a graph as its statements say, each operation rounded once, and the scale. The
/// parts of element k stand at 2k and 2k + 1; a real graph has one float per input and output.
/// Outputs that are results of wide statements, and nothing else, are scaled as `scaled` says.
template <class Float>
std::vector<Float> direct(const Graph& graph, const std::vector<Float>& source, Float scale,
                          Scaled scaled = Scaled::result) {
  const bool complex = graph.field() == Field::complex;
  const Uses uses(graph);
  std::vector<Element<Float>> values(graph.nodes().size());
  std::vector<double> raw(graph.nodes().size());
  for (const int index : live_nodes(graph)) {
    const Statement& s = graph.node(index);
    Element<Float>& v = values[at(index)];
    if (s.input) {
      v = complex ? Element<Float>{source[at(2 * *s.input)], source[at(2 * *s.input + 1)]}
                  : Element<Float>{source[at(*s.input)], 0};
    } else if (s.precision == Precision::wide) {
      const auto wide = sum_of<double>(graph, s, [&](int node) {
        return Element<double>{double{values[at(node)].re}, double{values[at(node)].im}};
      });
      v = {static_cast<Float>(wide.re), static_cast<Float>(wide.im)};
      raw[at(index)] = wide.re;
    } else {
      v = sum_of<Float>(graph, s, [&](int node) { return values[at(node)]; });
    }
  }
  std::vector<Float> result;
  for (const Value output : graph.outputs()) {
    const bool wide = graph.node(output.node).precision == Precision::wide;
    if (wide && scaled == Scaled::result && uses.by_statements[at(output.node)] == 0) {
      const double product = double{scale} * raw[at(output.node)];
      result.push_back(static_cast<Float>(output.turn == Turn::half ? -product : product));
      continue;
    }
    const auto v = turned<Float>(values[at(output.node)], output.turn);
    result.push_back(scale * v.re);
    if (complex) result.push_back(scale * v.im);
  }
  return result;
}

/// The bits of a number, both zeros alike.
inline std::uint64_t bits(double v) { return std::bit_cast<std::uint64_t>(v == 0 ? 0.0 : v); }
inline std::uint64_t bits(float v) { return std::bit_cast<std::uint32_t>(v == 0 ? 0.0F : v); }

template <class Float>
bool same_bits(const std::vector<Float>& a, const std::vector<Float>& b) {
  if (a.size() != b.size()) return false;
  for (std::size_t i = 0; i < a.size(); ++i) {
    if (bits(a[i]) != bits(b[i])) return false;
  }
  return true;
}

/// Number of input elements (floats of a real graph).
inline std::size_t inputs_of(const Graph& graph) {
  int count = 0;
  for (const Statement& s : graph.nodes()) count = std::max(count, s.input.value_or(-1) + 1);
  return at(count);
}

}  // namespace haldgen::kernelgen::test
