// What every complex kernel does around its arithmetic: the choice of path, the checks and their
// order, the scale. A kernel is a type with
//   Float, Element       the element's float type and the public complex type
//   kInverse             which flag selects 1/N
//   kByLength, kByRoot   1/N and 1/sqrt(N)
//   kPathsDiffer         whether an aligned and an unaligned path touch memory differently
//   transform<Access>(src, dst, scale)
#pragma once

#include <cstdint>

#include "haldgen.h"
#include "kernelgen/lanes.h"

namespace haldgen::dft_complex {

/// The scale by flag value; flags are compared for equality, they are no bit mask.
template <class Kernel>
struct Scales {
  using Float = typename Kernel::Float;
  static constexpr bool valid(int32_t flag) {
    constexpr std::uint32_t kFlags = 1U << haldScaleFwdByN | 1U << haldScaleInvByN |
                                     1U << haldScaleBySqrtN | 1U << haldScaleNone;
    return static_cast<std::uint32_t>(flag) <= haldScaleNone && ((kFlags >> flag) & 1U) != 0;
  }
  static Float of(int32_t flag) {
    alignas(64) static constexpr Float kByFlag[9] = {0,
                                                     Kernel::kInverse ? 1 : Kernel::kByLength,
                                                     Kernel::kInverse ? Kernel::kByLength : 1,
                                                     0,
                                                     Kernel::kByRoot,
                                                     0,
                                                     0,
                                                     0,
                                                     1};
    return kByFlag[flag];
  }
};

template <class Kernel, class Access>
inline int32_t checked(const typename Kernel::Element* src, typename Kernel::Element* dst,
                       int32_t flag) {
  using Float = typename Kernel::Float;
  if (src == nullptr || dst == nullptr) [[unlikely]]
    return haldStatusNullPointer;
  if (!Scales<Kernel>::valid(flag)) [[unlikely]]
    return haldStatusFlagError;
  Kernel::template transform<Access>(reinterpret_cast<const Float*>(src),
                                     reinterpret_cast<Float*>(dst), Scales<Kernel>::of(flag));
  return haldStatusOk;
}

template <class Kernel>
[[gnu::noinline]] int32_t unaligned(const typename Kernel::Element* src,
                                    typename Kernel::Element* dst, int32_t flag) {
  return checked<Kernel, lanes::Unaligned>(src, dst, flag);
}

/// Alignment choice, null test, flag test, transform. A null pointer counts as aligned.
template <class Kernel>
inline int32_t run(const typename Kernel::Element* src, typename Kernel::Element* dst,
                   int32_t flag) {
  if constexpr (Kernel::kPathsDiffer) {
    const auto bits = reinterpret_cast<std::uintptr_t>(src) | reinterpret_cast<std::uintptr_t>(dst);
    if ((bits & 15U) != 0) [[unlikely]]
      return unaligned<Kernel>(src, dst, flag);
  }
  return checked<Kernel, lanes::Aligned>(src, dst, flag);
}

}  // namespace haldgen::dft_complex
