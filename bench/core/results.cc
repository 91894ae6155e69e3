// The table that the benchmarks write.
#include "bench/core/results.h"

#include <stdlib.h>

#include <algorithm>
#include <array>
#include <ctime>
#include <fstream>
#include <iomanip>
#include <sstream>
#include <string_view>
#include <thread>

namespace haldgen::bench {
namespace {

constexpr std::array<std::string_view, 6> role_names = {"subject",  "variant",     "peer",
                                                        "baseline", "narrow_peer", "calibration"};

double minimum(std::span<const double> samples) {
  return *std::min_element(samples.begin(), samples.end());
}

std::string processor() {
  std::ifstream file("/proc/cpuinfo");
  for (std::string line; std::getline(file, line);) {
    if (line.starts_with("model name")) return line.substr(line.find(": ") + 2);
  }
  return "unknown";
}

std::string load_average() {
  double load = 0;
  if (getloadavg(&load, 1) != 1) return "unknown";
  std::ostringstream text;
  text << std::fixed << std::setprecision(2) << load;
  return text.str();
}

}  // namespace

double median(std::span<const double> samples) {
  std::vector<double> sorted(samples.begin(), samples.end());
  std::sort(sorted.begin(), sorted.end());
  return (sorted[(sorted.size() - 1) / 2] + sorted[sorted.size() / 2]) / 2;
}

Head describe_machine() {
  const std::time_t now = std::time(nullptr);
  std::ostringstream today;
  today << std::put_time(std::gmtime(&now), "%F");
  return {{"processor", processor()},
          {"cores", std::to_string(std::thread::hardware_concurrency())},
          {"date", today.str()},
          {"load at start", load_average()}};
}

void write_results(std::ostream& out, Head head, const std::vector<Measurement>& measurements) {
  head.emplace_back("load at end", load_average());
  // The contestants of all measurements by their roles, in the order in which they first occur.
  std::vector<std::string> columns;
  for (std::size_t role = 0; role < role_names.size(); ++role) {
    std::string line;
    for (const Measurement& measurement : measurements) {
      for (const Contestant& contestant : measurement.contestants) {
        if (static_cast<std::size_t>(contestant.role) != role ||
            std::find(columns.begin(), columns.end(), contestant.name) != columns.end()) {
          continue;
        }
        line += (line.empty() ? "" : " ") + contestant.name;
        columns.push_back(contestant.name);
      }
    }
    if (!line.empty()) head.emplace_back(role_names.at(role), line);
  }
  for (const auto& [key, value] : head) out << "# " << key << ": " << value << '\n';
  out << "mode\tstatistic\tfamily\ttype\tlength";
  for (const std::string& column : columns) out << '\t' << column;
  out << '\n' << std::fixed << std::setprecision(4);
  for (const Measurement& row : measurements) {
    for (const auto& [name, statistic] : {std::pair("median", &median), {"minimum", &minimum}}) {
      out << row.mode << '\t' << name << '\t' << row.family << '\t' << row.type << '\t'
          << row.length;
      for (const std::string& column : columns) {
        const auto of = std::find_if(row.contestants.begin(), row.contestants.end(),
                                     [&](const Contestant& one) { return one.name == column; });
        out << '\t';
        if (of == row.contestants.end()) {
          out << '-';
        } else {
          out << statistic(of->samples);
        }
      }
      out << '\n';
    }
  }
}

}  // namespace haldgen::bench
