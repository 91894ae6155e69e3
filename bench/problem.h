// A transform to be measured: its data, and the check that contestants compute it.
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "bench/core/contestant.h"
#include "registry/registry.h"

namespace haldgen::bench {

/// Half spectra are in CCS format, the layout of the other libraries.
enum class Transform { dft, inverse_dft, real, inverse_real, hartley, wht, dct4 };

/// A transform without scaling.
struct Problem {
  Transform transform;
  names::Element element;
  int length;

  std::string word() const;  ///< of exported names
  std::string type() const { return std::string(names::suffix(element)); }
  bool is_float() const;
  bool is_inverse() const;
  std::size_t float_bytes() const { return is_float() ? sizeof(float) : sizeof(double); }
  int source_parts() const;  ///< floats of an element
  int result_parts() const;
  std::size_t source_floats() const;
  std::size_t result_floats() const;
  std::size_t source_bytes() const { return source_floats() * float_bytes(); }
  std::size_t result_bytes() const { return result_floats() * float_bytes(); }
};

/// The transform of a fixed-size function; none if this program does not measure its family.
std::optional<Problem> problem_of(const registry::Export& function);

/// Random samples from [-1, 1), the same for every program run, `count` transforms' sources.
std::vector<std::byte> random_source(const Problem& problem, std::size_t count = 1);

/// What one call on the first pair of the walk gives; NaN where it writes nothing.
std::vector<double> result(const Problem& problem, const Contestant& contestant, const Walk& walk);

/// What is wrong with the call whose result is `expected` in another library: a difference larger
/// than rounding explains, or a changed source, which `source` was. Empty if all is well.
std::string fault(const Problem& problem, const Contestant& contestant, const Walk& walk,
                  std::span<const std::byte> source, const std::vector<double>& expected);

}  // namespace haldgen::bench
