// The spectrogram as text.
#pragma once

#include <string>

namespace haldgen::demo {

class TimeGrid;

enum class TextStyle {
  ascii,        ///< shades of plain characters
  colours_256,  ///< half blocks in the 256-colour palette
  true_colour,  ///< half blocks in 24-bit colour
};

/// What standard output can show: plain characters unless it is a terminal with UTF-8 text and
/// colours.
TextStyle style_of_stdout();

/// Columns of the terminal on standard output; 80 when there is none.
int width_of_stdout();

/// Lines that end in a newline and hold at most `width` characters (at least 40 are used):
/// frequency upwards, time to the right, the decibel scale below. Arguments as PngFile::write.
std::string text_picture(const TimeGrid& grid, double seconds, double bin_hz, TextStyle style,
                         int width);

}  // namespace haldgen::demo
