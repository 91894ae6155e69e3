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
using test::ScalarOperations;

ScalarOperations promised(int length, Direction direction, FloatType type) {
  const auto t = kernelgen::tally(kernel_program(length, direction, type, {}));
  return {t.in32.additions + t.in32.negations, t.in64.additions + t.in64.negations,
          t.in32.products + t.in32.scales, t.in64.products + t.in64.scales, t.narrowings};
}

TEST(Disassembly, RealKernelsAreTheirProgramsInScalarInstructions) {
  int checked = 0;
  for (int length = kFirstLength; length <= kLastLength; ++length) {
    for (const FloatType type : {FloatType::f32, FloatType::f64}) {
      const std::string end = "_" + std::to_string(length) + "_" + kernelgen::suffix(type);
      for (const auto& [word, direction] : {std::pair{"DFTFwd_RToCCS", Direction::forward},
                                            {"DFTFwd_RToPack", Direction::forward},
                                            {"DFTFwd_RToPerm", Direction::forward},
                                            {"DFTInv_CCSToR", Direction::inverse},
                                            {"DFTInv_PackToR", Direction::inverse},
                                            {"DFTInv_PermToR", Direction::inverse}}) {
        const auto function = test::disassembly().find("haldgImpl_" + (word + end));
        // Kernels that are the same code share one symbol.
        if (function == test::disassembly().end()) continue;
        ++checked;
        EXPECT_EQ(text(scalar_operations(function->second)),
                  text(promised(length, direction, type)))
            << word << end;
        EXPECT_EQ(function->second.packed_arithmetic(), 0) << word << end;
      }
    }
  }
  // Perm is Pack at odd lengths, and at length 2.
  EXPECT_GE(checked, 2 * 2 * (3 * 63 - 32 - 1));
}

}  // namespace
}  // namespace haldgen::dft_real
