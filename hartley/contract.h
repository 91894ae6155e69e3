// What every Hartley kernel does around its arithmetic: the checks and their order, the scale.
// There is one path for all addresses.
#pragma once

#include <cstdint>

#include "frame/checked.h"
#include "lanes/scalar.h"

namespace haldgen::hartley {

template <class Kernel>
HALDGEN_INLINE int32_t run(const typename Kernel::Float* src, typename Kernel::Float* dst,
                           int32_t flag) {
  typename Kernel::Float scale;
  const int32_t status = frame::check<Kernel>(src, dst, flag, scale);
  if (status != haldStatusOk) [[unlikely]]
    return status;
  Kernel::transform(src, dst, scale);
  return haldStatusOk;
}

}  // namespace haldgen::hartley
