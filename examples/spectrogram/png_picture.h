// The spectrogram as a PNG file.
#pragma once

#include <cstdio>
#include <memory>
#include <string>

namespace haldgen::demo {

class TimeGrid;

/// Where the spectrogram proper lies in the picture, in pixels. Bin k fills `row_height` rows,
/// bin 0 at the bottom.
struct PlotArea {
  int left;
  int top;
  int width;
  int height;
  int row_height;
};

PlotArea plot_area(int bins);

class PngFile {
 public:
  /// Opens the file for writing at once, so that a bad path is known before any work is done.
  /// Throws Failure.
  explicit PngFile(const std::string& path);

  /// Draws `grid`, whose frames span `seconds` and whose bins are `bin_hz` apart. To be called
  /// once. Throws Failure when the file cannot be written in full.
  void write(const TimeGrid& grid, double seconds, double bin_hz);

 private:
  struct Close {
    void operator()(std::FILE* file) const { std::fclose(file); }
  };

  std::string path_;
  std::unique_ptr<std::FILE, Close> file_;
};

}  // namespace haldgen::demo
