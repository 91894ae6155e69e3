// The table of a family's designs by their lengths, of which some between may be missing.
#pragma once

#include <map>
#include <stdexcept>
#include <string>

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

/// Designs of lengths without a row are made by a rule, up to this one.
inline constexpr int kLongestByRule = 128;

/// The row of a length, or what `rule` makes of it. Throws std::out_of_range beyond the above.
template <class Design, class Rule>
const Design& row_of(DesignTable<Design>& table, int length, const Rule& rule) {
  if (length > table.rbegin()->first && length <= kLongestByRule && !table.contains(length)) {
    table.emplace(length, rule(length));
  }
  return row_of(table, length);
}

}  // namespace haldgen::kernelgen
