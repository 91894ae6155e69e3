// The rotation tables of a plan. They are the only tables of the library, are filled once when a
// plan is built, and lie in the order in which the kernels read them.
#pragma once

#include "dct4/plan.h"

namespace haldgen::dct4 {

/// cos(pi x) and sin(pi x). For floats too the angle is multiplied and the function taken in 64
/// bits, so the value is that of the angle rounded to 32 bits.
double CosPi(double x);
double SinPi(double x);
float CosPi(float x);
float SinPi(float x);

/// Column `column` of row b of the rotations, in which 2j is the cosine and 2j + 1 the sine of
/// pi (2j+1)(2b+1) / (4N).
template <class Float>
Float RotationElement(const RotationFormula& formula, int32_t row, int32_t column);

/// The same for lane `lane` of a group of blocks.
template <class Float>
Float RotationElement(const RotationView& view, int32_t group, int32_t lane, int32_t column);

/// Fills N elements: for each group of blocks and each position of the walk (walk.h), a vector of
/// the blocks' cosines and one of their sines.
template <class Float>
void FillRotationTable(const RecombineNode& node);

/// (b + 1/2) / (m / r') of row b.
template <class Float>
Float InnerRotationElement(const InnerRotationFormula& formula, int32_t row);

/// Fills m / (2r') rows; for a = 1..r'-1, row b has a vector full of cos(pi a (2b+1) / m) and one
/// full of the sine. All lanes are equal, since the lanes of a fold are sequences of one position.
template <class Float>
void FillInnerTable(const InnerRecombineNode& node);

}  // namespace haldgen::dct4
