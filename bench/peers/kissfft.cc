// kissfft, as Debian builds it: a shared library for float.
#include <kiss_fft.h>

#include <memory>
#include <type_traits>

#include "bench/peers/peers.h"

namespace haldgen::bench {

static_assert(std::is_same_v<kiss_fft_scalar, float>);

std::optional<Contestant> kissfft_contestant(const ComplexProblem& problem) {
  if (problem.element != names::Element::c32) return std::nullopt;
  const int inverse = problem.direction == Direction::inverse ? 1 : 0;
  const std::shared_ptr<kiss_fft_state> plan(
      kiss_fft_alloc(problem.length, inverse, nullptr, nullptr),
      [](kiss_fft_state* state) { kiss_fft_free(state); });
  if (!plan) return std::nullopt;
  return Contestant{"kissfft", Role::peer, [plan](const Walk& walk, std::int64_t calls) {
                      walk_calls(walk, calls,
                                 [state = plan.get()](const std::byte* src, std::byte* dst) {
                                   kiss_fft(state, reinterpret_cast<const kiss_fft_cpx*>(src),
                                            reinterpret_cast<kiss_fft_cpx*>(dst));
                                 });
                    }};
}

}  // namespace haldgen::bench
