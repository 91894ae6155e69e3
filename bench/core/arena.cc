// Buffers for the measurements.
#include "bench/core/arena.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <new>

namespace haldgen::bench {
namespace {

constexpr std::size_t page = 4096;
constexpr std::size_t line = 64;

constexpr std::size_t round_up(std::size_t value, std::size_t unit) {
  return (value + unit - 1) / unit * unit;
}

int pair_count(Mode mode, std::size_t pair_bytes) {
  if (mode == Mode::hot) return 1;
  return static_cast<int>(std::max<std::size_t>(2, ring_bytes / pair_bytes));
}

}  // namespace

std::string_view name(Mode mode) { return mode == Mode::hot ? "hot" : "ring"; }

void Arena::Free::operator()(std::byte* block) const { std::free(block); }

Arena::Block Arena::allocate(std::size_t bytes) {
  const std::size_t size = round_up(bytes, page);
  void* const block = std::aligned_alloc(page, size);
  if (block == nullptr) throw std::bad_alloc();
  std::memset(block, 0, size);
  return Block(static_cast<std::byte*>(block));
}

Arena::Arena(Mode mode, std::size_t src_bytes, std::size_t dst_bytes) {
  // One stride for both sides keeps the half page between the two of a pair along the whole ring.
  const std::size_t stride = round_up(std::max(src_bytes, dst_bytes), line);
  const int pairs = pair_count(mode, 2 * stride);
  const std::size_t side = stride * static_cast<std::size_t>(pairs);
  source_bytes_ = side;
  source_block_ = allocate(side);
  destination_block_ = allocate(side + page / 2);
  const auto step = static_cast<std::ptrdiff_t>(stride);
  walk_ = {source_block_.get(), destination_block_.get() + page / 2, step, step, pairs};
}

std::span<std::byte> Arena::sources() { return {source_block_.get(), source_bytes_}; }

void Arena::fill_sources(std::span<const std::byte> data) {
  for (std::ptrdiff_t pair = 0; pair < walk_.pairs; ++pair) {
    std::memcpy(source_block_.get() + pair * walk_.src_stride, data.data(), data.size());
  }
}

}  // namespace haldgen::bench
