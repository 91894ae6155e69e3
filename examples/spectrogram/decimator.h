// Lowers a sample rate by a whole factor, so that a short transform spends its few frequencies on
// the band of interest.
#pragma once

#include <cstddef>
#include <span>
#include <vector>

namespace haldgen::demo {

/// The largest whole factor after which frequencies up to `top_hz` still fit below half the rate,
/// between 1 and 4096.
int decimation_factor(int sample_rate, double top_hz);

class Decimator {
 public:
  /// `factor` >= 1; with 1 the samples pass unchanged.
  explicit Decimator(int factor);

  /// Takes the next samples and gives those of the lower rate that they complete. The view lasts
  /// until the next call. Sample j of the output stands at sample j*factor of the input.
  std::span<const float> feed(std::span<const float> samples);

  /// The last samples of the output, once the input has ended.
  std::span<const float> finish();

 private:
  std::size_t factor_;
  std::vector<float> taps_;
  std::vector<float> pending_;
  std::vector<float> output_;
};

}  // namespace haldgen::demo
