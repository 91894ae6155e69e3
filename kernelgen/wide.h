// Double-double arithmetic: an unevaluated sum of two doubles, about 106 bits. Constants are
// computed here and rounded once to their final type; graphs are valued here against the plain
// transform. Error-free transformations after T. J. Dekker, "A floating-point technique for
// extending the available precision", Numer. Math. 18 (1971), and D. E. Knuth, TAOCP vol. 2, 4.2.2.
#pragma once

#include <complex>
#include <cstdint>

#include "kernelgen/turn.h"

namespace haldgen::kernelgen {

struct Wide {
  double hi = 0;
  double lo = 0;

  constexpr Wide() = default;
  constexpr Wide(double value) : hi(value) {}  // exact, so implicit
  constexpr Wide(double high, double low) : hi(high), lo(low) {}
};

Wide operator+(Wide a, Wide b);
Wide operator-(Wide a);
Wide operator-(Wide a, Wide b);
Wide operator*(Wide a, Wide b);
Wide operator/(Wide a, Wide b);
Wide& operator+=(Wide& a, Wide b);
bool operator<(Wide a, Wide b);
bool operator==(Wide a, Wide b);
Wide abs(Wide a);
Wide sqrt(Wide a);
/// Whether a value that should be zero or is of order 1 is zero up to the rounding of this type.
inline bool is_negligible(Wide a) { return a.hi < 1e-24 && a.hi > -1e-24; }

/// The nearest value of the type, ties to even, with a single rounding.
double to_double(Wide a);
float to_float(Wide a);

struct WideComplex {
  Wide re;
  Wide im;
};

WideComplex operator+(WideComplex a, WideComplex b);
WideComplex operator-(WideComplex a, WideComplex b);
WideComplex operator*(WideComplex a, WideComplex b);
WideComplex operator*(Wide a, WideComplex b);
WideComplex conj(WideComplex a);
/// The product by a power of i, exactly.
WideComplex turned(WideComplex a, Turn turn);

/// exp(-2 pi i k / n), the root of unity of the forward transform. Multiples of an eighth of the
/// circle are exact in the parts that are 0, 1 or equal to each other.
WideComplex root(std::int64_t n, std::int64_t k);

/// Of an angle between -pi/4 and pi/4.
Wide cos(Wide angle);
Wide sin(Wide angle);

/// cos(2 pi k / n) and sin(2 pi k / n).
Wide cos_turn(std::int64_t k, std::int64_t n);
Wide sin_turn(std::int64_t k, std::int64_t n);

}  // namespace haldgen::kernelgen
