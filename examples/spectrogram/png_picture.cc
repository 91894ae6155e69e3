// Drawing into a canvas of bytes, which libpng then writes.
#include "spectrogram/png_picture.h"

#include <png.h>

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <system_error>
#include <vector>

#include "spectrogram/failure.h"
#include "spectrogram/glyphs.h"
#include "spectrogram/scale.h"
#include "spectrogram/time_grid.h"

namespace haldgen::demo {
namespace {

constexpr int kLeft = 84;
constexpr int kTop = 36;
constexpr int kPlotWidth = 960;
constexpr int kPlotHeight = 396;  // about; a whole number of rows for every bin
constexpr int kRight = 130;
constexpr int kBottom = 56;
constexpr int kDot = 2;  // pixels per dot of a glyph, each way
constexpr int kTextHeight = kGlyphHeight * kDot;
constexpr int kTextStep = (kGlyphWidth + 1) * kDot;
constexpr int kMark = 6;
constexpr Colour kPaper{255, 255, 255};
constexpr Colour kInk{40, 40, 48};

int text_width(const std::string& text) { return static_cast<int>(text.size()) * kTextStep - kDot; }

class Canvas {
 public:
  Canvas(int width, int height)
      : width_(width),
        height_(height),
        pixels_(static_cast<std::size_t>(width) * static_cast<std::size_t>(height), kPaper) {}

  int width() const { return width_; }
  int height() const { return height_; }
  const Colour* data() const { return pixels_.data(); }

  void fill(int x, int y, int width, int height, Colour colour) {
    for (int row = std::max(y, 0); row < std::min(y + height, height_); ++row) {
      for (int column = std::max(x, 0); column < std::min(x + width, width_); ++column) {
        pixels_[static_cast<std::size_t>(row) * static_cast<std::size_t>(width_) +
                static_cast<std::size_t>(column)] = colour;
      }
    }
  }

  void text(int x, int y, const std::string& text) {
    for (const char c : text) {
      draw(x, y, glyph_of(c));
      x += kTextStep;
    }
  }

 private:
  void draw(int x, int y, const Glyph& glyph) {
    for (int row = 0; row < kGlyphHeight; ++row) {
      for (int column = 0; column < kGlyphWidth; ++column) {
        const int bit = glyph[static_cast<std::size_t>(row)] >> (kGlyphWidth - 1 - column) & 1;
        if (bit != 0) fill(x + column * kDot, y + row * kDot, kDot, kDot, kInk);
      }
    }
  }

  int width_;
  int height_;
  std::vector<Colour> pixels_;
};

// libpng takes the canvas as rows of red, green, blue.
static_assert(sizeof(Colour) == 3);

void draw_spectrogram(Canvas& canvas, const PlotArea& area, const TimeGrid& grid,
                      const LoudnessRange& range) {
  for (int x = 0; x < area.width; ++x) {
    const std::vector<double> power = grid.slice(x, area.width);
    int y = area.top + area.height;
    for (const double value : power) {
      y -= area.row_height;
      canvas.fill(area.left + x, y, 1, area.row_height, colour_of(range.level(value)));
    }
  }
}

// A label beside its mark, centred on row y; drawn to the left of x or to the right.
void side_mark(Canvas& canvas, int x, int y, const std::string& label, bool to_left) {
  canvas.fill(to_left ? x - kMark : x, y - 1, kMark, 2, kInk);
  const int gap = kMark + 4;
  canvas.text(to_left ? x - gap - text_width(label) : x + gap, y - kTextHeight / 2, label);
}

void draw_frequencies(Canvas& canvas, const PlotArea& area, int bins, double bin_hz) {
  const Axis axis = frequency_axis((bins - 1) * bin_hz, 8);
  for (const double mark : axis.marks) {
    // A bin is centred on its frequency.
    const double rows = (mark / bin_hz + 0.5) * area.row_height;
    const int y = area.top + area.height - static_cast<int>(std::lround(rows));
    side_mark(canvas, area.left, y, axis.label(mark), true);
  }
  canvas.text(area.left - text_width(axis.unit) - kMark - 4, area.top - kTextHeight - 10,
              axis.unit);
}

void draw_times(Canvas& canvas, const PlotArea& area, double seconds) {
  const Axis axis = time_axis(seconds, 10);
  const int y = area.top + area.height;
  for (const double mark : axis.marks) {
    const int x = area.left + static_cast<int>(std::lround(mark / seconds * area.width));
    const std::string label = axis.label(mark);
    canvas.fill(x - 1, y, 2, kMark, kInk);
    canvas.text(x - text_width(label) / 2, y + kMark + 4, label);
  }
  canvas.text(area.left + area.width - text_width(axis.unit), y + kMark + kTextHeight + 12,
              axis.unit);
}

void draw_loudness(Canvas& canvas, const PlotArea& area, const LoudnessRange& range) {
  constexpr int kBarWidth = 20;
  const int left = area.left + area.width + 24;
  for (int y = 0; y < area.height; ++y) {
    const double level = 1 - (y + 0.5) / area.height;
    canvas.fill(left, area.top + y, kBarWidth, 1, colour_of(level));
  }
  // Whole numbers. NOLINTNEXTLINE(clang-analyzer-security.FloatLoopCounter)
  for (double db = range.bottom_db; db <= range.top_db; db += 10) {
    const double level = (db - range.bottom_db) / (range.top_db - range.bottom_db);
    const int y = area.top + static_cast<int>(std::lround((1 - level) * area.height));
    side_mark(canvas, left + kBarWidth, y, short_number(db), false);
  }
  canvas.text(left, area.top - kTextHeight - 10, "dB");
}

}  // namespace

PlotArea plot_area(int bins) {
  const int row_height = std::max(1, kPlotHeight / bins);
  return {kLeft, kTop, kPlotWidth, bins * row_height, row_height};
}

PngFile::PngFile(const std::string& path) : path_(path), file_(std::fopen(path.c_str(), "wb")) {
  if (!file_) throw Failure(path + ": " + std::generic_category().message(errno));
}

void PngFile::write(const TimeGrid& grid, double seconds, double bin_hz) {
  const PlotArea area = plot_area(grid.bins());
  const LoudnessRange range = loudness_range(grid);
  Canvas canvas(area.left + area.width + kRight, area.top + area.height + kBottom);
  draw_spectrogram(canvas, area, grid, range);
  draw_frequencies(canvas, area, grid.bins(), bin_hz);
  draw_times(canvas, area, seconds);
  draw_loudness(canvas, area, range);

  png_image image{};
  image.version = PNG_IMAGE_VERSION;
  image.width = static_cast<png_uint_32>(canvas.width());
  image.height = static_cast<png_uint_32>(canvas.height());
  image.format = PNG_FORMAT_RGB;
  const bool written =
      png_image_write_to_stdio(&image, file_.get(), 0, canvas.data(), 0, nullptr) != 0;
  const bool closed = std::fclose(file_.release()) == 0;
  if (!written || !closed) throw Failure(path_ + ": the picture cannot be written in full");
}

}  // namespace haldgen::demo
