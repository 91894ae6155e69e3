// One transform of real samples to be measured: its data, its check, its rivals.
#pragma once

#include "bench/problem.h"

namespace haldgen::bench {

enum class RealKind {
  forward,  ///< to a half spectrum in CCS format, the layout of the other libraries
  inverse,  ///< from one
  hartley,
};

/// A transform without scaling.
struct RealTransform {
  RealKind kind;
  names::Element element;  ///< f32 or f64
  int length;

  std::size_t source_floats() const;
  std::size_t result_floats() const;
  std::size_t float_bytes() const;
};

/// The transform of a fixed-size function, if it is one of these.
std::optional<RealTransform> real_transform_of(const registry::Export& function);

class RealProblem final : public Problem {
 public:
  explicit RealProblem(const RealTransform& transform) : transform_(transform) {}

  std::vector<std::byte> source() const override;
  std::size_t result_bytes() const override;
  std::string fault(const Contestant& contestant, const Walk& walk,
                    std::span<const std::byte> source) const override;
  std::vector<Contestant> rivals() const override;
  std::vector<Contestant> yardsticks() const override;
  std::optional<OperationCounts::Counts> work(const OperationCounts& counts) const override;

 private:
  RealTransform transform_;
};

}  // namespace haldgen::bench
