// A line chart as SVG.
#include "bench/core/chart.h"

#include <algorithm>
#include <cmath>

#include "bench/core/table.h"

namespace haldgen::bench {
namespace {

constexpr double width = 860;
constexpr double height = 420;
constexpr double left = 60;
constexpr double right = 20;
constexpr double top = 60;
constexpr double bottom = 50;
constexpr double x_step = 8;
constexpr double most_y_steps = 10;

/// Smallest round distance of grid lines that keeps their number low.
double y_step_for(double largest) {
  double step = 0.25;
  while (largest / step > most_y_steps) step *= 2;
  return step;
}

std::string number(double value) { return cell(value, 1); }

std::string escape(const std::string& text) {
  std::string escaped;
  for (const char c : text) {
    if (c == '<') {
      escaped += "&lt;";
    } else if (c == '&') {
      escaped += "&amp;";
    } else {
      escaped += c;
    }
  }
  return escaped;
}

class Canvas {
 public:
  Canvas(std::ostream& out, const Chart& chart) : out_(out) {
    double x_largest = 0;
    double y_largest = chart.reference;
    for (const Line& line : chart.lines) {
      for (const Point& point : line.points) {
        x_largest = std::max(x_largest, point.x);
        y_largest = std::max(y_largest, point.y);
      }
    }
    x_end_ = std::max(x_step, std::ceil(x_largest / x_step) * x_step);
    y_step_ = y_step_for(y_largest);
    y_end_ = (std::floor(y_largest / y_step_) + 1) * y_step_;
  }

  void axes(const Chart& chart) {
    // Whole steps. NOLINTNEXTLINE(clang-analyzer-security.FloatLoopCounter)
    for (double x = 0; x <= x_end_; x += x_step) {
      segment(px(x), py(0), px(x), py(y_end_), "#ddd", 1);
      text(px(x), height - bottom + 18, "middle", cell(x, 0));
    }
    // NOLINTNEXTLINE(clang-analyzer-security.FloatLoopCounter)
    for (double y = 0; y <= y_end_; y += y_step_) {
      segment(px(0), py(y), px(x_end_), py(y), "#ddd", 1);
      text(left - 8, py(y) + 4, "end", cell(y, 2));
    }
    segment(px(0), py(chart.reference), px(x_end_), py(chart.reference), "#444", 1.5);
    text(left, 20, "start", chart.title);
    text((left + width - right) / 2, height - 12, "middle", chart.x_label);
    text(left - 45, top - 8, "start", chart.y_label);
  }

  void line(const Line& line) {
    const char* const dash = line.dashed ? " stroke-dasharray=\"5 4\"" : "";
    for (std::size_t i = 0; i < line.points.size(); ++i) {
      const Point& point = line.points[i];
      out_ << "<circle cx=\"" << number(px(point.x)) << "\" cy=\"" << number(py(point.y))
           << "\" r=\"3\" fill=\"" << (line.dashed ? "white" : line.colour) << "\" stroke=\""
           << line.colour << "\"/>\n";
      if (i == 0 || point.x - line.points[i - 1].x > 1) continue;
      const Point& previous = line.points[i - 1];
      segment(px(previous.x), py(previous.y), px(point.x), py(point.y), line.colour, 1.5, dash);
    }
  }

  void legend(const Line& line, double x) {
    const char* const dash = line.dashed ? " stroke-dasharray=\"5 4\"" : "";
    segment(x, 36, x + 24, 36, line.colour, 2, dash);
    text(x + 30, 40, "start", line.label);
  }

 private:
  double px(double x) const { return left + (width - left - right) * x / x_end_; }
  double py(double y) const { return height - bottom - (height - top - bottom) * y / y_end_; }

  void segment(double x1, double y1, double x2, double y2, const std::string& colour,
               double thickness, const char* dash = "") {
    out_ << "<line x1=\"" << number(x1) << "\" y1=\"" << number(y1) << "\" x2=\"" << number(x2)
         << "\" y2=\"" << number(y2) << "\" stroke=\"" << colour << "\" stroke-width=\""
         << number(thickness) << "\"" << dash << "/>\n";
  }

  void text(double x, double y, const char* anchor, const std::string& content) {
    out_ << "<text x=\"" << number(x) << "\" y=\"" << number(y) << "\" text-anchor=\"" << anchor
         << "\">" << escape(content) << "</text>\n";
  }

  std::ostream& out_;
  double x_end_;
  double y_step_;
  double y_end_;
};

}  // namespace

void write_svg(std::ostream& out, const Chart& chart) {
  out << "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 " << cell(width, 0) << ' '
      << cell(height, 0) << "\" font-family=\"sans-serif\" font-size=\"12\">\n"
      << "<rect width=\"100%\" height=\"100%\" fill=\"white\"/>\n";
  Canvas canvas(out, chart);
  canvas.axes(chart);
  double legend_x = left;
  for (const Line& line : chart.lines) {
    if (line.points.empty()) continue;
    canvas.line(line);
    canvas.legend(line, legend_x);
    legend_x += 60 + 7 * static_cast<double>(line.label.size());
  }
  out << "</svg>\n";
}

}  // namespace haldgen::bench
