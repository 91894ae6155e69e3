// A kernel: the order of its tests, its two paths, its scale, its phases.
#pragma once

#include <cstdint>
#include <numbers>
#include <type_traits>

#include "haldcore.h"
#include "haldgen.h"
#include "lanes/vectors.h"
#include "lanes/wide_lanes.h"
#include "lanes/width.h"
#include "wht/blocking.h"
#include "wht/network.h"
#include "wht/wide_network.h"

namespace haldgen::wht {

template <class FloatType, int kOrder>
struct Kernel {
  using Float = FloatType;
  static constexpr Blocking kBlocking = kBlockings<Float>[kOrder - 1];
  static_assert(kBlocking.order() == kOrder);
  static constexpr std::int32_t kBufferBytes = wht::kBufferBytes<Float>[kOrder - 1];

  /// Bytes of a vector: of 16 from four of them on, of more, in flavours, from two on. Smaller
  /// transforms are scalar.
  static constexpr int kBytes = [] {
    constexpr int kAll = kBlocking.points() * sizeof(Float);
    for (int bytes = lanes::kVectorBytes; bytes > 16; bytes /= 2) {
      if (kAll >= 2 * bytes) return bytes;
    }
    return kAll >= 4 * 16 ? 16 : static_cast<int>(sizeof(Float));
  }();
  using Lanes = lanes::LanesOfBytes<Float, kBytes>;
  using Value = typename Lanes::Value;
  static constexpr bool kWide = kBytes > 16;
  using Chunk = std::conditional_t<kWide, WideContiguous, Contiguous>;

  /// Only vectors of 16 bytes are moved in another way where they are aligned.
  static constexpr bool kPathsDiffer = kBytes == 16;
  /// The paths of a kernel whose chunk is one group of vectors are short and stand together.
  static constexpr bool kPathsApart = kBlocking.chunk() / Lanes::kLanes > kGroup;

  static constexpr Float kByPoints = Float{1} / kBlocking.points();
  /// The root of an odd power of two is correctly rounded, as halving is exact.
  static constexpr Float kByRoot = (kOrder % 2 == 0 ? 1 : std::numbers::sqrt2_v<Float> / 2) /
                                   static_cast<Float>(1 << kOrder / 2);
};

/// The phases of a kernel on the path of one access to src and dst.
template <class Kernel, class Access>
struct Phases {
  using Float = typename Kernel::Float;
  using Lanes = typename Kernel::Lanes;
  using Value = typename Kernel::Value;
  using Chunk = typename Kernel::Chunk;
  static constexpr Blocking kBlocking = Kernel::kBlocking;
  static constexpr std::size_t kLanes = Lanes::kLanes;

  // The caller's arrays, and the work buffer.
  template <std::size_t kStride>
  using From = Source<Lanes, Access, kStride>;
  template <std::size_t kStride>
  using To = ScaledSink<Lanes, Access, kStride>;
  template <std::size_t kStride>
  using Fetch = Source<Lanes, lanes::Aligned, kStride>;
  template <std::size_t kStride>
  using Keep = Sink<Lanes, lanes::Aligned, kStride>;

  HALDGEN_INLINE static void in_registers(const Float* src, Float* dst, Value scale) {
    step<Chunk, Lanes, kBlocking.chunk() / kLanes>(From<kLanes>{src}, To<kLanes>{dst, scale});
  }

  /// The chunks of one block, to `rows`.
  HALDGEN_INLINE static void chunks(const Float* src, Float* rows) {
    for (std::size_t at = 0; at < kBlocking.block(); at += kBlocking.chunk()) {
      step<Chunk, Lanes, kBlocking.chunk() / kLanes>(From<kLanes>{src + at},
                                                     Keep<kLanes>{rows + at});
    }
  }

  /// The columns of one block, from the tile to its place in the main area.
  HALDGEN_INLINE static void columns_of_block(const Float* tile, Float* main) {
    constexpr std::size_t kRow = kBlocking.chunk();
    for (std::size_t at = 0; at < kRow; at += kLanes) {
      step<Column, Lanes, kBlocking.rows()>(Fetch<kRow>{tile + at}, Keep<kRow>{main + at});
    }
  }

  /// The columns of the last phase: kRows rows of kRow elements.
  template <std::size_t kRows, std::size_t kRow>
  HALDGEN_INLINE static void last_columns(const Float* main, Float* dst, Value scale) {
    for (std::size_t at = 0; at < kRow; at += kLanes) {
      step<Column, Lanes, kRows>(Fetch<kRow>{main + at}, To<kRow>{dst + at, scale});
    }
  }

  HALDGEN_INLINE static void in_buffer(const Float* src, Float* dst, Value scale, Float* buffer) {
    if constexpr (kBlocking.has_tile()) {
      // In wide vectors blocks rest in dst, which is one array less to go through the caches.
      Float* const main = Kernel::kWide ? dst : buffer;
      Float* const tile = Kernel::kWide ? buffer : main + kBlocking.points();
      for (std::size_t at = 0; at < kBlocking.points(); at += kBlocking.block()) {
        chunks(src + at, tile);
        columns_of_block(tile, main + at);
      }
      last_columns<kBlocking.blocks(), kBlocking.block()>(main, dst, scale);
    } else {
      chunks(src, buffer);
      last_columns<kBlocking.rows(), kBlocking.chunk()>(buffer, dst, scale);
    }
  }
};

/// The factor of a flag; false if it is none of the four. Flags are compared, they are no bit mask.
/// Comparisons in turn cost a kernel of four or eight points a tenth less than a look into a table.
template <class Kernel>
HALDGEN_INLINE bool choose_scale(std::int32_t flag, typename Kernel::Float& scale) {
  if (flag == haldScaleNone) {
    scale = 1;
  } else if (flag == haldScaleBySqrtN) {
    scale = Kernel::kByRoot;
  } else if (flag == haldScaleFwdByN || flag == haldScaleInvByN) {
    scale = Kernel::kByPoints;
  } else {
    return false;
  }
  return true;
}

template <class Kernel, class Access>
HALDGEN_INLINE std::int32_t checked(const typename Kernel::Float* src, typename Kernel::Float* dst,
                                    std::int32_t flag, std::uint8_t* buffer) {
  using Float = typename Kernel::Float;
  using Path = Phases<Kernel, Access>;
  if (src == nullptr || dst == nullptr) [[unlikely]]
    return haldStatusNullPointer;
  Float factor;
  if (!choose_scale<Kernel>(flag, factor)) [[unlikely]]
    return haldStatusFlagError;
  const typename Kernel::Value scale = Kernel::Lanes::broadcast(factor);
  if constexpr (Kernel::kBlocking.in_registers()) {
    Path::in_registers(src, dst, scale);
  } else {
    // There is no status for a lack of memory: without any, the first store faults.
    const bool own = buffer == nullptr;
    void* const area = own ? haldMalloc(Kernel::kBufferBytes) : buffer;
    Path::in_buffer(src, dst, scale, static_cast<Float*>(area));
    if (own) haldFree(area);
  }
  return haldStatusOk;
}

template <class Kernel>
[[gnu::noinline]] std::int32_t unaligned(const typename Kernel::Float* src,
                                         typename Kernel::Float* dst, std::int32_t flag,
                                         std::uint8_t* buffer) {
  return checked<Kernel, lanes::Anywhere>(src, dst, flag, buffer);
}

/// Choice of the path, null test, flag test, transform. A null pointer counts as aligned.
template <class Float, int kOrder>
HALDGEN_INLINE std::int32_t run(const Float* src, Float* dst, std::int32_t flag,
                                std::uint8_t* buffer) {
  using K = Kernel<Float, kOrder>;
  if constexpr (K::kPathsDiffer) {
    const auto bits = reinterpret_cast<std::uintptr_t>(src) | reinterpret_cast<std::uintptr_t>(dst);
    if (bits % sizeof(typename K::Value) != 0) [[unlikely]] {
      if constexpr (K::kPathsApart) return unaligned<K>(src, dst, flag, buffer);
      return checked<K, lanes::Anywhere>(src, dst, flag, buffer);
    }
  }
  return checked<K, lanes::Aligned>(src, dst, flag, buffer);
}

}  // namespace haldgen::wht
