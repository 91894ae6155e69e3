// Round numbers for axes, and a colour map from a formula.
#include "spectrogram/scale.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <numbers>
#include <utility>

#include "spectrogram/time_grid.h"

namespace haldgen::demo {
namespace {

constexpr double kShownDb = 70;
constexpr double kSilentPower = 1e-12;  // a silent recording still needs a scale

double round_step(double span, int most_marks) {
  const double least = span / most_marks;
  const double decade = std::pow(10.0, std::floor(std::log10(least)));
  for (const double factor : {1.0, 2.0, 5.0}) {
    if (factor * decade >= least) return factor * decade;
  }
  return 10 * decade;
}

Axis make_axis(double span, double unit_size, std::string unit, int most_marks) {
  Axis axis{span, unit_size, std::move(unit), {}};
  const double step = round_step(span / unit_size, most_marks) * unit_size;
  // Half a thousandth forgives the rounding of a span that is itself a multiple of the step.
  const int count = static_cast<int>(span / step + 0.0005);
  for (int i = 0; i <= count; ++i) axis.marks.push_back(i * step);
  return axis;
}

double smooth_step(double from, double to, double x) {
  const double t = std::clamp((x - from) / (to - from), 0.0, 1.0);
  return t * t * (3 - 2 * t);
}

std::uint8_t channel(double value) {
  return static_cast<std::uint8_t>(std::lround(255 * std::clamp(value, 0.0, 1.0)));
}

}  // namespace

double LoudnessRange::level(double power) const {
  if (power <= 0) return 0;
  return std::clamp((10 * std::log10(power) - bottom_db) / (top_db - bottom_db), 0.0, 1.0);
}

LoudnessRange loudness_range(const TimeGrid& grid) {
  const double peak_db = 10 * std::log10(std::max(grid.peak(), kSilentPower));
  const double top = 10 * std::ceil(peak_db / 10);
  return {top - kShownDb, top};
}

std::string Axis::label(double mark) const { return short_number(mark / unit_size); }

Axis time_axis(double span, int most_marks) {
  if (span < 0.5) return make_axis(span, 1e-3, "ms", most_marks);
  if (span < 120) return make_axis(span, 1, "s", most_marks);
  return make_axis(span, 60, "min", most_marks);
}

Axis frequency_axis(double span, int most_marks) {
  if (span < 2000) return make_axis(span, 1, "Hz", most_marks);
  return make_axis(span, 1000, "kHz", most_marks);
}

Colour colour_of(double level) {
  const double violet = std::sin(std::numbers::pi * std::min(level / 0.7, 1.0));
  return {channel(0.04 + 0.96 * smooth_step(0.1, 0.7, level)),
          channel(0.02 + 0.96 * smooth_step(0.35, 1.0, level)),
          channel(0.08 + 0.5 * violet + 0.65 * smooth_step(0.75, 1.0, level))};
}

std::string short_number(double value, int digits) {
  char text[32];
  std::snprintf(text, sizeof text, "%.*g", digits, value + 0.0);  // no minus before zero
  return text;
}

}  // namespace haldgen::demo
