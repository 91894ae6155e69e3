// The rotation tables of a plan. They are the only tables of the library, are filled once when a
// plan is built, and lie in the order in which the kernels read them.
//
// For floats too an angle is multiplied by pi and its functions are taken in 64 bits, so a value is
// that of the angle rounded to 32 bits.
#pragma once

#include "dct4/plan.h"

namespace haldgen::dct4 {

/// Fills N elements: for each group of blocks b and each position of the walk (walk.h), a vector of
/// the blocks' cosines and one of their sines of pi (2j+1)(2b+1) / (4N).
template <class Float>
void fill_rotation_table(const RecombineNode& node);

/// Fills m / (2r') rows; for a = 1..r'-1, row b has a vector full of cos(pi a (2b+1) / m) and one
/// full of the sine. All lanes are equal, since the lanes of a fold are sequences of one position.
template <class Float>
void fill_inner_table(const InnerRecombineNode& node);

}  // namespace haldgen::dct4
