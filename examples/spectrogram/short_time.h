// The short-time power spectrum of a stream of real samples.
#pragma once

#include <haldgen.h>

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <span>
#include <vector>

namespace haldgen::demo {

/// Whether the library has a forward complex transform of this length. Throws Failure if not.
void require_length(int length);

/// Cuts the stream into overlapping frames, weights each with a Hann window and transforms it.
/// Frame j is centred on sample j*hop, with silence taken before the first sample and after the
/// last, so that a stream of any length above zero gives at least one frame.
class ShortTimeSpectrum {
 public:
  /// Receives the frames in order: `length`/2 + 1 powers (rounded down), where a sine of full
  /// scale in the middle of a bin has power 1.
  using Sink = std::function<void(std::span<const double> power)>;

  /// `length` as accepted by require_length, 1 <= `hop` <= `length`.
  ShortTimeSpectrum(int length, int hop, Sink sink);

  void feed(std::span<const float> samples);
  /// Delivers the last frames. Nothing may be fed afterwards.
  void finish();

  int bins() const { return static_cast<int>(power_.size()); }
  std::int64_t frames() const { return frames_; }
  std::int64_t transforms() const { return transforms_; }
  /// Time spent inside the library alone.
  std::chrono::nanoseconds transform_time() const { return transform_time_; }

 private:
  void cut_frame(const float* samples);
  void run_batch();
  void transform(Cplx32* data, std::size_t count) const;
  void deliver(const Cplx32* spectrum, bool second);

  std::size_t length_;
  std::size_t hop_;
  Sink sink_;
  std::vector<float> window_;
  std::vector<float> pending_;
  std::vector<Cplx32> batch_;
  std::size_t frames_in_batch_ = 0;
  std::vector<double> power_;
  std::int64_t samples_ = 0;
  std::int64_t frames_ = 0;
  std::int64_t transforms_ = 0;
  std::chrono::nanoseconds transform_time_{0};
};

}  // namespace haldgen::demo
