// haldgen_dct4_accuracy: rounding errors of the DCT-IV, measured against its definition in
// double-double arithmetic, as a Markdown table.
#include <haldgen.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <limits>
#include <stdexcept>
#include <vector>

#include "kernelgen/wide.h"

namespace {

using haldgen::kernelgen::Wide;

constexpr std::int32_t kLongest = 1 << 20;
/// Outputs that are compared; of longer transforms these are drawn at random.
constexpr std::int32_t kOutputs = 256;

/// splitmix64 (G. L. Steele, D. Lea, C. H. Flood, OOPSLA 2014).
class Random {
 public:
  explicit Random(std::uint64_t seed) : state_(seed) {}
  std::uint64_t next() {
    std::uint64_t z = state_ += 0x9e3779b97f4a7c15;
    z = (z ^ (z >> 30)) * 0xbf58476d1ce4e5b9;
    z = (z ^ (z >> 27)) * 0x94d049bb133111eb;
    return z ^ (z >> 31);
  }
  /// Uniform in [-1, 1).
  double number() { return static_cast<double>(static_cast<std::int64_t>(next())) * 0x1p-63; }

 private:
  std::uint64_t state_;
};

/// The sum of x[n] cos(pi (2n+1)(2k+1) / (4N)).
class Definition {
 public:
  explicit Definition(std::int32_t length) : period_(8 * std::int64_t{length}) {
    for (std::int64_t i = 0; i <= period_ / 4; ++i) {
      cosines_.push_back(haldgen::kernelgen::cos_turn(i, period_));
    }
  }
  template <class Float>
  Wide output(const std::vector<Float>& x, std::int64_t k) const {
    Wide sum;
    std::int64_t angle = 2 * k + 1;
    for (const Float value : x) {
      sum += Wide(double{value}) * cosine(angle);
      angle = (angle + 4 * k + 2) % period_;
    }
    return sum;
  }

 private:
  Wide cosine(std::int64_t angle) const {
    if (angle > period_ / 2) angle = period_ - angle;
    const auto at = [this](std::int64_t i) { return cosines_[static_cast<std::size_t>(i)]; };
    return angle > period_ / 4 ? -at(period_ / 2 - angle) : at(angle);
  }

  std::int64_t period_;
  std::vector<Wide> cosines_;  ///< of a quarter of the circle
};

template <class Float>
struct Functions;
template <>
struct Functions<float> {
  static constexpr auto init = haldgDCT4InitAlloc_32f;
  static constexpr auto release = haldgDCT4Free_32f;
  static constexpr auto transform = haldgDCT4_32f;
};
template <>
struct Functions<double> {
  static constexpr auto init = haldgDCT4InitAlloc_64f;
  static constexpr auto release = haldgDCT4Free_64f;
  static constexpr auto transform = haldgDCT4_64f;
};

struct Errors {
  double all = 0;      ///< relative error in the L2 norm over all calls
  double worst = 0;    ///< of one call
  double largest = 0;  ///< absolute error of one output, the median over the calls
};

template <class Float>
Errors errors(std::int32_t length, const Definition& definition) {
  Dct4State* state = nullptr;
  if (Functions<Float>::init(&state, length) != haldStatusOk) {
    throw std::runtime_error("no state");
  }
  Random random(static_cast<std::uint64_t>(length));
  const int calls = length <= 1024 ? 100 : length <= 65536 ? 20 : 4;
  Errors result;
  double difference = 0;
  double exact = 0;
  std::vector<double> largest;
  std::vector<Float> x(static_cast<std::size_t>(length));
  std::vector<Float> y(x.size());
  for (int call = 0; call < calls; ++call) {
    for (Float& value : x) value = static_cast<Float>(random.number());
    Functions<Float>::transform(x.data(), y.data(), state);
    double one_difference = 0;
    double one_exact = 0;
    double one_largest = 0;
    for (std::int32_t i = 0; i < std::min(length, kOutputs); ++i) {
      const std::int64_t k =
          length <= kOutputs
              ? i
              : static_cast<std::int64_t>(random.next() % static_cast<std::uint64_t>(length));
      const Wide output = definition.output(x, k);
      const double error = to_double(Wide(double{y[static_cast<std::size_t>(k)]}) - output);
      one_difference += error * error;
      one_exact += to_double(output) * to_double(output);
      one_largest = std::max(one_largest, std::abs(error));
    }
    difference += one_difference;
    exact += one_exact;
    result.worst = std::max(result.worst, std::sqrt(one_difference / one_exact));
    largest.push_back(one_largest);
  }
  Functions<Float>::release(state);
  result.all = std::sqrt(difference / exact);
  std::nth_element(largest.begin(), largest.begin() + calls / 2, largest.end());
  result.largest = largest[static_cast<std::size_t>(calls / 2)];
  return result;
}

template <class Float>
void print(std::int32_t length, const Definition& definition) {
  const Errors e = errors<Float>(length, definition);
  constexpr double kEpsilon = std::numeric_limits<Float>::epsilon();
  std::printf(" %.2f | %.2f | %.2f | %.1e |", e.all / kEpsilon, e.worst / kEpsilon,
              e.all / kEpsilon / std::sqrt(std::log2(length)), e.largest);
}

}  // namespace

// A failure ends the program. NOLINTNEXTLINE(bugprone-exception-escape)
int main() {
  std::puts(
      "| N | 32f: L2 | worst call | L2/√ | largest | 64f: L2 | worst call | L2/√ | largest |\n"
      "|--:|--:|--:|--:|--:|--:|--:|--:|--:|");
  for (std::int32_t length = 2; length <= kLongest; length *= 2) {
    const Definition definition(length);
    std::printf("| %d |", length);
    print<float>(length, definition);
    print<double>(length, definition);
    std::puts("");
  }
}
