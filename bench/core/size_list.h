// Lists of lengths as users type them.
#pragma once

#include <regex>
#include <set>
#include <sstream>
#include <stdexcept>
#include <string>

namespace haldgen::bench {

/// Reads a list such as "8,16,20-24". Throws std::invalid_argument with a message for users.
inline std::set<int> parse_size_list(const std::string& text) {
  static const std::regex form("([0-9]{1,7})(-([0-9]{1,7}))?");
  std::set<int> sizes;
  std::istringstream items(text);
  for (std::string item; std::getline(items, item, ',');) {
    std::smatch ends;
    const bool well_formed = std::regex_match(item, ends, form);
    const int first = well_formed ? std::stoi(ends[1]) : 0;
    const int last = well_formed && ends[3].matched ? std::stoi(ends[3]) : first;
    if (first < 1 || last < first) throw std::invalid_argument("no lengths: '" + item + "'");
    for (int size = first; size <= last; ++size) sizes.insert(size);
  }
  if (sizes.empty()) throw std::invalid_argument("no length given");
  return sizes;
}

}  // namespace haldgen::bench
