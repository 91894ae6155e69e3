// Random statement graphs, and their direct evaluation in the arithmetic of an element type.
#pragma once

#include <bit>
#include <cstdint>
#include <random>
#include <type_traits>
#include <vector>

#include "kernelgen/graph.h"

namespace haldgen::kernelgen::test {

inline std::size_t at(int i) { return static_cast<std::size_t>(i); }

/// Numbers and choices from a seed; the same on every standard library.
class Dice {
 public:
  explicit Dice(std::uint32_t seed) : engine_(seed) {}

  int below(int n) { return static_cast<int>(engine_() % static_cast<unsigned>(n)); }
  bool chance(int percent) { return below(100) < percent; }
  /// In -1..1, 24 significant bits: exact in both element types.
  double number() {
    return static_cast<double>(static_cast<std::int32_t>(engine_()) >> 8) * 0x1p-23;
  }
  /// A constant of trigonometry, neither 0 nor 1.
  Wide constant() {
    const int n = 5 + below(40);
    return abs(cos_turn(1 + below(n - 1), 4 * n));
  }

  template <class Float>
  std::vector<Float> numbers(std::size_t count) {
    std::vector<Float> result;
    for (std::size_t i = 0; i < count; ++i) result.push_back(static_cast<Float>(number()));
    return result;
  }

 private:
  std::mt19937 engine_;
};

/// Complex statements on these inputs, every kind that complex kernels use. Equal dice give equal
/// work on other inputs.
inline std::vector<Value> random_work(Graph& graph, std::vector<Value> values, Dice& dice,
                                      int statements) {
  const std::size_t inputs = values.size();
  const auto any = [&] {
    const Value v = values[at(dice.below(static_cast<int>(values.size())))];
    return turned(v, dice.below(4));
  };
  for (int i = 0; i < statements; ++i) {
    const Value a = any();
    const int kind = dice.below(10);
    if (kind < 6) {
      const Value b = any();
      values.push_back(a.node == b.node ? graph.multiply(dice.constant(), a) : graph.add(a, b));
    } else if (kind == 6) {
      values.push_back(graph.multiply(dice.constant(), a, dice.chance(30)));
    } else if (kind == 7) {
      values.push_back(graph.add_zero(a));
    } else if (kind == 8) {
      values.push_back(graph.twiddle(root(4, dice.below(4)), a, true));
    } else {
      values.push_back(graph.twiddle(root(23, 1 + dice.below(22)), a));
    }
  }
  return {values.begin() + static_cast<std::ptrdiff_t>(inputs), values.end()};
}

/// Two fans of equal columns, so that vectors of two elements have something to share, with loose
/// statements between them.
inline Graph random_complex_graph(std::uint32_t seed) {
  Dice dice(seed);
  Graph graph(Field::complex);
  const int columns = 1 + dice.below(5);
  const int rows = 2 + dice.below(3);
  std::vector<Value> values;
  for (int i = 0; i < columns * rows; ++i) values.push_back(graph.input(i));
  if (dice.chance(20)) values.back() = graph.carried_zero();
  for (int layer = 0; layer < 2; ++layer) {
    const std::uint32_t work_seed = seed * 7 + static_cast<std::uint32_t>(layer);
    const int statements = 3 + dice.below(8);
    std::vector<Value> results;
    for (int c = 0; c < columns; ++c) {
      graph.enter_column(c, columns);
      std::vector<Value> in;
      for (int r = 0; r < rows; ++r)
        in.push_back(values[at((layer == 0 ? r * columns + c : c * rows + r) %
                               static_cast<int>(values.size()))]);
      Dice work(work_seed);
      const auto out = random_work(graph, in, work, statements);
      results.insert(results.end(), out.begin(), out.end());
      graph.leave_column();
    }
    const auto loose = random_work(graph, results, dice, 2);
    results.insert(results.end(), loose.begin(), loose.end());
    values = results;
  }
  std::vector<Value> outputs;
  for (const Value v : values) outputs.push_back(turned(v, dice.below(4)));
  graph.set_outputs(outputs);
  return graph;
}

/// Sums and products of real inputs; terms with constants stand beside terms without.
inline Graph random_real_graph(std::uint32_t seed) {
  Dice dice(seed);
  Graph graph(Field::real);
  std::vector<Value> values;
  for (int i = 0; i < 3 + dice.below(3); ++i) values.push_back(graph.input(i));
  const auto any = [&] {
    const Value v = values[at(dice.below(static_cast<int>(values.size())))];
    return turned(v, 2 * dice.below(2));
  };
  for (int i = 0; i < 15; ++i) {
    const Value a = any();
    const Value b = any();
    if (a.node == b.node || dice.chance(35)) {
      values.push_back(graph.multiply(dice.constant(), a));
    } else if (dice.chance(30)) {
      values.push_back(graph.statement({{a.turn, graph.intern(dice.constant()), a.node},
                                        {b.turn, graph.intern(dice.constant()), b.node}}));
    } else {
      values.push_back(graph.add(a, b));
    }
  }
  std::vector<Value> outputs;
  for (std::size_t i = 0; i < 5; ++i) {
    outputs.push_back(turned(values[values.size() - 1 - i], 2 * dice.below(2)));
  }
  graph.set_outputs(outputs);
  return graph;
}

template <class Float>
struct Element {
  Float re = 0;
  Float im = 0;
};

template <class Float>
Element<Float> turned(Element<Float> v, int turns) {
  switch (turns & 3) {
    case 1:
      return {-v.im, v.re};
    case 2:
      return {-v.re, -v.im};
    case 3:
      return {v.im, -v.re};
    default:
      return v;
  }
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
      const Float c = rounded_constant<Float>(graph.constant(t.constant));
      v = {c * v.re, c * v.im};
    }
    sum = first ? v : Element<Float>{sum.re + v.re, sum.im + v.im};
    first = false;
  }
  return sum;
}

/// The outputs of a graph as its statements say, each operation rounded once, and the scale. The
/// parts of element k stand at 2k and 2k + 1; a real graph has one float per input and output.
template <class Float>
std::vector<Float> direct(const Graph& graph, const std::vector<Float>& source, Float scale) {
  const bool complex = graph.field() == Field::complex;
  std::vector<Element<Float>> values(graph.nodes().size());
  for (const int index : live_nodes(graph)) {
    const Statement& s = graph.node(index);
    Element<Float>& v = values[at(index)];
    if (s.input >= 0) {
      v = complex ? Element<Float>{source[at(2 * s.input)], source[at(2 * s.input + 1)]}
                  : Element<Float>{source[at(s.input)], 0};
    } else if (s.precision == Precision::wide) {
      const auto wide = sum_of<double>(graph, s, [&](int node) {
        return Element<double>{double{values[at(node)].re}, double{values[at(node)].im}};
      });
      v = {static_cast<Float>(wide.re), static_cast<Float>(wide.im)};
    } else {
      v = sum_of<Float>(graph, s, [&](int node) { return values[at(node)]; });
    }
  }
  std::vector<Float> result;
  for (const Value output : graph.outputs()) {
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
  for (const Statement& s : graph.nodes()) count = s.input >= count ? s.input + 1 : count;
  return at(count);
}

}  // namespace haldgen::kernelgen::test
