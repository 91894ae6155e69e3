// The design table of the real DFT: one row for each length and direction. Longer ones have designs
// by rules (real_blocks/rules.h).
#pragma once

#include "real_blocks/design.h"

namespace haldgen::dft_real {

using real_blocks::Design;

enum class Direction { forward, inverse };

/// Throws std::out_of_range if there is no such kernel.
const Design& design_of(int length, Direction direction);

}  // namespace haldgen::dft_real
