// No instruction of the library multiplies and adds in one rounding, not in flavours for processors
// that have such: the bits would depend on the processor. But for sums that take their signs by
// lane from factors of 1 and -1, whose products are exact.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <regex>

#include "registry/registry.h"
#include "tests/built/disassembly.h"
#include "tests/built/paths.h"

namespace haldgen::test {
namespace {

/// The sums with signs by lane in the sources of a flavour's kernels, by symbol; fails at one with
/// another factor.
std::map<std::string, int> signed_sums(const std::string& flavour) {
  std::map<std::string, int> sums;
  const std::filesystem::path folder = std::string(HALDGEN_COMPLEX_SOURCES) + "/" + flavour;
  if (!std::filesystem::exists(folder)) return sums;
  const std::regex signs("[VW]\\{(-?1\\.0f?(, )?)+\\}\\);");
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    const std::string kernel = entry.path().stem().string().substr(7);  // complex_...
    std::ifstream source(entry.path());
    std::string direction;
    for (std::string line; std::getline(source, line);) {
      if (line.starts_with("struct Forward")) direction = "Fwd";
      if (line.starts_with("struct Inverse")) direction = "Inv";
      if (line.find("add_signed(") == std::string::npos) continue;
      ++sums["haldgImpl_DFT" + direction + "_CToC" + kernel];
      EXPECT_TRUE(std::regex_search(line, signs)) << entry.path() << ": " << line;
    }
  }
  EXPECT_FALSE(sums.empty()) << folder;
  return sums;
}

TEST(Rounding, NothingIsFusedThatRounds) {
  for (const std::string& path : built_libraries()) {
    SCOPED_TRACE(path);
    const auto functions = disassembly(path);
    auto exact = signed_sums(std::filesystem::path(path).parent_path().filename().string());
    for (const auto& [symbol, mnemonics] : functions) {
      EXPECT_EQ(mnemonics.fused_that_round(), exact[symbol]) << symbol;
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
  for (const char* const name : {"fmul", "fmov", "fnmul", "fmax", "fmaxnm", "vmulpd", "mulsd",
                                 "vfmaddsub213ps", "vfmsubadd132pd"}) {
    mnemonics.add(name, "");
  }
  EXPECT_EQ(mnemonics.fused_that_round(), 11);
}

}  // namespace
}  // namespace haldgen::test
