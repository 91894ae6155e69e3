// Reading through libsndfile; its many ways to fail become one line of text each.
#include "spectrogram/recording.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <filesystem>
#include <numeric>
#include <system_error>

#include "spectrogram/failure.h"

namespace haldgen::demo {
namespace {

constexpr std::size_t kBlock = 8192;

// Files of floats may hold anything. A larger value could overflow the sums of a transform.
constexpr float kLargestUsable = 1e30F;

std::string one_line(std::string text) {
  std::replace_if(
      text.begin(), text.end(), [](char c) { return c == '\n' || c == '\r'; }, ' ');
  while (!text.empty() && (text.back() == ' ' || text.back() == '.')) text.pop_back();
  return text;
}

// libsndfile calls both of these "System error" or "unknown format".
void require_readable_file(const std::string& path) {
  std::error_code error;
  const auto status = std::filesystem::status(path, error);
  if (!std::filesystem::exists(status)) {
    throw Failure(path + ": " + (error ? error.message() : "no such file"));
  }
  if (std::filesystem::is_directory(status)) throw Failure(path + ": is a directory");
}

}  // namespace

Recording::Recording(const std::string& path) : path_(path) {
  require_readable_file(path);
  file_.reset(sf_open(path.c_str(), SFM_READ, &info_));
  if (!file_) throw Failure(path + ": " + one_line(sf_strerror(nullptr)));
  if (info_.channels < 1 || info_.samplerate < 1) {
    throw Failure(path + ": states no channels or no sample rate");
  }
  interleaved_.resize(kBlock * static_cast<std::size_t>(info_.channels));
  mono_.resize(kBlock);
}

std::span<const float> Recording::next_block() {
  const sf_count_t got = sf_readf_float(file_.get(), interleaved_.data(), kBlock);
  if (sf_error(file_.get()) != SF_ERR_NO_ERROR) {
    throw Failure(path_ + ": " + one_line(sf_strerror(file_.get())));
  }
  const auto channels = static_cast<std::size_t>(info_.channels);
  const auto count = static_cast<std::size_t>(got);
  for (std::size_t i = 0; i < count; ++i) {
    const auto first = interleaved_.begin() + static_cast<std::ptrdiff_t>(i * channels);
    const float sum = std::accumulate(first, first + info_.channels, 0.0F);
    const float mean = sum / static_cast<float>(channels);
    const bool usable = std::abs(mean) <= kLargestUsable;
    mono_[i] = usable ? mean : 0.0F;
    unusable_ += usable ? 0 : 1;
  }
  position_ += got;
  return std::span(mono_).first(count);
}

}  // namespace haldgen::demo
