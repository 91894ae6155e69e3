// A windowed-sinc low-pass filter that computes only the samples which are kept.
#include "spectrogram/decimator.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <numeric>

namespace haldgen::demo {
namespace {

// Sixteen samples of the lower rate on either side put the stop band of a Blackman window about
// 74 dB down, and the transition into the topmost tenth of the band.
constexpr int kHalfWidth = 16;
constexpr double kCutoff = 0.45;  // of the lower rate

// The filter grows with the factor, and the rate that a file states may be absurd.
constexpr double kLargestFactor = 4096;

std::vector<float> low_pass(int factor) {
  using std::numbers::pi;
  const int half = factor == 1 ? 0 : kHalfWidth * factor;
  std::vector<double> taps;
  for (int n = -half; n <= half; ++n) {
    const double x = 2 * pi * kCutoff * n / factor;
    const double sinc = n == 0 ? 1.0 : std::sin(x) / x;
    const double phase = pi * n / (half + 1);
    taps.push_back(sinc * (0.42 + 0.5 * std::cos(phase) + 0.08 * std::cos(2 * phase)));
  }
  const double gain = std::accumulate(taps.begin(), taps.end(), 0.0);
  std::vector<float> rounded;
  for (const double tap : taps) rounded.push_back(static_cast<float>(tap / gain));
  return rounded;
}

}  // namespace

int decimation_factor(int sample_rate, double top_hz) {
  return static_cast<int>(std::clamp(std::floor(sample_rate / 2.0 / top_hz), 1.0, kLargestFactor));
}

Decimator::Decimator(int factor)
    : factor_(static_cast<std::size_t>(factor)),
      taps_(low_pass(factor)),
      pending_(taps_.size() / 2, 0.0F) {}

std::span<const float> Decimator::feed(std::span<const float> samples) {
  pending_.insert(pending_.end(), samples.begin(), samples.end());
  output_.clear();
  std::size_t start = 0;
  for (; start + taps_.size() <= pending_.size(); start += factor_) {
    const auto from = pending_.begin() + static_cast<std::ptrdiff_t>(start);
    output_.push_back(std::inner_product(taps_.begin(), taps_.end(), from, 0.0F));
  }
  // A step never passes the end: the filter is longer than the factor.
  pending_.erase(pending_.begin(), pending_.begin() + static_cast<std::ptrdiff_t>(start));
  return output_;
}

std::span<const float> Decimator::finish() {
  const std::vector<float> silence(taps_.size() / 2, 0.0F);
  return feed(silence);
}

}  // namespace haldgen::demo
