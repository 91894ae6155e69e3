// No instruction of the library multiplies and adds in one rounding, not in flavours for processors
// that have such: the bits would depend on the processor.
#include <gtest/gtest.h>

#include "registry/registry.h"
#include "tests/built/disassembly.h"
#include "tests/built/paths.h"

namespace haldgen::test {
namespace {

TEST(Rounding, NothingIsFused) {
  for (const std::string& path : built_libraries()) {
    SCOPED_TRACE(path);
    const auto functions = disassembly(path);
    for (const auto& [symbol, mnemonics] : functions) {
      EXPECT_EQ(mnemonics.fused_that_round(), 0) << symbol;
    }
    for (const registry::Export& e : registry::exports()) {
      const std::string symbol = names::implementation_symbol(e.name);
      const auto function = functions.find(symbol);
      ASSERT_NE(function, functions.end()) << symbol;
      EXPECT_GT(function->second.all(), 0) << symbol;
    }
  }
}

TEST(Rounding, FusedInstructionsAreKnown) {
  Mnemonics mnemonics;
  for (const char* const name : {"vfmadd213sd", "vfnmsub231ps", "vfmadd132pd", "fmadd", "fmsub",
                                 "fnmadd", "fnmsub", "fmla", "fmls", "fcmla", "fmlal"}) {
    mnemonics.add(name, "");
  }
  EXPECT_EQ(mnemonics.fused_that_round(), 11);
  for (const char* const name :
       {"fmul", "fmov", "fnmul", "fmax", "fmaxnm", "vmulpd", "mulsd", "vfmaddsub213ps"}) {
    mnemonics.add(name, "");
  }
  EXPECT_EQ(mnemonics.fused_that_round(), 11);
}

}  // namespace
}  // namespace haldgen::test
