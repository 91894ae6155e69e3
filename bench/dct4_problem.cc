// One DCT-IV to be measured.
#include "bench/dct4_problem.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <numbers>
#include <random>
#include <sstream>

#include "bench/calibration.h"
#include "bench/peers/fftw_real.h"

namespace haldgen::bench {
namespace {

/// Outputs that are compared with the definition; of longer transforms these are spread over all.
constexpr int checked_outputs = 1024;

template <class Float>
std::vector<std::byte> random_bytes(int length) {
  std::mt19937_64 engine(static_cast<std::uint64_t>(length));
  std::uniform_real_distribution<Float> distribution(-1, 1);
  std::vector<Float> values(static_cast<std::size_t>(length));
  for (Float& value : values) value = distribution(engine);
  const auto bytes = std::as_bytes(std::span(values));
  return {bytes.begin(), bytes.end()};
}

template <class Float>
std::vector<Float> floats(std::span<const std::byte> bytes) {
  std::vector<Float> values(bytes.size() / sizeof(Float));
  std::memcpy(values.data(), bytes.data(), bytes.size());
  return values;
}

/// cos(pi i / (4N)), i = 0..8N-1.
std::vector<long double> cosines(std::size_t length) {
  std::vector<long double> values;
  const long double step = std::numbers::pi_v<long double> / (4 * static_cast<long double>(length));
  for (std::size_t i = 0; i < 8 * length; ++i) {
    values.push_back(std::cos(step * static_cast<long double>(i)));
  }
  return values;
}

template <class Float>
std::string fault_of(int length, const Contestant& contestant, const Walk& walk,
                     std::span<const std::byte> source) {
  // Poison: all ones is a NaN, so an output that is not written shows.
  std::memset(walk.dst, 0xFF, source.size());
  contestant.slice(walk, 1);
  if (std::memcmp(walk.src, source.data(), source.size()) != 0) return "it changed its source";
  const std::vector<Float> x = floats<Float>(source);
  const std::vector<Float> y = floats<Float>({walk.dst, source.size()});
  if (std::any_of(y.begin(), y.end(), [](Float value) { return std::isnan(value); })) {
    return "it left outputs unwritten";
  }
  // FFTW's transform has a factor of 2.
  const bool ours = contestant.role == Role::subject || contestant.role == Role::variant;
  const long double factor = ours ? 1 : 2;
  const std::size_t n = x.size();
  const std::vector<long double> cosine = cosines(n);
  long double difference = 0;
  long double magnitude = 0;
  const std::size_t stride = std::max<std::size_t>(1, n / checked_outputs);
  // One more than a power of two reaches every residue.
  for (std::size_t k = 0; k < n; k += stride == 1 ? 1 : stride + 1) {
    long double sum = 0;
    // No length is 0. NOLINTNEXTLINE(clang-analyzer-core.DivideZero)
    for (std::size_t i = 0; i < n; ++i) sum += x[i] * cosine[(2 * i + 1) * (2 * k + 1) % (8 * n)];
    const long double error = y[k] - factor * sum;
    difference += error * error;
    magnitude += factor * factor * sum * sum;
  }
  const long double error = std::sqrt(difference / magnitude);
  const long double bound =
      8 * std::numeric_limits<Float>::epsilon() * std::log2(2 * static_cast<long double>(length));
  if (error <= bound) return {};
  std::ostringstream text;
  text << "relative error " << error << ", bound " << bound;
  return text.str();
}

}  // namespace

std::vector<std::byte> Dct4Problem::source() const {
  return element_ == names::Element::f32 ? random_bytes<float>(length_)
                                         : random_bytes<double>(length_);
}

std::size_t Dct4Problem::result_bytes() const {
  return static_cast<std::size_t>(length_) *
         (element_ == names::Element::f32 ? sizeof(float) : sizeof(double));
}

std::string Dct4Problem::fault(const Contestant& contestant, const Walk& walk,
                               std::span<const std::byte> source) const {
  return element_ == names::Element::f32 ? fault_of<float>(length_, contestant, walk, source)
                                         : fault_of<double>(length_, contestant, walk, source);
}

std::vector<Contestant> Dct4Problem::rivals() const {
  return fftw_real_contestants(FftwReal::dct4, element_, length_);
}

std::optional<OperationCounts::Counts> Dct4Problem::work(const OperationCounts& counts) const {
  auto work = counts.of("dct4", std::string(names::suffix(element_)), length_);
  // The kernels of the five smallest lengths are scalar.
  if (work && length_ > 32) work->additions /= lanes(element_);
  return work;
}

}  // namespace haldgen::bench
