// A line chart as SVG.
#pragma once

#include <ostream>
#include <string>
#include <vector>

namespace haldgen::bench {

struct Point {
  double x;
  double y;
};

struct Line {
  std::string label;
  std::string colour;
  bool dashed;
  std::vector<Point> points;  ///< in ascending x; neighbours more than 1 apart are not joined
};

struct Chart {
  std::string title;
  std::string x_label;
  std::string y_label;
  double reference;  ///< value at which a heavier horizontal line is drawn
  std::vector<Line> lines;
};

/// Draws points and lines on axes that begin at zero. Lines without points are left out.
void write_svg(std::ostream& out, const Chart& chart);

}  // namespace haldgen::bench
