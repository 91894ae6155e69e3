// Packing, forms and the lowering of vector kernels: the bits of the graph's own statements, at the
// cost that was announced.
#include "kernelgen/packed.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <set>

#include "kernelgen/forms.h"
#include "kernelgen/lower.h"
#include "kernelgen/paired.h"
#include "kernelgen/unpack.h"
#include "tests/kernelgen/random_graph.h"

namespace haldgen::kernelgen {
namespace {

using test::Dice;

constexpr std::uint32_t kSeeds = 60;
constexpr int kSweeps = 10;

int count_ops(const Program& program, std::initializer_list<Op> ops) {
  return static_cast<int>(
      std::count_if(program.code.begin(), program.code.end(), [&](const Instruction& in) {
        return std::find(ops.begin(), ops.end(), in.op) != ops.end();
      }));
}

int count_kind(const PackedGraph& graph, PackedKind kind) {
  return static_cast<int>(std::count_if(graph.nodes.begin(), graph.nodes.end(),
                                        [&](const PackedNode& n) { return n.kind == kind; }));
}

std::vector<Choice> choose(const PackedGraph& graph, bool mirrored) {
  const auto forward = choose_forms(graph, kSweeps);
  return mirrored ? choose_mirrored_forms(graph, forward, kSweeps) : forward;
}

/// Any choices that are allowed, good or bad.
std::vector<Choice> wild_choices(const PackedGraph& graph, bool mirrored, Dice& dice) {
  std::vector<Choice> choices(graph.nodes.size());
  for (std::size_t i = 0; i < choices.size(); ++i) {
    switch (graph.nodes[i].kind) {
      case PackedKind::load:
        choices[i].form.exchanged = mirrored ? 1 : 0;
        break;
      case PackedKind::store:
        choices[i] = {{mirrored ? 1 : 0, 0}, static_cast<Lowering>(dice.below(4))};
        break;
      case PackedKind::zero:
        break;
      case PackedKind::sum:
        choices[i] = {{dice.below(2), dice.below(4)}, static_cast<Lowering>(dice.below(5))};
        break;
      case PackedKind::gather:
        choices[i] = {{dice.below(2), dice.below(4)}, static_cast<Lowering>(dice.below(4))};
        break;
      case PackedKind::scale:
      case PackedKind::rotate:
        choices[i] = {{dice.below(2), dice.below(4)}, Lowering::plus};
        break;
    }
  }
  return choices;
}

template <class Float>
std::vector<Float> exchanged_parts(std::vector<Float> v) {
  for (std::size_t i = 0; i + 1 < v.size(); i += 2) std::swap(v[i], v[i + 1]);
  return v;
}

template <class Float>
void expect_bits_of_graph(const Graph& graph, const Program& program, bool mirrored,
                          std::uint32_t seed) {
  Dice dice(seed);
  const auto source = dice.numbers<Float>(2 * graph.outputs().size());
  const auto scale = static_cast<Float>(0.3);
  auto expected = test::direct<Float>(graph, mirrored ? exchanged_parts(source) : source, scale);
  if (mirrored) expected = exchanged_parts(expected);
  std::vector<Float> actual(2 * graph.outputs().size());
  interpret(program, source, scale, actual);
  ASSERT_TRUE(test::same_bits(actual, expected)) << "seed " << seed << " mirrored " << mirrored;
}

struct Layout {
  int halves;
  Access access;
};
constexpr Layout kLayouts[] = {
    {1, Access::pairs}, {2, Access::pairs}, {2, Access::pairs_and_lone}, {2, Access::singles}};

/// Scale vectors beside the plain one: signs of a vector that a sign change must make.
int negated_scales(const Program& program) {
  std::set<std::array<double, 8>> scales;
  for (const Instruction& in : program.code) {
    if (in.op == Op::scale && std::count(in.constant.begin(), in.constant.end(), -1.0) != 0) {
      scales.insert(in.constant);
    }
  }
  return static_cast<int>(scales.size());
}

/// The announced cost, one operation for each node, whole vectors in pairs and inside the array.
void expect_instructions(const PackedGraph& packed, const std::vector<Choice>& choices,
                         const Program& program, Access access, int floats) {
  const FormCost cost = cost_of(packed, choices);
  ASSERT_EQ(count_ops(program, {Op::exchange}), cost.exchanges);
  ASSERT_EQ(count_ops(program, {Op::sign}) + negated_scales(program), cost.sign_changes);
  const int rotations = count_kind(packed, PackedKind::rotate);
  ASSERT_EQ(count_ops(program, {Op::add, Op::subtract, Op::alternate}),
            count_kind(packed, PackedKind::sum) + rotations);
  ASSERT_EQ(count_ops(program, {Op::multiply}),
            count_kind(packed, PackedKind::scale) + 2 * rotations);
  ASSERT_EQ(count_ops(program, {Op::scale}), count_kind(packed, PackedKind::store));
  for (const Instruction& in : program.code) {
    if (in.op != Op::load && in.op != Op::store) continue;
    ASSERT_NE(access, Access::singles);
    ASSERT_EQ(in.address[0] % program.lanes, 0);
    ASSERT_LE(in.address[0] + program.lanes, floats);
  }
}

// All layouts, both directions, chosen and wild forms.
TEST(Lowering, GivesTheBitsOfTheStatementsAtTheCostOfTheForms) {
  int whole_vectors = 0;
  for (std::uint32_t seed = 0; seed < kSeeds; ++seed) {
    const Graph graph = test::random_complex_graph(seed);
    const int floats = 2 * static_cast<int>(graph.outputs().size());
    for (const auto& [halves, access] : kLayouts) {
      const PackedGraph packed = pack(graph, halves, access);
      for (const bool mirrored : {false, true}) {
        Dice dice(seed);
        for (const auto& choices :
             {choose(packed, mirrored), wild_choices(packed, mirrored, dice)}) {
          SCOPED_TRACE(testing::Message() << "halves " << halves << ", mirrored " << mirrored);
          const FloatType type = halves == 1 ? FloatType::f64 : FloatType::f32;
          const Program program = lower_packed(packed, choices, type);
          if (halves == 1) {
            ASSERT_NO_FATAL_FAILURE(expect_bits_of_graph<double>(graph, program, mirrored, seed));
          } else {
            ASSERT_NO_FATAL_FAILURE(expect_bits_of_graph<float>(graph, program, mirrored, seed));
          }
          ASSERT_NO_FATAL_FAILURE(expect_instructions(packed, choices, program, access, floats));
          if (halves == 2) whole_vectors += count_ops(program, {Op::load});
        }
      }
    }
  }
  EXPECT_GT(whole_vectors, 0);
}

template <class Float>
void expect_mirror(const PackedGraph& packed, const std::vector<Choice>& forward, FloatType type,
                   std::vector<Float> source, std::size_t outputs) {
  const auto mirrored = choose_mirrored_forms(packed, forward, kSweeps);
  std::vector<Float> plain(2 * outputs), mirror(2 * outputs);
  interpret(lower_packed(packed, forward, type), source, Float{1}, plain);
  interpret(lower_packed(packed, mirrored, type), exchanged_parts(source), Float{1}, mirror);
  mirror = exchanged_parts(mirror);
  ASSERT_EQ(std::memcmp(plain.data(), mirror.data(), plain.size() * sizeof(Float)), 0);
}

TEST(Forms, TheMirrorHasTheSameSignsOfZeros) {
  for (std::uint32_t seed = 0; seed < kSeeds; ++seed) {
    const Graph graph = test::random_complex_graph(seed);
    Dice dice(seed);
    // Zeros of both signs, and equal numbers whose differences vanish.
    const auto small = [&](std::size_t count) {
      std::vector<float> values;
      for (std::size_t i = 0; i < count; ++i) {
        const int n = dice.below(4);
        values.push_back(n == 3 ? -0.0F : static_cast<float>(n - 1));
      }
      return values;
    };
    const auto source = small(2 * graph.outputs().size());
    const std::vector<double> source64(source.begin(), source.end());
    const PackedGraph pairs = pack(graph, 2);
    const PackedGraph singles = pack(graph, 1);
    for (const bool wild : {false, true}) {
      const auto forms = [&](const PackedGraph& packed) {
        return wild ? wild_choices(packed, false, dice) : choose(packed, false);
      };
      ASSERT_NO_FATAL_FAILURE(
          expect_mirror(pairs, forms(pairs), FloatType::f32, source, graph.outputs().size()))
          << "seed " << seed << " wild " << wild;
      ASSERT_NO_FATAL_FAILURE(
          expect_mirror(singles, forms(singles), FloatType::f64, source64, graph.outputs().size()))
          << "seed " << seed << " wild " << wild;
    }
  }
}

/// The unpacked program gives all bits of the packed one on zeros and small numbers, and the same
/// expressions as the unpacked mirror.
template <class Float>
void expect_unpacked(const PackedGraph& packed, const std::vector<Choice>& choices, FloatType type,
                     const std::vector<Float>& source, std::size_t outputs) {
  const Program program = lower_packed(packed, choices, type);
  const Program lanes = unpacked(program);
  ASSERT_EQ(lanes.lanes, 1);
  std::vector<Float> expected(2 * outputs), actual(2 * outputs);
  for (const Float scale : {Float{1}, static_cast<Float>(0.3)}) {
    interpret(program, source, scale, expected);
    interpret(lanes, source, scale, actual);
    ASSERT_EQ(std::memcmp(expected.data(), actual.data(), expected.size() * sizeof(Float)), 0);
  }
  const Program mirror =
      unpacked(lower_packed(packed, choose_mirrored_forms(packed, choices, kSweeps), type));
  ASSERT_TRUE(same_results(parts_exchanged(lanes), mirror));
  ASSERT_FALSE(same_results(lanes, mirror));
}

TEST(Unpacking, KeepsAllBitsInChosenAndWildForms) {
  int negations = 0;
  for (std::uint32_t seed = 0; seed < kSeeds; ++seed) {
    const Graph graph = test::random_complex_graph(seed);
    const std::size_t outputs = graph.outputs().size();
    Dice dice(seed);
    std::vector<float> source;
    for (std::size_t i = 0; i < 2 * outputs; ++i) {
      const int n = dice.below(4);
      source.push_back(n == 3 ? -0.0F : static_cast<float>(n - 1));
    }
    const std::vector<double> source64(source.begin(), source.end());
    for (const auto& [halves, access] : kLayouts) {
      const PackedGraph packed = pack(graph, halves, access);
      for (const auto& choices : {choose(packed, false), wild_choices(packed, false, dice)}) {
        SCOPED_TRACE(testing::Message() << "seed " << seed << ", halves " << halves);
        if (halves == 1) {
          ASSERT_NO_FATAL_FAILURE(
              expect_unpacked<double>(packed, choices, FloatType::f64, source64, outputs));
        } else {
          ASSERT_NO_FATAL_FAILURE(
              expect_unpacked<float>(packed, choices, FloatType::f32, source, outputs));
          negations +=
              count_ops(unpacked(lower_packed(packed, choices, FloatType::f32)), {Op::sign});
        }
      }
    }
  }
  EXPECT_GT(negations, 0);
}

// Whatever is paired, every sum is of the same values in the same signs.
TEST(Pairing, KeepsAllExpressionsInBothDirections) {
  int wide = 0;
  int merged = 0;
  for (std::uint32_t seed = 0; seed < kSeeds; ++seed) {
    const Graph graph = test::random_complex_graph(seed);
    Dice dice(seed);
    for (const auto& [halves, access] : kLayouts) {
      const FloatType type = halves == 1 ? FloatType::f64 : FloatType::f32;
      const PackedGraph packed = pack(graph, halves, access);
      for (const auto& choices : {choose(packed, false), wild_choices(packed, false, dice)}) {
        const Program lanes = unpacked(lower_packed(packed, choices, type));
        for (const Pairs& distances : {Pairs{1, 1}, Pairs{2, 2}, Pairs{1, 3}, Pairs{4, 2}}) {
          SCOPED_TRACE(testing::Message() << "seed " << seed << ", halves " << halves << ", at "
                                          << distances.source << ", " << distances.destination);
          const Pairing pairing = pair(packed, distances);
          for (const bool mirrored : {false, true}) {
            const Program program = lower_paired(packed, pairing, choices, type, mirrored);
            for (const Instruction& in : program.code) {
              wide += in.lanes == 2 * program.lanes ? 1 : 0;
              merged += in.op == Op::merge ? 1 : 0;
            }
            const Program same = unpacked(program);
            ASSERT_TRUE(same_results(lanes, mirrored ? parts_exchanged(same) : same)) << mirrored;
          }
        }
      }
    }
  }
  EXPECT_GT(wide, 0);
  EXPECT_GT(merged, 0);
}

TEST(Unpacking, TellsATurnedDifferenceFromTheSame) {
  Graph g(Field::complex);
  g.set_outputs({g.subtract(g.input(0), g.input(1)), g.add(g.input(0), g.input(1))});
  const PackedGraph packed = pack(g, 1);
  const Program one = unpacked(lower_packed(packed, choose(packed, false), FloatType::f64));
  Program other = one;
  for (Instruction& in : other.code) {
    if (in.op == Op::add) std::swap(in.a, in.b);
  }
  EXPECT_TRUE(same_results(one, other));
  for (Instruction& in : other.code) {
    if (in.op == Op::subtract) std::swap(in.a, in.b);
  }
  EXPECT_FALSE(same_results(one, other));
}

TEST(Forms, AreBetterThanNone) {
  int chosen = 0;
  int plain = 0;
  for (std::uint32_t seed = 0; seed < kSeeds; ++seed) {
    const PackedGraph packed = pack(test::random_complex_graph(seed), 1);
    const auto total = [&](const std::vector<Choice>& choices) {
      const FormCost cost = cost_of(packed, choices);
      return cost.exchanges + cost.sign_changes;
    };
    const int best = total(choose_forms(packed, 50));
    const int none = total(std::vector<Choice>(packed.nodes.size()));
    ASSERT_LE(best, none) << "seed " << seed;
    chosen += best;
    plain += none;
  }
  EXPECT_LT(2 * chosen, plain);
}

TEST(Packing, DependentNodesDoNotShareAVector) {
  Graph g(Field::complex);
  g.enter_column(0, 2);
  const Value first = g.add(g.input(0), g.input(1));
  g.leave_column();
  g.enter_column(1, 2);
  const Value second = g.add(first, g.input(2));
  g.leave_column();
  g.set_outputs({first, second});
  EXPECT_EQ(count_kind(pack(g, 2), PackedKind::sum), 2);
}

TEST(Packing, RefusesAStatementWithoutVectorForm) {
  Graph g(Field::complex);
  g.set_outputs({g.statement({{Turn::none, kNoConstant, g.input(0).node},
                              {Turn::none, kNoConstant, g.input(1).node},
                              {Turn::none, kNoConstant, g.input(2).node}})});
  EXPECT_THROW(pack(g, 1), std::logic_error);
}

}  // namespace
}  // namespace haldgen::kernelgen
