// The published names, their slots and symbols, and the header that follows from the table.
#include "frame/families.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <set>
#include <sstream>

#include "frame/emit.h"

namespace haldgen::frame {
namespace {

// In byte order, which is that of the slots.
TEST(Families, NamesAreThePublishedOnes) {
  std::ifstream file(NAMES_PATH);
  const std::vector<std::string> published{std::istream_iterator<std::string>(file), {}};
  EXPECT_TRUE(std::is_sorted(published.begin(), published.end()));
  std::vector<std::string> names;
  for (const Export& function : live_exports()) names.push_back(function.name);
  EXPECT_EQ(names, published);
}

TEST(Families, SymbolsAreDistinct) {
  std::set<std::string> symbols;
  for (const Export& function : exports()) {
    EXPECT_TRUE(symbols.insert(implementation_symbol(function)).second) << function.name;
  }
}

TEST(Families, GeneralEntriesReachWhatHasAName) {
  for (const Family& fixed : families()) {
    if (!size_in_name(fixed)) continue;
    const auto general = std::ranges::find_if(
        families(), [&](const Family& f) { return is_general(f) && f.word == fixed.word; });
    ASSERT_NE(general, families().end()) << fixed.word;
    for (int size = 0; size <= max_size; ++size) {
      EXPECT_EQ(fixed.live.contains(size), general->live.contains(size)) << fixed.word << size;
    }
  }
}

TEST(Header, CommittedOneIsCurrent) {
  std::ifstream file(HEADER_PATH, std::ios::binary);
  std::ostringstream committed;
  committed << file.rdbuf();
  ASSERT_TRUE(file);
  EXPECT_EQ(committed.str(), emit_header())
      << "include/haldgen.h is out of date; build the target update-header";
}

TEST(Header, FitsTheColumns) {
  std::istringstream header(emit_header());
  for (std::string line; std::getline(header, line);) EXPECT_LE(line.size(), 100u) << line;
}

}  // namespace
}  // namespace haldgen::frame
