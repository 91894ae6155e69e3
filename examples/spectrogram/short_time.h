// The short-time power spectrum of real samples, gathered to the columns of a picture.
#pragma once

#include <algorithm>
#include <chrono>
#include <cmath>
#include <complex>
#include <cstddef>
#include <haldgen.hpp>
#include <numbers>
#include <stdexcept>
#include <string>
#include <vector>

namespace haldgen::demo {

/// Cuts samples into overlapping frames, weights each with a Hann window and transforms it.
/// Frame j is centred on sample j*hop, with silence taken before the first sample and after the
/// last, so that any samples above none give at least one frame.
class ShortTimeSpectrum {
 public:
  /// Columns hold the mean of equally many frames, up to `most_columns` of them. Throws if the
  /// library has no transform of this length, or not 1 <= `hop` <= `length`.
  ShortTimeSpectrum(const std::vector<float>& samples, int length, int hop, int most_columns)
      : length_(static_cast<std::size_t>(length)) {
    const auto transform = kernel<float>::real_dft(length_).value();
    if (hop < 1 || hop > length) {
      throw std::invalid_argument("--hop must lie between 1 and the length, " +
                                  std::to_string(length));
    }
    std::vector<float> window(length_);
    for (std::size_t n = 0; n < length_; ++n) {
      const double turn = static_cast<double>(n) / length;
      window[n] = static_cast<float>(0.5 - 0.5 * std::cos(2 * std::numbers::pi * turn));
    }
    const auto step = static_cast<std::size_t>(hop);
    frames_ = (samples.size() + step - 1) / step;
    frames_in_.resize(std::min(frames_, static_cast<std::size_t>(most_columns)));
    sums_.resize(columns() * bins());
    std::vector<float> cut(kMostFrames * length_);
    std::vector<std::complex<float>> spectra(kMostFrames * bins());
    for (std::size_t first = 0; first < frames_; first += kMostFrames) {
      const std::size_t count = std::min(kMostFrames, frames_ - first);
      for (std::size_t i = 0; i < count * length_; ++i) {
        const std::size_t n = i % length_;
        // Before the first sample this wraps round to what is behind the last.
        const std::size_t at = (first + i / length_) * step + n - length_ / 2;
        cut[i] = at < samples.size() ? window[n] * samples[at] : 0;
      }
      const auto before = std::chrono::steady_clock::now();
      for (std::size_t i = 0; i < count; ++i) {
        transform(&cut[i * length_], &spectra[i * bins()], scale::forward_by_n);
      }
      transform_time_ += std::chrono::steady_clock::now() - before;
      for (std::size_t i = 0; i < count; ++i) {
        const std::size_t column = (first + i) * columns() / frames_;
        ++frames_in_[column];
        for (std::size_t k = 0; k < bins(); ++k) {
          sums_[column * bins() + k] += std::norm(std::complex<double>(spectra[i * bins() + k]));
        }
      }
    }
  }

  std::size_t bins() const { return length_ / 2 + 1; }
  std::size_t frames() const { return frames_; }
  std::size_t columns() const { return frames_in_.size(); }
  /// Time spent inside the library alone.
  std::chrono::duration<double> transform_time() const { return transform_time_; }

  /// The mean power of a column; a sine of full scale in the middle of a bin has power 1.
  double power(std::size_t column, std::size_t bin) const {
    // The mean of the window is 1/2, and a sine spreads over a bin and its mirror image; the two
    // ends of the band have no mirror image.
    const bool own_mirror = bin == 0 || 2 * bin == length_;
    return sums_[column * bins() + bin] * (own_mirror ? 4 : 16) /
           static_cast<double>(frames_in_[column]);
  }

 private:
  // Reading the clock costs about as much as a short transform, so it is read once for many.
  static constexpr std::size_t kMostFrames = 64;

  std::size_t length_, frames_;
  std::vector<double> sums_;
  std::vector<std::size_t> frames_in_;
  std::chrono::duration<double> transform_time_{};
};

}  // namespace haldgen::demo
