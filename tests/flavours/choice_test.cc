// Which flavour a program gets: from the loader, or by a path.
#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <memory>
#include <string>

#include "lanes/processor.h"
#include "names/flavour.h"
#include "tests/built/paths.h"

namespace haldgen::test {
namespace {

/// What the program says that tells which flavour it runs with, without the end of its line.
std::string answer_of(const std::string& command) {
  const std::unique_ptr<FILE, int (*)(FILE*)> pipe(popen((command + " 2>&1").c_str(), "r"), pclose);
  std::array<char, 256> line{};
  if (!pipe || std::fgets(line.data(), line.size(), pipe.get()) == nullptr) return "nothing";
  const std::string text = line.data();
  return text.substr(0, text.find('\n'));
}

// Without the run path of tests, which leads to the baseline.
std::string loaded_from(const std::string& folder, const std::string& loader_options) {
  return answer_of("/lib64/ld-linux-x86-64.so.2 " + loader_options + " --library-path '" + folder +
                   "' '" WHICH_FLAVOUR "'");
}

TEST(Flavours, TheLoaderTakesTheBestThatTheProcessorHas) {
  const names::Flavour* best = &names::flavours[0];
  for (const names::Flavour& flavour : names::flavours) {
    if (lanes::processor_has(flavour.vector_bits)) best = &flavour;
  }
  EXPECT_EQ(loaded_from(BINARY_FOLDER, ""), best->name);
}

TEST(Flavours, TheLoaderTakesWhatItIsHeldTo) {
  for (const names::Flavour& flavour : names::flavours) {
    if (!lanes::processor_has(flavour.vector_bits)) continue;
    const std::string mask = std::string("--glibc-hwcaps-mask x86-64-") + flavour.tag;
    EXPECT_EQ(loaded_from(BINARY_FOLDER, mask), flavour.name);
  }
}

TEST(Flavours, TestsRunWithTheBaselineOrWithOneByItsPath) {
  EXPECT_EQ(answer_of(WHICH_FLAVOUR), names::flavours[0].name);
  const std::vector<std::string> paths = built_libraries();
  ASSERT_EQ(paths.size(), std::size(names::flavours));
  for (std::size_t k = 0; k < paths.size(); ++k) {
    if (!lanes::processor_has(names::flavours[k].vector_bits)) continue;
    EXPECT_EQ(answer_of(RUN_IN_FLAVOUR " '" + paths[k] + "' " WHICH_FLAVOUR),
              names::flavours[k].name);
  }
}

}  // namespace
}  // namespace haldgen::test
