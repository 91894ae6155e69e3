// Every column of the tables of operation counts.
#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <sstream>

#include "dft_real/kernel.h"
#include "kernelgen/count.h"

namespace haldgen::dft_real {
namespace {

using kernelgen::FloatType;
using kernelgen::Tally;

/// Rows of a table by length, as text after the length.
std::map<int, std::string> promised(const char* path, const std::string& columns) {
  std::ifstream file(path);
  std::string line;
  std::getline(file, line);
  EXPECT_EQ(line, columns);
  std::map<int, std::string> rows;
  while (std::getline(file, line)) {
    const auto tab = line.find('\t');
    rows[std::stoi(line.substr(0, tab))] = line.substr(tab + 1);
  }
  EXPECT_EQ(rows.size(), 63U);
  return rows;
}

std::string row(std::initializer_list<int> columns) {
  std::string text;
  for (const int c : columns) text += (text.empty() ? "" : "\t") + std::to_string(c);
  return text;
}

Tally tally(int length, Direction direction, FloatType type) {
  return kernelgen::tally(kernel_program(length, direction, type, {}));
}

int total(int Tally::Operations::*kind, const Tally& t) { return t.in32.*kind + t.in64.*kind; }

using Operations = Tally::Operations;

/// A 64-bit kernel has the operations of the 32-bit one, all in one precision.
void expect_one_flow(int length, Direction direction, const Tally& mixed) {
  const Tally t = tally(length, direction, FloatType::f64);
  EXPECT_EQ(row({t.in32.additions, t.in32.products, t.in32.scales, t.widenings, t.narrowings}),
            row({0, 0, 0, 0, 0}));
  for (const auto kind : {&Operations::additions, &Operations::negations, &Operations::products,
                          &Operations::scales}) {
    EXPECT_EQ(t.in64.*kind, total(kind, mixed)) << length;
  }
  EXPECT_EQ(t.depth, mixed.depth) << length;
}

TEST(Counts, EveryForwardRowIsMet) {
  const auto rows = promised(FORWARD_COUNTS,
                             "length\tadd\tneg\tmul\tdepth\tadd32\tadd64\tmul64\tscale32\tnarrow");
  for (const auto& [length, promise] : rows) {
    const Tally t = tally(length, Direction::forward, FloatType::f32);
    EXPECT_EQ(row({total(&Operations::additions, t), total(&Operations::negations, t),
                   total(&Operations::products, t), t.depth, t.in32.additions + t.in32.negations,
                   t.in64.additions + t.in64.negations, t.in64.products + t.in64.scales,
                   t.in32.scales, t.narrowings}),
              promise)
        << length;
    EXPECT_EQ(t.in32.products, 0) << length;
    EXPECT_EQ(total(&Operations::scales, t), length);
    expect_one_flow(length, Direction::forward, t);
  }
}

TEST(Counts, EveryInverseRowIsMet) {
  const auto rows =
      promised(INVERSE_COUNTS, "length\tadd\tdbl\tmul\tdepth\tadd32\tadd64\tmul32\tmul64\tnarrow");
  for (const auto& [length, promise] : rows) {
    const Tally t = tally(length, Direction::inverse, FloatType::f32);
    // The products in 32 bits are the doublings.
    EXPECT_EQ(row({total(&Operations::additions, t), t.in32.products, t.in64.products, t.depth,
                   t.in32.additions, t.in64.additions, t.in32.products + t.in32.scales,
                   t.in64.products + t.in64.scales, t.narrowings}),
              promise)
        << length;
    EXPECT_EQ(total(&Operations::negations, t), 0) << length;
    EXPECT_EQ(total(&Operations::scales, t), length);
    expect_one_flow(length, Direction::inverse, t);
  }
}

}  // namespace
}  // namespace haldgen::dft_real
