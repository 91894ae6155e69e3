// A table of text cells, written aligned for readers or tab-separated for programs.
#pragma once

#include <optional>
#include <ostream>
#include <string>
#include <vector>

namespace haldgen::bench {

struct Table {
  std::vector<std::string> header;
  std::vector<std::vector<std::string>> rows;  ///< as many cells each as the header
};

/// Number with so many decimals, or "-" for none.
std::string cell(std::optional<double> value, int decimals);

/// Columns of equal width, cells flush right.
void write_aligned(std::ostream& out, const Table& table);

/// One line per row, tabs between cells.
void write_tsv(std::ostream& out, const Table& table);

}  // namespace haldgen::bench
