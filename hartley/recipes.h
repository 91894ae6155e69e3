// The design table of the Hartley transform: one row for each length. Longer ones have designs by
// rules (real_blocks/rules.h).
#pragma once

#include "real_blocks/design.h"

namespace haldgen::hartley {

using real_blocks::Design;

/// Throws std::out_of_range if there is no such kernel.
const Design& design_of(int length);

}  // namespace haldgen::hartley
