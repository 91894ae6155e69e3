// The few statistics that the benchmark reports.
#pragma once

#include <span>
#include <string_view>

namespace haldgen::bench {

enum class Statistic { median, minimum };

std::string_view name(Statistic statistic);

/// Value of the statistic over at least one sample. The median of an even number of samples is the
/// mean of the two in the middle.
double evaluate(Statistic statistic, std::span<const double> samples);

/// Geometric mean of at least one positive value.
double geometric_mean(std::span<const double> values);

}  // namespace haldgen::bench
