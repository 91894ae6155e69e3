// Which lengths there are, how they divide, and how large their states are.
#pragma once

#include <cstdint>
#include <optional>

namespace haldgen::dct4 {

/// 1 to `count` for 2, 4, 8, ..., else count + 1.
constexpr std::int32_t power_class(std::int32_t length, std::int32_t count) {
  for (std::int32_t k = 1; k <= count; ++k) {
    if (length == 1 << k) return k;
  }
  return count + 1;
}

/// Lengths 2, 4, ..., 32 are classes 1 to 5, with a kernel each; others have a plan.
inline constexpr std::int32_t kPlannedClass = 6;
constexpr std::int32_t size_class(std::int32_t length) {
  return power_class(length, kPlannedClass - 1);
}

/// Fold lengths 2, 4, ..., 64 are classes 1 to 6, with a kernel each; others have an inner plan.
inline constexpr std::int32_t kPlannedFoldClass = 7;
constexpr std::int32_t fold_class(std::int32_t length) {
  return power_class(length, kPlannedFoldClass - 1);
}

/// The radix for a half-length; 0 if there is none.
constexpr std::int32_t pick_radix(std::int32_t half_length) {
  struct Row {
    std::int32_t radix;
    std::int32_t from;
  };
  for (const Row row : {Row{32, 512}, Row{16, 128}, Row{8, 32}, Row{4, 16}, Row{2, 4}}) {
    if (half_length >= row.from && half_length % row.radix == 0) return row.radix;
  }
  return 0;
}

/// Whether there is a transform of this length, for an element type with this many lanes. Besides
/// 2, 4, ..., 32 and the powers of two from 64 up, these are numbers 2^k + 1: divisions truncate,
/// so they have the plan of 2^k, with rotations by angles of their own length.
bool accept_length(std::int32_t length, std::int32_t lanes);

/// Bytes of one row of an inner rotation table: a vector for each cosine and sine of radix - 1
/// rotations.
constexpr std::int32_t inner_row_bytes(std::int32_t radix) { return 32 * (radix - 1); }

/// Bytes of the state of an accepted length.
std::int64_t exact_state_size(std::int32_t length, std::int32_t element_size);

/// The same in signed 32-bit arithmetic that wraps; none for a length that is not accepted or at
/// which a sum on the way comes out negative. Where some products wrap around more than once, the
/// size is too small for the length.
std::optional<std::int32_t> state_size(std::int32_t length, std::int32_t element_size);

}  // namespace haldgen::dct4
