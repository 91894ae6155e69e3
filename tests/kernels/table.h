// Tables of promised figures, tab-separated.
#pragma once

#include <gtest/gtest.h>

#include <cstddef>
#include <fstream>
#include <initializer_list>
#include <map>
#include <string>

namespace haldgen::test {

/// What a table has behind the first `keys` cells of each row, by those cells, all as text with the
/// tabs. The first line must name these columns.
inline std::map<std::string, std::string> table(const char* path, const std::string& columns,
                                                int keys = 1) {
  std::ifstream file(path);
  std::string line;
  std::getline(file, line);
  EXPECT_EQ(line, columns) << path;
  std::map<std::string, std::string> rows;
  while (std::getline(file, line)) {
    std::size_t tab = line.find('\t');
    for (int k = 1; k < keys; ++k) tab = line.find('\t', tab + 1);
    rows[line.substr(0, tab)] = line.substr(tab + 1);
  }
  return rows;
}

inline std::string row(std::initializer_list<int> columns) {
  std::string text;
  for (const int c : columns) text += (text.empty() ? "" : "\t") + std::to_string(c);
  return text;
}

}  // namespace haldgen::test
