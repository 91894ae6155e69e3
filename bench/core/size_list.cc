// Lists of lengths as users type them.
#include "bench/core/size_list.h"

#include <charconv>
#include <sstream>
#include <stdexcept>
#include <string_view>

namespace haldgen::bench {
namespace {

constexpr int largest = 1 << 20;

int parse_size(std::string_view text) {
  int value = 0;
  const char* const end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, value);
  if (error != std::errc() || stop != end || value < 1 || value > largest) {
    throw std::invalid_argument("not a length: '" + std::string(text) + "'");
  }
  return value;
}

}  // namespace

std::set<int> parse_size_list(const std::string& text) {
  std::set<int> sizes;
  std::istringstream stream(text);
  for (std::string item; std::getline(stream, item, ',');) {
    const std::size_t dash = item.find('-');
    const int first = parse_size(std::string_view(item).substr(0, dash));
    const int last =
        dash == std::string::npos ? first : parse_size(std::string_view(item).substr(dash + 1));
    if (first > last) throw std::invalid_argument("empty range of lengths: '" + item + "'");
    for (int size = first; size <= last; ++size) sizes.insert(size);
  }
  if (sizes.empty()) throw std::invalid_argument("no length given");
  return sizes;
}

}  // namespace haldgen::bench
