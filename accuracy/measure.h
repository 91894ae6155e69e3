// Rounding errors of a kernel, against the definition of its transform in double-double arithmetic.
// Inputs and reference have the same bits everywhere, so the figures are the same on every machine.
#pragma once

#include <algorithm>
#include <cstddef>
#include <functional>
#include <string_view>
#include <vector>

#include "kernelgen/wide.h"

namespace haldgen::accuracy {

/// Inputs that a kernel is measured with: floats uniform in [-1, 1].
inline constexpr int kInputs = 200;

/// A transform with the scale 1.
template <class Float>
using Kernel = std::function<void(const std::vector<Float>& src, std::vector<Float>& dst)>;

using Elements = std::vector<kernelgen::WideComplex>;

/// How the floats of a family are elements, and what its transforms are.
struct Definition {
  std::size_t source_floats;
  std::size_t source_parts;  ///< floats of an element
  std::size_t result_floats;
  std::size_t result_parts;
  std::function<Elements(const Elements&)> transform;
};

/// Of the families "complex", "hartley" and "real", whose half spectra are in CCS format.
Definition definition(std::string_view family, int length, bool inverse);

/// The figures of one kernel in units of epsilon.
struct Figures {
  double mean = 0;
  double worst_call = 0;
  double largest = 0;
  double mean_by_root_log = 0;  ///< over epsilon sqrt(log2 N)
  double worst_by_root_log = 0;

  void raise_to(const Figures& other) {
    mean = std::max(mean, other.mean);
    worst_call = std::max(worst_call, other.worst_call);
    largest = std::max(largest, other.largest);
    mean_by_root_log = std::max(mean_by_root_log, other.mean_by_root_log);
    worst_by_root_log = std::max(worst_by_root_log, other.worst_by_root_log);
  }
};

/// `Float` is float or double.
template <class Float>
Figures figures(const Kernel<Float>& kernel, const Definition& definition, int length);

}  // namespace haldgen::accuracy
