// A recording on disk, read in blocks, mixed to one channel and brought to a lower sample rate.
#pragma once

#include <samplerate.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <numeric>
#include <sndfile.hh>
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
    file = SndfileHandle(path);
    refuse_bad_data();
    if (file.frames() < 1) throw std::runtime_error(path + ": holds no samples");
    interleaved_.resize(kBlock * static_cast<std::size_t>(file.channels()));
    const double ratio = 2 * top_hz / file.samplerate();
    if (ratio >= 1) return;
    if (!(ratio >= 1.0 / 256)) {  // what libsamplerate goes down to
      throw std::runtime_error("--top must be at least a 512th of the recording's rate");
    }
    ratio_ = ratio;
    const auto next = [](void* self, float** samples) {
      const std::span<float> block = static_cast<Recording*>(self)->next_mono();
      *samples = block.data();
      return std::ssize(block);
    };
    int reason = 0;
    resampler_.reset(src_callback_new(next, SRC_SINC_MEDIUM_QUALITY, 1, &reason, this), src_delete);
    if (!resampler_) throw std::runtime_error(src_strerror(reason));
  }

  /// The next block of samples, full scale being 1; empty at the end. The view lasts until the
  /// next call. Throws when the data cannot be decoded.
  std::span<const float> next_block() {
    std::span<const float> block;
    if (resampler_) {
      const long got = src_callback_read(resampler_.get(), ratio_, kBlock, output_.data());
      if (const int reason = src_error(resampler_.get())) {
        throw std::runtime_error(src_strerror(reason));
      }
      block = std::span(output_).first(static_cast<std::size_t>(got));
    } else {
      block = next_mono();
    }
    refuse_bad_data();
    return block;
  }

  /// Samples per second of next_block().
  double rate() const { return file.samplerate() * ratio_; }

  SndfileHandle file;
  std::int64_t position = 0;  ///< samples of the file, in each channel, read so far
  std::int64_t unusable = 0;  ///< of them were no usable number and were taken as silence

 private:
  static constexpr std::size_t kBlock = 8192;
  // Files of floats may hold anything. A larger value could overflow the sums of a transform.
  static constexpr float kLargestUsable = 1e30F;

  // With libsndfile's reason, of some lines where it is long, as one.
  void refuse_bad_data() const {
    if (file && file.error() == SF_ERR_NO_ERROR) return;
    std::string text = path_ + ": " + file.strError();
    std::replace(text.begin(), text.end(), '\n', ' ');
    throw std::runtime_error(text.substr(0, text.find_last_not_of(" .") + 1));
  }

  std::span<float> next_mono() {
    const sf_count_t got = file.readf(interleaved_.data(), kBlock);
    for (sf_count_t i = 0; i < got; ++i) {
      const auto first = interleaved_.begin() + i * file.channels();
      const float mean = std::accumulate(first, first + file.channels(), 0.0F) /
                         static_cast<float>(file.channels());
      const bool usable = std::abs(mean) <= kLargestUsable;
      mono_[static_cast<std::size_t>(i)] = usable ? mean : 0.0F;
      unusable += usable ? 0 : 1;
    }
    position += got;
    return std::span(mono_).first(static_cast<std::size_t>(got));
  }

  std::string path_;
  std::shared_ptr<SRC_STATE> resampler_;  // none if the rate stays
  double ratio_ = 1;
  std::vector<float> interleaved_, mono_ = std::vector<float>(kBlock), output_ = mono_;
};

}  // namespace haldgen::demo
