// From samples to figures: times, ratios, the bound of the operation counts, and the summaries.
#pragma once

#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "bench/core/arena.h"
#include "bench/core/contestant.h"
#include "bench/core/statistics.h"
#include "bench/core/table.h"

namespace haldgen::bench {

/// Names of the two calibration contestants of every family.
inline constexpr const char* null_call_name = "null_call";
inline constexpr const char* vector_add_name = "vector_add";
/// Of one for families that convert between 32 and 64 bits: pairs of a widening and a narrowing.
inline constexpr const char* convert_name = "convert";
/// And of one that some families have: a copy of the source to the destination.
inline constexpr const char* copy_name = "memcpy";

/// One contestant of a finished measurement.
struct Series {
  std::string name;
  Role role;
  std::vector<double>
      samples;  ///< nanoseconds per call (of vector_add and convert: per instruction)
};

/// One kernel measured in one mode.
struct Measurement {
  Mode mode;
  std::string family;  ///< transform word, such as DFTFwd_CToC
  std::string type;    ///< element suffix, such as 64fc
  int length;          ///< or the order, of a family whose functions are named by it
  std::optional<double> vector_additions;  ///< instructions of the subject that add
  std::vector<Series> series;
  bool sized_by_order = false;
  std::size_t bytes = 0;   ///< that a call has to read and to write; 0 if not known
  double conversions = 0;  ///< instructions of the subject that convert
};

/// The figures of one measurement for one statistic. A ratio is the subject's time over the
/// other's, so below 1 the subject is faster; it is absent when one of the two is.
struct Figures {
  explicit Figures(const Measurement& source, Statistic which);

  std::optional<double> time(const std::string& contestant) const;
  std::optional<double> ratio_to(const std::string& contestant) const;

  const Measurement* measurement;
  Statistic statistic;
  std::optional<double> subject;
  std::string best_peer;  ///< fastest contestant with Role::peer; empty without any
  std::optional<double> best_ratio;
  /// Time of a call plus that of the subject's additions and conversions at the full rate of the
  /// machine.
  std::optional<double> bound;
  std::optional<double> bound_ratio;
  /// Bytes that the subject reads and writes per nanosecond.
  std::optional<double> traffic;
};

/// The measurements of families that are sized alike: by length, then by order; none empty.
std::vector<std::vector<Measurement>> split_by_size(const std::vector<Measurement>& measurements);

/// One row per measurement and statistic, with the columns of all contestants that occur. The
/// measurements are of families that are sized alike.
Table figures_table(const std::vector<Measurement>& measurements, Mode mode, Statistic statistic);

/// The same for all modes and statistics together, with full precision and two columns in front
/// that tell them apart.
Table long_table(const std::vector<Measurement>& measurements);

/// Geometric means of the ratios and the worst kernels, over the groups of lengths that matter,
/// per type and together.
Table summary_table(const std::vector<Measurement>& measurements);

/// Picture (SVG) of the medians: ratio per length to the best peer, to the narrow peer and to the
/// baselines, for each type of this family and mode.
void write_picture(std::ostream& out, const std::vector<Measurement>& measurements,
                   const std::string& family, Mode mode);

}  // namespace haldgen::bench
