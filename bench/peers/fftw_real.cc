// FFTW 3 on real samples, twice: the library as it is, and the copy held to 128-bit vectors.
#include <fftw3.h>

#include <cstdlib>
#include <memory>
#include <stdexcept>
#include <string>
#include <type_traits>

#include "bench/peers/fftw_real.h"

// The copy has the same functions under other names.
#define HALDGEN_DECLARE_COPY(prefix)                                    \
  extern "C" {                                                          \
  decltype(prefix##_plan_dft_r2c_1d) narrow_##prefix##_plan_dft_r2c_1d; \
  decltype(prefix##_plan_dft_c2r_1d) narrow_##prefix##_plan_dft_c2r_1d; \
  decltype(prefix##_plan_r2r_1d) narrow_##prefix##_plan_r2r_1d;         \
  decltype(prefix##_execute_dft_r2c) narrow_##prefix##_execute_dft_r2c; \
  decltype(prefix##_execute_dft_c2r) narrow_##prefix##_execute_dft_c2r; \
  decltype(prefix##_execute_r2r) narrow_##prefix##_execute_r2r;         \
  decltype(prefix##_destroy_plan) narrow_##prefix##_destroy_plan;       \
  decltype(prefix##_sprint_plan) narrow_##prefix##_sprint_plan;         \
  }
HALDGEN_DECLARE_COPY(fftw)
HALDGEN_DECLARE_COPY(fftwf)

namespace haldgen::bench {
namespace {

/// One of the four builds of FFTW in this program.
template <class Real, class Complex, class Plan>
struct Library {
  Plan (*plan_r2c)(int, Real*, Complex*, unsigned);
  Plan (*plan_c2r)(int, Complex*, Real*, unsigned);
  Plan (*plan_r2r)(int, Real*, Real*, fftw_r2r_kind, unsigned);
  void (*execute_r2c)(const Plan, Real*, Complex*);
  void (*execute_c2r)(const Plan, Complex*, Real*);
  void (*execute_r2r)(const Plan, Real*, Real*);
  void (*destroy)(Plan);
  char* (*describe)(const Plan);
};

#define HALDGEN_LIBRARY_OF(prefix)                                                \
  {                                                                               \
    prefix##_plan_dft_r2c_1d, prefix##_plan_dft_c2r_1d, prefix##_plan_r2r_1d,     \
        prefix##_execute_dft_r2c, prefix##_execute_dft_c2r, prefix##_execute_r2r, \
        prefix##_destroy_plan, prefix##_sprint_plan                               \
  }
using DoubleLibrary = Library<double, fftw_complex, fftw_plan>;
using FloatLibrary = Library<float, fftwf_complex, fftwf_plan>;
constexpr DoubleLibrary wide_double = HALDGEN_LIBRARY_OF(fftw);
constexpr DoubleLibrary narrow_double = HALDGEN_LIBRARY_OF(narrow_fftw);
constexpr FloatLibrary wide_float = HALDGEN_LIBRARY_OF(fftwf);
constexpr FloatLibrary narrow_float = HALDGEN_LIBRARY_OF(narrow_fftwf);

struct Free {
  void operator()(void* block) const { std::free(block); }
};

template <class Real, class Complex, class Plan>
Contestant contestant(const char* name, Role role, const Library<Real, Complex, Plan>& library,
                      FftwReal kind, int n) {
  // Planning runs on arrays as aligned as those of the measurement; it overwrites them. A half
  // spectrum has two floats more than the samples at most.
  const std::size_t bytes = ((static_cast<std::size_t>(n) + 2) * sizeof(Real) + 63) / 64 * 64;
  const std::unique_ptr<void, Free> in(std::aligned_alloc(64, bytes));
  const std::unique_ptr<void, Free> out(std::aligned_alloc(64, bytes));
  Plan plan = nullptr;
  switch (kind) {
    case FftwReal::r2c:
      plan = library.plan_r2c(n, static_cast<Real*>(in.get()), static_cast<Complex*>(out.get()),
                              FFTW_PATIENT);
      break;
    case FftwReal::c2r:
      plan = library.plan_c2r(n, static_cast<Complex*>(in.get()), static_cast<Real*>(out.get()),
                              FFTW_PATIENT | FFTW_PRESERVE_INPUT);
      break;
    case FftwReal::hartley:
    case FftwReal::dct4:
      plan = library.plan_r2r(n, static_cast<Real*>(in.get()), static_cast<Real*>(out.get()),
                              kind == FftwReal::hartley ? FFTW_DHT : FFTW_REDFT11,
                              FFTW_PATIENT | FFTW_PRESERVE_INPUT);
      break;
  }
  if (plan == nullptr) throw std::runtime_error("FFTW found no plan");
  const std::shared_ptr<std::remove_pointer_t<Plan>> owner(plan, library.destroy);
  if (role == Role::narrow_peer) {
    const std::unique_ptr<char, Free> text(library.describe(plan));
    if (std::string(text.get()).find("avx") != std::string::npos) {
      throw std::runtime_error(std::string("the plan of FFTW at 128 bits uses wider vectors: ") +
                               text.get());
    }
  }
  // The interface has no const, but these plans keep their input.
  const auto source = [](const std::byte* src) { return const_cast<std::byte*>(src); };
  switch (kind) {
    case FftwReal::r2c:
      return {name, role, [=, execute = library.execute_r2c](const Walk& walk, std::int64_t calls) {
                walk_calls(walk, calls, [=, p = owner.get()](const std::byte* src, std::byte* dst) {
                  execute(p, reinterpret_cast<Real*>(source(src)), reinterpret_cast<Complex*>(dst));
                });
              }};
    case FftwReal::c2r:
      return {name, role, [=, execute = library.execute_c2r](const Walk& walk, std::int64_t calls) {
                walk_calls(walk, calls, [=, p = owner.get()](const std::byte* src, std::byte* dst) {
                  execute(p, reinterpret_cast<Complex*>(source(src)), reinterpret_cast<Real*>(dst));
                });
              }};
    case FftwReal::hartley:
    case FftwReal::dct4:
      break;
  }
  return {name, role, [=, execute = library.execute_r2r](const Walk& walk, std::int64_t calls) {
            walk_calls(walk, calls, [=, p = owner.get()](const std::byte* src, std::byte* dst) {
              execute(p, reinterpret_cast<Real*>(source(src)), reinterpret_cast<Real*>(dst));
            });
          }};
}

}  // namespace

std::vector<Contestant> fftw_real_contestants(FftwReal kind, names::Element element, int length) {
  const auto both = [&](const auto& wide, const auto& narrow) {
    return std::vector<Contestant>{contestant("fftw", Role::peer, wide, kind, length),
                                   contestant("fftw128", Role::narrow_peer, narrow, kind, length)};
  };
  return element == names::Element::f32 ? both(wide_float, narrow_float)
                                        : both(wide_double, narrow_double);
}

}  // namespace haldgen::bench
