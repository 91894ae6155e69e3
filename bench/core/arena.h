// Buffers for the measurements: aligned, and laid out so that memory effects hit nobody by chance.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <span>
#include <vector>

#include "bench/core/contestant.h"

namespace haldgen::bench {

enum class Mode {
  hot,   ///< one pair of buffers, in the first-level cache throughout
  ring,  ///< a ring of pairs larger than the first-level cache
};

/// Bytes that all pairs of a ring take together.
inline constexpr std::size_t ring_bytes = std::size_t{256} * 1024;

struct alignas(4096) Page {
  std::byte bytes[4096];
};
using Pages = std::vector<Page>;

inline Pages pages_for(std::size_t bytes) {
  return Pages((bytes + sizeof(Page) - 1) / sizeof(Page));
}

/// Owns the buffers of one walk. Every buffer starts at a multiple of 64 bytes. A `src` and the
/// `dst` of the same pair lie half a page apart modulo 4096: a load whose address equals that of
/// an earlier store in the low 12 bits waits for the store.
class Arena {
 public:
  /// Room for transforms that read `src_bytes` and write `dst_bytes`.
  Arena(Mode mode, std::size_t src_bytes, std::size_t dst_bytes) {
    // One stride for both sides keeps the half page between the two of a pair along the whole ring.
    const std::size_t stride = (std::max(src_bytes, dst_bytes) + 63) / 64 * 64;
    const std::size_t pairs =
        mode == Mode::hot ? 1 : std::max<std::size_t>(2, ring_bytes / (2 * stride));
    sources_ = pages_for(stride * pairs);
    destinations_ = pages_for(stride * pairs + sizeof(Page) / 2);
    const auto step = static_cast<std::ptrdiff_t>(stride);
    walk_ = {sources_.data()->bytes, destinations_.data()->bytes + sizeof(Page) / 2, step, step,
             static_cast<int>(pairs)};
  }

  const Walk& walk() const { return walk_; }

  /// Copies `data` (`src_bytes` long) into every source.
  void fill_sources(std::span<const std::byte> data) {
    auto* const first = reinterpret_cast<std::byte*>(sources_.data());
    for (std::ptrdiff_t pair = 0; pair < walk_.pairs; ++pair) {
      std::memcpy(first + pair * walk_.src_stride, data.data(), data.size());
    }
  }

 private:
  Pages sources_, destinations_;
  Walk walk_;
};

}  // namespace haldgen::bench
