// What is measured.
#include "bench/contest.h"

#include <algorithm>
#include <random>
#include <regex>
#include <stdexcept>
#include <tuple>
#include <utility>

#include "bench/core/arena.h"
#include "bench/core/duel.h"
#include "bench/peers/peers.h"

namespace haldgen::bench {
namespace {

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
  const auto& types = options.types;
  return (options.lengths.empty() || options.lengths.contains(function.size)) &&
         (types.empty() ||
          std::find(types.begin(), types.end(), names::suffix(function.element)) != types.end());
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

}  // namespace

std::vector<Kernel> selected_kernels(const Options& options) {
  std::vector<Kernel> kernels;
  for (const registry::Export& function : functions(options)) {
    for (const registry::Export& sized : measured_sizes(function)) {
      const std::optional<Problem> problem = problem_of(sized);
      if (problem && wanted(options, sized)) kernels.push_back({sized, *problem});
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
      : contest_(contest), kernel_(std::move(kernel)), source_(random_source(kernel_.problem)) {}

  const Kernel& kernel() const { return kernel_; }

  /// Fills the arena with the source. Empty if there is no kernel to compare with. The contestants
  /// are made and checked at the first call, since planning takes time.
  const std::vector<Contestant>& contestants(Arena& arena) {
    if (!assembled_) assemble(arena);
    assembled_ = true;
    arena.fill_sources(source_);
    return contestants_;
  }

 private:
  void assemble(Arena& arena) {
    const auto& [function, problem] = kernel_;
    std::vector<Contestant> candidates;
    const auto add = [&candidates](std::optional<Contestant> candidate) {
      if (candidate) candidates.push_back(std::move(*candidate));
    };
    add(contest_.library_.contestant(function, "haldgen", Role::subject));
    for (std::size_t i = 0; i < contest_.variants_.size(); ++i) {
      const std::string& label = contest_.options_.variants[i].label;
      add(contest_.variants_[i]->contestant(function, label, Role::variant));
    }
    if (problem.transform == Transform::wht) {
      for (Contestant& loop : plain_wht_contestants(problem)) add(std::move(loop));
    } else {
      for (const FftwWidth width : {FftwWidth::full, FftwWidth::narrow}) {
        add(fftw_contestant(problem, {}, arena.walk(), width, FftwEffort::patient));
      }
      add(kissfft_contestant(problem));
      add(av_tx_contestant(problem));
    }
    arena.fill_sources(source_);
    const Check check(problem, source_);
    for (Contestant& candidate : candidates) {
      const std::string fault = check.fault(candidate, arena.walk());
      if (fault.empty()) {
        contestants_.push_back(std::move(candidate));
      } else {
        contest_.faults_.push_back(function.name + ": " + candidate.name + ": " + fault);
      }
    }
    if (contestants_.empty() || contestants_.front().role != Role::subject) {
      contest_.faults_.push_back(function.name + ": not measured");
      contestants_.clear();
      return;
    }
    for (Contestant& yardstick : yardsticks(problem)) contestants_.push_back(std::move(yardstick));
  }

  Contest& contest_;
  Kernel kernel_;
  std::vector<std::byte> source_;
  std::vector<Contestant> contestants_;
  bool assembled_ = false;
};

/// One kernel in one mode. Every visit adds rounds.
class Contest::Bout {
 public:
  Bout(std::shared_ptr<Lineup> lineup, Mode mode) : lineup_(std::move(lineup)), mode_(mode) {}

  std::string title() const {
    const auto& [function, problem] = lineup_->kernel();
    return problem.word() + "/" + problem.type() + "/" + std::to_string(function.size) + "/" +
           std::string(name(mode_));
  }

  void visit(int rounds, double slice_ns) {
    if (!arena_) {
      const Problem& problem = lineup_->kernel().problem;
      arena_.emplace(mode_, problem.source_bytes(), problem.result_bytes());
      const std::vector<Contestant>& contestants = lineup_->contestants(*arena_);
      if (!contestants.empty()) duel_.emplace(contestants, arena_->walk(), slice_ns);
    }
    for (int round = 0; duel_ && round < rounds; ++round) duel_->round();
  }

  /// All rounds so far; none without a kernel.
  std::optional<Measurement> result() {
    if (!duel_) return std::nullopt;
    const Problem& problem = lineup_->kernel().problem;
    return measurement(*duel_, std::string(name(mode_)), problem.word(), problem.type(),
                       problem.length);
  }

 private:
  std::shared_ptr<Lineup> lineup_;
  Mode mode_;
  std::optional<Arena> arena_;
  std::optional<Duel> duel_;
};

Contest::Contest(const Options& options) : options_(options), library_(options.library) {
  for (const Variant& variant : options.variants) {
    variants_.push_back(std::make_unique<KernelLibrary>(variant.path));
  }
  const std::regex filter(options.filter);
  for (Kernel& kernel : selected_kernels(options)) {
    const auto lineup = std::make_shared<Lineup>(*this, std::move(kernel));
    for (const Mode mode : options_.modes) {
      auto bout = std::make_unique<Bout>(lineup, mode);
      if (std::regex_search(bout->title(), filter)) bouts_.push_back(std::move(bout));
    }
  }
  if (bouts_.empty()) throw std::runtime_error("there is no such kernel to measure");
}

Contest::~Contest() = default;

std::vector<std::string> Contest::titles() const {
  std::vector<std::string> titles;
  for (const auto& bout : bouts_) titles.push_back(bout->title());
  return titles;
}

void Contest::run(const std::function<void(double done, const std::string& title)>& progress) {
  std::vector<Bout*> visits;
  for (int i = 0; i < options_.repetitions; ++i) {
    for (const auto& bout : bouts_) visits.push_back(bout.get());
  }
  std::shuffle(visits.begin(), visits.end(), std::mt19937_64(std::random_device()()));
  for (std::size_t i = 0; i < visits.size(); ++i) {
    progress(static_cast<double>(i) / static_cast<double>(visits.size()), visits[i]->title());
    visits[i]->visit(options_.rounds, options_.slice_us * 1000);
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

Head Contest::describe() const {
  Head head = {{"haldgen", library_.path()}};
  for (std::size_t i = 0; i < variants_.size(); ++i) {
    head.emplace_back(options_.variants[i].label, variants_[i]->path());
  }
  return head;
}

}  // namespace haldgen::bench
