// How much of the stack each function of the library takes: no more than the documents promise.
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <map>
#include <sstream>
#include <string>

#include "registry/registry.h"
#include "tests/built/disassembly.h"

namespace haldgen::test {
namespace {

/// The folders of the families, in the order of registry::families().
const std::vector<std::string> folders = {
#define HALDGEN_FAMILY(folder, ...) #folder,
#include "registry/families.inc"
#undef HALDGEN_FAMILY
};

/// Folders by symbols of implementations.
std::map<std::string, std::string> implementations() {
  std::map<std::string, std::string> folder_of;
  const auto& families = registry::families();
  for (const registry::Export& e : registry::exports()) {
    for (std::size_t f = 0; f < families.size(); ++f) {
      const auto is_word = [&](const names::Word& word) { return word.word == e.word->word; };
      if (std::ranges::any_of(families[f].words, is_word)) {
        folder_of[names::implementation_symbol(e.name)] = folders.at(f);
      }
    }
  }
  return folder_of;
}

/// What is no transform's belongs to the frame; other code is told by its namespace.
std::string folder_of(const std::string& symbol) {
  static const auto known = implementations();
  const auto found = known.find(symbol);
  if (found != known.end()) return found->second;
  for (const std::string& folder : folders) {
    if (symbol.find(std::to_string(folder.size()) + folder) != std::string::npos) return folder;
  }
  return "frame";
}

/// The second column of the table, by the first.
std::map<std::string, int> promises() {
  std::ifstream document(FRAMES_PATH);
  std::map<std::string, int> result;
  bool inside = false;
  for (std::string line; std::getline(document, line);) {
    if (line == "<!-- table frames -->") inside = true;
    if (line == "<!-- end of table frames -->") inside = false;
    std::istringstream words(line);
    std::string bar, folder;
    int bytes = 0;
    if (inside && words >> bar >> folder >> bar >> bytes) {
      result[folder.substr(1, folder.find('/') - 1)] = bytes;
    }
  }
  return result;
}

TEST(Frames, AreNoLargerThanPromised) {
  std::map<std::string, int> largest;
  std::map<std::string, std::string> where;
  for (const auto& [symbol, function] : disassembly()) {
    const std::string folder = folder_of(symbol);
    if (function.frame() >= largest[folder]) {
      largest[folder] = function.frame();
      where[folder] = symbol;
    }
  }
  const auto promised = promises();
  EXPECT_EQ(largest.size(), promised.size());
  for (const auto& [folder, bytes] : largest) {
    ASSERT_TRUE(promised.contains(folder)) << folder;
    EXPECT_LE(bytes, promised.at(folder)) << folder << ": " << where[folder];
    EXPECT_GT(bytes, 0) << folder;
    // As the XML report has it, for the document.
    RecordProperty(folder, std::to_string(bytes) + " " + where[folder]);
  }
}

}  // namespace
}  // namespace haldgen::test
