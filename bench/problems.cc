// The families that are measured.
#include <utility>

#include "bench/calibration.h"
#include "bench/complex_problem.h"
#include "bench/dct4_problem.h"
#include "bench/peers/peers.h"
#include "bench/problem.h"
#include "bench/real_problem.h"
#include "bench/wht_problem.h"

namespace haldgen::bench {
namespace {

class ComplexTransform final : public Problem {
 public:
  explicit ComplexTransform(const ComplexProblem& problem) : problem_(problem) {}

  std::vector<std::byte> source() const override { return random_source(problem_); }
  std::size_t result_bytes() const override { return problem_.bytes(); }
  std::string fault(const Contestant& contestant, const Walk& walk,
                    std::span<const std::byte> source) const override {
    return check_contestant(problem_, contestant, walk, source);
  }
  std::vector<Contestant> rivals() const override {
    std::vector<Contestant> all;
    const auto add = [&all](std::optional<Contestant> contestant) {
      if (contestant) all.push_back(std::move(*contestant));
    };
    add(fftw_contestant(problem_));
    add(kissfft_contestant(problem_));
    add(av_tx_contestant(problem_));
    add(narrow_fftw_contestant(problem_));
    return all;
  }
  std::optional<OperationCounts::Counts> work(const OperationCounts& counts) const override {
    // The generator's name for both directions: their counts are equal.
    auto work = counts.of("complex", std::string(names::suffix(problem_.element)), problem_.length);
    if (work) work->additions /= lanes(problem_.element);
    return work;
  }

 private:
  ComplexProblem problem_;
};

}  // namespace

std::shared_ptr<const Problem> problem_of(const registry::Export& function) {
  if (function.size == 0) return nullptr;
  if (const std::optional<ComplexProblem> problem = complex_problem_of(function)) {
    return std::make_shared<ComplexTransform>(*problem);
  }
  if (const std::optional<RealTransform> transform = real_transform_of(function)) {
    return std::make_shared<RealProblem>(*transform);
  }
  if (function.word->word == "WHT") {
    return std::make_shared<WhtProblem>(function.element, function.size);
  }
  if (function.word->word == "DCT4") {
    return std::make_shared<Dct4Problem>(function.element, function.size);
  }
  return nullptr;
}

}  // namespace haldgen::bench
