// The design table of the real DFT: one row for each length and direction.
#pragma once

#include <vector>

#include "real_blocks/design.h"

namespace haldgen::dft_real {

using real_blocks::Design;

enum class Direction { forward, inverse };

/// Throws std::out_of_range if there is no such kernel.
const Design& design_of(int length, Direction direction);

/// The lengths of the table.
std::vector<int> lengths();

}  // namespace haldgen::dft_real
