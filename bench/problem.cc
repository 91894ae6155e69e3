// A transform to be measured.
#include "bench/problem.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>
#include <random>
#include <sstream>
#include <string_view>

namespace haldgen::bench {
namespace {

/// In the order of the enumeration.
constexpr std::string_view words[] = {
    "DFTFwd_CToC", "DFTInv_CToC", "DFTFwd_RToCCS", "DFTInv_CCSToR", "Hartley", "WHT", "DCT4"};

std::size_t spectrum_floats(int length) { return 2 * (static_cast<std::size_t>(length) / 2) + 2; }

/// Imaginary parts that are zero: not every library writes them, and none need ignore them.
bool is_zero(std::size_t position, int length) {
  return position == 1 || (length % 2 == 0 && position == static_cast<std::size_t>(length) + 1);
}

double error_bound(const Problem& problem) {
  const double epsilon = problem.is_float() ? std::numeric_limits<float>::epsilon()
                                            : std::numeric_limits<double>::epsilon();
  const double order = std::log2(problem.length);
  // Each level rounds once, by half an epsilon at most, in both.
  if (problem.transform == Transform::wht) return epsilon * order;
  if (problem.transform == Transform::dct4) return 16 * epsilon * (order + 1);
  // Wide enough for direct sums with rounded sines; wrong order or direction is off by about 1.
  return 8 * epsilon * std::max(2, problem.length);
}

}  // namespace

std::string Problem::word() const {
  return std::string(words[static_cast<std::size_t>(transform)]);
}

bool Problem::is_float() const {
  return element == names::Element::f32 || element == names::Element::c32;
}

bool Problem::is_inverse() const {
  return transform == Transform::inverse_dft || transform == Transform::inverse_real;
}

int Problem::source_parts() const { return transform == Transform::dft || is_inverse() ? 2 : 1; }

int Problem::result_parts() const {
  const bool spectrum = transform == Transform::dft || transform == Transform::real;
  return spectrum || transform == Transform::inverse_dft ? 2 : 1;
}

std::size_t Problem::source_floats() const {
  return transform == Transform::inverse_real ? spectrum_floats(length)
                                              : static_cast<std::size_t>(length * source_parts());
}

std::size_t Problem::result_floats() const {
  return transform == Transform::real ? spectrum_floats(length)
                                      : static_cast<std::size_t>(length * result_parts());
}

std::optional<Problem> problem_of(const registry::Export& function) {
  const auto* const word = std::find(std::begin(words), std::end(words), function.word->word);
  if (function.size == 0 || word == std::end(words)) return std::nullopt;
  const int length = names::has_order(*function.word) ? 1 << function.size : function.size;
  return Problem{static_cast<Transform>(word - std::begin(words)), function.element, length};
}

std::vector<std::byte> random_source(const Problem& problem, std::size_t count) {
  const bool spectrum = problem.transform == Transform::inverse_real;
  std::vector<std::byte> bytes(count * problem.source_bytes());
  std::mt19937_64 engine(count * problem.source_floats());
  std::uniform_real_distribution<double> distribution(-1, 1);
  for (std::size_t i = 0; i < count * problem.source_floats(); ++i) {
    const bool zero = spectrum && is_zero(i % problem.source_floats(), problem.length);
    const double value = zero ? 0 : distribution(engine);
    const auto narrow = static_cast<float>(value);
    std::memcpy(&bytes[i * problem.float_bytes()],
                problem.is_float() ? static_cast<const void*>(&narrow) : &value,
                problem.float_bytes());
  }
  return bytes;
}

std::vector<double> result(const Problem& problem, const Contestant& contestant, const Walk& walk) {
  // Poison: all ones is a NaN in both types, so an output that is not written shows.
  std::memset(walk.dst, 0xFF, problem.result_bytes());
  contestant.slice(walk, 1);
  const auto floats = [&](const auto* first) {
    return std::vector<double>(first, first + problem.result_floats());
  };
  return problem.is_float() ? floats(reinterpret_cast<const float*>(walk.dst))
                            : floats(reinterpret_cast<const double*>(walk.dst));
}

std::string fault(const Problem& problem, const Contestant& contestant, const Walk& walk,
                  std::span<const std::byte> source, const std::vector<double>& expected) {
  const std::vector<double> actual = result(problem, contestant, walk);
  if (std::memcmp(walk.src, source.data(), source.size()) != 0) return "it changed its source";
  const bool ours = contestant.role == Role::subject || contestant.role == Role::variant;
  // FFTW's DCT-IV has a factor of 2.
  const double factor = ours && problem.transform == Transform::dct4 ? 2 : 1;
  double difference = 0;
  double magnitude = 0;
  for (std::size_t i = 0; i < actual.size(); ++i) {
    const bool may_be_left = problem.transform == Transform::real && is_zero(i, problem.length);
    if (may_be_left && std::isnan(actual[i])) continue;
    difference += std::pow(factor * actual[i] - expected[i], 2);
    magnitude += expected[i] * expected[i];
  }
  const double error = std::sqrt(difference / magnitude);
  if (error <= error_bound(problem)) return {};  // no NaN is
  std::ostringstream text;
  text << "relative difference " << error << ", bound " << error_bound(problem);
  return text.str();
}

}  // namespace haldgen::bench
