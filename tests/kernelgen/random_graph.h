// Random statement graphs.
#pragma once

#include <cstdint>
#include <random>
#include <vector>

#include "kernelgen/graph.h"
#include "tests/kernelgen/direct.h"

namespace haldgen::kernelgen::test {

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
    return abs(cos_turn(1 + below(n - 1), std::int64_t{4} * n));
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
    return turned(v, quarters(dice.below(4)));
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
/// statements between them. As many outputs as inputs.
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
  for (int k = 0; k < columns * rows; ++k) {
    const int from = static_cast<int>(values.size()) - 1 - k;
    outputs.push_back(turned(values[at(from < 0 ? 0 : from)], quarters(dice.below(4))));
  }
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
    return turned(v, quarters(2 * dice.below(2)));
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
    outputs.push_back(turned(values[values.size() - 1 - i], quarters(2 * dice.below(2))));
  }
  graph.set_outputs(outputs);
  return graph;
}

}  // namespace haldgen::kernelgen::test
