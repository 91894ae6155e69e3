// One transform of real samples to be measured.
#include "bench/real_problem.h"

#include <algorithm>
#include <cmath>
#include <complex>
#include <cstring>
#include <limits>
#include <numbers>
#include <random>
#include <sstream>

#include "bench/calibration.h"
#include "bench/peers/real_peers.h"

namespace haldgen::bench {
namespace {

using Wide = std::complex<long double>;
using Reals = std::vector<long double>;

std::size_t spectrum_floats(int length) { return 2 * (static_cast<std::size_t>(length) / 2) + 2; }

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

Reals widened(names::Element element, std::span<const std::byte> bytes) {
  return element == names::Element::f32 ? widened<float>(bytes) : widened<double>(bytes);
}

Wide root(std::size_t power, std::size_t n) {
  return std::polar(1.0L, -2 * std::numbers::pi_v<long double> *
                              static_cast<long double>(power % n) / static_cast<long double>(n));
}

Reals half_spectrum(const Reals& x) {
  const std::size_t n = x.size();
  Reals ccs;
  for (std::size_t k = 0; k <= n / 2; ++k) {
    Wide sum;
    for (std::size_t j = 0; j < n; ++j) sum += x[j] * root(j * k, n);
    const bool real = k == 0 || 2 * k == n;
    ccs.insert(ccs.end(), {sum.real(), real ? 0 : sum.imag()});
  }
  return ccs;
}

Reals samples(const Reals& ccs, std::size_t n) {
  Reals x;
  for (std::size_t j = 0; j < n; ++j) {
    long double sum = 0;
    for (std::size_t k = 0; k <= n / 2; ++k) {
      const bool once = k == 0 || 2 * k == n;
      const Wide bin(ccs[2 * k], once ? 0 : ccs[2 * k + 1]);
      sum += (once ? 1 : 2) * (bin * std::conj(root(j * k, n))).real();
    }
    x.push_back(sum);
  }
  return x;
}

Reals hartley(const Reals& x) {
  Reals y;
  for (std::size_t k = 0; k < x.size(); ++k) {
    long double sum = 0;
    for (std::size_t j = 0; j < x.size(); ++j) {
      const Wide w = root(j * k, x.size());
      sum += x[j] * (w.real() - w.imag());
    }
    y.push_back(sum);
  }
  return y;
}

Reals expected(const RealTransform& transform, const Reals& source) {
  switch (transform.kind) {
    case RealKind::forward:
      return half_spectrum(source);
    case RealKind::inverse:
      return samples(source, static_cast<std::size_t>(transform.length));
    case RealKind::hartley:
      return hartley(source);
  }
  return {};
}

bool is_always_zero(const RealTransform& transform, std::size_t i) {
  const auto n = static_cast<std::size_t>(transform.length);
  return transform.kind == RealKind::forward && (i == 1 || i == n + 1) && (n % 2 == 0 || i == 1);
}

}  // namespace

std::size_t RealTransform::source_floats() const {
  return kind == RealKind::inverse ? spectrum_floats(length) : static_cast<std::size_t>(length);
}

std::size_t RealTransform::result_floats() const {
  return kind == RealKind::forward ? spectrum_floats(length) : static_cast<std::size_t>(length);
}

std::size_t RealTransform::float_bytes() const {
  return element == names::Element::f32 ? sizeof(float) : sizeof(double);
}

std::optional<RealTransform> real_transform_of(const registry::Export& function) {
  const std::string_view word = function.word->word;
  if (word == "DFTFwd_RToCCS") {
    return RealTransform{RealKind::forward, function.element, function.size};
  }
  if (word == "DFTInv_CCSToR") {
    return RealTransform{RealKind::inverse, function.element, function.size};
  }
  if (word == "Hartley") return RealTransform{RealKind::hartley, function.element, function.size};
  return std::nullopt;
}

std::vector<std::byte> RealProblem::source() const {
  const std::size_t count = transform_.source_floats();
  std::vector<std::byte> bytes = transform_.element == names::Element::f32
                                     ? random_bytes<float>(count)
                                     : random_bytes<double>(count);
  if (transform_.kind == RealKind::inverse) {
    // The parts that are zero in a spectrum: the other libraries need not ignore them.
    const std::size_t size = transform_.float_bytes();
    std::memset(bytes.data() + size, 0, size);
    if (transform_.length % 2 == 0) std::memset(bytes.data() + (count - 1) * size, 0, size);
  }
  return bytes;
}

std::size_t RealProblem::result_bytes() const {
  return transform_.result_floats() * transform_.float_bytes();
}

std::string RealProblem::fault(const Contestant& contestant, const Walk& walk,
                               std::span<const std::byte> source) const {
  // Poison: all ones is a NaN in both types, so an output that is not written shows.
  std::memset(walk.dst, 0xFF, result_bytes());
  contestant.slice(walk, 1);
  if (std::memcmp(walk.src, source.data(), source.size()) != 0) return "it changed its source";
  const Reals wanted = expected(transform_, widened(transform_.element, source));
  const Reals actual = widened(transform_.element, {walk.dst, result_bytes()});
  long double difference = 0;
  long double magnitude = 0;
  for (std::size_t i = 0; i < wanted.size(); ++i) {
    // Not every library writes the imaginary parts that are always zero.
    if (std::isnan(actual[i]) && is_always_zero(transform_, i)) continue;
    difference += (actual[i] - wanted[i]) * (actual[i] - wanted[i]);
    magnitude += wanted[i] * wanted[i];
  }
  const long double error = std::sqrt(difference / magnitude);
  const double epsilon = transform_.element == names::Element::f32
                             ? std::numeric_limits<float>::epsilon()
                             : std::numeric_limits<double>::epsilon();
  // Wide enough for a direct sum with rounded sines; wrong order or direction is off by about 1.
  const double bound = 4 * epsilon * std::max(2, transform_.length);
  if (error <= bound) return {};
  std::ostringstream text;
  text << "relative error " << error << ", bound " << bound;
  return text.str();
}

std::vector<Contestant> RealProblem::rivals() const { return real_peers(transform_); }

std::vector<Contestant> RealProblem::yardsticks() const { return {convert_contestant()}; }

std::optional<OperationCounts::Counts> RealProblem::work(const OperationCounts& counts) const {
  // Scalar kernels: one instruction for each operation.
  const char* family = "hartley";
  if (transform_.kind == RealKind::forward) family = "real-forward";
  if (transform_.kind == RealKind::inverse) family = "real-inverse";
  return counts.of(family, std::string(names::suffix(transform_.element)), transform_.length);
}

}  // namespace haldgen::bench
