// Arrays of each family of transforms.
#include "frame/arrays.h"

#include <stdexcept>
#include <string>

namespace haldgen::frame {
namespace {

std::size_t spectrum_floats(std::string_view format, std::size_t samples) {
  return format == "CCS" ? samples / 2 * 2 + 2 : samples;
}

// The imaginary parts that are always zero.
std::vector<std::size_t> gaps(std::string_view format, std::size_t samples) {
  if (format != "CCS") return {};
  return samples % 2 == 0 ? std::vector{std::size_t{1}, samples + 1} : std::vector{std::size_t{1}};
}

}  // namespace

Arrays arrays(const Family& family, int size) {
  const std::string_view word = family.word;
  const auto samples = static_cast<std::size_t>(size);
  if (word == "WHT") {
    const std::size_t points = std::size_t{1} << size;
    return {1 << size, points, points, {}};
  }
  if (word == "Hartley") return {size, samples, samples, {}};
  if (word.ends_with("_CToC")) return {size, 2 * samples, 2 * samples, {}};
  if (const auto direction = word.find("_RTo"); direction != std::string_view::npos) {
    return {size, samples, spectrum_floats(word.substr(direction + 4), samples), {}};
  }
  if (word.starts_with("DFTInv_") && word.ends_with("ToR")) {
    const std::string_view format = word.substr(7, word.size() - 10);
    return {size, spectrum_floats(format, samples), samples, gaps(format, samples)};
  }
  throw std::logic_error("the arrays of " + std::string(word) + " are not described");
}

}  // namespace haldgen::frame
