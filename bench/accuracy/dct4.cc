// haldgen_dct4_accuracy: rounding errors of the DCT-IV, measured against its definition in
// double-double arithmetic, as a Markdown table.
#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <haldgen.hpp>
#include <limits>
#include <random>
#include <vector>

#include "kernelgen/wide.h"

namespace {

using haldgen::kernelgen::Wide;

constexpr std::size_t kLongest = 1 << 20;
/// Outputs that are compared; of longer transforms these are drawn at random.
constexpr std::size_t kOutputs = 256;

/// The sum of x[n] cos(pi (2n+1)(2k+1) / (4N)), of the cosines of odd steps on half a circle of 8N.
template <class Float>
Wide output(const std::vector<Float>& x, std::size_t k, const std::vector<Wide>& cosines) {
  const std::size_t circle = 8 * x.size();
  Wide sum;
  for (std::size_t n = 0; n < x.size(); ++n) {
    const std::size_t angle = (2 * n + 1) * (2 * k + 1) % circle;
    sum += Wide(double{x[n]}) * cosines[std::min(angle, circle - angle) / 2];
  }
  return sum;
}

/// Prints errors in units of epsilon: the relative one in the L2 norm over all calls, that of the
/// worst call, the former by the root of log2 N; and the largest absolute error of one output, the
/// median over the calls.
template <class Float>
void print(std::size_t length, const std::vector<Wide>& cosines) {
  constexpr double kEpsilon = std::numeric_limits<Float>::epsilon();
  haldgen::dct4<Float> transform(length);
  std::mt19937_64 random(length);
  const std::size_t calls = length <= 1024 ? 100 : length <= 65536 ? 20 : 4;
  double difference = 0;
  double exact = 0;
  double worst = 0;
  std::vector<double> largest(calls);
  std::vector<Float> x(length);
  std::vector<Float> y(length);
  for (double& one_largest : largest) {
    for (Float& value : x) {
      value =
          static_cast<Float>(static_cast<double>(static_cast<std::int64_t>(random())) * 0x1p-63);
    }
    transform(x, y);
    double one_difference = 0;
    double one_exact = 0;
    for (std::size_t i = 0; i < std::min(length, kOutputs); ++i) {
      const std::size_t k = length <= kOutputs ? i : static_cast<std::size_t>(random() % length);
      const Wide wanted = output(x, k, cosines);
      const double error = to_double(Wide(double{y[k]}) - wanted);
      one_difference += error * error;
      one_exact += to_double(wanted) * to_double(wanted);
      one_largest = std::max(one_largest, std::abs(error));
    }
    difference += one_difference;
    exact += one_exact;
    worst = std::max(worst, std::sqrt(one_difference / one_exact));
  }
  std::nth_element(largest.begin(), largest.begin() + calls / 2, largest.end());
  const double all = std::sqrt(difference / exact);
  std::printf(" %.2f | %.2f | %.2f | %.1e |", all / kEpsilon, worst / kEpsilon,
              all / kEpsilon / std::sqrt(std::log2(length)), largest[calls / 2]);
}

}  // namespace

// A failure ends the program. NOLINTNEXTLINE(bugprone-exception-escape)
int main() {
  std::puts(
      "| N | 32f: L2 | worst call | L2/√ | largest | 64f: L2 | worst call | L2/√ | largest |\n"
      "|--:|--:|--:|--:|--:|--:|--:|--:|--:|");
  for (std::size_t length = 2; length <= kLongest; length *= 2) {
    std::vector<Wide> cosines;
    const auto circle = static_cast<std::int64_t>(8 * length);
    for (std::int64_t i = 1; i < circle / 2; i += 2) {
      cosines.push_back(haldgen::kernelgen::cos_turn(i, circle));
    }
    std::printf("| %zu |", length);
    print<float>(length, cosines);
    print<double>(length, cosines);
    std::puts("");
  }
}
