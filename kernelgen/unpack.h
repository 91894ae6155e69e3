// Unpacking: the program of one transform, as vectors of its elements run it, lane by lane as a
// scalar program. One transform in each lane of a vector of any width then gives the bits of the
// packed program.
#pragma once

#include "kernelgen/program.h"

namespace haldgen::kernelgen {

/// Every operation on a lane, once. Exchanges and gathers only say where a value stands; signs go
/// along with values, into the sum or the scale that takes them. Where both terms of a sum carry a
/// minus one is negated, since the sum of two zeros has their sign.
Program unpacked(const Program& packed);

/// A complex program that reads and writes the other part of each element.
Program parts_exchanged(Program scalar);

/// Whether two scalar programs store the same expressions of what they load at the same places, so
/// that their bits agree, the signs of zeros included.
bool same_results(const Program& one, const Program& other);

}  // namespace haldgen::kernelgen
