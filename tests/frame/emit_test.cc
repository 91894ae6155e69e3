// What the frame generator writes.
#include "frame/emit.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

#include "frame/families.h"

namespace haldgen::frame {
namespace {

std::size_t occurrences(const std::string& text, const std::string& part) {
  std::size_t count = 0;
  for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) {
    ++count;
  }
  return count;
}

TEST(Emit, CommittedHeaderIsCurrent) {
  std::ifstream file(HEADER_PATH, std::ios::binary);
  std::ostringstream committed;
  committed << file.rdbuf();
  ASSERT_TRUE(file);
  EXPECT_EQ(committed.str(), emit_header())
      << "include/haldgen.h is out of date; build the target update-header";
}

TEST(Emit, HeaderDeclaresExactlyTheLiveFunctions) {
  const std::string header = emit_header();
  for (const Export& function : exports()) {
    const std::string line =
        "\n" + declaration(function.family->signature, function.element, function.name) + ";\n";
    EXPECT_EQ(occurrences(header, line), function.live ? 1u : 0u) << function.name;
  }
}

TEST(Emit, HeaderFitsTheColumns) {
  std::istringstream header(emit_header());
  for (std::string line; std::getline(header, line);) EXPECT_LE(line.size(), 100u) << line;
}

TEST(Emit, ListTellsAllNames) {
  const std::string list = emit_list();
  EXPECT_EQ(occurrences(list, "\n"), exports().size());
  EXPECT_EQ(occurrences(list, " live\n"), live_exports().size());
  EXPECT_EQ(occurrences(list, " not built yet\n"), exports().size() - live_exports().size());
}

}  // namespace
}  // namespace haldgen::frame
