// The machine code of the real kernels: scalar arithmetic only, and exactly the operations of the
// programs. A compiler that packs, contracts, shares or repeats one would show.
#include "tests/built/disassembly.h"

#include <gtest/gtest.h>

#include "dft_real/kernel.h"
#include "kernelgen/count.h"
#include "kernelgen/emit.h"

namespace haldgen::dft_real {
namespace {

using kernelgen::FloatType;

test::ScalarOperations promised(int length, Direction direction, FloatType type) {
  return test::scalar_operations(kernelgen::tally(kernel_program(length, direction, type, {})));
}

TEST(Disassembly, RealKernelsAreTheirProgramsInScalarInstructions) {
  for (const int length : lengths()) {
    for (const FloatType type : {FloatType::f32, FloatType::f64}) {
      const std::string end = "_" + std::to_string(length) + "_" + kernelgen::suffix(type);
      for (const auto& [word, direction] : {std::pair{"DFTFwd_RToCCS", Direction::forward},
                                            {"DFTFwd_RToPack", Direction::forward},
                                            {"DFTFwd_RToPerm", Direction::forward},
                                            {"DFTInv_CCSToR", Direction::inverse},
                                            {"DFTInv_PackToR", Direction::inverse},
                                            {"DFTInv_PermToR", Direction::inverse}}) {
        const auto function = test::disassembly().find("haldgImpl_" + (word + end));
        ASSERT_NE(function, test::disassembly().end()) << word << end;
        EXPECT_EQ(text(scalar_operations(function->second)),
                  text(promised(length, direction, type)))
            << word << end;
        EXPECT_EQ(function->second.packed_arithmetic(), 0) << word << end;
      }
    }
  }
}

}  // namespace
}  // namespace haldgen::dft_real
