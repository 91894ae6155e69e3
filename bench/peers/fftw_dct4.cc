// FFTW 3's REDFT11, twice: the library as it is, and the copy held to 128-bit vectors.
#include "bench/peers/fftw_dct4.h"

#include <fftw3.h>

#include <cstdlib>
#include <memory>
#include <stdexcept>
#include <string>
#include <type_traits>

// The copy has the same functions under other names.
extern "C" {
decltype(fftw_plan_r2r_1d) narrow_fftw_plan_r2r_1d;
decltype(fftw_execute_r2r) narrow_fftw_execute_r2r;
decltype(fftw_destroy_plan) narrow_fftw_destroy_plan;
decltype(fftw_sprint_plan) narrow_fftw_sprint_plan;
decltype(fftwf_plan_r2r_1d) narrow_fftwf_plan_r2r_1d;
decltype(fftwf_execute_r2r) narrow_fftwf_execute_r2r;
decltype(fftwf_destroy_plan) narrow_fftwf_destroy_plan;
decltype(fftwf_sprint_plan) narrow_fftwf_sprint_plan;
}

namespace haldgen::bench {
namespace {

/// One of the four builds of FFTW in this program.
template <class Real, class Plan>
struct Library {
  Plan (*plan)(int, Real*, Real*, fftw_r2r_kind, unsigned);
  void (*execute)(const Plan, Real*, Real*);
  void (*destroy)(Plan);
  char* (*describe)(const Plan);
};
constexpr Library<double, fftw_plan> wide_double = {fftw_plan_r2r_1d, fftw_execute_r2r,
                                                    fftw_destroy_plan, fftw_sprint_plan};
constexpr Library<float, fftwf_plan> wide_float = {fftwf_plan_r2r_1d, fftwf_execute_r2r,
                                                   fftwf_destroy_plan, fftwf_sprint_plan};
constexpr Library<double, fftw_plan> narrow_double = {
    narrow_fftw_plan_r2r_1d, narrow_fftw_execute_r2r, narrow_fftw_destroy_plan,
    narrow_fftw_sprint_plan};
constexpr Library<float, fftwf_plan> narrow_float = {
    narrow_fftwf_plan_r2r_1d, narrow_fftwf_execute_r2r, narrow_fftwf_destroy_plan,
    narrow_fftwf_sprint_plan};

struct Free {
  void operator()(void* block) const { std::free(block); }
};

template <class Real, class Plan>
Contestant contestant(const char* name, Role role, const Library<Real, Plan>& library, int length) {
  // Planning runs on arrays as aligned as those of the measurement; it overwrites them.
  const std::size_t bytes = (static_cast<std::size_t>(length) * sizeof(Real) + 63) / 64 * 64;
  const std::unique_ptr<void, Free> in(std::aligned_alloc(64, bytes));
  const std::unique_ptr<void, Free> out(std::aligned_alloc(64, bytes));
  const Plan plan =
      library.plan(length, static_cast<Real*>(in.get()), static_cast<Real*>(out.get()),
                   FFTW_REDFT11, FFTW_PATIENT | FFTW_PRESERVE_INPUT);
  if (plan == nullptr) throw std::runtime_error("FFTW found no plan");
  const std::shared_ptr<std::remove_pointer_t<Plan>> owner(plan, library.destroy);
  if (role == Role::narrow_peer) {
    const std::unique_ptr<char, Free> text(library.describe(plan));
    if (std::string(text.get()).find("avx") != std::string::npos) {
      throw std::runtime_error(std::string("the plan of FFTW at 128 bits uses wider vectors: ") +
                               text.get());
    }
  }
  return {name, role, [owner, execute = library.execute](const Walk& walk, std::int64_t calls) {
            walk_calls(walk, calls,
                       [execute, p = owner.get()](const std::byte* src, std::byte* dst) {
                         // The interface has no const, but the plan keeps its input.
                         auto* const source = const_cast<std::byte*>(src);
                         execute(p, reinterpret_cast<Real*>(source), reinterpret_cast<Real*>(dst));
                       });
          }};
}

}  // namespace

std::vector<Contestant> fftw_dct4_contestants(frame::Element element, int length) {
  const auto both = [length](const auto& wide, const auto& narrow) {
    return std::vector<Contestant>{contestant("fftw", Role::peer, wide, length),
                                   contestant("fftw128", Role::narrow_peer, narrow, length)};
  };
  return element == frame::Element::f32 ? both(wide_float, narrow_float)
                                        : both(wide_double, narrow_double);
}

}  // namespace haldgen::bench
