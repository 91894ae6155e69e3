// The Walsh-Hadamard transform written down plainly, level by level: what a compiler makes of it.
// Compiled with all the optimisation that a compiler offers, at the kernels' instruction set.
#include <array>
#include <bit>
#include <cstddef>
#include <utility>

#include "bench/peers/peers.h"

namespace haldgen::bench {
namespace {

template <class Float>
using PlainWht = void (*)(const Float* src, Float* dst, int order, Float scale);

template <class Float>
void plain(const Float* src, Float* dst, int order, Float scale) {
  const std::size_t n = std::size_t{1} << order;
  for (std::size_t i = 0; i < n; ++i) dst[i] = src[i];
  for (std::size_t half = 1; half < n; half *= 2) {
    for (std::size_t first = 0; first < n; first += 2 * half) {
      for (std::size_t i = first; i < first + half; ++i) {
        const Float a = dst[i];
        const Float b = dst[i + half];
        dst[i] = a + b;
        dst[i + half] = a - b;
      }
    }
  }
  for (std::size_t i = 0; i < n; ++i) dst[i] *= scale;
}

template <class Float, std::size_t kPoints, std::size_t kHalf>
inline void levels_from(Float* __restrict x) {
  if constexpr (kHalf < kPoints) {
    for (std::size_t first = 0; first < kPoints; first += 2 * kHalf) {
      for (std::size_t i = first; i < first + kHalf; ++i) {
        const Float a = x[i];
        const Float b = x[i + kHalf];
        x[i] = a + b;
        x[i + kHalf] = a - b;
      }
    }
    levels_from<Float, kPoints, 2 * kHalf>(x);
  }
}

template <class Float, int kOrder>
void fixed(const Float* __restrict src, Float* __restrict dst, int /*order*/, Float scale) {
  constexpr std::size_t kPoints = std::size_t{1} << kOrder;
  for (std::size_t i = 0; i < kPoints; ++i) dst[i] = src[i];
  levels_from<Float, kPoints, 1>(dst);
  for (std::size_t i = 0; i < kPoints; ++i) dst[i] *= scale;
}

template <class Float, int... kOrder>
PlainWht<Float> fixed_by_order(int order, std::integer_sequence<int, kOrder...> /*orders*/) {
  constexpr std::array<PlainWht<Float>, sizeof...(kOrder)> kByOrder = {fixed<Float, kOrder>...};
  return kByOrder.at(static_cast<std::size_t>(order));
}

template <class Float>
std::vector<Contestant> contestants(const Problem& problem) {
  const int order = std::countr_zero(static_cast<unsigned>(problem.length));
  const auto one = [order](const char* name, PlainWht<Float> function) {
    return contestant_of(name, Role::baseline,
                         [function, order](const std::byte* src, std::byte* dst) {
                           function(reinterpret_cast<const Float*>(src),
                                    reinterpret_cast<Float*>(dst), order, Float{1});
                         });
  };
  const auto orders = std::make_integer_sequence<int, 14>();
  return {one("plain", plain<Float>), one("plain_fixed", fixed_by_order<Float>(order, orders))};
}

}  // namespace

std::vector<Contestant> plain_wht_contestants(const Problem& problem) {
  return problem.is_float() ? contestants<float>(problem) : contestants<double>(problem);
}

}  // namespace haldgen::bench
