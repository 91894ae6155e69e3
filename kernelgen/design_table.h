// The table of a family's designs by their lengths, of which some between may be missing.
#pragma once

#include <map>
#include <stdexcept>
#include <string>
#include <vector>

namespace haldgen::kernelgen {

template <class Design>
using DesignTable = std::map<int, Design>;

/// The row of a length. Throws std::out_of_range if there is none.
template <class Design>
const Design& row_of(const DesignTable<Design>& table, int length) {
  const auto found = table.find(length);
  if (found != table.end()) return found->second;
  throw std::out_of_range("no kernel of length " + std::to_string(length));
}

/// The lengths in ascending order.
template <class Design>
std::vector<int> lengths_of(const DesignTable<Design>& table) {
  std::vector<int> lengths;
  for (const auto& [length, design] : table) lengths.push_back(length);
  return lengths;
}

/// The lengths of two tables of one family. Throws std::logic_error if they differ.
template <class Design>
std::vector<int> lengths_of(const DesignTable<Design>& one, const DesignTable<Design>& other) {
  const auto check = [](const DesignTable<Design>& rows, const DesignTable<Design>& beside) {
    for (const int length : lengths_of(rows)) {
      if (beside.contains(length)) continue;
      throw std::logic_error("length " + std::to_string(length) + " has a row in one table only");
    }
  };
  check(one, other);
  check(other, one);
  return lengths_of(one);
}

}  // namespace haldgen::kernelgen
