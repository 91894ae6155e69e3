// What every Hartley kernel does around its arithmetic: the checks and their order, the scale.
// There is one path for all addresses.
#pragma once

#include <cstdint>

#include "frame/checked.h"

namespace haldgen::hartley {

template <class Kernel>
inline int32_t run(const typename Kernel::Float* src, typename Kernel::Float* dst, int32_t flag) {
  return frame::checked<Kernel>(
      src, dst, flag, [=](typename Kernel::Float scale) { Kernel::transform(src, dst, scale); });
}

}  // namespace haldgen::hartley
