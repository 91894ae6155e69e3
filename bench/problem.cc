// A transform to be measured.
#include "bench/problem.h"

#include <algorithm>
#include <cmath>
#include <complex>
#include <cstring>
#include <limits>
#include <numbers>
#include <random>
#include <sstream>
#include <string_view>

namespace haldgen::bench {
namespace {

using Wide = std::complex<long double>;
using Reals = std::vector<long double>;

/// In the order of the enumeration.
constexpr std::string_view words[] = {
    "DFTFwd_CToC", "DFTInv_CToC", "DFTFwd_RToCCS", "DFTInv_CCSToR", "Hartley", "WHT", "DCT4"};

/// Outputs of a long DCT-IV that are compared, spread over all.
constexpr std::size_t checked_outputs = 1024;

std::size_t spectrum_floats(int length) { return 2 * (static_cast<std::size_t>(length) / 2) + 2; }

/// Imaginary parts that are zero: not every library writes them, and none need ignore them.
bool is_zero(std::size_t position, std::size_t length) {
  return position == 1 || (length % 2 == 0 && position == length + 1);
}

template <class Float>
std::vector<std::byte> random_bytes(std::size_t count) {
  std::mt19937_64 engine(count);
  std::uniform_real_distribution<Float> distribution(-1, 1);
  std::vector<Float> values(count);
  for (Float& value : values) value = distribution(engine);
  const auto bytes = std::as_bytes(std::span(values));
  return {bytes.begin(), bytes.end()};
}

template <class Float>
Reals widened(std::span<const std::byte> bytes) {
  std::vector<Float> narrow(bytes.size() / sizeof(Float));
  std::memcpy(narrow.data(), bytes.data(), bytes.size());
  return {narrow.begin(), narrow.end()};
}

Reals widened(const Problem& problem, std::span<const std::byte> bytes) {
  return problem.is_float() ? widened<float>(bytes) : widened<double>(bytes);
}

/// exp(-2 pi i k / n), k = 0..n-1.
std::vector<Wide> roots_of_unity(std::size_t n) {
  std::vector<Wide> roots;
  const long double step = -2 * std::numbers::pi_v<long double> / static_cast<long double>(n);
  for (std::size_t k = 0; k < n; ++k) {
    roots.push_back(std::polar(1.0L, step * static_cast<long double>(k)));
  }
  return roots;
}

std::vector<Wide> dft(const std::vector<Wide>& x) {
  const std::size_t n = x.size();
  const std::vector<Wide> roots = roots_of_unity(n);
  std::vector<Wide> y(n);
  for (std::size_t k = 0; k < n; ++k) {
    for (std::size_t j = 0; j < n; ++j) y[k] += x[j] * roots[j * k % n];
  }
  return y;
}

/// Elements of a complex array, of samples, or of a half spectrum with its other half.
std::vector<Wide> elements(const Problem& problem, const Reals& floats) {
  if (problem.transform == Transform::real || problem.transform == Transform::hartley) {
    return {floats.begin(), floats.end()};
  }
  const auto n = static_cast<std::size_t>(problem.length);
  std::vector<Wide> x(n);
  for (std::size_t k = 0; 2 * k < floats.size(); ++k) x[k] = {floats[2 * k], floats[2 * k + 1]};
  if (problem.transform == Transform::inverse_real) {
    for (std::size_t k = 1; 2 * k < n; ++k) x[n - k] = std::conj(x[k]);
  }
  return x;
}

Reals fourier(const Problem& problem, const Reals& source) {
  std::vector<Wide> y = dft(elements(problem, source));
  if (problem.is_inverse()) std::reverse(y.begin() + 1, y.end());
  Reals result;
  for (std::size_t k = 0; result.size() < problem.result_floats(); ++k) {
    switch (problem.transform) {
      case Transform::hartley:
        result.push_back(y[k].real() - y[k].imag());
        break;
      case Transform::inverse_real:
        result.push_back(y[k].real());
        break;
      default:
        result.insert(result.end(), {y[k].real(), y[k].imag()});
    }
  }
  return result;
}

// The halves of the Hadamard matrix, from the highest bit down.
void walsh_hadamard(std::span<long double> values) {
  if (values.size() == 1) return;
  const auto low = values.first(values.size() / 2);
  const auto high = values.last(values.size() / 2);
  for (std::size_t i = 0; i < low.size(); ++i) {
    const long double difference = low[i] - high[i];
    low[i] += high[i];
    high[i] = difference;
  }
  walsh_hadamard(low);
  walsh_hadamard(high);
}

Reals dct4(const Reals& x) {
  const std::size_t n = x.size();
  const std::vector<Wide> roots = roots_of_unity(8 * n);
  Reals y(n, std::numeric_limits<long double>::quiet_NaN());
  const std::size_t stride = std::max<std::size_t>(1, n / checked_outputs);
  // One more than a power of two reaches every residue.
  for (std::size_t k = 0; k < n; k += stride == 1 ? 1 : stride + 1) {
    y[k] = 0;
    for (std::size_t i = 0; i < n; ++i) {
      // No length is 0. NOLINTNEXTLINE(clang-analyzer-core.DivideZero)
      y[k] += x[i] * roots[(2 * i + 1) * (2 * k + 1) % (8 * n)].real();
    }
  }
  return y;
}

Reals definition(const Problem& problem, Reals source) {
  if (problem.transform == Transform::dct4) return dct4(source);
  if (problem.transform != Transform::wht) return fourier(problem, source);
  walsh_hadamard(source);
  return source;
}

long double error_bound(const Problem& problem) {
  const long double epsilon = problem.is_float() ? std::numeric_limits<float>::epsilon()
                                                 : std::numeric_limits<double>::epsilon();
  const long double order = std::log2(static_cast<long double>(problem.length));
  // Each level rounds once, by half an epsilon at most.
  if (problem.transform == Transform::wht) return epsilon / 2 * order;
  if (problem.transform == Transform::dct4) return 8 * epsilon * (order + 1);
  // Wide enough for a direct sum with rounded sines; wrong order or direction is off by about 1.
  return 4 * epsilon * std::max(2, problem.length);
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

std::size_t Problem::source_floats() const {
  if (transform == Transform::inverse_real) return spectrum_floats(length);
  const bool is_complex = transform == Transform::dft || transform == Transform::inverse_dft;
  return static_cast<std::size_t>(length) * (is_complex ? 2 : 1);
}

std::size_t Problem::result_floats() const {
  if (transform == Transform::real) return spectrum_floats(length);
  return transform == Transform::inverse_real ? static_cast<std::size_t>(length) : source_floats();
}

std::optional<Problem> problem_of(const registry::Export& function) {
  const auto* const word = std::find(std::begin(words), std::end(words), function.word->word);
  if (function.size == 0 || word == std::end(words)) return std::nullopt;
  const int length = names::has_order(*function.word) ? 1 << function.size : function.size;
  return Problem{static_cast<Transform>(word - std::begin(words)), function.element, length};
}

std::vector<std::byte> random_source(const Problem& problem, std::size_t count) {
  const std::size_t floats = count * problem.source_floats();
  std::vector<std::byte> bytes =
      problem.is_float() ? random_bytes<float>(floats) : random_bytes<double>(floats);
  if (problem.transform == Transform::inverse_real) {
    for (std::size_t i = 0; i < floats; ++i) {
      if (!is_zero(i % problem.source_floats(), static_cast<std::size_t>(problem.length))) continue;
      std::memset(bytes.data() + i * problem.float_bytes(), 0, problem.float_bytes());
    }
  }
  return bytes;
}

Check::Check(const Problem& problem, std::span<const std::byte> source)
    : problem_(problem),
      source_(source.begin(), source.end()),
      expected_(definition(problem, widened(problem, source))),
      bound_(error_bound(problem)) {}

std::string Check::fault(const Contestant& contestant, const Walk& walk) const {
  // Poison: all ones is a NaN in both types, so an output that is not written shows.
  std::memset(walk.dst, 0xFF, problem_.result_bytes());
  contestant.slice(walk, 1);
  if (std::memcmp(walk.src, source_.data(), source_.size()) != 0) return "it changed its source";
  const Reals actual = widened(problem_, {walk.dst, problem_.result_bytes()});
  const bool ours = contestant.role == Role::subject || contestant.role == Role::variant;
  // FFTW's DCT-IV has a factor of 2.
  const long double factor = !ours && problem_.transform == Transform::dct4 ? 2 : 1;
  long double difference = 0;
  long double magnitude = 0;
  for (std::size_t i = 0; i < actual.size(); ++i) {
    if (std::isnan(actual[i])) {
      const bool may_be_left = problem_.transform == Transform::real &&
                               is_zero(i, static_cast<std::size_t>(problem_.length));
      if (may_be_left) continue;
      return "it left outputs unwritten";
    }
    if (std::isnan(expected_[i])) continue;
    const long double wanted = factor * expected_[i];
    difference += (actual[i] - wanted) * (actual[i] - wanted);
    magnitude += wanted * wanted;
  }
  const long double error = std::sqrt(difference / magnitude);
  if (error <= bound_) return {};
  std::ostringstream text;
  text << "relative error " << error << ", bound " << bound_;
  return text.str();
}

}  // namespace haldgen::bench
