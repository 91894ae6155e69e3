// What is measured.
#include "bench/contest.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <fstream>
#include <stdexcept>
#include <tuple>
#include <utility>

#include "bench/calibration.h"
#include "bench/core/arena.h"
#include "bench/core/duel.h"

namespace haldgen::bench {
namespace {

std::string type_of(const registry::Export& function) {
  return std::string(names::suffix(function.element));
}

/// The function itself, or a planned transform at each of its lengths.
std::vector<registry::Export> measured_sizes(const registry::Export& function) {
  if (function.word->signature != names::Signature::planned_transform) return {function};
  std::vector<registry::Export> sizes;
  for (int length = 2; length <= 1 << 16; length *= 2) {
    sizes.push_back(function);
    sizes.back().size = length;
  }
  return sizes;
}

bool wanted(const Options& options, const registry::Export& function) {
  return (options.lengths.empty() || options.lengths.contains(function.size)) &&
         (options.types.empty() || options.types.contains(type_of(function)));
}

/// The functions of the library and, if they are asked for, of kernels that stand alone and have
/// other lengths: a library of such kernels may be the one to measure.
std::vector<registry::Export> functions(const Options& options) {
  std::vector<registry::Export> all = registry::exports();
  for (const names::Word& word : registry::words()) {
    if (word.signature != names::Signature::transform) continue;
    for (const int length : options.lengths) {
      if (word.sizes.contains(length)) continue;
      for (const names::Element element : word.elements) {
        all.push_back({export_name(word, element, length), &word, element, length});
      }
    }
  }
  return all;
}

OperationCounts read_counts(const std::filesystem::path& path) {
  if (path.empty()) return {};
  std::ifstream file(path);
  if (!file) throw std::runtime_error("cannot read " + path.string());
  return OperationCounts::read(file);
}

}  // namespace

std::vector<Kernel> selected_kernels(const Options& options) {
  std::vector<Kernel> kernels;
  for (const registry::Export& function : functions(options)) {
    for (const registry::Export& sized : measured_sizes(function)) {
      std::shared_ptr<const Problem> problem = problem_of(sized);
      if (!problem || !wanted(options, sized)) continue;
      kernels.push_back({sized, std::move(problem)});
    }
  }
  std::sort(kernels.begin(), kernels.end(), [](const Kernel& a, const Kernel& b) {
    const auto key = [](const Kernel& kernel) {
      return std::tuple(kernel.function.word->word, kernel.function.element, kernel.function.size);
    };
    return key(a) < key(b);
  });
  return kernels;
}

/// The contestants of one kernel, shared by its modes.
class Contest::Lineup {
 public:
  Lineup(Contest& contest, Kernel kernel)
      : contest_(contest), kernel_(std::move(kernel)), source_(kernel_.problem->source()) {}

  const Kernel& kernel() const { return kernel_; }
  const std::vector<std::byte>& source() const { return source_; }

  /// Empty if there is no kernel to compare with. The contestants are made and checked at the
  /// first call, since planning takes time; `walk` must hold the source.
  const std::vector<Contestant>& contestants(const Walk& walk) {
    if (!assembled_) assemble(walk);
    assembled_ = true;
    return contestants_;
  }

 private:
  void assemble(const Walk& walk) {
    const registry::Export& function = kernel_.function;
    admit(contest_.library_.contestant(function, "haldgen", Role::subject), walk);
    if (contestants_.empty()) {
      contest_.faults_.push_back(function.name + ": not measured");
      return;
    }
    for (std::size_t i = 0; i < contest_.variants_.size(); ++i) {
      const std::string& label = contest_.options_.variants[i].label;
      admit(contest_.variants_[i]->contestant(function, label, Role::variant), walk);
    }
    for (Contestant& rival : kernel_.problem->rivals()) admit(std::move(rival), walk);
    for (Contestant& yardstick : kernel_.problem->yardsticks()) {
      contestants_.push_back(std::move(yardstick));
    }
    contestants_.push_back(null_call_contestant());
    contestants_.push_back(vector_add_contestant(function.element));
  }

  void admit(std::optional<Contestant> contestant, const Walk& walk) {
    if (!contestant) return;
    const std::string fault = kernel_.problem->fault(*contestant, walk, source_);
    if (fault.empty()) {
      contestants_.push_back(std::move(*contestant));
    } else {
      contest_.faults_.push_back(kernel_.function.name + ": " + contestant->name + ": " + fault);
    }
  }

  Contest& contest_;
  Kernel kernel_;
  std::vector<std::byte> source_;
  std::vector<Contestant> contestants_;
  bool assembled_ = false;
};

/// One kernel in one mode: a benchmark of which every repetition adds rounds.
class Contest::Bout {
 public:
  Bout(const Contest& contest, std::shared_ptr<Lineup> lineup, Mode mode)
      : contest_(contest), lineup_(std::move(lineup)), mode_(mode) {}

  std::string title() const {
    const registry::Export& function = lineup_->kernel().function;
    return std::string(function.word->word) + "/" + type_of(function) + "/" +
           std::to_string(function.size) + "/" + std::string(name(mode_));
  }

  void run(benchmark::State& state) {
    if (!duel_ && !prepare()) {
      state.SkipWithError("no kernel to measure");
      return;
    }
    for (const auto& iteration : state) {
      static_cast<void>(iteration);
      duel_->round();
      state.SetIterationTime(duel_->samples().front().back() * 1e-9);
    }
    const std::optional<Measurement> so_far = result();
    if (!so_far) return;
    for (const Series& series : so_far->series) {
      state.counters[series.name + "_median_ns"] = evaluate(Statistic::median, series.samples);
      state.counters[series.name + "_min_ns"] = evaluate(Statistic::minimum, series.samples);
    }
  }

  /// All rounds so far; none before the first.
  std::optional<Measurement> result() const {
    if (!duel_ || duel_->samples().front().empty()) return std::nullopt;
    const registry::Export& function = lineup_->kernel().function;
    Measurement measurement{
        mode_, std::string(function.word->word), type_of(function), function.size, std::nullopt,
        {}};
    const Problem& problem = *lineup_->kernel().problem;
    if (const auto work = problem.work(contest_.counts_)) {
      measurement.vector_additions = work->additions;
      measurement.conversions = work->conversions;
    }
    measurement.sized_by_order = problem.sized_by_order();
    measurement.bytes = lineup_->source().size() + problem.result_bytes();
    const std::vector<Contestant>& contestants = lineup_->contestants(arena_->walk());
    for (std::size_t i = 0; i < contestants.size(); ++i) {
      Series series{contestants[i].name, contestants[i].role, duel_->samples()[i]};
      if (series.name == vector_add_name) {
        for (double& sample : series.samples) sample /= vector_adds_per_call;
      }
      if (series.name == convert_name) {
        for (double& sample : series.samples) sample /= conversions_per_call;
      }
      measurement.series.push_back(std::move(series));
    }
    return measurement;
  }

 private:
  bool prepare() {
    const std::vector<std::byte>& source = lineup_->source();
    arena_.emplace(mode_, source.size(), lineup_->kernel().problem->result_bytes());
    arena_->fill_sources(source);
    const std::vector<Contestant>& contestants = lineup_->contestants(arena_->walk());
    if (contestants.empty()) return false;
    duel_.emplace(contestants, arena_->walk(), contest_.options_.slice_us * 1000);
    return true;
  }

  const Contest& contest_;
  std::shared_ptr<Lineup> lineup_;
  Mode mode_;
  std::optional<Arena> arena_;
  std::optional<Duel> duel_;
};

Contest::Contest(const Options& options)
    : options_(options), counts_(read_counts(options.counts)), library_(options.library) {
  for (const Variant& variant : options.variants) {
    variants_.push_back(std::make_unique<KernelLibrary>(variant.path));
  }
}

Contest::~Contest() = default;

void Contest::register_benchmarks() {
  for (Kernel& kernel : selected_kernels(options_)) {
    const auto lineup = std::make_shared<Lineup>(*this, std::move(kernel));
    for (const Mode mode : options_.modes) {
      const auto bout = std::make_shared<Bout>(*this, lineup, mode);
      bouts_.push_back(bout);
      benchmark::RegisterBenchmark(bout->title().c_str(),
                                   [bout](benchmark::State& state) { bout->run(state); })
          ->Iterations(options_.rounds)
          ->Repetitions(options_.repetitions)
          ->UseManualTime()
          ->Unit(benchmark::kNanosecond);
    }
  }
}

std::vector<Measurement> Contest::measurements() const {
  std::vector<Measurement> measurements;
  for (const auto& bout : bouts_) {
    std::optional<Measurement> result = bout->result();
    if (result) measurements.push_back(std::move(*result));
  }
  return measurements;
}

std::string Contest::describe() const {
  std::string text = "haldgen: " + library_.path().string() + "\n";
  for (std::size_t i = 0; i < variants_.size(); ++i) {
    text += options_.variants[i].label + ": " + variants_[i]->path().string() + "\n";
  }
  return text;
}

}  // namespace haldgen::bench
