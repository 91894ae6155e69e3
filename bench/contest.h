// What is measured: every built kernel in every mode, each one a benchmark of Google Benchmark.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "bench/core/counts.h"
#include "bench/core/report.h"
#include "bench/haldgen_kernels.h"
#include "bench/options.h"
#include "bench/problem.h"
#include "registry/registry.h"

namespace haldgen::bench {

/// A kernel of the table together with the transform that it computes.
struct Kernel {
  registry::Export function;
  std::shared_ptr<const Problem> problem;
};

/// The built fixed-length kernels that the options ask for, ordered by family, type and length.
std::vector<Kernel> selected_kernels(const Options& options);

/// Holds the libraries that are open and collects the results.
class Contest {
 public:
  /// Opens the libraries and reads the counts. Throws std::runtime_error on failure.
  explicit Contest(const Options& options);
  ~Contest();
  Contest(const Contest&) = delete;
  Contest& operator=(const Contest&) = delete;

  /// Registers one benchmark per kernel and mode, "family/type/length/mode". One iteration is one
  /// round of all contestants; its time is that of one call of the kernel under test.
  void register_benchmarks();

  /// What has been measured, in the order of registration.
  std::vector<Measurement> measurements() const;

  /// What went wrong, one line each. A contestant that fails its check is not measured.
  const std::vector<std::string>& faults() const { return faults_; }

  /// One line for each library that is open.
  std::string describe() const;

 private:
  class Lineup;
  class Bout;

  const Options& options_;
  OperationCounts counts_;
  KernelLibrary library_;
  std::vector<std::unique_ptr<KernelLibrary>> variants_;
  std::vector<std::shared_ptr<Bout>> bouts_;
  std::vector<std::string> faults_;
};

}  // namespace haldgen::bench
