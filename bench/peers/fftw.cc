// FFTW 3, twice: the library as it is, and the copy held to 128-bit vectors.
#include <fftw3.h>

#include <cstdlib>
#include <memory>
#include <stdexcept>

#include "bench/peers/peers.h"

// The copy has the same functions under other names.
extern "C" {
decltype(fftw_plan_dft_1d) narrow_fftw_plan_dft_1d;
decltype(fftw_execute_dft) narrow_fftw_execute_dft;
decltype(fftw_destroy_plan) narrow_fftw_destroy_plan;
decltype(fftw_sprint_plan) narrow_fftw_sprint_plan;
decltype(fftwf_plan_dft_1d) narrow_fftwf_plan_dft_1d;
decltype(fftwf_execute_dft) narrow_fftwf_execute_dft;
decltype(fftwf_destroy_plan) narrow_fftwf_destroy_plan;
decltype(fftwf_sprint_plan) narrow_fftwf_sprint_plan;
}

namespace haldgen::bench {
namespace {

/// One of the four builds of FFTW in this program.
template <class Plan, class Complex>
struct Library {
  Plan (*plan)(int, Complex*, Complex*, int, unsigned);
  void (*execute)(const Plan, Complex*, Complex*);
  void (*destroy)(Plan);
  char* (*describe)(const Plan);
};

constexpr Library<fftw_plan, fftw_complex> wide_double = {fftw_plan_dft_1d, fftw_execute_dft,
                                                          fftw_destroy_plan, fftw_sprint_plan};
constexpr Library<fftwf_plan, fftwf_complex> wide_float = {fftwf_plan_dft_1d, fftwf_execute_dft,
                                                           fftwf_destroy_plan, fftwf_sprint_plan};
constexpr Library<fftw_plan, fftw_complex> narrow_double = {
    narrow_fftw_plan_dft_1d, narrow_fftw_execute_dft, narrow_fftw_destroy_plan,
    narrow_fftw_sprint_plan};
constexpr Library<fftwf_plan, fftwf_complex> narrow_float = {
    narrow_fftwf_plan_dft_1d, narrow_fftwf_execute_dft, narrow_fftwf_destroy_plan,
    narrow_fftwf_sprint_plan};

template <class Plan, class Complex>
class Planned {
 public:
  Planned(const Library<Plan, Complex>& library, const ComplexProblem& problem)
      : library_(library) {
    // Planning runs on arrays as aligned as those of the measurement; it overwrites them.
    const std::size_t bytes = (problem.bytes() + 63) / 64 * 64;
    const Array in(static_cast<Complex*>(std::aligned_alloc(64, bytes)));
    const Array out(static_cast<Complex*>(std::aligned_alloc(64, bytes)));
    const int sign = problem.direction == Direction::forward ? FFTW_FORWARD : FFTW_BACKWARD;
    plan_ = library.plan(problem.length, in.get(), out.get(), sign, FFTW_PATIENT);
    if (plan_ == nullptr) throw std::runtime_error("FFTW found no plan");
  }
  ~Planned() { library_.destroy(plan_); }
  Planned(const Planned&) = delete;
  Planned& operator=(const Planned&) = delete;

  void run(const Walk& walk, std::int64_t calls) const {
    walk_calls(walk, calls,
               [execute = library_.execute, plan = plan_](const std::byte* src, std::byte* dst) {
                 // The interface has no const, but a plan out of place keeps its input.
                 auto* const in = reinterpret_cast<Complex*>(const_cast<std::byte*>(src));
                 execute(plan, in, reinterpret_cast<Complex*>(dst));
               });
  }

  std::string describe() const {
    const std::unique_ptr<char, Free> text(library_.describe(plan_));
    return text.get();
  }

 private:
  struct Free {
    void operator()(void* block) const { std::free(block); }
  };
  using Array = std::unique_ptr<Complex, Free>;

  const Library<Plan, Complex>& library_;
  Plan plan_;
};

template <class Plan, class Complex>
Contestant contestant(const std::string& name, Role role, const Library<Plan, Complex>& library,
                      const ComplexProblem& problem) {
  const auto planned = std::make_shared<const Planned<Plan, Complex>>(library, problem);
  if (role == Role::narrow_peer && planned->describe().find("avx") != std::string::npos) {
    throw std::runtime_error("the plan of FFTW at 128 bits uses wider vectors: " +
                             planned->describe());
  }
  return {name, role,
          [planned](const Walk& walk, std::int64_t calls) { planned->run(walk, calls); }};
}

}  // namespace

std::optional<Contestant> fftw_contestant(const ComplexProblem& problem) {
  if (problem.element == names::Element::c32) {
    return contestant("fftw", Role::peer, wide_float, problem);
  }
  return contestant("fftw", Role::peer, wide_double, problem);
}

std::optional<Contestant> narrow_fftw_contestant(const ComplexProblem& problem) {
  if (problem.element == names::Element::c32) {
    return contestant("fftw128", Role::narrow_peer, narrow_float, problem);
  }
  return contestant("fftw128", Role::narrow_peer, narrow_double, problem);
}

std::string describe_fftw_plans(const ComplexProblem& problem) {
  const auto both = [&](const auto& wide, const auto& narrow) {
    return "fftw:\n" + Planned(wide, problem).describe() + "\nfftw128:\n" +
           Planned(narrow, problem).describe() + "\n";
  };
  return problem.element == names::Element::c32 ? both(wide_float, narrow_float)
                                                : both(wide_double, narrow_double);
}

}  // namespace haldgen::bench
