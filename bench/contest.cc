// What is measured.
#include "bench/contest.h"

#include <algorithm>
#include <regex>
#include <stdexcept>
#include <tuple>
#include <utility>

#include "bench/kernels.h"
#include "bench/peers/peers.h"

namespace haldgen::bench {
namespace {

/// The functions of the library, planned ones at each of their lengths, and those of kernels that
/// stand alone and have other lengths, if they are asked for: a library of such kernels may be the
/// one to measure.
std::vector<registry::Export> functions(const Options& options) {
  std::vector<registry::Export> all;
  for (registry::Export function : registry::exports()) {
    if (function.word->signature != names::Signature::planned_transform) {
      all.push_back(function);
      continue;
    }
    for (function.size = 2; function.size <= 1 << 16; function.size *= 2) all.push_back(function);
  }
  for (const names::Word& word : registry::words()) {
    if (word.signature != names::Signature::transform) continue;
    for (const int length : options.lengths) {
      if (word.sizes.contains(length)) continue;
      for (const names::Element element : word.elements) {
        all.push_back({export_name(word, element, length), &word, element, length});
      }
    }
  }
  std::sort(all.begin(), all.end(), [](const registry::Export& a, const registry::Export& b) {
    return std::tuple(a.word->word, a.element, a.size) <
           std::tuple(b.word->word, b.element, b.size);
  });
  return all;
}

}  // namespace

Bout::Bout(registry::Export function, const Problem& problem, Mode mode)
    : function_(std::move(function)), problem_(problem), mode_(mode) {}

std::string Bout::title() const {
  return problem_.word() + "/" + problem_.type() + "/" + std::to_string(function_.size) +
         (mode_ == Mode::hot ? "/hot" : "/ring");
}

void Bout::assemble(const std::vector<Build>& builds, const Options& options,
                    std::vector<std::string>& faults) {
  arena_.emplace(mode_, problem_.source_bytes(), problem_.result_bytes());
  const Walk& walk = arena_->walk();
  std::vector<Contestant> others;
  if (problem_.transform == Transform::wht) {
    others = plain_wht_contestants(problem_);
  } else {
    for (const FftwWidth width : {FftwWidth::full, FftwWidth::narrow}) {
      others.push_back(planned_by_fftw(problem_, {}, walk, width, FftwEffort::patient).contestant);
    }
    for (const auto& peer : {kissfft_contestant(problem_), av_tx_contestant(problem_)}) {
      if (peer) others.push_back(*peer);
    }
  }
  std::vector<Contestant> candidates;
  for (const Build& build : builds) {
    const Role role = candidates.empty() ? Role::subject : Role::variant;
    auto kernel = kernel_contestant(build.library, function_, build.label, role);
    if (kernel) candidates.push_back(std::move(*kernel));
  }
  candidates.insert(candidates.end(), others.begin(), others.end());
  const std::vector<std::byte> source = random_source(problem_);
  arena_->fill_sources(source);
  // All are held to the first one that is not ours.
  const std::vector<double> expected = bench::result(problem_, others.front(), walk);
  std::vector<Contestant> contestants;
  for (Contestant& candidate : candidates) {
    const std::string what = fault(problem_, candidate, walk, source, expected);
    if (what.empty()) {
      contestants.push_back(std::move(candidate));
    } else {
      faults.push_back(title() + ": " + candidate.name + ": " + what);
    }
  }
  if (contestants.empty() || contestants.front().name != builds.front().label) {
    faults.push_back(title() + ": not measured");
    return;
  }
  for (Contestant& yardstick : yardsticks(problem_)) contestants.push_back(std::move(yardstick));
  duel_.emplace(std::move(contestants), walk, options.slice_us * 1000);
}

void Bout::visit(const std::vector<Build>& builds, const Options& options,
                 std::vector<std::string>& faults) {
  if (!arena_) assemble(builds, options, faults);
  for (int round = 0; duel_ && round < options.rounds; ++round) duel_->round();
}

std::optional<Measurement> Bout::result() const {
  if (!duel_) return std::nullopt;
  return Measurement{mode_ == Mode::hot ? "hot" : "ring", problem_.word(), problem_.type(),
                     problem_.length, duel_->contestants()};
}

std::string Bout::plans() const {
  if (problem_.transform == Transform::wht) return {};
  const Arena arena(mode_, problem_.source_bytes(), problem_.result_bytes());
  std::string text = title() + "\n";
  for (const FftwWidth width : {FftwWidth::full, FftwWidth::narrow}) {
    const auto plan = planned_by_fftw(problem_, {}, arena.walk(), width, FftwEffort::patient);
    text += plan.contestant.name + ":\n" + plan.description + "\n";
  }
  return text;
}

std::vector<Bout> bouts(const Options& options) {
  std::vector<Bout> found;
  const std::regex filter(options.filter);
  for (const registry::Export& function : functions(options)) {
    const std::optional<Problem> problem = problem_of(function);
    const auto& types = options.types;
    if (!problem || (!options.lengths.empty() && !options.lengths.contains(function.size)) ||
        (!types.empty() && std::find(types.begin(), types.end(), problem->type()) == types.end())) {
      continue;
    }
    for (const Mode mode : {Mode::hot, Mode::ring}) {
      if (options.mode == (mode == Mode::hot ? "ring" : "hot")) continue;
      Bout bout(function, *problem, mode);
      if (std::regex_search(bout.title(), filter)) found.push_back(std::move(bout));
    }
  }
  if (found.empty()) throw std::runtime_error("there is no such kernel to measure");
  return found;
}

}  // namespace haldgen::bench
