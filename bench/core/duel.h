// The measuring loop: contestants take turns in slices of some ten microseconds.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "bench/core/contestant.h"

namespace haldgen::bench {

/// Times contestants against one another. Measuring one contestant after another would credit
/// changes of clock rate, and whatever else the machine does meanwhile, to whoever runs at that
/// moment; here each round gives every contestant one short slice, so such changes reach all of
/// them, and the order rotates and turns round so that nobody always follows the same neighbour.
class Duel {
 public:
  /// Calibrates how many calls of each contestant fill a slice of about `slice_ns` nanoseconds;
  /// this also warms everything up. The contestants must outlive the duel.
  Duel(const std::vector<Contestant>& contestants, const Walk& walk, double slice_ns);

  /// One slice of every contestant.
  void round();

  const std::vector<Contestant>& contestants() const { return contestants_; }

  /// Nanoseconds per call, or per thing that it does: one list per contestant, in their order, one
  /// entry per round.
  const std::vector<std::vector<double>>& samples() const { return samples_; }

 private:
  double timed_slice(std::size_t index) const;
  std::int64_t calibrate(const Slice& slice, double slice_ns) const;

  const std::vector<Contestant>& contestants_;
  Walk walk_;
  std::vector<std::int64_t> calls_;
  std::vector<std::vector<double>> samples_;
  std::size_t rounds_ = 0;
};

}  // namespace haldgen::bench
