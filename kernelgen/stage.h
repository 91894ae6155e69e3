// Stages: the steps of an algorithm, which comments in the printed code name. A statement remembers
// the one that it was first written for; passes carry that along, and nothing else hangs on it.
#pragma once

#include <string>

#include "kernelgen/graph.h"

namespace haldgen::kernelgen {

/// A step of an algorithm while its statements are written, inside of the step that is open
/// already.
class Stage {
 public:
  Stage(Graph& graph, const std::string& name) : graph_(graph), outer_(graph.stage()) {
    next(name);
  }
  ~Stage() { graph_.set_stage(outer_); }
  /// The step behind this one.
  void next(const std::string& name) {
    graph_.set_stage(outer_.empty() || name.empty() ? outer_ + name : outer_ + ", " + name);
  }
  Stage(const Stage&) = delete;
  Stage& operator=(const Stage&) = delete;

 private:
  Graph& graph_;
  std::string outer_;
};

/// The stage of what leads from the last statements to the destination.
constexpr auto kStores = "scale and stores";

/// Names of steps that many algorithms have.
inline std::string columns_of(int length) { return "columns of " + std::to_string(length); }
inline std::string rows_of(int length) { return "rows of " + std::to_string(length); }
constexpr auto kTwiddles = "twiddles";
constexpr auto kSpectrum = "to the spectrum";
constexpr auto kProducts = "products of spectra";
constexpr auto kDifferences = "sums and differences";
constexpr auto kEvenBins = "even bins";
constexpr auto kOddBins = "odd bins";

}  // namespace haldgen::kernelgen
