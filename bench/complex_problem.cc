// One complex transform to be measured.
#include "bench/complex_problem.h"

#include <algorithm>
#include <cmath>
#include <complex>
#include <cstring>
#include <limits>
#include <numbers>
#include <sstream>

namespace haldgen::bench {
namespace {

using Wide = std::complex<long double>;

template <class Real>
std::vector<std::byte> random_bytes(int length) {
  std::mt19937_64 engine(static_cast<std::uint64_t>(length));
  std::uniform_real_distribution<Real> distribution(-1, 1);
  std::vector<Real> values(2 * static_cast<std::size_t>(length));
  for (Real& value : values) value = distribution(engine);
  const auto bytes = std::as_bytes(std::span(values));
  return {bytes.begin(), bytes.end()};
}

template <class Real>
std::vector<Wide> widened(std::span<const std::byte> bytes) {
  std::vector<std::complex<Real>> narrow(bytes.size() / sizeof(std::complex<Real>));
  std::memcpy(narrow.data(), bytes.data(), bytes.size());
  return {narrow.begin(), narrow.end()};
}

std::vector<Wide> widened(names::Element element, std::span<const std::byte> bytes) {
  return element == names::Element::c32 ? widened<float>(bytes) : widened<double>(bytes);
}

std::vector<Wide> transform(Direction direction, const std::vector<Wide>& source) {
  const std::size_t length = source.size();
  const long double turn =
      (direction == Direction::forward ? -2 : 2) * std::numbers::pi_v<long double>;
  std::vector<Wide> result(length);
  for (std::size_t k = 0; k < length; ++k) {
    for (std::size_t n = 0; n < length; ++n) {
      const auto step = static_cast<long double>(n * k % length);
      result[k] += source[n] * std::polar(1.0L, turn * step / static_cast<long double>(length));
    }
  }
  return result;
}

}  // namespace

std::size_t ComplexProblem::bytes() const {
  const std::size_t size =
      element == names::Element::c32 ? sizeof(std::complex<float>) : sizeof(std::complex<double>);
  return size * static_cast<std::size_t>(length);
}

std::optional<ComplexProblem> complex_problem_of(const registry::Export& function) {
  const std::string_view word = function.word->word;
  if (word != "DFTFwd_CToC" && word != "DFTInv_CToC") return std::nullopt;
  const Direction direction = word == "DFTFwd_CToC" ? Direction::forward : Direction::inverse;
  return ComplexProblem{direction, function.element, function.size};
}

std::vector<std::byte> random_source(const ComplexProblem& problem) {
  return problem.element == names::Element::c32 ? random_bytes<float>(problem.length)
                                                : random_bytes<double>(problem.length);
}

double relative_error(const ComplexProblem& problem, std::span<const std::byte> source,
                      std::span<const std::byte> result) {
  const std::vector<Wide> expected = transform(problem.direction, widened(problem.element, source));
  const std::vector<Wide> actual = widened(problem.element, result);
  long double difference = 0;
  long double magnitude = 0;
  for (std::size_t k = 0; k < expected.size(); ++k) {
    difference += std::norm(actual[k] - expected[k]);
    magnitude += std::norm(expected[k]);
  }
  return static_cast<double>(std::sqrt(difference / magnitude));
}

std::string check_contestant(const ComplexProblem& problem, const Contestant& contestant,
                             const Walk& walk, std::span<const std::byte> source) {
  // Poison: all ones is a NaN in both types, so an output that is not written shows.
  std::memset(walk.dst, 0xFF, problem.bytes());
  contestant.slice(walk, 1);
  if (std::memcmp(walk.src, source.data(), source.size()) != 0) return "it changed its source";
  const double error = relative_error(problem, source, {walk.dst, problem.bytes()});
  const double epsilon = problem.element == names::Element::c32
                             ? std::numeric_limits<float>::epsilon()
                             : std::numeric_limits<double>::epsilon();
  // Wide enough for a direct sum with rounded sines; wrong order or direction is off by about 1.
  const double bound = 4 * epsilon * std::max(2, problem.length);
  if (error <= bound) return {};
  std::ostringstream text;
  text << "relative error " << error << ", bound " << bound;
  return text.str();
}

}  // namespace haldgen::bench
