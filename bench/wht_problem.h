// One Walsh-Hadamard transform to be measured, against loops that a compiler has vectorised.
#pragma once

#include "bench/problem.h"

namespace haldgen::bench {

class WhtProblem final : public Problem {
 public:
  /// `element` is f32 or f64.
  WhtProblem(names::Element element, int order) : element_(element), order_(order) {}

  std::vector<std::byte> source() const override;
  std::size_t result_bytes() const override;
  std::string fault(const Contestant& contestant, const Walk& walk,
                    std::span<const std::byte> source) const override;
  std::vector<Contestant> rivals() const override;
  std::vector<Contestant> yardsticks() const override;
  /// Known without a table: half a sum and half a difference for each element and level.
  std::optional<OperationCounts::Counts> work(const OperationCounts& counts) const override;
  bool sized_by_order() const override { return true; }

 private:
  names::Element element_;
  int order_;
};

}  // namespace haldgen::bench
