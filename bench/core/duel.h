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
  /// this also warms everything up.
  Duel(std::vector<Contestant> contestants, const Walk& walk, double slice_ns);

  /// One slice of every contestant.
  void round();

  /// With their samples so far.
  const std::vector<Contestant>& contestants() const { return contestants_; }

 private:
  std::int64_t calibrate(const Slice& slice, double slice_ns) const;

  std::vector<Contestant> contestants_;
  Walk walk_;
  std::vector<std::int64_t> calls_;
  std::size_t rounds_ = 0;
};

}  // namespace haldgen::bench
