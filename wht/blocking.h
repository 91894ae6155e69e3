// How each order walks through memory: the one table from which kernels and buffer sizes follow.
//
// The levels of a transform of N = 2^order points are those of the bits of the index, the low bits
// first. They are dealt out to phases, each of which keeps its working set small:
//   chunk   2^chunk_bits contiguous elements: the low bits, in registers
//   rows    2^row_bits chunks lie below one another and make a block: the bits above, column by
//           column, a column being one vector wide
//   blocks  2^block_bits blocks lie below one another and make the transform: the highest bits,
//           again column by column
// Between the phases the elements rest in the work buffer, in their natural order: in its main
// area of N elements, and, where there are three phases, before that in a tile of one block, which
// stands behind the main area and serves all blocks in turn.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace haldgen::wht {

struct Blocking {
  int chunk_bits;
  int row_bits = 0;
  int block_bits = 0;

  constexpr int order() const { return chunk_bits + row_bits + block_bits; }
  constexpr std::size_t points() const { return std::size_t{1} << order(); }
  constexpr std::size_t chunk() const { return std::size_t{1} << chunk_bits; }
  constexpr std::size_t rows() const { return std::size_t{1} << row_bits; }
  constexpr std::size_t block() const { return chunk() * rows(); }
  constexpr std::size_t blocks() const { return std::size_t{1} << block_bits; }

  /// One pass from source to destination, without a work buffer.
  constexpr bool in_registers() const { return row_bits == 0; }
  constexpr bool has_tile() const { return block_bits != 0; }

  /// Size of the work buffer.
  constexpr std::size_t buffer_elements() const {
    if (in_registers()) return 0;
    return points() + (has_tile() ? block() : 0);
  }
};

inline constexpr int kLastOrder = 13;

/// The blocking of order k at [k - 1].
template <class Float>
inline constexpr std::array<Blocking, kLastOrder> kBlockings{};
template <>
inline constexpr std::array<Blocking, kLastOrder> kBlockings<float>{{
    {1},
    {2},
    {3},
    {4},
    {5},
    {6},
    {7},
    {5, 3},
    {6, 3},
    {6, 4},
    {6, 5},
    {6, 3, 3},
    {6, 3, 4},
}};
template <>
inline constexpr std::array<Blocking, kLastOrder> kBlockings<double>{{
    {1},
    {2},
    {3},
    {4},
    {5},
    {6},
    {7},
    {5, 3},
    {5, 4},
    {7, 3},
    {5, 3, 3},
    {5, 3, 4},
    {7, 3, 3},
}};

/// The sizes of the work buffers in bytes, that of order k at [k - 1].
template <class Float>
inline constexpr std::array<std::int32_t, kLastOrder> kBufferBytes = [] {
  std::array<std::int32_t, kLastOrder> bytes{};
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    bytes[i] = static_cast<std::int32_t>(kBlockings<Float>[i].buffer_elements() * sizeof(Float));
  }
  return bytes;
}();

}  // namespace haldgen::wht
