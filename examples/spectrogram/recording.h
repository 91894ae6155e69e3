// A recording on disk, read in blocks, mixed to one channel and brought to a lower sample rate.
#pragma once

#include <samplerate.h>
#include <sndfile.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <filesystem>
#include <iterator>
#include <memory>
#include <numeric>
#include <span>
#include <stdexcept>
#include <string>
#include <system_error>
#include <vector>

namespace haldgen::demo {

class Recording {
 public:
  /// Opens any format that libsndfile reads. The band up to `top_hz` is kept: where the recording
  /// has a wider one, its rate is lowered to twice that. Throws.
  Recording(const std::string& path, double top_hz) : path_(path) {
    // libsndfile calls these "System error" and "unknown format".
    std::error_code error;
    if (std::filesystem::is_directory(path, error))
      throw std::runtime_error(path + ": is a directory");
    if (error) throw std::runtime_error(path + ": " + error.message());
    file_.reset(sf_open(path.c_str(), SFM_READ, &info_), sf_close);
    if (!file_) throw failure();
    if (info_.frames < 1) throw std::runtime_error(path + ": holds no samples");
    interleaved_.resize(kBlock * static_cast<std::size_t>(info_.channels));
    mono_.resize(kBlock);
    const double ratio = 2 * top_hz / info_.samplerate;
    if (ratio >= 1) return;
    if (!(ratio >= kLeastRatio)) {
      throw std::runtime_error(
          "--top must be at least " +
          std::to_string(std::lround(std::ceil(info_.samplerate * kLeastRatio / 2))) +
          " Hz for this recording");
    }
    ratio_ = ratio;
    output_.resize(kBlock);
    int reason = 0;
    resampler_.reset(src_new(SRC_SINC_MEDIUM_QUALITY, 1, &reason), src_delete);
    if (!resampler_) throw std::runtime_error(src_strerror(reason));
  }

  /// The next block of samples, full scale being 1; empty at the end. The view lasts until the
  /// next call. Throws when the data cannot be decoded.
  std::span<const float> next_block() {
    if (!resampler_) return next_mono();
    for (;;) {
      if (waiting_.empty() && !ended_) {
        waiting_ = next_mono();
        ended_ = waiting_.empty();
      }
      SRC_DATA step{
          waiting_.data(), output_.data(), std::ssize(waiting_), std::ssize(output_), 0, 0,
          ended_ ? 1 : 0,  ratio_};
      if (const int reason = src_process(resampler_.get(), &step))
        throw std::runtime_error(src_strerror(reason));
      waiting_ = waiting_.subspan(static_cast<std::size_t>(step.input_frames_used));
      if (step.output_frames_gen > 0 || ended_) {
        return std::span(output_).first(static_cast<std::size_t>(step.output_frames_gen));
      }
    }
  }

  /// Samples per second of next_block().
  double rate() const { return info_.samplerate * ratio_; }
  /// The file's own rate, channels and format.
  const SF_INFO& info() const { return info_; }
  /// Samples of the file, in each channel, read so far.
  std::int64_t position() const { return position_; }
  /// How many of them were no usable number and were taken as silence.
  std::int64_t unusable() const { return unusable_; }

 private:
  static constexpr std::size_t kBlock = 8192;
  // Files of floats may hold anything. A larger value could overflow the sums of a transform.
  static constexpr float kLargestUsable = 1e30F;
  static constexpr double kLeastRatio = 1.0 / 256;  // of libsamplerate

  // libsndfile's reason, of some lines where it is long, as one.
  std::runtime_error failure() const {
    std::string text = path_ + ": " + sf_strerror(file_.get());
    std::replace(text.begin(), text.end(), '\n', ' ');
    return std::runtime_error(text.substr(0, text.find_last_not_of(" .") + 1));
  }

  std::span<const float> next_mono() {
    const sf_count_t got = sf_readf_float(file_.get(), interleaved_.data(), kBlock);
    if (sf_error(file_.get()) != SF_ERR_NO_ERROR) throw failure();
    for (sf_count_t i = 0; i < got; ++i) {
      const auto first = interleaved_.begin() + i * info_.channels;
      const float sum = std::accumulate(first, first + info_.channels, 0.0F);
      const float mean = sum / static_cast<float>(info_.channels);
      const bool usable = std::abs(mean) <= kLargestUsable;
      mono_[static_cast<std::size_t>(i)] = usable ? mean : 0.0F;
      unusable_ += usable ? 0 : 1;
    }
    position_ += got;
    return std::span(mono_).first(static_cast<std::size_t>(got));
  }

  std::string path_;
  SF_INFO info_{};
  std::shared_ptr<SNDFILE> file_;
  std::shared_ptr<SRC_STATE> resampler_;  // none if the rate stays
  double ratio_ = 1;
  std::vector<float> interleaved_, mono_, output_;
  std::span<const float> waiting_;
  bool ended_ = false;
  std::int64_t position_ = 0, unusable_ = 0;
};

}  // namespace haldgen::demo
