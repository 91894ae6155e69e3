// A recording on disk, read in blocks and mixed to one channel.
#pragma once

#include <sndfile.h>

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <vector>

namespace haldgen::demo {

class Recording {
 public:
  /// Opens any format that libsndfile reads. Throws Failure when the file is missing, is no
  /// recording or is damaged.
  explicit Recording(const std::string& path);

  /// The next block as mono samples, full scale being 1; empty at the end. The view lasts until
  /// the next call. Throws Failure when the data cannot be decoded.
  std::span<const float> next_block();

  int sample_rate() const { return info_.samplerate; }
  int channels() const { return info_.channels; }
  /// Samples per channel as the file's header states them.
  std::int64_t stated_length() const { return info_.frames; }
  /// Samples per channel read so far.
  std::int64_t position() const { return position_; }
  /// Samples read so far that were no usable number and were taken as silence.
  std::int64_t unusable() const { return unusable_; }

 private:
  struct Close {
    void operator()(SNDFILE* file) const { sf_close(file); }
  };

  std::string path_;
  SF_INFO info_{};
  std::unique_ptr<SNDFILE, Close> file_;
  std::vector<float> interleaved_;
  std::vector<float> mono_;
  std::int64_t position_ = 0;
  std::int64_t unusable_ = 0;
};

}  // namespace haldgen::demo
