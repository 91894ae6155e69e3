// FFTW 3, twice: the library as it is, and the copy held to 128-bit vectors.
#include <fftw3.h>

#include <cstdlib>
#include <memory>
#include <stdexcept>
#include <type_traits>

#include "bench/peers/peers.h"

// The copy has the same functions under other names.
#define HALDGEN_DECLARE_COPY(prefix)                                        \
  extern "C" {                                                              \
  decltype(prefix##_plan_many_dft) narrow_##prefix##_plan_many_dft;         \
  decltype(prefix##_plan_many_dft_r2c) narrow_##prefix##_plan_many_dft_r2c; \
  decltype(prefix##_plan_many_dft_c2r) narrow_##prefix##_plan_many_dft_c2r; \
  decltype(prefix##_plan_many_r2r) narrow_##prefix##_plan_many_r2r;         \
  decltype(prefix##_execute_dft) narrow_##prefix##_execute_dft;             \
  decltype(prefix##_execute_dft_r2c) narrow_##prefix##_execute_dft_r2c;     \
  decltype(prefix##_execute_dft_c2r) narrow_##prefix##_execute_dft_c2r;     \
  decltype(prefix##_execute_r2r) narrow_##prefix##_execute_r2r;             \
  decltype(prefix##_destroy_plan) narrow_##prefix##_destroy_plan;           \
  decltype(prefix##_sprint_plan) narrow_##prefix##_sprint_plan;             \
  }
HALDGEN_DECLARE_COPY(fftw)
HALDGEN_DECLARE_COPY(fftwf)

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

struct Free {
  void operator()(char* text) const { std::free(text); }
};

/// Calls `body` with the build of FFTW that is meant.
template <class Body>
auto with_library(const Problem& problem, FftwWidth width, const Body& body) {
  if (width == FftwWidth::narrow) {
    return problem.is_float() ? body(NarrowFloat()) : body(NarrowDouble());
  }
  return problem.is_float() ? body(WideFloat()) : body(WideDouble());
}

template <class F>
auto plan_of(F /*library*/, const Problem& problem, const Places& places, const Walk& walk,
             FftwEffort effort) {
  using Real = typename F::Real;
  using Complex = Real[2];
  auto* const in = const_cast<std::byte*>(walk.src);
  auto* const real_in = reinterpret_cast<Real*>(in);
  auto* const complex_in = reinterpret_cast<Complex*>(in);
  auto* const real_out = reinterpret_cast<Real*>(walk.dst);
  auto* const complex_out = reinterpret_cast<Complex*>(walk.dst);
  const int sizes[] = {problem.length, problem.length};
  const auto& [count, step, src, dst, rank] = places;
  const unsigned flags =
      FFTW_PRESERVE_INPUT | (effort == FftwEffort::patient ? FFTW_PATIENT : FFTW_MEASURE);
  const fftw_r2r_kind kind = problem.transform == Transform::hartley ? FFTW_DHT : FFTW_REDFT11;
  decltype(F::r2r(0, nullptr, 0, nullptr, nullptr, 0, 0, nullptr, nullptr, 0, 0, nullptr, 0)) plan;
  switch (problem.transform) {
    case Transform::dft:
    case Transform::inverse_dft:
      plan = F::c2c(rank, sizes, count, complex_in, nullptr, step, src, complex_out, nullptr, step,
                    dst, problem.is_inverse() ? FFTW_BACKWARD : FFTW_FORWARD, flags);
      break;
    case Transform::real:
      plan = F::r2c(rank, sizes, count, real_in, nullptr, step, src, complex_out, nullptr, step,
                    dst, flags);
      break;
    case Transform::inverse_real:
      plan = F::c2r(rank, sizes, count, complex_in, nullptr, step, src, real_out, nullptr, step,
                    dst, flags);
      break;
    default:
      plan = F::r2r(rank, sizes, count, real_in, nullptr, step, src, real_out, nullptr, step, dst,
                    &kind, flags);
  }
  if (plan == nullptr) throw std::runtime_error("FFTW found no plan");
  return std::shared_ptr<std::remove_pointer_t<decltype(plan)>>(plan, F::destroy);
}

template <class F, class Plan>
std::string description(F /*library*/, const Plan& plan) {
  const std::unique_ptr<char, Free> text(F::describe(plan.get()));
  return text.get();
}

/// `run` executes a plan on arrays of these elements.
template <class In, class Out, class Plan, class Run>
Contestant running(const char* name, Role role, const Plan& plan, Run run) {
  return contestant_of(
      name, role,
      [run, plan = plan.get()](const std::byte* src, std::byte* dst) {
        // The interface has no const, but these plans keep their input.
        run(plan, reinterpret_cast<In*>(const_cast<std::byte*>(src)), reinterpret_cast<Out*>(dst));
      },
      plan);
}

}  // namespace

Contestant fftw_contestant(const Problem& problem, const Places& places, const Walk& walk,
                           FftwWidth width, FftwEffort effort) {
  return with_library(problem, width, [&](auto library) {
    using F = decltype(library);
    using Real = typename F::Real;
    using Complex = Real[2];
    const auto plan = plan_of(library, problem, places, walk, effort);
    const bool narrow = width == FftwWidth::narrow;
    if (narrow && description(library, plan).find("avx") != std::string::npos) {
      throw std::runtime_error("the plan of FFTW at 128 bits uses wider vectors: " +
                               description(library, plan));
    }
    const char* const name = narrow ? "fftw128" : "fftw";
    const Role role = narrow ? Role::narrow_peer : Role::peer;
    switch (problem.transform) {
      case Transform::dft:
      case Transform::inverse_dft:
        return running<Complex, Complex>(name, role, plan, F::run_c2c);
      case Transform::real:
        return running<Real, Complex>(name, role, plan, F::run_r2c);
      case Transform::inverse_real:
        return running<Complex, Real>(name, role, plan, F::run_c2r);
      default:
        return running<Real, Real>(name, role, plan, F::run_r2r);
    }
  });
}

std::string describe_fftw_plan(const Problem& problem, const Walk& walk, FftwWidth width) {
  return with_library(problem, width, [&](auto library) {
    return description(library, plan_of(library, problem, {}, walk, FftwEffort::patient));
  });
}

}  // namespace haldgen::bench
