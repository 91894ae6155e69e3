// A transform to be measured: its data, the check that a contestant computes it, who else does.
#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "bench/core/contestant.h"
#include "bench/core/counts.h"
#include "registry/registry.h"

namespace haldgen::bench {

/// A transform without scaling.
class Problem {
 public:
  virtual ~Problem() = default;

  /// The bytes of random samples from [-1, 1), the same for every program run.
  virtual std::vector<std::byte> source() const = 0;
  virtual std::size_t result_bytes() const = 0;

  /// Runs one call on the first pair of the walk, whose source is `source`. Returns what is wrong:
  /// an error larger than rounding explains, or a changed source. Empty if all is well.
  virtual std::string fault(const Contestant& contestant, const Walk& walk,
                            std::span<const std::byte> source) const = 0;

  /// Whom the kernel meets.
  virtual std::vector<Contestant> rivals() const = 0;

  /// What needs no check: copies and the like, which say what the machine can do.
  virtual std::vector<Contestant> yardsticks() const { return {}; }

  /// Instructions of the kernel that add or convert; none if they are not known.
  virtual std::optional<OperationCounts::Counts> work(const OperationCounts& counts) const = 0;

  /// Whether the size in the kernel's name is the order of a transform of 2^order points.
  virtual bool sized_by_order() const { return false; }
};

/// The transform of a fixed-size function; null if this program does not measure its family.
std::shared_ptr<const Problem> problem_of(const registry::Export& function);

}  // namespace haldgen::bench
