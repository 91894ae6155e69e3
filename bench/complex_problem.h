// One complex transform to be measured: its data, and the check that a contestant computes it.
#pragma once

#include <cstddef>
#include <optional>
#include <random>
#include <span>
#include <string>
#include <vector>

#include "bench/core/contestant.h"
#include "registry/registry.h"

namespace haldgen::bench {

enum class Direction { forward, inverse };

/// A complex DFT without scaling, from natural to natural order.
struct ComplexProblem {
  Direction direction;
  names::Element element;  ///< c32 or c64
  int length;

  std::size_t bytes() const;  ///< of the source, and of the destination
};

/// The transform of a function of the complex families.
std::optional<ComplexProblem> complex_problem_of(const registry::Export& function);

/// The bytes of random samples from [-1, 1), the same for every program run.
std::vector<std::byte> random_source(const ComplexProblem& problem);

/// Relative error (root of the sum of squares) of `result` against the definition of the transform
/// of `source`, evaluated in wide arithmetic.
double relative_error(const ComplexProblem& problem, std::span<const std::byte> source,
                      std::span<const std::byte> result);

/// Runs one call on the first pair of the walk, whose source is `source`. Returns what is wrong:
/// an error larger than rounding explains, or a changed source. Empty if all is well.
std::string check_contestant(const ComplexProblem& problem, const Contestant& contestant,
                             const Walk& walk, std::span<const std::byte> source);

}  // namespace haldgen::bench
