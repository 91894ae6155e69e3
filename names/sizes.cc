#include "names/sizes.h"

#include <algorithm>
#include <charconv>
#include <stdexcept>
#include <string>

namespace haldgen::names {
namespace {

/// Takes a number from the front of the text.
int number(std::string_view& text, std::string_view whole) {
  text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
  int value = 0;
  const auto [rest, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error != std::errc{} || value <= 0) {
    throw std::invalid_argument("no set of sizes: " + std::string(whole));
  }
  text.remove_prefix(static_cast<std::size_t>(rest - text.data()));
  return value;
}

}  // namespace

Sizes::Sizes(std::string_view text) {
  const std::string_view whole = text;
  while (!text.empty()) {
    const int first = number(text, whole);
    int last = first;
    if (text.starts_with("..")) {
      text.remove_prefix(2);
      last = number(text, whole);
    }
    if (first > last || (!empty() && first <= this->last())) {
      throw std::invalid_argument("sizes do not ascend: " + std::string(whole));
    }
    for (int size = first; size <= last; ++size) sizes_.push_back(size);
    if (text.starts_with(",")) {
      text.remove_prefix(1);
    } else if (!text.empty()) {
      throw std::invalid_argument("no set of sizes: " + std::string(whole));
    }
  }
}

bool Sizes::contains(int size) const {
  return std::binary_search(sizes_.begin(), sizes_.end(), size);
}

std::string to_string(const Sizes& sizes) {
  std::string text;
  for (auto first = sizes.begin(); first != sizes.end();) {
    auto last = first;
    while (last + 1 != sizes.end() && *(last + 1) == *last + 1) ++last;
    text += (text.empty() ? "" : ", ") + std::to_string(*first);
    if (last != first) text += ".." + std::to_string(*last);
    first = last + 1;
  }
  return text;
}

}  // namespace haldgen::names
