// Buffers for the measurements: aligned, and laid out so that memory effects hit nobody by chance.
#pragma once

#include <cstddef>
#include <memory>
#include <span>
#include <string_view>

#include "bench/core/contestant.h"

namespace haldgen::bench {

enum class Mode {
  hot,   ///< one pair of buffers, in the first-level cache throughout
  ring,  ///< a ring of pairs larger than the first-level cache
};

std::string_view name(Mode mode);

/// Bytes that all pairs of a ring take together.
inline constexpr std::size_t ring_bytes = std::size_t{256} * 1024;

/// Owns the buffers of one walk. Every buffer starts at a multiple of 64 bytes. A `src` and the
/// `dst` of the same pair lie half a page apart modulo 4096: a load whose address equals that of
/// an earlier store in the low 12 bits waits for the store.
class Arena {
 public:
  /// Room for transforms that read `src_bytes` and write `dst_bytes`.
  Arena(Mode mode, std::size_t src_bytes, std::size_t dst_bytes);

  const Walk& walk() const { return walk_; }

  /// All bytes from the first source to the last one, gaps between sources included.
  std::span<std::byte> sources();

  /// Copies `data` (`src_bytes` long) into every source.
  void fill_sources(std::span<const std::byte> data);

 private:
  struct Free {
    void operator()(std::byte* block) const;
  };
  using Block = std::unique_ptr<std::byte, Free>;
  static Block allocate(std::size_t bytes);

  std::size_t source_bytes_;
  Block source_block_;
  Block destination_block_;
  Walk walk_;
};

}  // namespace haldgen::bench
