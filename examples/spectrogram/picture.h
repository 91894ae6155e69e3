// The spectrogram as a picture with axes and a scale of loudness: seventy decibels, 0 dB being a
// sine of full scale, that end at the first ten above the loudest part.
#pragma once

#include <cairo.h>

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <cstdint>
#include <memory>
#include <new>
#include <numbers>
#include <sstream>
#include <stdexcept>
#include <string>
#include <system_error>

#include "spectrogram/short_time.h"

namespace haldgen::demo {

/// In pixels.
struct Rectangle {
  int left, top, width, height;
};

/// Where the spectrogram proper lies in a picture of this size; bin 0 is at the bottom.
inline Rectangle plot_area(int width, int height) { return {84, 36, width - 200, height - 104}; }

inline constexpr double kShownDb = 70;
inline constexpr int kMark = 6;
inline constexpr double kFontSize = 15;

inline std::shared_ptr<cairo_surface_t> new_surface(int width, int height) {
  return {cairo_image_surface_create(CAIRO_FORMAT_RGB24, width, height), cairo_surface_destroy};
}

// A silent recording still needs a scale.
inline double decibels(double power) { return 10 * std::log10(std::max(power, 1e-12)); }

// From near black over violet and orange to pale yellow; brightness rises throughout, so the order
// of levels survives printing in grey. As a pixel of CAIRO_FORMAT_RGB24.
inline std::uint32_t colour_of(double level) {
  const auto step = [level](double from, double to) {
    const double t = std::clamp((level - from) / (to - from), 0.0, 1.0);
    return t * t * (3 - 2 * t);
  };
  const auto byte = [](double value) {
    return static_cast<std::uint32_t>(std::lround(255 * std::clamp(value, 0.0, 1.0)));
  };
  const double violet = std::sin(std::numbers::pi * std::clamp(level / 0.7, 0.0, 1.0));
  return byte(0.04 + 0.96 * step(0.1, 0.7)) << 16U | byte(0.02 + 0.96 * step(0.35, 1.0)) << 8U |
         byte(0.08 + 0.5 * violet + 0.65 * step(0.75, 1.0));
}

// Levels from 0 to 1 by column and row from the bottom, stretched over `area`.
template <class Level>
void draw_levels(cairo_t* cairo, const Rectangle& area, std::size_t columns, std::size_t rows,
                 Level level) {
  const auto surface = new_surface(static_cast<int>(columns), static_cast<int>(rows));
  unsigned char* const pixels = cairo_image_surface_get_data(surface.get());
  if (pixels == nullptr) throw std::bad_alloc();
  const auto stride = static_cast<std::size_t>(cairo_image_surface_get_stride(surface.get()));
  for (std::size_t row = 0; row < rows; ++row) {
    auto* line = reinterpret_cast<std::uint32_t*>(pixels + (rows - 1 - row) * stride);
    for (std::size_t x = 0; x < columns; ++x) line[x] = colour_of(level(x, row));
  }
  cairo_surface_mark_dirty(surface.get());
  cairo_save(cairo);
  cairo_translate(cairo, area.left, area.top);
  cairo_scale(cairo, area.width / static_cast<double>(columns),
              area.height / static_cast<double>(rows));
  cairo_set_source_surface(cairo, surface.get(), 0, 0);
  cairo_pattern_set_filter(cairo_get_source(cairo), CAIRO_FILTER_NEAREST);
  cairo_paint(cairo);
  cairo_restore(cairo);
}

// `x` is the left end of the text, its middle or its right end for `align` 0, 0.5 or 1.
inline void text(cairo_t* cairo, double x, double y, double align, const std::string& label) {
  cairo_text_extents_t size;
  cairo_text_extents(cairo, label.c_str(), &size);
  cairo_move_to(cairo, x - align * size.x_advance, y + 0.35 * kFontSize);
  cairo_show_text(cairo, label.c_str());
}

// The side of a picture's part that a scale is at, and where its text is aligned.
struct Side {
  int dx, dy;
  double align;
};

// Marks at the round numbers from `first` to `last`, at most `most` steps of 1, 2 or 5 times a
// power of ten. The scale begins at (x, y) and goes `across` to the right and `up`.
inline void draw_scale(cairo_t* cairo, double x, double y, double across, double up, Side side,
                       double first, double last, int most) {
  const double least = (last - first) / most;
  double step = std::pow(10.0, std::floor(std::log10(least)));
  for (const double factor : {2.0, 2.5, 2.0}) {
    if (step < 0.9999 * least) step *= factor;
  }
  // A thousandth forgives the rounding of an end that is itself a multiple of the step.
  for (double i = std::ceil(first / step - 0.001); i <= last / step + 0.001; ++i) {
    const double share = (i * step - first) / (last - first);
    const double at_x = x + share * across;
    const double at_y = y - share * up;
    cairo_move_to(cairo, at_x, at_y);
    cairo_rel_line_to(cairo, kMark * side.dx, kMark * side.dy);
    cairo_stroke(cairo);
    std::ostringstream label;
    label << i * step + 0.0;  // no negative zero
    text(cairo, at_x + 2 * kMark * side.dx, at_y + 3 * kMark * side.dy, side.align, label.str());
  }
}

/// Draws frames that span `seconds`, of bins `bin_hz` apart, into a PNG file. Throws.
inline void draw_png(const ShortTimeSpectrum& spectrum, double seconds, double bin_hz, int width,
                     int height, const std::string& path) {
  double peak = 0;
  for (std::size_t x = 0; x < spectrum.columns(); ++x) {
    for (std::size_t k = 0; k < spectrum.bins(); ++k) peak = std::max(peak, spectrum.power(x, k));
  }
  const double top_db = 10 * std::ceil(decibels(peak) / 10);
  const double bottom_db = top_db - kShownDb;

  const auto surface = new_surface(width, height);
  const std::shared_ptr<cairo_t> context(cairo_create(surface.get()), cairo_destroy);
  cairo_t* const cairo = context.get();
  cairo_set_source_rgb(cairo, 1, 1, 1);
  cairo_paint(cairo);
  const Rectangle area = plot_area(width, height);
  draw_levels(cairo, area, spectrum.columns(), spectrum.bins(), [&](std::size_t x, std::size_t k) {
    return (decibels(spectrum.power(x, k)) - bottom_db) / kShownDb;
  });
  const Rectangle bar{area.left + area.width + 24, area.top, 20, area.height};
  draw_levels(cairo, bar, 1, static_cast<std::size_t>(bar.height), [&](std::size_t, std::size_t y) {
    return (static_cast<double>(y) + 0.5) / bar.height;
  });

  cairo_set_source_rgb(cairo, 0.1, 0.1, 0.15);
  cairo_select_font_face(cairo, "sans-serif", CAIRO_FONT_SLANT_NORMAL, CAIRO_FONT_WEIGHT_NORMAL);
  cairo_set_font_size(cairo, kFontSize);
  const int bottom = area.top + area.height;
  draw_scale(cairo, area.left, bottom, area.width, 0, {0, 1, 0.5}, 0, seconds, area.width / 90);
  text(cairo, area.left + area.width, bottom + 7 * kMark, 1, "s");
  // A bin is centred on its frequency.
  const double row = area.height / static_cast<double>(spectrum.bins());
  const double top_khz = static_cast<double>(spectrum.bins() - 1) * bin_hz / 1000;
  draw_scale(cairo, area.left, bottom - row / 2, 0, area.height - row, {-1, 0, 1}, 0, top_khz,
             std::max(1, area.height / 40));
  text(cairo, area.left - kMark, area.top - 3 * kMark, 1, "kHz");
  draw_scale(cairo, bar.left + bar.width, bottom, 0, bar.height, {1, 0, 0}, bottom_db, top_db, 7);
  text(cairo, bar.left, bar.top - 3 * kMark, 0, "dB");

  errno = 0;
  const cairo_status_t status = cairo_surface_write_to_png(surface.get(), path.c_str());
  if (status != CAIRO_STATUS_SUCCESS) {
    throw std::runtime_error(errno != 0 ? std::generic_category().message(errno)
                                        : cairo_status_to_string(status));
  }
}

}  // namespace haldgen::demo
