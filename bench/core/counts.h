// Operation counts of the kernels, as the generator prints them.
#pragma once

#include <istream>
#include <map>
#include <optional>
#include <string>
#include <tuple>

namespace haldgen::bench {

/// Real additions, and conversions between 32 and 64 bits, per kernel, read from a table of
/// tab-separated columns. The first line names the columns; `length`, `type` and `add` are needed,
/// `family` is optional (without it the counts hold for every family), so is `convert`, others are
/// passed over. Lines that start with '#' are comments.
class OperationCounts {
 public:
  OperationCounts() = default;

  /// Throws std::runtime_error, naming the line, when the table cannot be read.
  static OperationCounts read(std::istream& input);

  struct Counts {
    double additions;
    double conversions;
    friend bool operator==(const Counts&, const Counts&) = default;
  };
  std::optional<Counts> of(const std::string& family, const std::string& type, int length) const;

 private:
  std::map<std::tuple<std::string, std::string, int>, Counts> counts_;
};

}  // namespace haldgen::bench
