// The frozen tuning of each kernel, so that a build gives the same code everywhere: one table for
// all families, tuning.inc. script/tune measures and writes its rows.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "kernelgen/paired.h"
#include "kernelgen/schedule.h"
#include "names/flavour.h"

namespace haldgen::family {

/// What a kernel's graph leaves open: the order of its instructions, and which of many choices of
/// forms of like cost it has. None of it changes a bit of a result, but for the signs of zeros of
/// packed kernels, in which both directions agree.
struct Choice {
  kernelgen::Ordering ordering;
  int seed = 0;
  /// How nodes are paired in vectors of twice the width, or instructions of scalar code in vectors
  /// of two lanes; none: they are not.
  std::optional<kernelgen::Pairs> pairs = {};
  /// Whether scalar kernels widen values through memory.
  bool through_memory = false;
};

/// ORDER, ORDER:CAP, ORDER:CAP:SEED, ORDER:CAP:memory, or for pairs ORDER:CAP:SOURCExDESTINATION;
/// throws if it is none.
Choice parse_choice(const std::string& text);

/// The choices of all kernels.
class Tuning {
 public:
  /// Those of the table.
  Tuning() = default;
  /// Those of a flavour: orders and pairs of its own, and of all else what the baseline has, since
  /// its bits are the same. Families with sources of their own there are told to the build by
  /// haldgen_flavoured in cmake/HaldgenFamily.cmake.
  explicit Tuning(const names::Flavour& flavour) : vector_bits_(flavour.vector_bits) {}

  /// The same choice everywhere from now on, to measure with; with pairs, forms stay those of the
  /// table, as the baseline has their signs.
  void choose_everywhere(const Choice& choice) { everywhere_ = choice; }

  /// By the exported name of the kernel, or of the first of those that share it.
  Choice of(std::string_view exported_name) const;
  /// Of the widest vectors of the flavour.
  int vector_bits() const { return vector_bits_; }

 private:
  std::optional<Choice> everywhere_;
  int vector_bits_ = 128;
};

}  // namespace haldgen::family
