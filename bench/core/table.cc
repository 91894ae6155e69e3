// A table of text cells.
#include "bench/core/table.h"

#include <algorithm>
#include <iomanip>
#include <sstream>

namespace haldgen::bench {
namespace {

std::vector<std::size_t> column_widths(const Table& table) {
  std::vector<std::size_t> widths;
  for (std::size_t column = 0; column < table.header.size(); ++column) {
    std::size_t width = table.header[column].size();
    for (const auto& row : table.rows) width = std::max(width, row.at(column).size());
    widths.push_back(width);
  }
  return widths;
}

void write_row(std::ostream& out, const std::vector<std::string>& row,
               const std::vector<std::size_t>& widths) {
  for (std::size_t column = 0; column < row.size(); ++column) {
    out << (column == 0 ? "" : "  ") << std::setw(static_cast<int>(widths[column])) << row[column];
  }
  out << '\n';
}

void write_tsv_row(std::ostream& out, const std::vector<std::string>& row) {
  for (std::size_t column = 0; column < row.size(); ++column) {
    out << (column == 0 ? "" : "\t") << row[column];
  }
  out << '\n';
}

}  // namespace

std::string cell(std::optional<double> value, int decimals) {
  if (!value) return "-";
  std::ostringstream text;
  text << std::fixed << std::setprecision(decimals) << *value;
  return text.str();
}

void write_aligned(std::ostream& out, const Table& table) {
  const std::vector<std::size_t> widths = column_widths(table);
  write_row(out, table.header, widths);
  for (const auto& row : table.rows) write_row(out, row, widths);
}

void write_tsv(std::ostream& out, const Table& table) {
  write_tsv_row(out, table.header);
  for (const auto& row : table.rows) write_tsv_row(out, row);
}

}  // namespace haldgen::bench
