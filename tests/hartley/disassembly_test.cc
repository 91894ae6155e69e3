// The machine code of the Hartley kernels: scalar arithmetic only, and exactly the operations of
// the programs. A compiler that packs, contracts, shares or repeats one would show.
#include "tests/built/disassembly.h"

#include <gtest/gtest.h>

#include "hartley/kernel.h"
#include "kernelgen/count.h"
#include "kernelgen/emit.h"

namespace haldgen::hartley {
namespace {

using kernelgen::FloatType;

TEST(Disassembly, KernelsAreTheirProgramsInScalarInstructions) {
  for (const int length : lengths()) {
    for (const FloatType type : {FloatType::f32, FloatType::f64}) {
      const std::string symbol =
          "haldgImpl_Hartley_" + std::to_string(length) + "_" + kernelgen::suffix(type);
      const auto function = test::disassembly().find(symbol);
      ASSERT_NE(function, test::disassembly().end()) << symbol;
      EXPECT_EQ(text(test::scalar_operations(function->second)),
                text(test::scalar_operations(kernelgen::tally(kernel_program(length, type, {})))))
          << symbol;
      EXPECT_EQ(function->second.packed_arithmetic(), 0) << symbol;
    }
  }
}

}  // namespace
}  // namespace haldgen::hartley
