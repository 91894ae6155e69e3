// Recipes of lengths that a design table has no row for, made of the recipes that it has.
#pragma once

#include <functional>

#include "real_blocks/recipe.h"

namespace haldgen::real_blocks {

/// Prime lengths are Rader kernels, the others coprime stages, prime powers Cooley-Tukey stages or
/// the forms of a power of two: of all ways that of the least work, which `work_of` says. `row` is
/// the recipe of a shorter length.
Recipe recipe_by_rule(int length, const std::function<Recipe(int)>& row,
                      const std::function<int(const Recipe&)>& work_of);

}  // namespace haldgen::real_blocks
