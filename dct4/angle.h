// Cosine and sine of an angle, for the rotation tables: the same bits on every machine, since they
// are made of additions and multiplications alone.
#pragma once

namespace haldgen::dct4 {

struct CosineSine {
  double cosine;
  double sine;
};

/// Of an angle in [0, pi]. The error of either is at most 0.51 units in the last place.
CosineSine cosine_sine(double angle);

}  // namespace haldgen::dct4
