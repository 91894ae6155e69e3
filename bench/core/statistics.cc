// The few statistics that the benchmark reports.
#include "bench/core/statistics.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace haldgen::bench {
namespace {

double median(std::span<const double> samples) {
  std::vector<double> sorted(samples.begin(), samples.end());
  std::sort(sorted.begin(), sorted.end());
  const std::size_t upper = sorted.size() / 2;
  if (sorted.size() % 2 != 0) return sorted[upper];
  return (sorted[upper - 1] + sorted[upper]) / 2;
}

}  // namespace

std::string_view name(Statistic statistic) {
  return statistic == Statistic::median ? "median" : "minimum";
}

double evaluate(Statistic statistic, std::span<const double> samples) {
  if (statistic == Statistic::median) return median(samples);
  return *std::min_element(samples.begin(), samples.end());
}

double geometric_mean(std::span<const double> values) {
  double sum = 0;
  for (const double value : values) sum += std::log(value);
  return std::exp(sum / static_cast<double>(values.size()));
}

}  // namespace haldgen::bench
