// Operation counts of the kernels.
#include "bench/core/counts.h"

#include <algorithm>
#include <sstream>
#include <stdexcept>
#include <vector>

namespace haldgen::bench {
namespace {

std::vector<std::string> split(const std::string& line) {
  std::vector<std::string> cells;
  std::istringstream stream(line);
  for (std::string cell; std::getline(stream, cell, '\t');) cells.push_back(cell);
  return cells;
}

std::optional<std::size_t> column(const std::vector<std::string>& header, const std::string& name) {
  const auto found = std::find(header.begin(), header.end(), name);
  if (found == header.end()) return std::nullopt;
  return static_cast<std::size_t>(found - header.begin());
}

std::size_t required(const std::vector<std::string>& header, const std::string& name) {
  const std::optional<std::size_t> index = column(header, name);
  if (!index) throw std::runtime_error("operation counts: no column '" + name + "'");
  return *index;
}

}  // namespace

OperationCounts OperationCounts::read(std::istream& input) {
  OperationCounts counts;
  std::vector<std::string> header;
  int number = 0;
  for (std::string line; std::getline(input, line);) {
    ++number;
    if (line.empty() || line.front() == '#') continue;
    const std::vector<std::string> cells = split(line);
    if (header.empty()) {
      header = cells;
      continue;
    }
    try {
      const std::optional<std::size_t> family = column(header, "family");
      const std::optional<std::size_t> convert = column(header, "convert");
      counts.counts_[{family ? cells.at(*family) : "", cells.at(required(header, "type")),
                      std::stoi(cells.at(required(header, "length")))}] = {
          std::stod(cells.at(required(header, "add"))),
          convert ? std::stod(cells.at(*convert)) : 0};
    } catch (const std::logic_error&) {  // a cell is missing or not a number
      throw std::runtime_error("operation counts: cannot read line " + std::to_string(number));
    }
  }
  return counts;
}

std::optional<OperationCounts::Counts> OperationCounts::of(const std::string& family,
                                                           const std::string& type,
                                                           int length) const {
  for (const std::string& key : {family, std::string()}) {
    const auto found = counts_.find({key, type, length});
    if (found != counts_.end()) return found->second;
  }
  return std::nullopt;
}

}  // namespace haldgen::bench
