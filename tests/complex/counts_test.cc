// Every row of the table of operation counts.
#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <sstream>

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
    EXPECT_EQ(text(count(kernel_graph(kernel.length, kernel.type))), text(rows.at(kernel.text())))
        << kernel.text();
  }
}

TEST(Counts, FillersForPairsOfElementsAreNoWork) {
  const auto rows = promised();
  for (const auto& kernel : test::all_kernels()) {
    const auto graph = expand(recipe_of(kernel.length, kernel.type), true);
    EXPECT_EQ(text(count(graph)), text(rows.at(kernel.text()))) << kernel.text();
  }
}

}  // namespace
}  // namespace haldgen::dft_complex
