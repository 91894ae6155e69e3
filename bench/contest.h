// What is measured: kernels in modes.
#pragma once

#include <filesystem>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "bench/core/arena.h"
#include "bench/core/duel.h"
#include "bench/core/results.h"
#include "bench/problem.h"

namespace haldgen::bench {

/// A build of the library to run, the one under test or beside it.
struct Build {
  std::string label;
  std::filesystem::path path;
  void* library;
};

struct Options {
  std::set<int> lengths;           ///< empty for all
  std::vector<std::string> types;  ///< element suffixes; empty for all
  std::string mode = "both";
  std::string filter;  ///< regular expression on titles; empty for all
  int repetitions = 3;
  int rounds = 100;
  double slice_us = 30;
};

/// One kernel in one mode.
class Bout {
 public:
  Bout(registry::Export function, const Problem& problem, Mode mode);

  /// "family/type/length/mode", the length as in the function's name.
  std::string title() const;

  /// Measures some rounds more. The contestants are made and checked at the first visit, since
  /// planning takes time; one that fails is not measured but added to `faults`.
  void visit(const std::vector<Build>& builds, const Options& options,
             std::vector<std::string>& faults);

  /// All rounds so far; none without a kernel.
  std::optional<Measurement> result() const;

  /// The plans of FFTW for it.
  std::string plans() const;

 private:
  void assemble(const std::vector<Build>& builds, const Options& options,
                std::vector<std::string>& faults);

  registry::Export function_;
  Problem problem_;
  Mode mode_;
  std::optional<Arena> arena_;
  std::optional<Duel> duel_;
};

/// All that the options ask for, ordered by family, type and length. Throws std::runtime_error if
/// there is none.
std::vector<Bout> bouts(const Options& options);

}  // namespace haldgen::bench
