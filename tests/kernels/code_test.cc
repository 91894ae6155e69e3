// The machine code of the scalar kernels: scalar arithmetic only, and exactly the operations of the
// programs. A compiler that packs, contracts, shares or repeats one would show.
#include <gtest/gtest.h>

#include <map>
#include <utility>

#include "dft_complex/kernel.h"
#include "dft_real/kernel.h"
#include "hartley/kernel.h"
#include "kernelgen/count.h"
#include "tests/built/disassembly.h"
#include "tests/built/library.h"

namespace haldgen::test {
namespace {

using dft_complex::ElementType;
using dft_real::Direction;
using kernelgen::FloatType;
using kernelgen::Order;

/// The kernels that `is_one` accepts; those of one length and type share the program that
/// `program_of` makes.
template <class IsOne, class ProgramOf>
void expect_scalar_code(const IsOne& is_one, const ProgramOf& program_of) {
  std::map<std::pair<int, FloatType>, std::string> promised;
  for (const BuiltKernel& kernel : built_kernels()) {
    if (!is_one(kernel)) continue;
    const bool single = kernel.element == kernel.family->elements[0];
    const FloatType type = single ? FloatType::f32 : FloatType::f64;
    std::string& operations = promised[{kernel.length, type}];
    if (operations.empty()) {
      operations = text(scalar_operations(tally(program_of(kernel.length, type))));
    }
    const std::string symbol =
        frame::implementation_symbol(*kernel.family, kernel.element, kernel.length);
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
          const std::string_view word = kernel.family->word;
          return direction == Direction::forward
                     ? word.starts_with("DFTFwd_R")
                     : word.starts_with("DFTInv_") && word.ends_with("ToR");
        },
        [&](int length, FloatType type) {
          return dft_real::kernel_program(length, direction, type, {Order::program, 0});
        });
  }
}

TEST(Code, OfHartleyKernels) {
  expect_scalar_code([](const BuiltKernel& kernel) { return kernel.family->word == "Hartley"; },
                     [](int length, FloatType type) {
                       return hartley::kernel_program(length, type, {Order::program, 0});
                     });
}

// The others fill vectors.
TEST(Code, OfTheSmallestComplexKernels) {
  expect_scalar_code(
      [](const BuiltKernel& kernel) {
        return kernel.element == frame::Element::c32 && kernel.length <= 5;
      },
      [](int length, FloatType) {
        return dft_complex::kernel_programs(length, ElementType::c32, {}).forward;
      });
}

}  // namespace
}  // namespace haldgen::test
