// What is measured.
#include "bench/contest.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <fstream>
#include <stdexcept>
#include <tuple>

#include "bench/calibration.h"
#include "bench/core/arena.h"
#include "bench/core/duel.h"
#include "bench/peers/peers.h"

namespace haldgen::bench {
namespace {

// The generator's name for both directions: their counts are equal.
constexpr const char* counts_family = "complex";

std::optional<Direction> direction(const frame::Family& family) {
  if (family.word == "DFTFwd_CToC") return Direction::forward;
  if (family.word == "DFTInv_CToC") return Direction::inverse;
  return std::nullopt;
}

std::string type_of(const frame::Export& function) {
  return std::string(frame::suffix(function.element));
}

bool wanted(const Options& options, const frame::Export& function) {
  return (options.lengths.empty() || options.lengths.contains(function.size)) &&
         (options.types.empty() || options.types.contains(type_of(function)));
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
  for (const frame::Export& function : frame::live_exports()) {
    const std::optional<Direction> sense = direction(*function.family);
    if (!sense || function.size == 0 || !wanted(options, function)) continue;
    kernels.push_back({function, {*sense, function.element, function.size}});
  }
  std::sort(kernels.begin(), kernels.end(), [](const Kernel& a, const Kernel& b) {
    const auto key = [](const Kernel& kernel) {
      return std::tuple(kernel.function.family->word, kernel.function.element,
                        kernel.function.size);
    };
    return key(a) < key(b);
  });
  return kernels;
}

/// The contestants of one kernel, shared by its modes.
class Contest::Lineup {
 public:
  Lineup(Contest& contest, Kernel kernel)
      : contest_(contest), kernel_(std::move(kernel)), source_(random_source(kernel_.problem)) {}

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
    const ComplexProblem& problem = kernel_.problem;
    const std::string& symbol = kernel_.function.name;
    admit(contest_.library_.contestant(symbol, "haldgen", Role::subject), walk);
    if (contestants_.empty()) {
      contest_.faults_.push_back(symbol + ": not measured");
      return;
    }
    for (std::size_t i = 0; i < contest_.variants_.size(); ++i) {
      const std::string& label = contest_.options_.variants[i].label;
      admit(contest_.variants_[i]->contestant(symbol, label, Role::variant), walk);
    }
    admit(fftw_contestant(problem), walk);
    admit(kissfft_contestant(problem), walk);
    admit(av_tx_contestant(problem), walk);
    admit(narrow_fftw_contestant(problem), walk);
    contestants_.push_back(null_call_contestant());
    contestants_.push_back(vector_add_contestant(problem.element));
  }

  void admit(std::optional<Contestant> contestant, const Walk& walk) {
    if (!contestant) return;
    const std::string fault = check_contestant(kernel_.problem, *contestant, walk, source_);
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
    const frame::Export& function = lineup_->kernel().function;
    return std::string(function.family->word) + "/" + type_of(function) + "/" +
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
    const frame::Export& function = lineup_->kernel().function;
    Measurement measurement{
        mode_, std::string(function.family->word), type_of(function), function.size, std::nullopt,
        {}};
    const std::optional<double> additions =
        contest_.counts_.additions(counts_family, measurement.type, measurement.length);
    if (additions) measurement.vector_additions = *additions / lanes(function.element);
    const std::vector<Contestant>& contestants = lineup_->contestants(arena_->walk());
    for (std::size_t i = 0; i < contestants.size(); ++i) {
      Series series{contestants[i].name, contestants[i].role, duel_->samples()[i]};
      if (series.name == vector_add_name) {
        for (double& sample : series.samples) sample /= vector_adds_per_call;
      }
      measurement.series.push_back(std::move(series));
    }
    return measurement;
  }

 private:
  bool prepare() {
    const std::vector<std::byte>& source = lineup_->source();
    arena_.emplace(mode_, source.size(), source.size());
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
