// What every complex kernel does around its arithmetic: the choice of path, the checks and their
// order, the scale. A kernel is a type with
//   Float, Element               the element's float type and the public complex type
//   kFwdByN, kInvByN, kBySqrtN   the factors of these flags
//   kPathsDiffer                 whether an aligned and an unaligned path touch memory differently
//   transform<Access>(src, dst, scale)
#pragma once

#include <cstdint>

#include "frame/checked.h"
#include "haldgen.h"
#include "lanes/scalar.h"
#include "lanes/vectors.h"

namespace haldgen::dft_complex {

template <class Kernel, class Access>
HALDGEN_INLINE int32_t checked(const typename Kernel::Element* src, typename Kernel::Element* dst,
                               int32_t flag) {
  using Float = typename Kernel::Float;
  Float scale;
  const int32_t status = frame::check<Kernel>(src, dst, flag, scale);
  if (status != haldStatusOk) [[unlikely]]
    return status;
  Kernel::template transform<Access>(reinterpret_cast<const Float*>(src),
                                     reinterpret_cast<Float*>(dst), scale);
  return haldStatusOk;
}

template <class Kernel>
[[gnu::noinline]] int32_t unaligned(const typename Kernel::Element* src,
                                    typename Kernel::Element* dst, int32_t flag) {
  return checked<Kernel, lanes::ByHalves>(src, dst, flag);
}

/// Alignment choice, null test, flag test, transform. A null pointer counts as aligned.
template <class Kernel>
HALDGEN_INLINE int32_t run(const typename Kernel::Element* src, typename Kernel::Element* dst,
                           int32_t flag) {
  if constexpr (Kernel::kPathsDiffer) {
    const auto bits = reinterpret_cast<std::uintptr_t>(src) | reinterpret_cast<std::uintptr_t>(dst);
    if ((bits & 15U) != 0) [[unlikely]]
      return unaligned<Kernel>(src, dst, flag);
  }
  return checked<Kernel, lanes::Aligned>(src, dst, flag);
}

}  // namespace haldgen::dft_complex
