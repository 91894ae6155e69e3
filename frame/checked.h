// What every kernel without a work buffer does before its arithmetic: the tests of its arguments
// and their order, the choice of the scale. A kernel is a type with
//   Float                        the float type of its elements
//   kFwdByN, kInvByN, kBySqrtN   the factors of these flags
#pragma once

#include <cstdint>

#include "haldgen.h"
#include "lanes/inline.h"

namespace haldgen::frame {

/// Flags are compared for equality, they are no bit mask.
template <class Kernel>
struct Scales {
  using Float = typename Kernel::Float;
  static constexpr bool valid(int32_t flag) {
    constexpr std::uint32_t kFlags = 1U << haldScaleFwdByN | 1U << haldScaleInvByN |
                                     1U << haldScaleBySqrtN | 1U << haldScaleNone;
    return static_cast<std::uint32_t>(flag) <= haldScaleNone && ((kFlags >> flag) & 1U) != 0;
  }
  static Float of(int32_t flag) {
    alignas(64) static constexpr Float kByFlag[9] = {
        0, Kernel::kFwdByN, Kernel::kInvByN, 0, Kernel::kBySqrtN, 0, 0, 0, 1};
    return kByFlag[flag];
  }
};

/// Null test, then flag test: what is wrong, or haldStatusOk and the scale.
template <class Kernel>
HALDGEN_INLINE int32_t check(const void* src, const void* dst, int32_t flag,
                             typename Kernel::Float& scale) {
  if (src == nullptr || dst == nullptr) [[unlikely]]
    return haldStatusNullPointer;
  if (!Scales<Kernel>::valid(flag)) [[unlikely]]
    return haldStatusFlagError;
  scale = Scales<Kernel>::of(flag);
  return haldStatusOk;
}

}  // namespace haldgen::frame
