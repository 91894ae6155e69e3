// No instruction of the library multiplies and adds in one rounding: the bits would depend on
// whether a processor has it.
#include <gtest/gtest.h>

#include "registry/registry.h"
#include "tests/built/disassembly.h"

namespace haldgen::test {
namespace {

TEST(Rounding, NothingIsFused) {
  for (const auto& [symbol, mnemonics] : disassembly()) EXPECT_EQ(mnemonics.fused(), 0) << symbol;
  for (const registry::Export& e : registry::exports()) {
    const std::string symbol = names::implementation_symbol(e.name);
    const auto function = disassembly().find(symbol);
    ASSERT_NE(function, disassembly().end()) << symbol;
    EXPECT_GT(function->second.all(), 0) << symbol;
  }
}

TEST(Rounding, FusedInstructionsAreKnown) {
  Mnemonics mnemonics;
  for (const char* const name : {"vfmadd213sd", "vfnmsub231ps", "vfmaddsub132pd", "fmadd", "fmsub",
                                 "fnmadd", "fnmsub", "fmla", "fmls", "fcmla", "fmlal"}) {
    mnemonics.add(name, "");
  }
  EXPECT_EQ(mnemonics.fused(), 11);
  for (const char* const name : {"fmul", "fmov", "fnmul", "fmax", "fmaxnm", "vmulpd", "mulsd"}) {
    mnemonics.add(name, "");
  }
  EXPECT_EQ(mnemonics.fused(), 11);
}

}  // namespace
}  // namespace haldgen::test
