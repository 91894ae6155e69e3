// The published names, in the order of their slots, and the header that follows from the table.
#include "registry/registry.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <iterator>
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
  for (const registry::Export& function : registry::exports()) names.push_back(function.name);
  EXPECT_EQ(names, published);
}

std::vector<std::pair<std::string, std::string>> headers() {
  return {{"haldgen.h", emit_header()},
          {"haldbatch.h", emit_batch_header()},
          {"haldgen_tables.hpp", emit_tables()},
          {"haldbatch_tables.hpp", emit_batch_tables()}};
}

TEST(Header, CommittedOneIsCurrent) {
  for (const auto& [name, text] : headers()) {
    std::ifstream file(INCLUDE_DIR + name, std::ios::binary);
    std::ostringstream committed;
    committed << file.rdbuf();
    ASSERT_TRUE(file);
    EXPECT_EQ(committed.str(), text)
        << "include/" << name << " is out of date; build the target update-header";
  }
}

TEST(Header, FitsTheColumns) {
  for (const auto& [name, text] : headers()) {
    std::istringstream header(text);
    for (std::string line; std::getline(header, line);) EXPECT_LE(line.size(), 100u) << line;
  }
}

}  // namespace
}  // namespace haldgen::frame
