// Every column of the table of counts and patterns.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <fstream>
#include <map>
#include <set>
#include <sstream>

#include "hartley/kernel.h"
#include "kernelgen/count.h"
#include "kernelgen/rewrite.h"

namespace haldgen::hartley {
namespace {

using kernelgen::FloatType;
using kernelgen::Graph;
using kernelgen::Statement;
using kernelgen::Tally;

struct Row {
  int length;
  std::string first_level, last_level;
  int additions, multiplications, depth, constants, additions64, additions32, conversions;
};

std::vector<Row> table() {
  std::ifstream file(HARTLEY_COUNTS);
  std::string line;
  std::getline(file, line);
  EXPECT_EQ(
      line,
      "length\tfirst_level\tlast_level\tadd\tmul\tdepth\tconstants\tadd64\tadd32\tconversions");
  std::vector<Row> rows;
  while (std::getline(file, line)) {
    std::istringstream cells(line);
    Row r;
    cells >> r.length >> r.first_level >> r.last_level >> r.additions >> r.multiplications >>
        r.depth >> r.constants >> r.additions64 >> r.additions32 >> r.conversions;
    EXPECT_TRUE(cells) << line;
    rows.push_back(r);
  }
  EXPECT_EQ(rows.size(), 63U);
  return rows;
}

TEST(Counts, EveryRowIsMet) {
  for (const Row& row : table()) {
    const Tally t = kernelgen::tally(kernel_program(row.length, FloatType::f32, {}));
    EXPECT_EQ(t.in32.additions + t.in64.additions, row.additions) << row.length;
    EXPECT_EQ(t.in64.products, row.multiplications) << row.length;
    EXPECT_EQ(t.depth, row.depth) << row.length;
    EXPECT_EQ(t.in64.additions, row.additions64) << row.length;
    EXPECT_EQ(t.in32.additions, row.additions32) << row.length;
    EXPECT_EQ(t.widenings + t.narrowings, row.conversions) << row.length;
    // All else that there is: the scale, in 32 bits.
    EXPECT_EQ(t.in32.scales, row.length);
    EXPECT_EQ(t.in32.products + t.in32.negations + t.in64.negations + t.in64.scales, 0)
        << row.length;

    const Tally wide = kernelgen::tally(kernel_program(row.length, FloatType::f64, {}));
    EXPECT_EQ(wide.in64.additions, row.additions) << row.length;
    EXPECT_EQ(wide.in64.products, row.multiplications) << row.length;
    EXPECT_EQ(wide.in64.scales, row.length) << row.length;
    EXPECT_EQ(wide.depth, row.depth) << row.length;
  }
}

TEST(Counts, DistinctConstants) {
  for (const Row& row : table()) {
    const Graph graph = kernel_graph(row.length);
    std::vector<double> literals;
    for (const int node : live_nodes(graph)) {
      for (const auto& t : graph.node(node).terms) {
        if (t.constant != kernelgen::kNoConstant) literals.push_back(graph.literal(t.constant));
      }
    }
    std::sort(literals.begin(), literals.end());
    // Literals of one value may differ in their last place.
    const auto last = std::unique(literals.begin(), literals.end(),
                                  [](double a, double b) { return b - a < 1e-12; });
    EXPECT_EQ(last - literals.begin(), row.constants) << row.length;
  }
}

using Pair = std::pair<int, int>;

/// The pairs of inputs of which both the sum and the difference are formed.
std::set<Pair> folded_inputs(const Graph& graph) {
  std::map<Pair, std::set<kernelgen::Turn>> signs;
  for (const int node : live_nodes(graph)) {
    const Statement& s = graph.node(node);
    if (s.terms.size() < 2 || kernelgen::has_constant(s)) continue;
    const auto a = graph.node(s.terms[0].node).input;
    const auto b = graph.node(s.terms[1].node).input;
    if (!a || !b) continue;
    signs[std::minmax(*a, *b)].insert(s.terms[0].turn + s.terms[1].turn);
  }
  std::set<Pair> pairs;
  for (const auto& [pair, both] : signs) {
    if (both.size() == 2) pairs.insert(pair);
  }
  return pairs;
}

/// The pairs of outputs that are the sum and the difference of two values.
std::set<Pair> paired_outputs(const Graph& graph) {
  std::map<Pair, std::vector<int>> outputs;
  for (std::size_t k = 0; k < graph.outputs().size(); ++k) {
    const Statement& s = graph.node(graph.outputs()[k].node);
    if (s.terms.size() != 2 || kernelgen::has_constant(s)) continue;
    outputs[std::minmax(s.terms[0].node, s.terms[1].node)].push_back(static_cast<int>(k));
  }
  std::set<Pair> pairs;
  for (const auto& [operands, both] : outputs) {
    if (both.size() == 2) pairs.insert({both[0], both[1]});
  }
  return pairs;
}

struct Pattern {
  bool mirror;  ///< all pairs are k, N-k
  bool half;    ///< all pairs are k, k+N/2
};

/// The pair 0, N/2 is in every pattern and says nothing.
Pattern pattern_of(std::set<Pair> pairs, int length) {
  if (length % 2 == 0) pairs.erase({0, length / 2});
  const auto all = [&](auto&& condition) {
    return std::all_of(pairs.begin(), pairs.end(), condition);
  };
  return {all([&](Pair p) { return p.first + p.second == length; }),
          all([&](Pair p) { return 2 * (p.second - p.first) == length; })};
}

TEST(Levels, FirstAndLastAreThoseOfTheTable) {
  for (const Row& row : table()) {
    const Graph graph = kernel_graph(row.length);
    const Pattern first = pattern_of(folded_inputs(graph), row.length);
    const Pattern last = pattern_of(paired_outputs(graph), row.length);
    const bool apart = !first.mirror && !first.half;
    EXPECT_TRUE(row.first_level == "fold"   ? first.mirror
                : row.first_level == "half" ? first.half
                                            : row.first_level == "groups" && apart)
        << row.length << " first level";
    const bool wide = !last.mirror && !last.half;
    EXPECT_TRUE(row.last_level == "mirror" ? last.mirror
                : row.last_level == "half" ? last.half
                                           : row.last_level == "wide" && wide)
        << row.length << " last level";
  }
}

}  // namespace
}  // namespace haldgen::hartley
