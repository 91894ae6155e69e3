// The frozen tuning of each kernel, so that a build gives the same code everywhere: one table for
// all families, tuning.inc. script/tune measures and writes its rows.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "kernelgen/paired.h"
#include "kernelgen/schedule.h"

namespace haldgen::family {

/// What a kernel's graph leaves open: the order of its instructions, and which of many choices of
/// forms of like cost it has. None of it changes a bit of a result, but for the signs of zeros of
/// packed kernels, in which both directions agree.
struct Choice {
  kernelgen::Ordering ordering;
  int seed = 0;
  /// How nodes are paired in vectors of twice the width; none: they are not.
  std::optional<kernelgen::Pairs> pairs = {};
};

/// ORDER, ORDER:CAP, ORDER:CAP:SEED or ORDER:CAP:SEED:SOURCE:DESTINATION, the last two for pairs;
/// throws if it is none.
Choice parse_choice(const std::string& text);

/// What a build is for: all processors of a machine, or some with wider vectors. A flavour has its
/// own orders and pairs, and of all else what the baseline has, since its bits are the same.
enum class Flavour { baseline, v3, v4 };

/// By what compilers call the processors: "x86-64-v3". Throws if there is none.
Flavour flavour_named(std::string_view name);

/// The choices of all kernels.
class Tuning {
 public:
  /// Those of the table.
  Tuning() = default;
  explicit Tuning(Flavour flavour) : flavour_(flavour) {}
  /// The same choice everywhere, to measure with.
  explicit Tuning(const Choice& everywhere) : everywhere_(everywhere) {}

  /// By the exported name of the kernel, or of the first of those that share it.
  Choice of(std::string_view exported_name) const;

 private:
  std::optional<Choice> everywhere_;
  Flavour flavour_ = Flavour::baseline;
};

}  // namespace haldgen::family
