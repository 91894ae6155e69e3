// The table that the benchmarks write: nanoseconds, tab-separated. Ratios, means and bounds are for
// who reads it (bench/summary.py).
#pragma once

#include <ostream>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "bench/core/contestant.h"

namespace haldgen::bench {

/// One transform measured in one mode.
struct Measurement {
  std::string mode;
  std::string family;  ///< transform word, such as DFTFwd_CToC
  std::string type;    ///< element suffix, such as 64fc
  int length;
  std::vector<Contestant> contestants;
};

/// The mean of the two in the middle, if samples are even in number. There is one at least.
double median(std::span<const double> samples);

using Head = std::vector<std::pair<std::string, std::string>>;

/// The head lines of every table that say where it comes from, all but the load at the end.
Head describe_machine();

/// The head with a line for each role, then the rows of medians and minima.
void write_results(std::ostream& out, Head head, const std::vector<Measurement>& measurements);

}  // namespace haldgen::bench
