// kissfft, as Debian builds it: a shared library for float.
#include <kiss_fftr.h>

#include <type_traits>

#include "bench/peers/peers.h"

namespace haldgen::bench {
namespace {

static_assert(std::is_same_v<kiss_fft_scalar, float>);

/// `run` transforms arrays of these elements by a plan that `allocate` makes.
template <class In, class Out, class Allocate, class Run>
std::optional<Contestant> contestant(const Problem& problem, Allocate allocate, Run run) {
  const auto state = allocate(problem.length, problem.is_inverse() ? 1 : 0, nullptr, nullptr);
  if (state == nullptr) return std::nullopt;
  const std::shared_ptr<const void> owner(state, [state](const void*) { kiss_fft_free(state); });
  return contestant_of(
      "kissfft", Role::peer,
      [run, state](const std::byte* src, std::byte* dst) {
        run(state, reinterpret_cast<const In*>(src), reinterpret_cast<Out*>(dst));
      },
      owner);
}

}  // namespace

std::optional<Contestant> kissfft_contestant(const Problem& problem) {
  if (!problem.is_float()) return std::nullopt;
  const bool even = problem.length % 2 == 0;
  switch (problem.transform) {
    case Transform::dft:
    case Transform::inverse_dft:
      return contestant<kiss_fft_cpx, kiss_fft_cpx>(problem, kiss_fft_alloc, kiss_fft);
    case Transform::real:
      if (!even) return std::nullopt;
      return contestant<float, kiss_fft_cpx>(problem, kiss_fftr_alloc, kiss_fftr);
    case Transform::inverse_real:
      if (!even) return std::nullopt;
      return contestant<kiss_fft_cpx, float>(problem, kiss_fftr_alloc, kiss_fftri);
    default:
      return std::nullopt;
  }
}

}  // namespace haldgen::bench
