// Every row of the table of operation counts.
#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <sstream>

#include "dct4/factorisation.h"
#include "dct4/kernel.h"
#include "kernelgen/count.h"

namespace haldgen::dct4 {
namespace {

using kernelgen::Counts;
using kernelgen::FloatType;
using kernelgen::Graph;
using kernelgen::Op;
using kernelgen::Program;

/// What a row states; without a depth where none is promised.
std::string text(int multiplications, int additions, int depth) {
  return std::to_string(multiplications) + " " + std::to_string(additions) + " " +
         (depth < 0 ? "-" : std::to_string(depth));
}

/// Recombination alone: that with rotations less 4 multiplications and 2 additions for each.
Counts recombination(int radix) {
  Counts c = count(recombine_graph(radix, 64 * radix, 0));
  c.multiplications -= 4 * radix;
  c.additions -= 2 * radix;
  return c;
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
    const Counts c = recombination(size);
    return text(c.multiplications, c.additions, -1);
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
  std::ifstream file(COUNTS_PATH);
  std::string line;
  std::getline(file, line);
  ASSERT_EQ(line, "what\tsize\tmul\tadd\tdepth");
  int rows = 0;
  while (std::getline(file, line)) {
    ++rows;
    std::istringstream columns(line);
    std::string what, rest, depth;
    int size = 0, multiplications = 0, additions = 0;
    columns >> what >> size >> multiplications >> additions >> depth;
    EXPECT_EQ(counted(what, size),
              text(multiplications, additions, depth == "-" ? -1 : std::stoi(depth)))
        << line;
  }
  EXPECT_EQ(rows, 28);
}

TEST(Counts, OfTransformsAddUpTheirPasses) {
  const Counts c = transform_counts(1024);
  EXPECT_EQ(text(c.multiplications, c.additions, -1), text(3072 + 5632, 5888 + 8192, -1));
  // Eight folds of 16 and eight rows of radix 8 for each of 32 sequences, and 64 blocks.
  const Counts sixteen = count(fold_graph(16));
  const Counts step = count(inner_recombine_graph(8, 128, 0));
  const Counts block = count(recombine_graph(32, 4096, 0));
  EXPECT_EQ(transform_counts(4096).additions,
            32 * (8 * sixteen.additions + 8 * step.additions) + 64 * block.additions);
}

// What is compiled is what was counted: lowering adds no arithmetic.
TEST(Counts, ProgramsExecuteTheCountedOperations) {
  for (const Kernel& kernel : kernels()) {
    const Counts promised = count(kernel_graph(kernel));
    int additions = 0, multiplications = 0, others = 0;
    for (const auto& in : kernel_program(kernel, ordering_of(kernel)).code) {
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
