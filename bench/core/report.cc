// From samples to figures.
#include "bench/core/report.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>
#include <map>

#include "bench/core/chart.h"

namespace haldgen::bench {
namespace {

constexpr std::array statistics = {Statistic::median, Statistic::minimum};
constexpr std::array modes = {Mode::hot, Mode::ring};

std::optional<double> quotient(std::optional<double> a, std::optional<double> b) {
  if (!a || !b) return std::nullopt;
  return *a / *b;
}

struct Column {
  std::string name;
  Role role;
};

/// The contestants of all measurements, in the order in which they first occur.
std::vector<Column> contestant_columns(const std::vector<Measurement>& measurements) {
  std::vector<Column> columns;
  for (const Measurement& measurement : measurements) {
    for (const Series& series : measurement.series) {
      const bool known = std::any_of(columns.begin(), columns.end(), [&](const Column& column) {
        return column.name == series.name;
      });
      if (!known) columns.push_back({series.name, series.role});
    }
  }
  std::stable_sort(columns.begin(), columns.end(),
                   [](const Column& a, const Column& b) { return a.role < b.role; });
  return columns;
}

bool is_per_instruction(const std::string& name) {
  return name == vector_add_name || name == convert_name;
}

bool has_own_ratio(const Column& column) {
  return column.role == Role::variant || column.role == Role::narrow_peer ||
         column.role == Role::baseline || column.name == copy_name;
}

bool has_role(const std::vector<Column>& columns, Role role) {
  return std::any_of(columns.begin(), columns.end(),
                     [role](const Column& column) { return column.role == role; });
}

/// Traffic is of interest where there is a copy to hold it against.
bool shows_traffic(const std::vector<Column>& columns) {
  return std::any_of(columns.begin(), columns.end(),
                     [](const Column& column) { return column.name == copy_name; });
}

std::vector<std::string> header(const std::vector<Column>& columns) {
  std::vector<std::string> names = {"family", "type", "length"};
  for (const Column& column : columns) names.push_back(column.name);
  if (has_role(columns, Role::peer)) names.insert(names.end(), {"best_peer", "/best"});
  for (const Column& column : columns) {
    if (has_own_ratio(column)) names.push_back("/" + column.name);
  }
  names.insert(names.end(), {"bound", "/bound"});
  if (shows_traffic(columns)) names.emplace_back("GB/s");
  return names;
}

std::vector<std::string> row(const Figures& figures, const std::vector<Column>& columns,
                             int extra_decimals) {
  const Measurement& measurement = *figures.measurement;
  std::vector<std::string> cells = {measurement.family, measurement.type,
                                    std::to_string(measurement.length)};
  for (const Column& column : columns) {
    // The time of one addition is a fraction of a clock cycle.
    const int decimals = (is_per_instruction(column.name) ? 3 : 2) + extra_decimals;
    cells.push_back(cell(figures.time(column.name), decimals));
  }
  if (has_role(columns, Role::peer)) {
    cells.push_back(figures.best_peer.empty() ? "-" : figures.best_peer);
    cells.push_back(cell(figures.best_ratio, 3 + extra_decimals));
  }
  for (const Column& column : columns) {
    if (has_own_ratio(column)) {
      cells.push_back(cell(figures.ratio_to(column.name), 3 + extra_decimals));
    }
  }
  cells.push_back(cell(figures.bound, 2 + extra_decimals));
  cells.push_back(cell(figures.bound_ratio, 3 + extra_decimals));
  if (shows_traffic(columns)) cells.push_back(cell(figures.traffic, 1 + extra_decimals));
  return cells;
}

/// A set of lengths that the summary looks at.
struct Group {
  const char* name;
  bool of_orders;
  bool (*contains)(int length);
  int beyond = 0;  ///< no row for families that have no length above this
};

constexpr std::array groups = {
    Group{"8,16,32,64", false, [](int n) { return n == 8 || n == 16 || n == 32 || n == 64; }},
    Group{"6..64", false, [](int n) { return 6 <= n && n <= 64; }},
    Group{"2..64", false, [](int n) { return 2 <= n && n <= 64; }},
    Group{"8..4096", false, [](int n) { return 8 <= n && n <= 4096; }, 64},
    Group{"8192 up", false, [](int n) { return n >= 8192; }},
    Group{"orders 1..7", true, [](int order) { return order <= 7; }},
    Group{"orders 8..13", true, [](int order) { return order >= 8; }},
    Group{"all orders", true, [](int) { return true; }},
};

using Ratio = std::function<std::optional<double>(const Figures&)>;

struct Mean {
  std::string geometric = "-";
  std::string worst = "-";
};

Mean mean_of(const std::vector<Figures>& members, const Ratio& ratio) {
  std::vector<double> values;
  const Measurement* worst = nullptr;
  double largest = 0;
  for (const Figures& figures : members) {
    const std::optional<double> value = ratio(figures);
    if (!value) continue;
    values.push_back(*value);
    if (*value <= largest) continue;
    largest = *value;
    worst = figures.measurement;
  }
  if (values.empty()) return {};
  return {
      cell(geometric_mean(values), 3),
      // There is a worst of some values. NOLINTNEXTLINE(clang-analyzer-core.NonNullParamChecker)
      cell(largest, 3) + " at " + worst->type + "/" + std::to_string(worst->length)};
}

std::vector<Figures> select(const std::vector<Measurement>& measurements, Statistic statistic,
                            const std::function<bool(const Measurement&)>& wanted) {
  std::vector<Figures> selected;
  for (const Measurement& measurement : measurements) {
    if (wanted(measurement)) selected.emplace_back(measurement, statistic);
  }
  return selected;
}

std::vector<std::string> distinct(const std::vector<Measurement>& measurements,
                                  std::string Measurement::*field) {
  std::vector<std::string> values;
  for (const Measurement& measurement : measurements) {
    const std::string& value = measurement.*field;
    if (std::find(values.begin(), values.end(), value) == values.end()) values.push_back(value);
  }
  return values;
}

}  // namespace

Figures::Figures(const Measurement& source, Statistic which)
    : measurement(&source), statistic(which) {
  std::optional<double> best;
  for (const Series& series : source.series) {
    const double value = evaluate(which, series.samples);
    if (series.role == Role::subject) subject = value;
    if (series.role == Role::peer && (!best || value < *best)) {
      best = value;
      best_peer = series.name;
    }
  }
  best_ratio = quotient(subject, best);
  const std::optional<double> call = time(null_call_name);
  const std::optional<double> addition = time(vector_add_name);
  const std::optional<double> conversion =
      source.conversions == 0 ? std::optional<double>(0) : time(convert_name);
  if (source.vector_additions && call && addition && conversion) {
    bound = *call + *source.vector_additions * *addition + source.conversions * *conversion;
  }
  bound_ratio = quotient(subject, bound);
  if (source.bytes != 0 && subject) traffic = static_cast<double>(source.bytes) / *subject;
}

std::optional<double> Figures::time(const std::string& contestant) const {
  for (const Series& series : measurement->series) {
    if (series.name == contestant) return evaluate(statistic, series.samples);
  }
  return std::nullopt;
}

std::optional<double> Figures::ratio_to(const std::string& contestant) const {
  return quotient(subject, time(contestant));
}

std::vector<std::vector<Measurement>> split_by_size(const std::vector<Measurement>& measurements) {
  std::vector<std::vector<Measurement>> parts(2);
  for (const Measurement& m : measurements) parts[m.sized_by_order ? 1 : 0].push_back(m);
  std::erase_if(parts, [](const auto& part) { return part.empty(); });
  return parts;
}

Table figures_table(const std::vector<Measurement>& measurements, Mode mode, Statistic statistic) {
  const std::vector<Column> columns = contestant_columns(measurements);
  Table table{header(columns), {}};
  if (!measurements.empty() && measurements.front().sized_by_order) table.header[2] = "order";
  for (const Figures& figures :
       select(measurements, statistic, [&](const Measurement& m) { return m.mode == mode; })) {
    table.rows.push_back(row(figures, columns, 0));
  }
  return table;
}

Table long_table(const std::vector<Measurement>& measurements) {
  const std::vector<Column> columns = contestant_columns(measurements);
  Table table{header(columns), {}};
  table.header.insert(table.header.begin(), {"mode", "statistic"});
  for (const Mode mode : modes) {
    for (const Statistic statistic : statistics) {
      for (const Figures& figures :
           select(measurements, statistic, [&](const Measurement& m) { return m.mode == mode; })) {
        std::vector<std::string> cells = row(figures, columns, 2);
        cells.insert(cells.begin(), {std::string(name(mode)), std::string(name(statistic))});
        table.rows.push_back(std::move(cells));
      }
    }
  }
  return table;
}

Table summary_table(const std::vector<Measurement>& measurements) {
  const std::vector<Column> columns = contestant_columns(measurements);
  std::vector<std::pair<std::string, Ratio>> ratios;
  if (has_role(columns, Role::peer)) {
    ratios.emplace_back("/best", [](const Figures& f) { return f.best_ratio; });
  }
  for (const Column& column : columns) {
    if (!has_own_ratio(column)) continue;
    ratios.emplace_back("/" + column.name,
                        [name = column.name](const Figures& f) { return f.ratio_to(name); });
  }
  ratios.emplace_back("/bound", [](const Figures& f) { return f.bound_ratio; });

  Table table{{"mode", "statistic", "family", "lengths", "type", "kernels"}, {}};
  for (const auto& [title, ratio] : ratios) {
    table.header.insert(table.header.end(), {title, "worst " + title});
  }
  std::vector<std::string> types = distinct(measurements, &Measurement::type);
  if (types.size() > 1) types.emplace_back("all");

  const auto add_row = [&](Mode mode, Statistic statistic, const std::string& family,
                           const Group& group, const std::string& type) {
    const std::vector<Figures> members = select(measurements, statistic, [&](const Measurement& m) {
      return m.mode == mode && m.family == family && m.sized_by_order == group.of_orders &&
             group.contains(m.length) && (type == "all" || m.type == type);
    });
    if (std::none_of(members.begin(), members.end(), [&](const Figures& figures) {
          return figures.measurement->length > group.beyond;
        })) {
      return;
    }
    std::vector<std::string> cells = {
        std::string(name(mode)),       std::string(name(statistic)), family, group.name, type,
        std::to_string(members.size())};
    for (const auto& [title, ratio] : ratios) {
      const Mean mean = mean_of(members, ratio);
      cells.insert(cells.end(), {mean.geometric, mean.worst});
    }
    table.rows.push_back(std::move(cells));
  };

  for (const Mode mode : modes) {
    for (const Statistic statistic : statistics) {
      for (const std::string& family : distinct(measurements, &Measurement::family)) {
        for (const Group& group : groups) {
          for (const std::string& type : types) add_row(mode, statistic, family, group, type);
        }
      }
    }
  }
  return table;
}

void write_picture(std::ostream& out, const std::vector<Measurement>& measurements,
                   const std::string& family, Mode mode) {
  const bool log_scale =
      std::any_of(measurements.begin(), measurements.end(),
                  [&](const Measurement& m) { return m.family == family && m.length > 64; });
  constexpr std::array colours = {"#0b6fa4", "#c2410c", "#3f7d20", "#7c3aed"};
  Chart chart{family + ", " + std::string(name(mode)) +
                  " buffers: median time over that of the peer (below 1 is faster than it)",
              log_scale ? "log2 of the length" : "length or order",
              "ratio",
              1.0,
              {}};
  std::size_t colour = 0;
  for (const std::string& type : distinct(measurements, &Measurement::type)) {
    Line best{type + " / best peer", colours[colour], false, {}};
    Line narrow{type + " / peer held to 128 bits", colours[colour], true, {}};
    std::map<std::string, Line> baselines;
    colour = (colour + 1) % colours.size();
    for (const Figures& figures :
         select(measurements, Statistic::median, [&](const Measurement& m) {
           return m.mode == mode && m.family == family && m.type == type;
         })) {
      const double length =
          log_scale ? std::log2(figures.measurement->length) : figures.measurement->length;
      if (figures.best_ratio) best.points.push_back({length, *figures.best_ratio});
      for (const Series& series : figures.measurement->series) {
        if (!figures.subject) continue;
        const Point point{length, *figures.ratio_to(series.name)};
        if (series.role == Role::narrow_peer) narrow.points.push_back(point);
        if (series.role == Role::baseline) {
          const bool dashed = !baselines.empty() && !baselines.contains(series.name);
          const Line line{type + " / " + series.name, best.colour, dashed, {}};
          baselines.emplace(series.name, line).first->second.points.push_back(point);
        }
      }
    }
    for (auto& [name, line] : baselines) chart.lines.push_back(std::move(line));
    chart.lines.push_back(std::move(best));
    chart.lines.push_back(std::move(narrow));
  }
  write_svg(out, chart);
}

}  // namespace haldgen::bench
