// Statistics, ratios, the bound and the summaries, on figures worked out by hand.
#include "bench/core/report.h"

#include <gtest/gtest.h>

#include <sstream>
#include <vector>

namespace haldgen::bench {
namespace {

Measurement measurement(const std::string& type, int length, double ours, double wide,
                        double narrow) {
  return {Mode::hot,
          "Word",
          type,
          length,
          100.0,
          {{"haldgen", Role::subject, {ours, ours, 9 * ours}},
           {"slow", Role::peer, {8 * wide}},
           {"wide", Role::peer, {wide}},
           {"narrow", Role::narrow_peer, {narrow}},
           {null_call_name, Role::calibration, {2}},
           {vector_add_name, Role::calibration, {0.25}}}};
}

TEST(Statistics, MedianOfOddAndEvenCountsAndMinimum) {
  EXPECT_EQ(evaluate(Statistic::median, std::vector{5.0, 1.0, 3.0}), 3);
  EXPECT_EQ(evaluate(Statistic::median, std::vector{5.0, 1.0, 3.0, 4.0}), 3.5);
  EXPECT_EQ(evaluate(Statistic::median, std::vector{7.0}), 7);
  EXPECT_EQ(evaluate(Statistic::minimum, std::vector{5.0, 1.5, 3.0}), 1.5);
}

TEST(Statistics, GeometricMean) {
  EXPECT_DOUBLE_EQ(geometric_mean(std::vector{2.0, 8.0}), 4);
  EXPECT_DOUBLE_EQ(geometric_mean(std::vector{0.5}), 0.5);
}

TEST(Figures, ComparesWithTheFastestPeerAndWithTheNarrowOne) {
  const Measurement source = measurement("64fc", 8, 30, 20, 10);
  const Figures figures(source, Statistic::median);
  EXPECT_EQ(figures.subject, 30);
  EXPECT_EQ(figures.best_peer, "wide");
  EXPECT_EQ(figures.best_ratio, 1.5);
  EXPECT_EQ(figures.ratio_to("narrow"), 3);
  EXPECT_EQ(figures.ratio_to("nobody"), std::nullopt);
}

TEST(Figures, BoundIsACallAndTheAdditions) {
  const Measurement source = measurement("64fc", 8, 54, 20, 10);
  const Figures figures(source, Statistic::median);
  EXPECT_EQ(figures.bound, 2 + 100 * 0.25);
  EXPECT_EQ(figures.bound_ratio, 2);
}

TEST(Figures, ConversionsBelongToTheBound) {
  Measurement source = measurement("32f", 8, 54, 20, 10);
  source.conversions = 10;
  EXPECT_EQ(Figures(source, Statistic::median).bound, std::nullopt);
  source.series.push_back({convert_name, Role::calibration, {0.5}});
  EXPECT_EQ(Figures(source, Statistic::median).bound, 2 + 100 * 0.25 + 10 * 0.5);
}

TEST(Figures, NoBoundWithoutCounts) {
  Measurement source = measurement("64fc", 8, 54, 20, 10);
  source.vector_additions.reset();
  EXPECT_EQ(Figures(source, Statistic::median).bound, std::nullopt);
  EXPECT_EQ(Figures(source, Statistic::median).bound_ratio, std::nullopt);
}

std::string at(const Table& table, std::size_t row, const std::string& column) {
  for (std::size_t i = 0; i < table.header.size(); ++i) {
    if (table.header[i] == column) return table.rows.at(row).at(i);
  }
  return "no column " + column;
}

TEST(FiguresTable, MarksAbsentContestants) {
  std::vector<Measurement> sources = {measurement("32fc", 8, 30, 20, 10),
                                      measurement("64fc", 8, 30, 20, 10)};
  sources[1].series.erase(sources[1].series.begin() + 1);
  const Table table = figures_table(sources, Mode::hot, Statistic::median);
  ASSERT_EQ(table.rows.size(), 2U);
  EXPECT_EQ(at(table, 0, "slow"), "160.00");
  EXPECT_EQ(at(table, 1, "slow"), "-");
  EXPECT_EQ(at(table, 1, "/best"), "1.500");
  EXPECT_EQ(at(table, 1, "/narrow"), "3.000");
  EXPECT_TRUE(figures_table(sources, Mode::ring, Statistic::median).rows.empty());
}

TEST(Summary, MeansAndWorstPerTypeAndTogether) {
  // Length 4 is in the widest group only, 12 not in the first one.
  const std::vector<Measurement> sources = {
      measurement("32fc", 4, 900, 1, 1), measurement("32fc", 8, 40, 20, 10),
      measurement("32fc", 12, 160, 20, 10), measurement("64fc", 64, 10, 20, 10)};
  const Table table = summary_table(sources);
  ASSERT_EQ(table.rows.size(), 18U);
  EXPECT_EQ(at(table, 0, "lengths"), "8,16,32,64");
  EXPECT_EQ(at(table, 0, "type"), "32fc");
  EXPECT_EQ(at(table, 0, "kernels"), "1");
  EXPECT_EQ(at(table, 0, "/best"), "2.000");
  EXPECT_EQ(at(table, 2, "type"), "all");
  EXPECT_EQ(at(table, 2, "/best"), "1.000");
  EXPECT_EQ(at(table, 2, "worst /best"), "2.000 at 32fc/8");
  EXPECT_EQ(at(table, 3, "lengths"), "6..64");
  EXPECT_EQ(at(table, 3, "kernels"), "2");
  EXPECT_EQ(at(table, 3, "/best"), "4.000");
  EXPECT_EQ(at(table, 5, "/best"), "2.000");
  EXPECT_EQ(at(table, 5, "worst /best"), "8.000 at 32fc/12");
  EXPECT_EQ(at(table, 6, "lengths"), "2..64");
  EXPECT_EQ(at(table, 6, "worst /best"), "900.000 at 32fc/4");
}

// A family named by order that meets plain loops and a copy instead of peers.
Measurement by_order(const std::string& type, int order, double ours, double plain) {
  return {Mode::hot,
          "Orders",
          type,
          order,
          40.0,
          {{"haldgen", Role::subject, {ours}},
           {"plain", Role::baseline, {plain}},
           {"plain_fixed", Role::baseline, {plain / 2}},
           {copy_name, Role::calibration, {5}},
           {null_call_name, Role::calibration, {2}},
           {vector_add_name, Role::calibration, {0.25}}},
          true,
          160};
}

TEST(Baselines, HaveRatiosOfTheirOwnAndAreNoPeers) {
  const Measurement source = by_order("32f", 9, 10, 40);
  const Figures figures(source, Statistic::median);
  EXPECT_EQ(figures.best_ratio, std::nullopt);
  EXPECT_EQ(figures.traffic, 16);
  const Table table = figures_table({source}, Mode::hot, Statistic::median);
  EXPECT_EQ(at(table, 0, "order"), "9");
  EXPECT_EQ(at(table, 0, "/plain"), "0.250");
  EXPECT_EQ(at(table, 0, "/plain_fixed"), "0.500");
  EXPECT_EQ(at(table, 0, "/memcpy"), "2.000");
  EXPECT_EQ(at(table, 0, "GB/s"), "16.0");
  EXPECT_EQ(at(table, 0, "/best"), "no column /best");
}

TEST(Baselines, NoTrafficWhereThereIsNoCopy) {
  const Table table =
      figures_table({measurement("32fc", 8, 30, 20, 10)}, Mode::hot, Statistic::median);
  EXPECT_EQ(at(table, 0, "GB/s"), "no column GB/s");
  EXPECT_EQ(at(table, 0, "length"), "8");
}

TEST(Summary, OrdersHaveGroupsOfTheirOwn) {
  const std::vector<Measurement> sources = {by_order("32f", 7, 10, 40), by_order("32f", 8, 10, 10),
                                            measurement("32fc", 8, 30, 20, 10)};
  const auto parts = split_by_size(sources);
  ASSERT_EQ(parts.size(), 2U);
  EXPECT_EQ(parts[0].size(), 1U);
  const Table table = summary_table(parts[1]);
  ASSERT_EQ(table.rows.size(), 6U);
  EXPECT_EQ(at(table, 0, "lengths"), "orders 1..7");
  EXPECT_EQ(at(table, 0, "/plain"), "0.250");
  EXPECT_EQ(at(table, 1, "lengths"), "orders 8..13");
  EXPECT_EQ(at(table, 1, "/plain"), "1.000");
  EXPECT_EQ(at(table, 2, "lengths"), "all orders");
  EXPECT_EQ(at(table, 2, "/plain"), "0.500");
  EXPECT_EQ(at(table, 2, "worst /plain"), "1.000 at 32f/8");
}

TEST(Picture, HasAMarkerForEveryRatio) {
  std::ostringstream out;
  write_picture(out, {measurement("32fc", 8, 30, 20, 10), measurement("64fc", 8, 30, 20, 10)},
                "Word", Mode::hot);
  const std::string svg = out.str();
  std::size_t markers = 0;
  for (std::size_t i = svg.find("<circle"); i != std::string::npos;
       i = svg.find("<circle", i + 1)) {
    ++markers;
  }
  EXPECT_EQ(markers, 4U);
  EXPECT_TRUE(svg.starts_with("<svg"));
  EXPECT_TRUE(svg.ends_with("</svg>\n"));
}

}  // namespace
}  // namespace haldgen::bench
