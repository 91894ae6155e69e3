// The butterfly network of the transform. Level b replaces every pair of elements whose indices
// differ in bit b alone by sum and difference. The levels come in ascending order of the bits,
// which decides every rounding; elements that no level has joined yet may be taken in any order,
// and that order is chosen for the registers.
//
// A step runs some consecutive levels on elements that it fetches from one place and puts to
// another. It is straight-line code: all loops over its values are unrolled by index sequences. It
// computes on whole vectors or on single elements, as lanes::Lanes names them.
#pragma once

#include <algorithm>
#include <cstddef>
#include <utility>

#include "lanes/inline.h"

namespace haldgen::wht {

template <class Value>
HALDGEN_INLINE void butterfly(Value& first, Value& second) {
  const Value sum = first + second;
  second = first - second;
  first = sum;
}

/// Number of the first value of a pair, its bit at `stride` being clear.
constexpr std::size_t first_of(std::size_t pair, std::size_t stride) {
  return pair + pair / stride * stride;
}

template <std::size_t kStride, class Value, std::size_t... kPair>
HALDGEN_INLINE void level(Value* x, std::index_sequence<kPair...>) {
  (butterfly(x[first_of(kPair, kStride)], x[first_of(kPair, kStride) + kStride]), ...);
}

/// One level over kCount values: pairs lie kStride apart.
template <std::size_t kCount, std::size_t kStride, class Value>
HALDGEN_INLINE void level(Value* x) {
  level<kStride>(x, std::make_index_sequence<kCount / 2>());
}

/// The levels of the bits of 0..kCount-1, from that of value kStride on.
template <std::size_t kCount, std::size_t kStride = 1, class Value>
HALDGEN_INLINE void levels(Value* x) {
  if constexpr (kStride < kCount) {
    level<kCount, kStride>(x);
    levels<kCount, 2 * kStride>(x);
  }
}

template <class Lanes, class Value, std::size_t... kPair>
HALDGEN_INLINE void level_inside_pairs(Value* x, std::index_sequence<kPair...>) {
  (Lanes::transpose(x[2 * kPair], x[2 * kPair + 1]), ...);
  (butterfly(x[2 * kPair], x[2 * kPair + 1]), ...);
  (Lanes::transpose(x[2 * kPair], x[2 * kPair + 1]), ...);
}

/// As many values as sixteen registers hold together with what they need besides.
inline constexpr std::size_t kGroup = 8;

/// Values of a group as they come.
struct InOrder {
  template <class Lanes, std::size_t kFirst, std::size_t kCount, class From>
  HALDGEN_INLINE static auto fetch(const From& from, std::size_t k) {
    return from.get(kFirst + k);
  }
};

/// What a step does to up to kGroup values of consecutive elements.
struct Contiguous : InOrder {
  /// All levels of these elements. Those of the bits inside the vectors run between two
  /// transpositions, when lanes have changed places with vectors.
  template <class Lanes, std::size_t kCount, class Value>
  HALDGEN_INLINE static void run(Value* x) {
    if constexpr (Lanes::kLanes == 4 && kCount == 4) {
      Lanes::transpose(x[0], x[1], x[2], x[3]);
      levels<4>(x);
      Lanes::transpose(x[0], x[1], x[2], x[3]);
      levels<4>(x);
    } else if constexpr (Lanes::kLanes == 4) {
      static_assert(kCount == kGroup);
      // Vectors of one parity are transposed, so bits 0, 1 and 2 of the index are now told by bits
      // 1, 2 and 0 of the vector's number.
      Lanes::transpose(x[0], x[2], x[4], x[6]);
      Lanes::transpose(x[1], x[3], x[5], x[7]);
      levels<8, 2>(x);
      level<8, 1>(x);
      Lanes::transpose(x[0], x[2], x[4], x[6]);
      Lanes::transpose(x[1], x[3], x[5], x[7]);
      levels<8, 2>(x);
    } else if constexpr (Lanes::kLanes == 2) {
      level_inside_pairs<Lanes>(x, std::make_index_sequence<kCount / 2>());
      levels<kCount>(x);
    } else {
      levels<kCount>(x);
    }
  }
};

/// The same for values that are rows of a column: each lane is a transform of its own.
struct Column : InOrder {
  template <class Lanes, std::size_t kCount, class Value>
  HALDGEN_INLINE static void run(Value* x) {
    levels<kCount>(x);
  }
};

/// Where a step takes its values from: number k lies kStride elements behind number k-1.
template <class Lanes, class Access, std::size_t kStride>
struct Source {
  const typename Lanes::Float* base;
  HALDGEN_INLINE typename Lanes::Value get(std::size_t k) const {
    return Lanes::template load<Access>(base + k * kStride);
  }
};

/// Where it puts them.
template <class Lanes, class Access, std::size_t kStride>
struct Sink {
  typename Lanes::Float* base;
  HALDGEN_INLINE void put(std::size_t k, typename Lanes::Value value) const {
    Lanes::template store<Access>(base + k * kStride, value);
  }
};

/// The same behind the last level of all.
template <class Lanes, class Access, std::size_t kStride>
struct ScaledSink {
  typename Lanes::Float* base;
  typename Lanes::Value scale;
  HALDGEN_INLINE void put(std::size_t k, typename Lanes::Value value) const {
    Lanes::template store<Access>(base + k * kStride, value * scale);
  }
};

template <class Kind, class Lanes, std::size_t kFirst, class From, std::size_t... k>
HALDGEN_INLINE void run_group(typename Lanes::Value* x, const From& from,
                              std::index_sequence<k...>) {
  ((x[kFirst + k] = Kind::template fetch<Lanes, kFirst, sizeof...(k)>(from, k)), ...);
  Kind::template run<Lanes, sizeof...(k)>(x + kFirst);
}

template <std::size_t kNumber, std::size_t kMembers, class Value, class To, std::size_t... g>
HALDGEN_INLINE void join_groups(const Value* x, const To& to, std::index_sequence<g...>) {
  Value y[] = {x[kNumber + g * kMembers]...};
  levels<sizeof...(g)>(y);
  (to.put(kNumber + g * kMembers, y[g]), ...);
}

template <class Kind, class Lanes, class From, class To, std::size_t... g, std::size_t... k>
HALDGEN_INLINE void run_groups(const From& from, const To& to, std::index_sequence<g...> groups,
                               std::index_sequence<k...> members) {
  constexpr std::size_t kMembers = sizeof...(k);
  typename Lanes::Value x[sizeof...(g) * kMembers];
  (run_group<Kind, Lanes, g * kMembers>(x, from, members), ...);
  (join_groups<k, kMembers>(x, to, groups), ...);
}

/// Runs all levels of kCount values. What the registers do not hold goes to the stack, once: the
/// levels inside of groups come first, group by group, then those that join the groups, for one
/// member of all groups after another. All values are fetched before the first is put.
template <class Kind, class Lanes, std::size_t kCount, class From, class To>
HALDGEN_INLINE void step(const From& from, const To& to) {
  constexpr std::size_t kMembers = std::min(kCount, kGroup);
  run_groups<Kind, Lanes>(from, to, std::make_index_sequence<kCount / kMembers>(),
                          std::make_index_sequence<kMembers>());
}

}  // namespace haldgen::wht
