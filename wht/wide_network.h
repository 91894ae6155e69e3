// Consecutive elements in wide vectors: the part of the network that knows about lanes, in
// flavours.
#pragma once

#include <algorithm>
#include <cstddef>
#include <utility>

#include "lanes/wide_lanes.h"
#include "wht/network.h"

namespace haldgen::wht {

/// What a step does to some vectors of consecutive elements. They are fetched by halves: vector k
/// has half a vector number k of the lower elements and below it... of the upper ones, so that the
/// bit of the upper lanes is the highest of all. It comes last, when the halves go to their places.
struct WideContiguous {
  template <class Lanes, std::size_t kFirst, std::size_t kCount, class From>
  HALDGEN_INLINE static auto fetch(const From& from, std::size_t k) {
    using Value = typename Lanes::Value;
    constexpr std::size_t kLanes = Lanes::kLanes;
    return lanes::load_pieces<sizeof(Value) / 2, Value>([&](int half) HALDGEN_INLINE_BODY {
      return from.base + kFirst * kLanes +
             (k + static_cast<std::size_t>(half) * kCount) * kLanes / 2;
    });
  }

  template <class Lanes, std::size_t kCount, class Value>
  HALDGEN_INLINE static void run(Value* x) {
    levels_of_lanes<Lanes::kLanes / 2>(x, std::make_index_sequence<kCount>());
    levels<kCount>(x);
    join_halves(x, std::make_index_sequence<kCount / 2>());
    level<kCount, kCount / 2>(x);
  }

 private:
  /// The level of one bit of the lanes: the sum of a pair comes to its first lane, the difference
  /// to its second one.
  template <int kBit, class Value>
  HALDGEN_INLINE static void level_of_lanes(Value& x) {
    x = lanes::sums_and_differences<kBit>(lanes::crossed<kBit>(x), x);
  }
  /// Those of all bits below this one.
  template <int kEnd, class Value, std::size_t... k>
  HALDGEN_INLINE static void levels_of_lanes(Value* x, std::index_sequence<k...> all) {
    if constexpr (kEnd > 1) {
      levels_of_lanes<kEnd / 2>(x, all);
      (level_of_lanes<kEnd / 2>(x[k]), ...);
    }
  }

  template <class Value, std::size_t... k>
  HALDGEN_INLINE static void join_halves(Value* x, std::index_sequence<k...>) {
    const Value lower[] = {lanes::same_halves<0>(x[2 * k], x[2 * k + 1])...};
    const Value upper[] = {lanes::same_halves<1>(x[2 * k], x[2 * k + 1])...};
    ((x[k] = lower[k], x[sizeof...(k) + k] = upper[k]), ...);
  }
};

}  // namespace haldgen::wht
