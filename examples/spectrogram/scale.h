// What the two pictures share: the scale of loudness, the axes and the colours.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace haldgen::demo {

class TimeGrid;

/// Decibels shown, 0 dB being a sine of full scale.
struct LoudnessRange {
  double bottom_db;
  double top_db;

  /// 0 at or below the bottom, 1 at or above the top.
  double level(double power) const;
};

/// Seventy decibels that end at the first multiple of ten at or above the loudest part.
LoudnessRange loudness_range(const TimeGrid& grid);

/// Marks along an axis that starts at zero.
struct Axis {
  double span;                ///< end of the axis, in seconds or hertz
  double unit_size;           ///< seconds or hertz in one unit
  std::string unit;           ///< such as "kHz"
  std::vector<double> marks;  ///< positions in seconds or hertz, ascending from zero

  /// A mark as a number of units.
  std::string label(double mark) const;
};

/// At most `most_marks` + 1 marks at round numbers; `span` > 0, `most_marks` >= 1.
Axis time_axis(double span, int most_marks);
Axis frequency_axis(double span, int most_marks);

struct Colour {
  std::uint8_t red;
  std::uint8_t green;
  std::uint8_t blue;
};

/// From near black over violet and orange to pale yellow; brightness rises throughout, so the
/// order of levels survives printing in grey. `level` in 0..1.
Colour colour_of(double level);

/// The number as "%.*g" prints it.
std::string short_number(double value, int digits = 4);

}  // namespace haldgen::demo
