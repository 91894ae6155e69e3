// Every row and column of the tables of operation counts.
#include <gtest/gtest.h>

#include <algorithm>

#include "dft_complex/kernel.h"
#include "dft_real/kernel.h"
#include "hartley/kernel.h"
#include "kernelgen/count.h"
#include "tests/built/library.h"
#include "tests/kernels/table.h"

namespace haldgen::test {
namespace {

using dft_complex::ElementType;
using dft_real::Direction;
using kernelgen::FloatType;
using kernelgen::Graph;
using kernelgen::Order;
using kernelgen::Tally;
using Operations = Tally::Operations;

TEST(Counts, OfComplexKernels) {
  const auto rows = table(COUNTS "/complex/counts.tsv", "length\ttype\tadd\tmul\tdepth", 2);
  const auto lengths = lengths_of("DFTFwd_CToC");
  EXPECT_EQ(rows.size(), 2 * lengths.size());
  for (const int length : lengths) {
    for (const ElementType type : {ElementType::c32, ElementType::c64}) {
      const auto c = count(kernel_graph(length, type));
      const std::string key = std::to_string(length) + "\t" + dft_complex::suffix(type);
      EXPECT_EQ(row({c.additions, c.multiplications, c.depth}), rows.at(key)) << key;
    }
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

/// Compares each length's row with what `figures` makes of the 32-bit kernel's operations; `tally`
/// gives those of a length and type.
template <class TallyOf, class Figures>
void expect_rows(const std::map<std::string, std::string>& rows, std::string_view word,
                 const TallyOf& tally_of, const Figures& figures) {
  const auto lengths = lengths_of(word);
  EXPECT_EQ(rows.size(), lengths.size());
  for (const int length : lengths) {
    const Tally t = tally_of(length, FloatType::f32);
    EXPECT_EQ(figures(length, t), rows.at(std::to_string(length))) << length;
    expect_one_flow(length, t, tally_of(length, FloatType::f64));
  }
}

auto real_tally(Direction direction) {
  return [direction](int length, FloatType type) {
    return tally(dft_real::kernel_program(length, direction, type, {Order::program, 0}));
  };
}

TEST(Counts, OfForwardRealKernels) {
  expect_rows(
      table(COUNTS "/real/forward_counts.tsv",
            "length\tadd\tneg\tmul\tdepth\tadd32\tadd64\tmul64\tscale32\tnarrow"),
      "DFTFwd_RToCCS", real_tally(Direction::forward), [](int length, const Tally& t) {
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
      "DFTInv_CCSToR", real_tally(Direction::inverse), [](int length, const Tally& t) {
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
    return tally(hartley::kernel_program(length, type, {Order::program, 0}));
  };
  expect_rows(table(COUNTS "/hartley/counts.tsv",
                    "length\tadd\tmul\tdepth\tconstants\tadd64\tadd32\tconversions"),
              "Hartley", tally_of, [](int length, const Tally& t) {
                EXPECT_EQ(t.in32.products + total(&Operations::negations, t) + t.in64.scales, 0);
                return row({total(&Operations::additions, t), t.in64.products, t.depth,
                            distinct_constants(hartley::kernel_graph(length)), t.in64.additions,
                            t.in32.additions, t.widenings + t.narrowings});
              });
}

}  // namespace
}  // namespace haldgen::test
