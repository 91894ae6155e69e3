// Two real frames ride in every complex transform.
//
// The spectrum of real samples repeats itself mirrored: X[N-k] = conj(X[k]). A complex transform
// of one real frame would therefore compute everything twice. With one frame a as real parts and
// the next one b as imaginary parts, the transform of a + i*b is Z = A + i*B, and the mirror
// symmetry of A and B takes the two apart again:
//   A[k] = (Z[k] + conj(Z[N-k])) / 2,   B[k] = (Z[k] - conj(Z[N-k])) / 2i.
#include "spectrogram/short_time.h"

#include <cmath>
#include <numbers>
#include <string>
#include <utility>

#include "spectrogram/failure.h"

namespace haldgen::demo {
namespace {

// Reading the clock costs about as much as a short transform, so it is read once per batch. A
// batch stays well inside the first-level cache.
constexpr std::size_t kPairsPerBatch = 32;

constexpr double square(double x) { return x * x; }

std::vector<float> hann_window(std::size_t length) {
  std::vector<float> window(length);
  for (std::size_t n = 0; n < length; ++n) {
    const double turn = static_cast<double>(n) / static_cast<double>(length);
    window[n] = static_cast<float>(0.5 - 0.5 * std::cos(2 * std::numbers::pi * turn));
  }
  return window;
}

void require_ok(int32_t status) {
  if (status != haldStatusOk) {
    throw Failure("the transform answered status " + std::to_string(status));
  }
}

}  // namespace

void require_length(int length) {
  // A general entry looks at the length first and alone, so it can be asked without any data: an
  // accepted length is answered with a complaint about the missing arrays.
  const int32_t status = haldgDFTFwd_CToC_32fc(nullptr, nullptr, length, haldScaleFwdByN);
  if (status == haldStatusSizeError) {
    throw Failure("the library has no transform of length " + std::to_string(length) + " (status " +
                  std::to_string(status) + ")");
  }
}

ShortTimeSpectrum::ShortTimeSpectrum(int length, int hop, Sink sink)
    : length_(static_cast<std::size_t>(length)),
      hop_(static_cast<std::size_t>(hop)),
      sink_(std::move(sink)),
      window_(hann_window(length_)),
      pending_(length_ / 2, 0.0F),
      batch_(kPairsPerBatch * length_),
      power_(length_ / 2 + 1) {}

void ShortTimeSpectrum::feed(std::span<const float> samples) {
  samples_ += static_cast<std::int64_t>(samples.size());
  pending_.insert(pending_.end(), samples.begin(), samples.end());
  std::size_t start = 0;
  for (; start + length_ <= pending_.size(); start += hop_) cut_frame(&pending_[start]);
  pending_.erase(pending_.begin(), pending_.begin() + static_cast<std::ptrdiff_t>(start));
}

void ShortTimeSpectrum::finish() {
  const auto hop = static_cast<std::int64_t>(hop_);
  const std::int64_t wanted = (samples_ + hop - 1) / hop;
  pending_.resize(pending_.size() + 2 * length_, 0.0F);
  for (std::size_t start = 0; frames_ < wanted; start += hop_) cut_frame(&pending_[start]);
  run_batch();
}

void ShortTimeSpectrum::cut_frame(const float* samples) {
  Cplx32* pair = &batch_[frames_in_batch_ / 2 * length_];
  const bool second = frames_in_batch_ % 2 != 0;
  for (std::size_t n = 0; n < length_; ++n) {
    const float value = window_[n] * samples[n];
    if (second) {
      pair[n].im = value;
    } else {
      pair[n] = {value, 0.0F};
    }
  }
  ++frames_;
  if (++frames_in_batch_ == 2 * kPairsPerBatch) run_batch();
}

void ShortTimeSpectrum::run_batch() {
  const std::size_t pairs = (frames_in_batch_ + 1) / 2;
  const auto before = std::chrono::steady_clock::now();
  transform(batch_.data(), pairs);
  transform_time_ += std::chrono::steady_clock::now() - before;
  transforms_ += static_cast<std::int64_t>(pairs);
  for (std::size_t frame = 0; frame < frames_in_batch_; ++frame) {
    deliver(&batch_[frame / 2 * length_], frame % 2 != 0);
  }
  frames_in_batch_ = 0;
}

void ShortTimeSpectrum::transform(Cplx32* data, std::size_t count) const {
  Cplx32* const end = data + count * length_;
  if (length_ == 64) {
    for (; data != end; data += 64)
      require_ok(haldgDFTFwd_CToC_64_32fc(data, data, haldScaleFwdByN));
    return;
  }
  const auto length = static_cast<int32_t>(length_);
  for (; data != end; data += length_) {
    require_ok(haldgDFTFwd_CToC_32fc(data, data, length, haldScaleFwdByN));
  }
}

void ShortTimeSpectrum::deliver(const Cplx32* spectrum, bool second) {
  for (std::size_t k = 0; k < power_.size(); ++k) {
    const Cplx32 z = spectrum[k];
    const Cplx32 mirror = spectrum[(length_ - k) % length_];
    const double sign = second ? -1.0 : 1.0;
    const double half_power =
        (square(z.re + sign * mirror.re) + square(z.im - sign * mirror.im)) / 4;
    // The mean of the window is 1/2, and a sine spreads over a bin and its mirror image; the two
    // ends of the band have no mirror image.
    const bool own_mirror = k == 0 || 2 * k == length_;
    power_[k] = half_power * (own_mirror ? 4 : 16);
  }
  sink_(power_);
}

}  // namespace haldgen::demo
