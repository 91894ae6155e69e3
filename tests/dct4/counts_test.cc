// Every row of the table of operation counts.
#include <gtest/gtest.h>

#include <map>
#include <string>

#include "dct4/factorisation.h"
#include "dct4/kernel.h"
#include "kernelgen/count.h"
#include "tests/kernels/table.h"

namespace haldgen::dct4 {
namespace {

using kernelgen::Counts;
using kernelgen::Op;

/// What a row states; without a depth where none is promised.
std::string text(int multiplications, int additions, int depth) {
  return haldgen::test::row({multiplications, additions}) + "\t" +
         (depth < 0 ? "-" : std::to_string(depth));
}

/// The plans that have no inner one: length, radix.
const std::map<int, int> radices = {{64, 8},   {128, 8},   {256, 16},
                                    {512, 16}, {1024, 32}, {2048, 32}};

std::string counted(const std::string& what, int size) {
  if (what == "fold") {
    const Counts c = count(fold_graph(size));
    return text(c.multiplications, c.additions, c.depth);
  }
  if (what == "recombine") {
    // That with rotations less 4 multiplications and 2 additions for each.
    const Counts c = count(recombine_graph(size, 64 * size, 0));
    return text(c.multiplications - 4 * size, c.additions - 2 * size, -1);
  }
  if (what == "fixed") {
    const Counts c = count(fixed_graph(size));
    return text(c.multiplications, c.additions, c.depth);
  }
  const int radix = radices.at(size);
  const int fold_length = size / radix;
  if (what == "fold_pass") {
    const Counts c = count(fold_graph(fold_length));
    return text(radix * c.multiplications, radix * c.additions, -1);
  }
  if (what == "recombine_pass") {
    const int blocks = fold_length / 2;
    const Counts c = count(recombine_graph(radix, size, blocks - 1));
    return text(blocks * c.multiplications, blocks * c.additions, -1);
  }
  return "unknown " + what;
}

TEST(Counts, EveryRowIsMet) {
  const auto rows = haldgen::test::table(COUNTS_PATH, "what\tsize\tmul\tadd\tdepth", 2);
  EXPECT_EQ(rows.size(), 28U);
  for (const auto& [key, promise] : rows) {
    const auto tab = key.find('\t');
    EXPECT_EQ(counted(key.substr(0, tab), std::stoi(key.substr(tab + 1))), promise) << key;
  }
}

TEST(Counts, OfTransformsAddUpTheirPasses) {
  const Counts c = transform_counts(1024);
  EXPECT_EQ(text(c.multiplications, c.additions, -1), text(3072 + 5632, 5888 + 8192, -1));
}

// What is compiled is what was counted: lowering adds no arithmetic.
TEST(Counts, ProgramsExecuteTheCountedOperations) {
  for (const Kernel& kernel : kernels()) {
    const Counts promised = count(kernel_graph(kernel));
    int additions = 0, multiplications = 0, others = 0;
    for (const auto& in : kernel_program(kernel, {}).code) {
      additions += in.op == Op::add || in.op == Op::subtract ? 1 : 0;
      multiplications += in.op == Op::multiply || in.op == Op::product ? 1 : 0;
      others += in.op == Op::negate || in.op == Op::scale || in.op == Op::sign ? 1 : 0;
    }
    EXPECT_EQ(additions, promised.additions) << name(kernel);
    EXPECT_EQ(multiplications, promised.multiplications) << name(kernel);
    // Folding two values only names them; the second is held negated.
    EXPECT_EQ(others, name(kernel) == "fold_2" ? 1 : 0) << name(kernel);
  }
}

}  // namespace
}  // namespace haldgen::dct4
