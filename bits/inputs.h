// Inputs that are hard on bits, made of integers: the same on every machine, without a maths
// library.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <type_traits>
#include <vector>

namespace haldgen::bits {

/// The generator splitmix64: a counter in steps of 2^64 over the golden ratio, each number mixed.
class Random {
 public:
  explicit Random(std::uint64_t seed) : state_(seed) {}
  std::uint64_t next() {
    std::uint64_t z = state_ += 0x9E3779B97F4A7C15U;
    z = (z ^ (z >> 30U)) * 0xBF58476D1CE4E5B9U;
    z = (z ^ (z >> 27U)) * 0x94D049BB133111EBU;
    return z ^ (z >> 31U);
  }
  /// Uniform below 2^bits.
  std::uint64_t bits(int bits) {
    return bits == 0 ? 0 : next() >> static_cast<unsigned>(64 - bits);
  }

 private:
  std::uint64_t state_;
};

/// A float's bit pattern.
template <class Float>
using Pattern = std::conditional_t<sizeof(Float) == 4, std::uint32_t, std::uint64_t>;

/// 2^exponent, down to the smallest subnormal number.
template <class Float>
Float power_of_two(int exponent) {
  using Limits = std::numeric_limits<Float>;
  const int field = exponent - Limits::min_exponent + 2;
  const int shift = field > 0 ? Limits::digits - 1 : Limits::digits - 2 + field;
  return std::bit_cast<Float>(static_cast<Pattern<Float>>(field > 0 ? field : 1)
                              << static_cast<unsigned>(shift));
}

/// How numbers of one set are made: sign, integer below 2^bits, times 2^exponent. All of them are
/// exact. An integer of 0 gives zeros of both signs.
struct InputSet {
  int bits;
  int lowest, highest;  ///< exponents, drawn for each number
  int rarity = 0;       ///< one integer in 2^rarity is not replaced by 0
};

/// For transforms of this many points. No result and nothing in between overflows.
template <class Float>
std::vector<InputSet> input_sets(int points) {
  using Limits = std::numeric_limits<Float>;
  constexpr int full = Limits::digits;
  constexpr int least = Limits::min_exponent - full;  // 2^least is the smallest subnormal number
  const int most = Limits::max_exponent - full - 4 -
                   2 * static_cast<int>(std::bit_width(static_cast<unsigned>(points)));
  std::vector<InputSet> sets{
      {full, -full, -full},  // uniform, below 1
      {full, -full, -full},
      {full, -full - 15, -full + 15},  // mixed magnitudes: every sum rounds
      {full, -full - 5, -full + 5},
      {full, most, most},            // large
      {full, least + 3, least + 3},  // results around the smallest normal number
      {full - 1, least, least},      // subnormal
      {4, least, least},             // the last bits
      {2, 0, 0},                     // small integers: many sums vanish
      {full, -full, -full, 2},       // among zeros of both signs
      {1, 0, 0, 2},                  // a few ones among them
      {0, 0, 0},                     // nothing but them
  };
  // Few draws of zeros, and of ones among them, meet the sums whose zeros hang on their order.
  sets.insert(sets.end(), 24, {0, 0, 0});
  sets.insert(sets.end(), 8, {1, 0, 0});
  return sets;
}

/// The numbers of a set. The seed makes sets differ that have the same description.
template <class Float>
std::vector<Float> numbers(const InputSet& set, std::uint64_t seed, std::size_t count) {
  Random random(seed);
  std::vector<Float> all(count);
  for (Float& number : all) {
    const std::uint64_t integer = random.bits(set.bits);
    const bool kept = random.bits(set.rarity) == 0;
    const bool negative = random.bits(1) != 0;
    const auto choices = static_cast<unsigned>(set.highest - set.lowest + 1);
    const int exponent = set.lowest + static_cast<int>(random.next() % choices);
    const Float magnitude = static_cast<Float>(kept ? integer : 0) * power_of_two<Float>(exponent);
    number = negative ? -magnitude : magnitude;
  }
  return all;
}

}  // namespace haldgen::bits
