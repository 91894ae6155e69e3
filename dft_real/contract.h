// What every real kernel does around its arithmetic: the checks and their order, the scale. There
// is one path for all addresses.
#pragma once

#include <cstdint>

#include "dft_real/packing.h"
#include "frame/scales.h"
#include "haldgen.h"
#include "kernelgen/scalar.h"

namespace haldgen::dft_real {

/// Null test, flag test, transform.
template <class Kernel, class Format>
inline int32_t run(const typename Kernel::Float* src, typename Kernel::Float* dst, int32_t flag) {
  using Scales = frame::Scales<Kernel>;
  if (src == nullptr || dst == nullptr) [[unlikely]]
    return haldStatusNullPointer;
  if (!Scales::valid(flag)) [[unlikely]]
    return haldStatusFlagError;
  Kernel::template transform<Format>(src, dst, Scales::of(flag));
  return haldStatusOk;
}

}  // namespace haldgen::dft_real
