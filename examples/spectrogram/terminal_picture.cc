// Characters stand about twice as tall as wide, so a half block shows two rows of the picture.
#include "spectrogram/terminal_picture.h"

#include <langinfo.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <algorithm>
#include <clocale>
#include <cmath>
#include <cstddef>
#include <cstdlib>
#include <string_view>
#include <vector>

#include "spectrogram/scale.h"
#include "spectrogram/time_grid.h"

namespace haldgen::demo {
namespace {

constexpr int kLabelWidth = 10;
constexpr int kLeastWidth = 40;
constexpr int kGoodHeight = 32;  // rows of the picture, for few bins
constexpr std::string_view kShades = " .:-=+*#%@";

std::string_view environment(const char* name) {
  const char* value = std::getenv(name);
  return value == nullptr ? "" : value;
}

/// Levels by row from the bottom, each row `width` wide.
using Rows = std::vector<std::vector<double>>;

Rows rows_of(const TimeGrid& grid, int width, int rows_per_bin) {
  const LoudnessRange range = loudness_range(grid);
  Rows rows(static_cast<std::size_t>(grid.bins() * rows_per_bin));
  for (int x = 0; x < width; ++x) {
    const std::vector<double> power = grid.slice(x, width);
    for (std::size_t row = 0; row < rows.size(); ++row) {
      rows[row].push_back(range.level(power[row / static_cast<std::size_t>(rows_per_bin)]));
    }
  }
  return rows;
}

// The nearest colour of the palette's 6x6x6 cube.
std::string palette_colour(Colour colour) {
  const auto step = [](int value) { return value < 48 ? 0 : value < 115 ? 1 : (value - 35) / 40; };
  return "5;" +
         std::to_string(16 + 36 * step(colour.red) + 6 * step(colour.green) + step(colour.blue));
}

std::string true_colour(Colour colour) {
  return "2;" + std::to_string(colour.red) + ';' + std::to_string(colour.green) + ';' +
         std::to_string(colour.blue);
}

// One character that shows an upper and a lower level.
class CellWriter {
 public:
  explicit CellWriter(TextStyle style) : style_(style) {}

  void put(std::string& line, double upper, double lower) {
    if (style_ == TextStyle::ascii) {
      const auto last = static_cast<double>(kShades.size() - 1);
      line += kShades[static_cast<std::size_t>(std::lround(std::max(upper, lower) * last))];
      return;
    }
    std::string colours = "\033[38;" + code(upper) + ";48;" + code(lower) + 'm';
    if (colours != current_) line += colours;
    current_ = std::move(colours);
    line += "\u2580";
  }

  void end(std::string& line) {
    if (!current_.empty()) line += "\033[0m";
    current_.clear();
  }

 private:
  std::string code(double level) const {
    const Colour colour = colour_of(level);
    return style_ == TextStyle::true_colour ? true_colour(colour) : palette_colour(colour);
  }

  TextStyle style_;
  std::string current_;
};

std::string right_aligned(const std::string& text, int width) {
  const auto wanted = static_cast<std::size_t>(width);
  return text.size() < wanted ? std::string(wanted - text.size(), ' ') + text : text;
}

// The label beside the line of text whose lowest row is `row` and which is `height` rows tall.
std::string frequency_label(const Axis& axis, int row, int height, double rows_per_hz,
                            int rows_per_bin) {
  for (const double mark : axis.marks) {
    const int at = static_cast<int>(mark * rows_per_hz + 0.5 * rows_per_bin);
    if (at >= row && at < row + height) return axis.label(mark) + ' ' + axis.unit + " |";
  }
  return "|";
}

std::string time_lines(double seconds, int width) {
  const Axis axis = time_axis(seconds, std::max(1, width / 10));
  std::string ruler(static_cast<std::size_t>(width), '-');
  std::string labels(static_cast<std::size_t>(width), ' ');
  for (const double mark : axis.marks) {
    const auto x = static_cast<std::size_t>(std::lround(mark / seconds * (width - 1)));
    const std::string label = axis.label(mark) + ' ' + axis.unit;
    ruler[x] = '+';
    const std::size_t from = std::min(x, labels.size() - label.size());
    labels.replace(from, label.size(), label);
  }
  labels.erase(labels.find_last_not_of(' ') + 1);
  const std::string margin(kLabelWidth - 1, ' ');
  return margin + '|' + ruler + '\n' + margin + ' ' + labels + '\n';
}

std::string loudness_line(const LoudnessRange& range, TextStyle style) {
  constexpr int kSteps = 10;
  CellWriter cells(style);
  std::string ramp;
  for (int i = 0; i < kSteps; ++i) {
    const double level = i / (kSteps - 1.0);
    cells.put(ramp, level, level);
  }
  cells.end(ramp);
  return std::string(kLabelWidth, ' ') + short_number(range.bottom_db) + " dB [" + ramp + "] " +
         short_number(range.top_db) + " dB\n";
}

}  // namespace

TextStyle style_of_stdout() {
  std::setlocale(LC_CTYPE, "");
  const bool utf8 = std::string_view(nl_langinfo(CODESET)) == "UTF-8";
  const std::string_view terminal = environment("TERM");
  const bool coloured = !terminal.empty() && terminal != "dumb" && environment("NO_COLOR").empty();
  if (isatty(STDOUT_FILENO) == 0 || !utf8 || !coloured) return TextStyle::ascii;
  const std::string_view depth = environment("COLORTERM");
  const bool deep = depth == "truecolor" || depth == "24bit";
  return deep ? TextStyle::true_colour : TextStyle::colours_256;
}

int width_of_stdout() {
  winsize size{};
  const bool known = ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0;
  return known ? size.ws_col : 80;
}

std::string text_picture(const TimeGrid& grid, double seconds, double bin_hz, TextStyle style,
                         int width) {
  const int rows_per_line = style == TextStyle::ascii ? 1 : 2;
  const int good_height = kGoodHeight * rows_per_line / 2;
  const int rows_per_bin = std::max(1, good_height / grid.bins());
  const int plot_width = std::max(width, kLeastWidth) - kLabelWidth;
  const Rows rows = rows_of(grid, plot_width, rows_per_bin);
  const int height = static_cast<int>(rows.size());
  const int lines = (height + rows_per_line - 1) / rows_per_line;
  const Axis axis = frequency_axis((grid.bins() - 1) * bin_hz, std::min(8, std::max(1, lines - 1)));

  CellWriter cells(style);
  std::string text;
  for (int line = lines - 1; line >= 0; --line) {
    const int lower = line * rows_per_line;
    const int upper = lower + rows_per_line - 1;
    text += right_aligned(
        frequency_label(axis, lower, rows_per_line, rows_per_bin / bin_hz, rows_per_bin),
        kLabelWidth);
    for (std::size_t x = 0; x < static_cast<std::size_t>(plot_width); ++x) {
      // Above the topmost row there is nothing to show.
      const double above = upper < height ? rows[static_cast<std::size_t>(upper)][x] : 0.0;
      cells.put(text, above, rows[static_cast<std::size_t>(lower)][x]);
    }
    cells.end(text);
    text += '\n';
  }
  return text + time_lines(seconds, plot_width) + loudness_line(loudness_range(grid), style);
}

}  // namespace haldgen::demo
