// Every row and column of the tables of operation counts.
#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "dft_complex/recipes.h"
#include "dft_real/recipes.h"
#include "hartley/recipes.h"
#include "kernelgen/count.h"
#include "kernelgen/lower.h"
#include "tests/built/library.h"
#include "tests/kernels/table.h"

namespace haldgen::test {
namespace {

using dft_real::Direction;
using kernelgen::FloatType;
using kernelgen::Graph;
using kernelgen::Tally;
using Operations = Tally::Operations;

// A kernel without a row promises nothing.
TEST(Counts, OfComplexKernels) {
  const auto rows = table(COUNTS "/complex/counts.tsv", "length\ttype\tadd\tmul\tdepth", 2);
  ASSERT_FALSE(rows.empty());
  for (const auto& [key, promised] : rows) {
    const FloatType type = key.ends_with("32fc") ? FloatType::f32 : FloatType::f64;
    const auto c = count(graph_of(dft_complex::design_of(std::stoi(key), type)));
    EXPECT_EQ(row({c.additions, c.multiplications, c.depth}), promised) << key;
  }
}

int total(int Operations::*kind, const Tally& t) { return t.in32.*kind + t.in64.*kind; }

/// A 64-bit kernel has the operations of the 32-bit one, all in one precision, and scales each
/// output once.
void expect_one_flow(int length, const Tally& mixed, const Tally& t) {
  EXPECT_EQ(row({t.in32.additions, t.in32.products, t.in32.scales, t.widenings, t.narrowings}),
            row({0, 0, 0, 0, 0}));
  for (const auto kind : {&Operations::additions, &Operations::negations, &Operations::products,
                          &Operations::scales}) {
    EXPECT_EQ(t.in64.*kind, total(kind, mixed)) << length;
  }
  EXPECT_EQ(t.in64.scales, length);
  EXPECT_EQ(t.depth, mixed.depth) << length;
}

/// Compares each length's row with what `figures` makes of the 32-bit kernel's operations;
/// `tally_of` gives those of a length and type.
template <class TallyOf, class Figures>
void expect_rows(const std::map<std::string, std::string>& rows, const TallyOf& tally_of,
                 const Figures& figures) {
  ASSERT_FALSE(rows.empty());
  for (const auto& [key, promised] : rows) {
    const int length = std::stoi(key);
    const Tally t = tally_of(length, FloatType::f32);
    EXPECT_EQ(figures(length, t), promised) << length;
    expect_one_flow(length, t, tally_of(length, FloatType::f64));
  }
}

auto real_tally(Direction direction) {
  return [direction](int length, FloatType type) {
    return tally(program_of(dft_real::design_of(length, direction), type));
  };
}

TEST(Counts, OfForwardRealKernels) {
  expect_rows(
      table(COUNTS "/real/forward_counts.tsv",
            "length\tadd\tneg\tmul\tdepth\tadd32\tadd64\tmul64\tscale32\tnarrow"),
      real_tally(Direction::forward), [](int length, const Tally& t) {
        EXPECT_EQ(t.in32.products, 0) << length;
        return row({total(&Operations::additions, t), total(&Operations::negations, t),
                    total(&Operations::products, t), t.depth, t.in32.additions + t.in32.negations,
                    t.in64.additions + t.in64.negations, t.in64.products + t.in64.scales,
                    t.in32.scales, t.narrowings});
      });
}

TEST(Counts, OfInverseRealKernels) {
  expect_rows(
      table(COUNTS "/real/inverse_counts.tsv",
            "length\tadd\tdbl\tmul\tdepth\tadd32\tadd64\tmul32\tmul64\tnarrow"),
      real_tally(Direction::inverse), [](int length, const Tally& t) {
        EXPECT_EQ(total(&Operations::negations, t), 0) << length;
        // The products in 32 bits are the doublings.
        return row({total(&Operations::additions, t), t.in32.products, t.in64.products, t.depth,
                    t.in32.additions, t.in64.additions, t.in32.products + t.in32.scales,
                    t.in64.products + t.in64.scales, t.narrowings});
      });
}

/// Literals of one value may differ in their last place.
int distinct_constants(const Graph& graph) {
  std::vector<double> literals;
  for (const int node : live_nodes(graph)) {
    for (const auto& t : graph.node(node).terms) {
      if (t.constant != kernelgen::kNoConstant) literals.push_back(graph.literal(t.constant));
    }
  }
  std::sort(literals.begin(), literals.end());
  const auto same = [](double a, double b) { return b - a < 1e-12; };
  return static_cast<int>(std::unique(literals.begin(), literals.end(), same) - literals.begin());
}

TEST(Counts, OfHartleyKernels) {
  const auto tally_of = [](int length, FloatType type) {
    return tally(program_of(hartley::design_of(length), type));
  };
  expect_rows(table(COUNTS "/hartley/counts.tsv",
                    "length\tadd\tmul\tdepth\tconstants\tadd64\tadd32\tconversions"),
              tally_of, [](int length, const Tally& t) {
                EXPECT_EQ(t.in32.products + total(&Operations::negations, t) + t.in64.scales, 0);
                return row({total(&Operations::additions, t), t.in64.products, t.depth,
                            distinct_constants(graph_of(hartley::design_of(length))),
                            t.in64.additions, t.in32.additions, t.widenings + t.narrowings});
              });
}

// Of 32-bit elements, whole pairs go by 16 bytes, single ones by 8; both where some stand alone.
TEST(Access, OfPackedComplexKernels) {
  const std::set<int> pairs{8,  9,  16, 18, 24, 25, 27, 32, 40, 45, 46,
                            47, 48, 49, 50, 54, 56, 59, 60, 62, 64};
  const std::set<int> alone{9, 18, 25, 27, 45, 46, 47, 49, 54, 59, 60, 62};
  for (int n = 6; n <= 64; ++n) {
    const dft_complex::Design& design = dft_complex::design_of(n, FloatType::f32);
    const auto packed = pack(expand(design.recipe, true), 2, design.access);
    const auto program = lower_packed(packed, choose_forms(packed, 1), FloatType::f32);
    bool whole = false, single = false;
    for (const auto& in : program.code) {
      if (!is_load(in.op) && !is_store(in.op)) continue;
      (in.op == kernelgen::Op::load || in.op == kernelgen::Op::store ? whole : single) = true;
    }
    EXPECT_EQ(whole, pairs.contains(n)) << n;
    EXPECT_EQ(single, !pairs.contains(n) || alone.contains(n)) << n;
  }
}

}  // namespace
}  // namespace haldgen::test
