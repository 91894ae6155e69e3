// Transposition against the transposed matrix, in arithmetic that is exact.
#include "kernelgen/transpose.h"

#include <gtest/gtest.h>

#include "kernelgen/count.h"
#include "kernelgen/evaluate.h"
#include "tests/kernelgen/random_graph.h"

namespace haldgen::kernelgen {
namespace {

using test::Dice;

/// [output][input]
using Matrix = std::vector<std::vector<double>>;

Matrix matrix_of(const Graph& graph, int inputs) {
  Matrix result(graph.outputs().size(), std::vector<double>(at(inputs)));
  for (int i = 0; i < inputs; ++i) {
    std::vector<WideComplex> unit(at(inputs));
    unit[at(i)] = {1.0, 0.0};
    const auto column = evaluate(graph, unit);
    for (std::size_t o = 0; o < column.size(); ++o) {
      EXPECT_EQ(column[o].re.lo, 0) << "the test's own arithmetic is not exact";
      result[o][at(i)] = column[o].re.hi;
    }
  }
  return result;
}

Matrix transposed(const Matrix& m, int inputs) {
  Matrix result(at(inputs), std::vector<double>(m.size()));
  for (std::size_t o = 0; o < m.size(); ++o) {
    for (std::size_t i = 0; i < at(inputs); ++i) result[i][o] = m[o][i];
  }
  return result;
}

Graph transpose(const Graph& forward, int inputs) {
  Graph into(Field::real);
  std::vector<Value> fed;
  for (std::size_t o = 0; o < forward.outputs().size(); ++o) {
    fed.push_back(into.input(static_cast<int>(o)));
  }
  into.set_outputs(transpose_into(into, forward, fed, inputs));
  return into;
}

/// Small dyadic constants: no sum of products of theirs needs more digits than there are.
Wide dyadic(int k) { return (2 * k + 3) * 0x1p-3; }

/// Anything that a real graph may hold.
Graph any_graph(std::uint32_t seed, int inputs) {
  Dice dice(seed);
  Graph g(Field::real);
  std::vector<Value> values;
  for (int i = 0; i < inputs; ++i) values.push_back(g.input(i));
  const auto any = [&] {
    return turned(values[at(dice.below(static_cast<int>(values.size())))],
                  quarters(2 * dice.below(2)));
  };
  for (int s = 0; s < 12; ++s) {
    const Value a = any();
    const Value b = any();
    const Value c = any();
    switch (dice.below(4)) {
      case 0:
        values.push_back(g.multiply(dyadic(dice.below(9)), a));
        break;
      case 1:
        values.push_back(g.statement({{a.turn, g.intern(dyadic(1)), a.node},
                                      {b.turn, kNoConstant, b.node},
                                      {c.turn, g.intern(dyadic(2)), c.node}}));
        break;
      default:
        values.push_back(g.add(a, b));
    }
  }
  std::vector<Value> outputs;
  for (int o = 0; o < 4; ++o) outputs.push_back(any());
  g.set_outputs(outputs);
  return g;
}

/// A graph in which no two values are equal and every node is used: then transposition finds
/// nothing to share, and its counts follow from the counts of nodes and edges.
Graph unshared_graph(std::uint32_t seed, int inputs) {
  Dice dice(seed);
  Graph g(Field::real);
  std::vector<Value> values;
  for (int i = 0; i < inputs; ++i) values.push_back(g.input(i));
  int constants = 0;
  std::vector<Value> unused = values;
  for (int s = 0; s < 9; ++s) {
    const Value a = values[at(dice.below(static_cast<int>(values.size())))];
    const Value b = unused[at(dice.below(static_cast<int>(unused.size())))];
    const Value v =
        g.add(a, g.multiply(dyadic(constants++), turned(b, quarters(2 * dice.below(2)))));
    std::erase(unused, a);
    std::erase(unused, b);
    values.push_back(v);
    unused.push_back(v);
  }
  g.set_outputs(unused);
  return g;
}

TEST(Transpose, IsTheTransposedMatrix) {
  for (std::uint32_t seed = 0; seed < 300; ++seed) {
    const int inputs = 2 + static_cast<int>(seed % 4);
    const Graph g = any_graph(seed, inputs);
    const Matrix m = matrix_of(g, inputs);
    const Matrix t = matrix_of(transpose(g, inputs), static_cast<int>(g.outputs().size()));
    ASSERT_EQ(t, transposed(m, inputs)) << "seed " << seed;
  }
}

TEST(Transpose, TwiceIsTheSameMap) {
  for (std::uint32_t seed = 0; seed < 100; ++seed) {
    const Graph g = any_graph(seed, 4);
    const Graph twice = transpose(transpose(g, 4), static_cast<int>(g.outputs().size()));
    ASSERT_EQ(matrix_of(twice, 4), matrix_of(g, 4)) << "seed " << seed;
  }
}

TEST(Transpose, KeepsTheMultiplicationsAndTheBalanceOfSums) {
  for (std::uint32_t seed = 0; seed < 200; ++seed) {
    const int inputs = 3 + static_cast<int>(seed % 3);
    const Graph g = unshared_graph(seed, inputs);
    if (g.outputs().empty()) continue;
    const int outputs = static_cast<int>(g.outputs().size());
    const Graph t = transpose(g, inputs);
    ASSERT_EQ(count(g).multiplications, 9) << "seed " << seed;
    ASSERT_EQ(count(t).multiplications, 9) << "seed " << seed;
    // Edges are the same; a node with n incoming edges takes n - 1 sums.
    ASSERT_EQ(count(t).additions - count(g).additions, outputs - inputs) << "seed " << seed;
    const Graph twice = transpose(t, outputs);
    ASSERT_EQ(count(twice).additions, count(g).additions) << "seed " << seed;
    ASSERT_EQ(count(twice).multiplications, 9) << "seed " << seed;
  }
}

TEST(Transpose, AddsLaterUsesFirst) {
  Graph g(Field::real);
  const Value x = g.input(0);
  g.set_outputs({g.add(x, g.input(1)), g.add(x, g.input(2)), g.add(x, g.input(3))});
  const Graph t = transpose(g, 4);
  // y0 = (f2 + f1) + f0
  const Statement& outer = t.node(t.outputs()[0].node);
  ASSERT_EQ(outer.terms.size(), 2U);
  const Statement& inner = t.node(outer.terms[0].node);
  ASSERT_EQ(inner.terms.size(), 2U);
  EXPECT_EQ(t.node(inner.terms[0].node).input, 2);
  EXPECT_EQ(t.node(inner.terms[1].node).input, 1);
  EXPECT_EQ(t.node(outer.terms[1].node).input, 0);
}

TEST(Transpose, AnUnusedInputGetsZero) {
  Graph g(Field::real);
  g.input(0);
  g.set_outputs({g.input(1)});
  const Graph t = transpose(g, 2);
  EXPECT_TRUE(is_zero(t.outputs()[0]));
  EXPECT_EQ(t.node(t.outputs()[1].node).input, 0);
}

}  // namespace
}  // namespace haldgen::kernelgen
