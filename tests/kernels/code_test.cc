// The machine code of the scalar kernels: scalar arithmetic only, and exactly the operations of the
// programs. A compiler that packs, contracts, shares or repeats one would show.
#include <gtest/gtest.h>

#include <map>
#include <utility>

#include "dft_complex/recipes.h"
#include "dft_real/recipes.h"
#include "hartley/recipes.h"
#include "kernelgen/count.h"
#include "tests/built/disassembly.h"
#include "tests/built/library.h"

namespace haldgen::test {
namespace {

using dft_real::Direction;
using kernelgen::FloatType;

/// The kernels that `is_one` accepts; those of one length and type share the program that
/// `program_of` makes.
template <class IsOne, class ProgramOf>
void expect_scalar_code(const IsOne& is_one, const ProgramOf& program_of) {
  std::map<std::pair<int, FloatType>, std::string> promised;
  for (const BuiltKernel& kernel : built_kernels()) {
    if (!is_one(kernel)) continue;
    const bool single = kernel.element == kernel.word->elements[0];
    const FloatType type = single ? FloatType::f32 : FloatType::f64;
    std::string& operations = promised[{kernel.length, type}];
    if (operations.empty()) {
      operations = text(scalar_operations(tally(program_of(kernel.length, type))));
    }
    const std::string symbol = names::implementation_symbol(kernel.name);
    const auto function = disassembly().find(symbol);
    ASSERT_NE(function, disassembly().end()) << symbol;
    EXPECT_EQ(text(scalar_operations(function->second)), operations) << symbol;
    EXPECT_EQ(function->second.packed_arithmetic(), 0) << symbol;
  }
  EXPECT_FALSE(promised.empty());
}

TEST(Code, OfRealKernels) {
  for (const Direction direction : {Direction::forward, Direction::inverse}) {
    expect_scalar_code(
        [&](const BuiltKernel& kernel) {
          const std::string_view word = kernel.word->word;
          return direction == Direction::forward
                     ? word.starts_with("DFTFwd_R")
                     : word.starts_with("DFTInv_") && word.ends_with("ToR");
        },
        [&](int length, FloatType type) {
          return program_of(dft_real::design_of(length, direction), type);
        });
  }
}

TEST(Code, OfHartleyKernels) {
  expect_scalar_code(
      [](const BuiltKernel& kernel) { return kernel.word->word == "Hartley"; },
      [](int length, FloatType type) { return program_of(hartley::design_of(length), type); });
}

// The others fill vectors.
TEST(Code, OfTheSmallestComplexKernels) {
  expect_scalar_code(
      [](const BuiltKernel& kernel) {
        return kernel.element == names::Element::c32 && kernel.length <= 5;
      },
      [](int length, FloatType) {
        return programs_of(dft_complex::design_of(length, FloatType::f32), FloatType::f32, 0)
            .forward;
      });
}

}  // namespace
}  // namespace haldgen::test
