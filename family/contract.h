// What every generated kernel does around its arithmetic: the choice of path, the tests of its
// arguments and their order, the scale. A kernel is a type with
//   Float, Element               the element's float type, and the element in the public header
//   kFwdByN, kInvByN, kBySqrtN   the factors of these flags
//   kPathsDiffer                 whether an aligned and an unaligned path touch memory differently
//   transform<Memory>(src, dst, scale)
// `Memory` says how whole vectors are loaded and stored, or where a packed format has its values.
#pragma once

#include <cstdint>

#include "haldgen.h"
#include "lanes/vectors.h"

namespace haldgen::family {

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

/// Null test, flag test, transform.
template <class Kernel, class Memory>
HALDGEN_INLINE int32_t checked(const typename Kernel::Element* src, typename Kernel::Element* dst,
                               int32_t flag) {
  using Float = typename Kernel::Float;
  if (src == nullptr || dst == nullptr) [[unlikely]]
    return haldStatusNullPointer;
  if (!Scales<Kernel>::valid(flag)) [[unlikely]]
    return haldStatusFlagError;
  const Float scale = Scales<Kernel>::of(flag);
  Kernel::template transform<Memory>(reinterpret_cast<const Float*>(src),
                                     reinterpret_cast<Float*>(dst), scale);
  return haldStatusOk;
}

template <class Kernel>
[[gnu::noinline]] int32_t unaligned(const typename Kernel::Element* src,
                                    typename Kernel::Element* dst, int32_t flag) {
  return checked<Kernel, lanes::ByHalves>(src, dst, flag);
}

/// The choice of path comes first. A null pointer counts as aligned.
template <class Kernel, class Memory = lanes::Aligned>
HALDGEN_INLINE int32_t run(const typename Kernel::Element* src, typename Kernel::Element* dst,
                           int32_t flag) {
  if constexpr (Kernel::kPathsDiffer) {
    const auto bits = reinterpret_cast<std::uintptr_t>(src) | reinterpret_cast<std::uintptr_t>(dst);
    if ((bits & 15U) != 0) [[unlikely]]
      return unaligned<Kernel>(src, dst, flag);
  }
  return checked<Kernel, Memory>(src, dst, flag);
}

}  // namespace haldgen::family
