// A recording on disk, mixed to one channel.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <filesystem>
#include <functional>
#include <numeric>
#include <sndfile.hh>
#include <stdexcept>
#include <string>
#include <system_error>
#include <vector>

namespace haldgen::demo {

struct Recording {
  int rate, channels;          ///< of the file
  std::vector<float> samples;  ///< full scale being 1
  std::size_t unusable = 0;    ///< how many were no usable number and were taken as silence
};

/// Any format that libsndfile reads. Calls `progress` with the part that is read. Throws, also when
/// the data cannot be decoded.
inline Recording read_recording(const std::string& path,
                                const std::function<void(double)>& progress) {
  constexpr std::size_t kBlock = 8192;
  // Files of floats may hold anything. A larger value could overflow the sums of a transform.
  constexpr float kLargestUsable = 1e30F;
  // libsndfile calls these "System error" and "unknown format".
  std::error_code error;
  if (std::filesystem::is_directory(path, error))
    throw std::runtime_error(path + ": is a directory");
  if (error) throw std::runtime_error(path + ": " + error.message());

  SndfileHandle file(path);
  Recording result{file.samplerate(), file.channels(), {}};
  std::vector<float> block(kBlock * static_cast<std::size_t>(file.channels()));
  while (const sf_count_t got = file.readf(block.data(), kBlock)) {
    for (auto first = block.begin(); first != block.begin() + got * file.channels();
         first += file.channels()) {
      const float sum = std::accumulate(first, first + file.channels(), 0.0F);
      const float mean = sum / static_cast<float>(file.channels());
      const bool usable = std::abs(mean) <= kLargestUsable;
      result.samples.push_back(usable ? mean : 0.0F);
      result.unusable += usable ? 0 : 1;
    }
    progress(static_cast<double>(result.samples.size()) / static_cast<double>(file.frames()));
  }
  if (file.error() != SF_ERR_NO_ERROR) {
    std::string text = path + ": " + file.strError();
    std::replace(text.begin(), text.end(), '\n', ' ');  // long ones have several lines
    throw std::runtime_error(text.substr(0, text.find_last_not_of(" .") + 1));
  }
  if (result.samples.empty()) throw std::runtime_error(path + ": holds no samples");
  return result;
}

}  // namespace haldgen::demo
