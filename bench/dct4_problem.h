// One DCT-IV to be measured.
#pragma once

#include "bench/problem.h"

namespace haldgen::bench {

class Dct4Problem final : public Problem {
 public:
  /// `element` is f32 or f64.
  Dct4Problem(names::Element element, int length) : element_(element), length_(length) {}

  std::vector<std::byte> source() const override;
  std::size_t result_bytes() const override;
  std::string fault(const Contestant& contestant, const Walk& walk,
                    std::span<const std::byte> source) const override;
  std::vector<Contestant> rivals() const override;
  std::optional<OperationCounts::Counts> work(const OperationCounts& counts) const override;

 private:
  names::Element element_;
  int length_;
};

}  // namespace haldgen::bench
