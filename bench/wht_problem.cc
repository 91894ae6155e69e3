// One Walsh-Hadamard transform to be measured.
#include "bench/wht_problem.h"

#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <random>
#include <sstream>

#include "bench/calibration.h"
#include "bench/peers/plain_wht.h"

namespace haldgen::bench {
namespace {

template <class Float>
std::vector<std::byte> random_bytes(int order) {
  std::mt19937_64 engine(static_cast<std::uint64_t>(order));
  std::uniform_real_distribution<Float> distribution(-1, 1);
  std::vector<Float> values(std::size_t{1} << order);
  for (Float& value : values) value = distribution(engine);
  const auto bytes = std::as_bytes(std::span(values));
  return {bytes.begin(), bytes.end()};
}

template <class Float>
std::vector<long double> widened(std::span<const std::byte> bytes) {
  std::vector<Float> narrow(bytes.size() / sizeof(Float));
  std::memcpy(narrow.data(), bytes.data(), bytes.size());
  return {narrow.begin(), narrow.end()};
}

// The halves of the Hadamard matrix, from the highest bit down.
void transform(std::span<long double> values) {
  if (values.size() == 1) return;
  const auto low = values.first(values.size() / 2);
  const auto high = values.last(values.size() / 2);
  for (std::size_t i = 0; i < low.size(); ++i) {
    const long double difference = low[i] - high[i];
    low[i] += high[i];
    high[i] = difference;
  }
  transform(low);
  transform(high);
}

template <class Float>
std::string fault_of(int order, const Contestant& contestant, const Walk& walk,
                     std::span<const std::byte> source) {
  // Poison: all ones is a NaN, so an output that is not written shows.
  std::memset(walk.dst, 0xFF, source.size());
  contestant.slice(walk, 1);
  if (std::memcmp(walk.src, source.data(), source.size()) != 0) return "it changed its source";
  std::vector<long double> expected = widened<Float>(source);
  transform(expected);
  const std::vector<long double> actual = widened<Float>({walk.dst, source.size()});
  long double difference = 0;
  long double magnitude = 0;
  for (std::size_t k = 0; k < expected.size(); ++k) {
    difference += (actual[k] - expected[k]) * (actual[k] - expected[k]);
    magnitude += expected[k] * expected[k];
  }
  const long double error = std::sqrt(difference / magnitude);
  // Each level rounds once, by half an epsilon at most.
  const long double bound = 0.5L * std::numeric_limits<Float>::epsilon() * order;
  if (error <= bound) return {};
  std::ostringstream text;
  text << "relative error " << error << ", bound " << bound;
  return text.str();
}

template <class Float>
Contestant plain(const char* name, PlainWht<Float> function, int order) {
  return {name, Role::baseline, [function, order](const Walk& walk, std::int64_t calls) {
            walk_calls(walk, calls, [function, order](const std::byte* src, std::byte* dst) {
              function(reinterpret_cast<const Float*>(src), reinterpret_cast<Float*>(dst), order,
                       Float{1});
            });
          }};
}

template <class Float>
std::vector<Contestant> plain_loops(int order) {
  return {plain("plain", plain_wht<Float>(), order),
          plain("plain_fixed", fixed_plain_wht<Float>(order), order)};
}

}  // namespace

std::vector<std::byte> WhtProblem::source() const {
  return element_ == names::Element::f32 ? random_bytes<float>(order_)
                                         : random_bytes<double>(order_);
}

std::size_t WhtProblem::result_bytes() const {
  return (element_ == names::Element::f32 ? sizeof(float) : sizeof(double)) << order_;
}

std::string WhtProblem::fault(const Contestant& contestant, const Walk& walk,
                              std::span<const std::byte> source) const {
  return element_ == names::Element::f32 ? fault_of<float>(order_, contestant, walk, source)
                                         : fault_of<double>(order_, contestant, walk, source);
}

std::vector<Contestant> WhtProblem::rivals() const {
  return element_ == names::Element::f32 ? plain_loops<float>(order_) : plain_loops<double>(order_);
}

std::vector<Contestant> WhtProblem::yardsticks() const { return {copy_contestant(result_bytes())}; }

std::optional<OperationCounts::Counts> WhtProblem::work(const OperationCounts& /*counts*/) const {
  return OperationCounts::Counts{std::ldexp(order_, order_) / lanes(element_), 0};
}

}  // namespace haldgen::bench
