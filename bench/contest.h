// What is measured: every built kernel in every mode.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "bench/core/results.h"
#include "bench/haldgen_kernels.h"
#include "bench/options.h"
#include "bench/problem.h"
#include "registry/registry.h"

namespace haldgen::bench {

/// A kernel of the table together with the transform that it computes.
struct Kernel {
  registry::Export function;
  Problem problem;
};

/// The built fixed-length kernels that the options ask for, ordered by family, type and length.
std::vector<Kernel> selected_kernels(const Options& options);

/// Holds the libraries that are open and collects the results.
class Contest {
 public:
  /// Opens the libraries. Throws std::runtime_error on failure, and when nothing is selected.
  explicit Contest(const Options& options);
  ~Contest();
  Contest(const Contest&) = delete;
  Contest& operator=(const Contest&) = delete;

  /// "family/type/length/mode" of each kernel and mode.
  std::vector<std::string> titles() const;

  /// Visits all in random order, as often as the options say, so that a busy spell of the machine
  /// spoils one visit and not a kernel. Calls `progress` with the part of the work that is done and
  /// the title that comes next.
  void run(const std::function<void(double done, const std::string& title)>& progress);

  /// What has been measured, ordered as the kernels are.
  std::vector<Measurement> measurements() const;

  /// What went wrong, one line each. A contestant that fails its check is not measured.
  const std::vector<std::string>& faults() const { return faults_; }

  /// The libraries that are open.
  Head describe() const;

 private:
  class Lineup;
  class Bout;

  const Options& options_;
  KernelLibrary library_;
  std::vector<std::unique_ptr<KernelLibrary>> variants_;
  std::vector<std::unique_ptr<Bout>> bouts_;
  std::vector<std::string> faults_;
};

}  // namespace haldgen::bench
