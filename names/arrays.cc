#include "names/arrays.h"

#include <stdexcept>

namespace haldgen::names {
namespace {

std::size_t floats(Layout layout, std::size_t points) {
  switch (layout) {
    case Layout::none:
      break;
    case Layout::real:
    case Layout::pack:
    case Layout::perm:
      return points;
    case Layout::complex:
      return 2 * points;
    case Layout::ccs:
      return points / 2 * 2 + 2;
  }
  throw std::logic_error("no arrays of a known size");
}

/// The imaginary parts that are always zero.
std::vector<std::size_t> gaps(Layout layout, std::size_t points) {
  if (layout != Layout::ccs) return {};
  return points % 2 == 0 ? std::vector{std::size_t{1}, points + 1} : std::vector{std::size_t{1}};
}

}  // namespace

Arrays arrays(const Word& word, int size) {
  const int points = has_order(word) ? 1 << size : size;
  const auto n = static_cast<std::size_t>(points);
  return {points, floats(word.usage.src, n), floats(word.usage.dst, n), gaps(word.usage.src, n)};
}

}  // namespace haldgen::names
