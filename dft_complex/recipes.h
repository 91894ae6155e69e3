// The design table of the complex DFT: one recipe per length and element type.
#pragma once

#include "dft_complex/recipe.h"

namespace haldgen::dft_complex {

enum class ElementType { c32, c64 };

constexpr int kFirstLength = 2;
constexpr int kLastLength = 64;

/// The recipe of the forward kernel; lengths 2..64.
const Recipe& recipe_of(int length, ElementType type);

}  // namespace haldgen::dft_complex
