// The short-time power spectrum of a stream of real samples, gathered to the columns of a picture.
#pragma once

#include <algorithm>
#include <chrono>
#include <cmath>
#include <complex>
#include <cstddef>
#include <functional>
#include <haldgen.hpp>
#include <numbers>
#include <span>
#include <stdexcept>
#include <string>
#include <vector>

namespace haldgen::demo {

/// Cuts the stream into overlapping frames, weights each with a Hann window and transforms it.
/// Frame j is centred on sample j*hop, with silence taken before the first sample and after the
/// last, so that a stream of any length above zero gives at least one frame.
class ShortTimeSpectrum {
 public:
  /// Columns hold the mean of equally many frames, up to `most_columns` of them. The stream is
  /// expected to have `stated_samples`; what comes after them falls into the last column. Throws
  /// if the library has no transform of this length, or not 1 <= `hop` <= `length`.
  ShortTimeSpectrum(int length, int hop, double stated_samples, int most_columns)
      : transform_(kernel<float>::real_dft(static_cast<std::size_t>(length)).value()),
        window_(static_cast<std::size_t>(length)),
        hop_(static_cast<std::size_t>(hop)),
        frames_in_column_(std::max(1.0, std::ceil(stated_samples / hop) / most_columns)),
        last_column_(static_cast<std::size_t>(most_columns) - 1),
        pending_(window_.size() / 2) {
    if (hop < 1 || hop > length) {
      throw std::invalid_argument("--hop must lie between 1 and the length, " +
                                  std::to_string(length));
    }
    for (std::size_t n = 0; n < window_.size(); ++n) {
      const double turn = static_cast<double>(n) / length;
      window_[n] = static_cast<float>(0.5 - 0.5 * std::cos(2 * std::numbers::pi * turn));
    }
  }

  void feed(std::span<const float> samples) {
    samples_ += samples.size();
    pending_.insert(pending_.end(), samples.begin(), samples.end());
    if (pending_.size() >= window_.size()) {
      take_frames((pending_.size() - window_.size()) / hop_ + 1);
    }
  }

  /// Takes the last frames. Nothing may be fed afterwards.
  void finish() {
    pending_.resize(pending_.size() + 2 * window_.size());
    take_frames((samples_ + hop_ - 1) / hop_ - frames_);
  }

  std::size_t bins() const { return window_.size() / 2 + 1; }
  std::size_t frames() const { return frames_; }
  /// As many as have frames.
  std::size_t columns() const { return frames_in_.size(); }
  /// Time spent inside the library alone.
  std::chrono::duration<double> transform_time() const { return transform_time_; }

  /// The mean power of a column; a sine of full scale in the middle of a bin has power 1.
  double power(std::size_t column, std::size_t bin) const {
    // The mean of the window is 1/2, and a sine spreads over a bin and its mirror image; the two
    // ends of the band have no mirror image.
    const bool own_mirror = bin == 0 || 2 * bin == window_.size();
    return sums_[column * bins() + bin] * (own_mirror ? 4 : 16) /
           static_cast<double>(frames_in_[column]);
  }

 private:
  void take_frames(std::size_t count) {
    std::vector<float> cut(count * window_.size());
    std::vector<std::complex<float>> spectra(count * bins());
    for (std::size_t frame = 0; frame < count; ++frame) {
      std::transform(window_.begin(), window_.end(), &pending_[frame * hop_],
                     &cut[frame * window_.size()], std::multiplies<>());
    }
    // Reading the clock costs about as much as a short transform, so it is read once for many.
    const auto before = std::chrono::steady_clock::now();
    for (std::size_t frame = 0; frame < count; ++frame) {
      transform_(&cut[frame * window_.size()], &spectra[frame * bins()], scale::forward_by_n);
    }
    transform_time_ += std::chrono::steady_clock::now() - before;
    for (std::size_t frame = 0; frame < count; ++frame) add(&spectra[frame * bins()]);
    pending_.erase(pending_.begin(), pending_.begin() + static_cast<std::ptrdiff_t>(count * hop_));
  }

  void add(const std::complex<float>* spectrum) {
    const double place = static_cast<double>(frames_++) / frames_in_column_;
    const std::size_t column = std::min(static_cast<std::size_t>(place), last_column_);
    frames_in_.resize(column + 1);
    sums_.resize(frames_in_.size() * bins());
    ++frames_in_[column];
    for (std::size_t k = 0; k < bins(); ++k) {
      sums_[column * bins() + k] += std::norm(std::complex<double>(spectrum[k]));
    }
  }

  kernel<float>::RealDft<packing::ccs> transform_;
  std::vector<float> window_;
  std::size_t hop_;
  double frames_in_column_;
  std::size_t last_column_;
  std::vector<float> pending_;
  std::vector<double> sums_;
  std::vector<std::size_t> frames_in_;
  std::size_t samples_ = 0, frames_ = 0;
  std::chrono::duration<double> transform_time_{};
};

}  // namespace haldgen::demo
