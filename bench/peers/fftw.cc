// FFTW 3, twice: the library as it is, and the copy held to 128-bit vectors.
#include <fftw3.h>

#include <cstdlib>
#include <memory>
#include <stdexcept>
#include <string>

#include "bench/peers/peers.h"

// The copy has the same functions under other names.
#define HALDGEN_NARROW(name) FFTW_CONCAT(narrow_fftw_, name)
#define HALDGEN_NARROW_FLOAT(name) FFTW_CONCAT(narrow_fftwf_, name)
extern "C" {
FFTW_DEFINE_API(HALDGEN_NARROW, double, fftw_complex)
FFTW_DEFINE_API(HALDGEN_NARROW_FLOAT, float, fftwf_complex)
}

namespace haldgen::bench {
namespace {

/// The functions of one of the four builds of FFTW in this program.
#define HALDGEN_LIBRARY(name, prefix, real)                   \
  struct name {                                               \
    using Real = real;                                        \
    static constexpr auto c2c = prefix##_plan_many_dft;       \
    static constexpr auto r2c = prefix##_plan_many_dft_r2c;   \
    static constexpr auto c2r = prefix##_plan_many_dft_c2r;   \
    static constexpr auto r2r = prefix##_plan_many_r2r;       \
    static constexpr auto run_c2c = prefix##_execute_dft;     \
    static constexpr auto run_r2c = prefix##_execute_dft_r2c; \
    static constexpr auto run_c2r = prefix##_execute_dft_c2r; \
    static constexpr auto run_r2r = prefix##_execute_r2r;     \
    static constexpr auto destroy = prefix##_destroy_plan;    \
    static constexpr auto describe = prefix##_sprint_plan;    \
  }
HALDGEN_LIBRARY(WideDouble, fftw, double);
HALDGEN_LIBRARY(WideFloat, fftwf, float);
HALDGEN_LIBRARY(NarrowDouble, narrow_fftw, double);
HALDGEN_LIBRARY(NarrowFloat, narrow_fftwf, float);

template <class F>
FftwPlan planned(F /*library*/, const Problem& problem, const Places& places, const Walk& walk,
                 FftwWidth width, unsigned flags) {
  using Real = typename F::Real;
  using Complex = Real[2];
  auto* const in = const_cast<std::byte*>(walk.src);
  auto* const real_in = reinterpret_cast<Real*>(in);
  auto* const complex_in = reinterpret_cast<Complex*>(in);
  auto* const real_out = reinterpret_cast<Real*>(walk.dst);
  auto* const complex_out = reinterpret_cast<Complex*>(walk.dst);
  const int sizes[] = {problem.length, problem.length};
  const auto& [count, step, src, dst, rank] = places;
  const fftw_r2r_kind kind = problem.transform == Transform::hartley ? FFTW_DHT : FFTW_REDFT11;

  /// `run` executes the plan on arrays of these elements.
  const auto kept = [width]<class Plan, class In, class Out>(Plan* plan,
                                                             void (*run)(Plan*, In*, Out*)) {
    if (plan == nullptr) throw std::runtime_error("FFTW found no plan");
    const std::unique_ptr<char, decltype(&std::free)> text(F::describe(plan), std::free);
    const bool narrow = width == FftwWidth::narrow;
    return FftwPlan{text.get(),
                    contestant_of(
                        narrow ? "fftw128" : "fftw", narrow ? Role::narrow_peer : Role::peer,
                        [run, plan](const std::byte* from, std::byte* to) {
                          // The interface has no const, but these plans keep their input.
                          run(plan, reinterpret_cast<In*>(const_cast<std::byte*>(from)),
                              reinterpret_cast<Out*>(to));
                        },
                        std::shared_ptr<Plan>(plan, F::destroy))};
  };
  switch (problem.transform) {
    case Transform::dft:
    case Transform::inverse_dft:
      return kept(F::c2c(rank, sizes, count, complex_in, nullptr, step, src, complex_out, nullptr,
                         step, dst, problem.is_inverse() ? FFTW_BACKWARD : FFTW_FORWARD, flags),
                  F::run_c2c);
    case Transform::real:
      return kept(F::r2c(rank, sizes, count, real_in, nullptr, step, src, complex_out, nullptr,
                         step, dst, flags),
                  F::run_r2c);
    case Transform::inverse_real:
      return kept(F::c2r(rank, sizes, count, complex_in, nullptr, step, src, real_out, nullptr,
                         step, dst, flags),
                  F::run_c2r);
    default:
      return kept(F::r2r(rank, sizes, count, real_in, nullptr, step, src, real_out, nullptr, step,
                         dst, &kind, flags),
                  F::run_r2r);
  }
}

}  // namespace

FftwPlan planned_by_fftw(const Problem& problem, const Places& places, const Walk& walk,
                         FftwWidth width, FftwEffort effort) {
  const unsigned flags =
      FFTW_PRESERVE_INPUT | (effort == FftwEffort::patient ? FFTW_PATIENT : FFTW_MEASURE);
  const auto by = [&](auto library) {
    return planned(library, problem, places, walk, width, flags);
  };
  if (width == FftwWidth::full) return problem.is_float() ? by(WideFloat()) : by(WideDouble());
  FftwPlan plan = problem.is_float() ? by(NarrowFloat()) : by(NarrowDouble());
  if (plan.description.find("avx") != std::string::npos) {
    throw std::runtime_error("the plan of FFTW at 128 bits uses wider vectors: " +
                             plan.description);
  }
  return plan;
}

}  // namespace haldgen::bench
