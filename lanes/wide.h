// Vectors of 128, 256 or 512 bits with one transform in each lane: what lanewise code speaks.
// Additions and multiplications are the vector types' own operators, between two vectors or a
// number and a vector; they are never contracted. Shuffles are the compilers' own, which find the
// instructions of each machine, but for the few of wide_x86.h.
#pragma once

#include <cstddef>
#include <type_traits>
#include <utility>

#include "lanes/inline.h"
#include "lanes/width.h"

namespace haldgen::lanes {

/// Vectors of so many bytes, in registers, at any address, and their bits.
template <class Float, int kBytes>
struct WideTypes;
#define HALDGEN_WIDE_TYPES(Float, Integer, bytes)                                        \
  template <>                                                                            \
  struct WideTypes<Float, bytes> {                                                       \
    using Bits [[gnu::vector_size(bytes)]] = Integer;                                    \
    using Register [[gnu::vector_size(bytes), gnu::may_alias]] = Float;                  \
    using Anywhere [[gnu::vector_size(bytes), gnu::may_alias, gnu::aligned(1)]] = Float; \
  };
HALDGEN_WIDE_TYPES(float, int, 16)
HALDGEN_WIDE_TYPES(float, int, 32)
HALDGEN_WIDE_TYPES(float, int, 64)
HALDGEN_WIDE_TYPES(double, long long, 16)
HALDGEN_WIDE_TYPES(double, long long, 32)
HALDGEN_WIDE_TYPES(double, long long, 64)
#undef HALDGEN_WIDE_TYPES

template <class Float, int kBytes>
using WideVector = typename WideTypes<Float, kBytes>::Register;

/// What a vector is made of: lanes, and blocks of 128 bits.
template <class V>
struct WideTraits {
  using Float = std::remove_cvref_t<decltype(V{}[0])>;
  static constexpr int kBytes = sizeof(V);
  static constexpr int kLanes = kBytes / static_cast<int>(sizeof(Float));
  static constexpr int kBlocks = kBytes / 16;
  static constexpr int kBlockLanes = kLanes / kBlocks;
  using Anywhere = typename WideTypes<Float, kBytes>::Anywhere;
  using Bits = typename WideTypes<Float, kBytes>::Bits;
  using Block = WideVector<Float, 16>;
};
template <class V>
using FloatOf = typename WideTraits<V>::Float;

template <class V>
HALDGEN_INLINE V splat(FloatOf<V> value) {
  return value - V{};
}

template <class V>
HALDGEN_INLINE V load_wide(const FloatOf<V>* from) {
  return *reinterpret_cast<const typename WideTraits<V>::Anywhere*>(from);
}
template <class V>
HALDGEN_INLINE void store_wide(FloatOf<V>* to, V value) {
  *reinterpret_cast<typename WideTraits<V>::Anywhere*>(to) = value;
}

/// Lane i of the result is lane Place::of(i) of `a` and, behind that, of `b`.
template <class Place, class V, std::size_t... i>
HALDGEN_INLINE auto shuffled(V a, V b, std::index_sequence<i...> /*lanes*/) {
  return __builtin_shufflevector(a, b, Place::of(static_cast<int>(i))...);
}
template <class Place, class V>
HALDGEN_INLINE V shuffled(V a, V b) {
  return shuffled<Place>(a, b, std::make_index_sequence<WideTraits<V>::kLanes>());
}

/// Every second lane of a, and then of b.
template <int kFirst>
struct EverySecond {
  static constexpr int of(int i) { return 2 * i + kFirst; }
};
/// The lower, or upper, lanes of a and b in turns.
template <int kLanes, int kHalf>
struct InTurns {
  static constexpr int of(int i) { return kHalf * kLanes / 2 + i / 2 + i % 2 * kLanes; }
};
/// The same two inside of blocks, as processors do it at once.
template <int kLanes, int kBlockLanes, int kFirst>
struct EverySecondOfBlocks {
  static constexpr int of(int i) {
    const int r = 2 * (i % kBlockLanes);
    return i / kBlockLanes * kBlockLanes + r % kBlockLanes + kFirst +
           (r < kBlockLanes ? 0 : kLanes);
  }
};
template <int kLanes, int kBlockLanes, int kHalf>
struct InTurnsOfBlocks {
  static constexpr int of(int i) {
    const int r = i % kBlockLanes;
    return i - r + kHalf * kBlockLanes / 2 + r / 2 + r % 2 * kLanes;
  }
};

/// In each pair of blocks of a and b, their first ones, or their second ones.
template <int kBlockLanes, int kLanes, int kHalf>
struct SameBlocks {
  static constexpr int of(int i) {
    const bool second = i / kBlockLanes % 2 != 0;
    return i - (second ? kBlockLanes : 0) + kHalf * kBlockLanes + (second ? kLanes : 0);
  }
};

/// Of complex elements in a and b the real or imaginary parts; and back again.
template <int kFirst, class V>
HALDGEN_INLINE V every_second(V a, V b) {
  return shuffled<EverySecond<kFirst>>(a, b);
}
template <int kHalf, class V>
HALDGEN_INLINE V in_turns(V a, V b) {
  return shuffled<InTurns<WideTraits<V>::kLanes, kHalf>>(a, b);
}
template <int kFirst, class V>
HALDGEN_INLINE V every_second_of_blocks(V a, V b) {
  using T = WideTraits<V>;
  return shuffled<EverySecondOfBlocks<T::kLanes, T::kBlockLanes, kFirst>>(a, b);
}
template <int kHalf, class V>
HALDGEN_INLINE V in_turns_of_blocks(V a, V b) {
  using T = WideTraits<V>;
  return shuffled<InTurnsOfBlocks<T::kLanes, T::kBlockLanes, kHalf>>(a, b);
}

/// The rows of a square matrix in each block, transposed.
template <class D>
requires(std::is_same_v<FloatOf<D>, double>) HALDGEN_INLINE void transpose_blocks(D (&rows)[2]) {
  const D low = in_turns_of_blocks<0>(rows[0], rows[1]);
  rows[1] = in_turns_of_blocks<1>(rows[0], rows[1]);
  rows[0] = low;
}
template <class F>
requires(std::is_same_v<FloatOf<F>, float>) HALDGEN_INLINE void transpose_blocks(F (&rows)[4]) {
  using D = WideVector<double, WideTraits<F>::kBytes>;
  D low[2] = {reinterpret_cast<D>(in_turns_of_blocks<0>(rows[0], rows[1])),
              reinterpret_cast<D>(in_turns_of_blocks<0>(rows[2], rows[3]))};
  D high[2] = {reinterpret_cast<D>(in_turns_of_blocks<1>(rows[0], rows[1])),
               reinterpret_cast<D>(in_turns_of_blocks<1>(rows[2], rows[3]))};
  transpose_blocks(low);
  transpose_blocks(high);
  rows[0] = reinterpret_cast<F>(low[0]);
  rows[1] = reinterpret_cast<F>(low[1]);
  rows[2] = reinterpret_cast<F>(high[0]);
  rows[3] = reinterpret_cast<F>(high[1]);
}

/// Likewise in each pair of blocks: by blocks first, whose pairs then change places.
template <class V, std::size_t... r>
HALDGEN_INLINE void transpose_pairs_of_blocks(V (&rows)[2 * sizeof...(r)],
                                              std::index_sequence<r...> /*half of the rows*/) {
  using T = WideTraits<V>;
  constexpr std::size_t kHalf = sizeof...(r);
  V low[] = {rows[r]...};
  V high[] = {rows[kHalf + r]...};
  transpose_blocks(low);
  transpose_blocks(high);
  ((rows[r] = shuffled<SameBlocks<T::kBlockLanes, T::kLanes, 0>>(low[r], high[r])), ...);
  ((rows[kHalf + r] = shuffled<SameBlocks<T::kBlockLanes, T::kLanes, 1>>(low[r], high[r])), ...);
}

/// The rows of a square matrix in each piece of a vector, a block or two, transposed.
template <class V, std::size_t kRows>
HALDGEN_INLINE void transpose_pieces(V (&rows)[kRows]) {
  if constexpr (kRows == WideTraits<V>::kBlockLanes) {
    transpose_blocks(rows);
  } else {
    transpose_pairs_of_blocks(rows, std::make_index_sequence<kRows / 2>());
  }
}

}  // namespace haldgen::lanes

#if defined(__x86_64__) || defined(__i386__)
#include "lanes/alternate_x86.h"
#endif
#if (defined(__x86_64__) || defined(__i386__)) && !defined(__clang__)
#include "lanes/wide_x86.h"
#else
#include "lanes/wide_shuffles.h"
#endif

namespace haldgen::lanes {

/// The vector of the blocks that `block` makes of 0, 1, ...
template <class V, class MakeBlock>
HALDGEN_INLINE V of_blocks(const MakeBlock& block) {
  if constexpr (WideTraits<V>::kBlocks == 1) {
    return block(0);
  } else if constexpr (WideTraits<V>::kBlocks == 2) {
    return joined_blocks(block(0), block(1));
  } else {
    return joined_blocks(block(0), block(1), block(2), block(3));
  }
}
/// Calls take(j, block j) for each block.
template <class V, class Take>
HALDGEN_INLINE void each_block(V v, const Take& take) {
  take(0, block_of<0>(v));
  if constexpr (WideTraits<V>::kBlocks > 1) take(1, block_of<1>(v));
  if constexpr (WideTraits<V>::kBlocks > 2) {
    take(2, block_of<2>(v));
    take(3, block_of<3>(v));
  }
}

/// Blocks from `place(0)`, `place(1)`, ...
template <class V, class Place>
HALDGEN_INLINE V load_blocks(const Place& place) {
  using Block = typename WideTraits<V>::Block;
  return of_blocks<V>([&](int j) { return load_wide<Block>(place(j)); });
}
template <class V, class Place>
HALDGEN_INLINE void store_blocks(V v, const Place& place) {
  using Block = typename WideTraits<V>::Block;
  each_block(v, [&](int j, Block block) { store_wide<Block>(place(j), block); });
}

/// The same for pieces of so many bytes.
template <int kBytes, class V, class Place>
HALDGEN_INLINE V load_pieces(const Place& place) {
  if constexpr (kBytes == 16) {
    return load_blocks<V>(place);
  } else if constexpr (kBytes == sizeof(V)) {
    return load_wide<V>(place(0));
  } else {
    using Half = WideVector<FloatOf<V>, sizeof(V) / 2>;
    return joined_halves(load_wide<Half>(place(0)), load_wide<Half>(place(1)));
  }
}
template <int kBytes, class V, class Place>
HALDGEN_INLINE void store_pieces(V v, const Place& place) {
  if constexpr (kBytes == 16) {
    store_blocks<V>(v, place);
  } else if constexpr (kBytes == sizeof(V)) {
    store_wide<V>(place(0), v);
  } else {
    using Half = WideVector<FloatOf<V>, sizeof(V) / 2>;
    store_wide<Half>(place(0), half_of<0>(v));
    store_wide<Half>(place(1), half_of<1>(v));
  }
}

/// A vector of 32-bit floats in 64 bits: one vector, if the machine has any that long, else two.
template <class V>
struct Widened {
  using D = WideVector<double, WideTraits<V>::kBytes>;
  D half[2];
};
template <class V>
HALDGEN_INLINE Widened<V> operator+(const Widened<V>& a, const Widened<V>& b) {
  return {{a.half[0] + b.half[0], a.half[1] + b.half[1]}};
}
template <class V>
HALDGEN_INLINE Widened<V> operator-(const Widened<V>& a, const Widened<V>& b) {
  return {{a.half[0] - b.half[0], a.half[1] - b.half[1]}};
}
template <class V>
HALDGEN_INLINE Widened<V> operator*(const Widened<V>& a, const Widened<V>& b) {
  return {{a.half[0] * b.half[0], a.half[1] * b.half[1]}};
}
template <class V>
HALDGEN_INLINE Widened<V> operator*(double a, const Widened<V>& b) {
  return {{a * b.half[0], a * b.half[1]}};
}
template <class V>
HALDGEN_INLINE Widened<V> operator-(double a, const Widened<V>& b) {
  return {{a - b.half[0], a - b.half[1]}};
}
template <class V>
HALDGEN_INLINE auto widen(V v) {
  if constexpr (2 * sizeof(V) <= kVectorBytes) {
    return widened(v);
  } else {
    return Widened<V>{{widened_half<0>(v), widened_half<1>(v)}};
  }
}
template <class V>
HALDGEN_INLINE V narrow(const Widened<V>& v) {
  return narrowed(v.half[0], v.half[1]);
}
template <class D>
requires(sizeof(D{}[0]) == sizeof(double)) HALDGEN_INLINE auto narrow(D v) { return narrowed(v); }

// The vocabulary of vectors.h in each block.

template <class V, std::size_t... i>
HALDGEN_INLINE V
repeated(const FloatOf<V> (&block)[sizeof(V) / WideTraits<V>::kBlocks / sizeof(FloatOf<V>)],
         std::index_sequence<i...> /*lanes*/) {
  return V{block[i % WideTraits<V>::kBlockLanes]...};
}
/// The lanes of a block in all blocks.
template <class V, class... Floats>
HALDGEN_INLINE V repeated(Floats... lanes) {
  return repeated<V>({lanes...}, std::make_index_sequence<WideTraits<V>::kLanes>());
}

template <class V>
HALDGEN_INLINE V change_sign_of_blocks(V a, V signs) {
  using Bits = typename WideTraits<V>::Bits;
  return reinterpret_cast<V>(reinterpret_cast<Bits>(a) ^ reinterpret_cast<Bits>(signs));
}

struct Exchanged {
  static constexpr int of(int i) { return i ^ 1; }
};
template <class V>
HALDGEN_INLINE V exchange_in_blocks(V a) {
  return shuffled<Exchanged>(a, a);
}

template <int kLanes, int kHalfA, int kHalfB, int kCrossA, int kCrossB>
struct Gathered {
  static constexpr int of(int i) {
    const int first = i / 4 * 4;
    return i % 4 < 2 ? first + 2 * kHalfA + (i % 2 ^ kCrossA)
                     : kLanes + first + 2 * kHalfB + (i % 2 ^ kCrossB);
  }
};
template <int kHalfA, int kHalfB, int kCrossA, int kCrossB, class V>
HALDGEN_INLINE V gather_in_blocks(V a, V b) {
  return shuffled<Gathered<WideTraits<V>::kLanes, kHalfA, kHalfB, kCrossA, kCrossB>>(a, b);
}

HALDGEN_INLINE double two_floats_at(const float* from) {
  double element;
  __builtin_memcpy(&element, from, sizeof element);
  return element;
}
/// Blocks of two floats from each of two places, or from one, with zeros above.
template <class V, class Lower, class Upper>
HALDGEN_INLINE V load_half_blocks(const Lower& lower, const Upper& upper) {
  return of_blocks<V>([&](int j) {
    return reinterpret_cast<WideVector<float, 16>>(
        WideVector<double, 16>{two_floats_at(lower(j)), two_floats_at(upper(j))});
  });
}
template <class V, class Lower>
HALDGEN_INLINE V load_lower_half_blocks(const Lower& lower) {
  return of_blocks<V>([&](int j) {
    return reinterpret_cast<WideVector<float, 16>>(
        WideVector<double, 16>{two_floats_at(lower(j)), 0});
  });
}
template <int kHalf, class V, class Place>
HALDGEN_INLINE void store_half_blocks(V v, const Place& place) {
  each_block(v, [&](int j, WideVector<float, 16> block) {
    const double half = reinterpret_cast<WideVector<double, 16>>(block)[kHalf];
    __builtin_memcpy(place(j), &half, sizeof half);
  });
}

/// a - b in even lanes, a + b in odd ones.
template <class V>
HALDGEN_INLINE V alternate_in_blocks(V a, V b) {
#if defined(__x86_64__) || defined(__i386__)
  if constexpr (has_alternate<V>) return alternate_x86(a, b);
#endif
  using Float = FloatOf<V>;
  if constexpr (WideTraits<V>::kBlockLanes == 4) {
    return a + change_sign_of_blocks(b, repeated<V>(-Float{0}, Float{0}, -Float{0}, Float{0}));
  } else {
    return a + change_sign_of_blocks(b, repeated<V>(-Float{0}, Float{0}));
  }
}

}  // namespace haldgen::lanes
