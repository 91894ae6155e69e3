// Lists of lengths as users type them.
#pragma once

#include <set>
#include <string>

namespace haldgen::bench {

/// Reads a list such as "8,16,20-24". Throws std::invalid_argument with a message for users.
std::set<int> parse_size_list(const std::string& text);

}  // namespace haldgen::bench
