// The design table of the complex DFT: one row for each length and element type. Longer ones have
// designs by rules (rules.h).
#pragma once

#include "dft_complex/design.h"

namespace haldgen::dft_complex {

/// Throws std::out_of_range if there is no such kernel.
const Design& design_of(int length, kernelgen::FloatType type);

}  // namespace haldgen::dft_complex
