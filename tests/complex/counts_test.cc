// Every row of the table of operation counts.
#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <set>
#include <sstream>

#include "kernelgen/count.h"
#include "kernelgen/forms.h"
#include "kernelgen/lower.h"
#include "tests/complex/kernels.h"

namespace haldgen::dft_complex {
namespace {

using kernelgen::Counts;

/// By kernel, such as "13_64fc".
std::map<std::string, Counts> promised() {
  std::ifstream file(COUNTS_PATH);
  std::string line;
  std::getline(file, line);
  EXPECT_EQ(line, "length\ttype\tadd\tmul\tdepth");
  std::map<std::string, Counts> rows;
  while (std::getline(file, line)) {
    std::istringstream columns(line);
    std::string length, type;
    Counts c;
    columns >> length >> type >> c.additions >> c.multiplications >> c.depth;
    EXPECT_TRUE(columns) << line;
    rows[length + "_" + type] = c;
  }
  return rows;
}

std::string text(const Counts& c) {
  return std::to_string(c.additions) + " " + std::to_string(c.multiplications) + " " +
         std::to_string(c.depth);
}

TEST(Counts, EveryRowIsMet) {
  const auto rows = promised();
  ASSERT_EQ(rows.size(), 126U);
  for (const auto& kernel : test::all_kernels()) {
    EXPECT_EQ(text(count(graph_of(design_of(kernel.length, kernel.type)))),
              text(rows.at(kernel.text())))
        << kernel.text();
  }
}

TEST(Counts, FillersForPairsOfElementsAreNoWork) {
  const auto rows = promised();
  for (const auto& kernel : test::all_kernels()) {
    const auto graph = expand(design_of(kernel.length, kernel.type).recipe, true);
    EXPECT_EQ(text(count(graph)), text(rows.at(kernel.text()))) << kernel.text();
  }
}

// Whole pairs of 32-bit elements by 16 bytes, single ones by 8, both where some stand alone.
TEST(Access, OfEachLength) {
  const std::set<int> pairs{8,  9,  16, 18, 24, 25, 27, 32, 40, 45, 46,
                            47, 48, 49, 50, 54, 56, 59, 60, 62, 64};
  const std::set<int> alone{9, 18, 25, 27, 45, 46, 47, 49, 54, 59, 60, 62};
  for (int n = 6; n <= 64; ++n) {
    const Design& design = design_of(n, FloatType::f32);
    const auto packed = pack(expand(design.recipe, true), 2, design.access);
    const auto program = lower_packed(packed, choose_forms(packed, 1), FloatType::f32);
    bool whole = false, single = false;
    for (const auto& in : program.code) {
      if (!is_load(in.op) && !is_store(in.op)) continue;
      (in.op == kernelgen::Op::load || in.op == kernelgen::Op::store ? whole : single) = true;
    }
    EXPECT_EQ(whole, pairs.count(n) != 0) << n;
    EXPECT_EQ(single, pairs.count(n) == 0 || alone.count(n) != 0) << n;
  }
}

}  // namespace
}  // namespace haldgen::dft_complex
