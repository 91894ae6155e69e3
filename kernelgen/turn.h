// Turns: the powers of i.
#pragma once

#include "kernelgen/integers.h"

namespace haldgen::kernelgen {

enum class Turn { none, quarter, half, three_quarters };

/// i^count.
constexpr Turn quarters(int count) { return static_cast<Turn>(count & 3); }

constexpr Turn operator+(Turn a, Turn b) {
  return quarters(static_cast<int>(a) + static_cast<int>(b));
}
constexpr Turn operator-(Turn a) { return quarters(-static_cast<int>(a)); }
constexpr Turn operator-(Turn a, Turn b) { return a + -b; }
constexpr Turn& operator+=(Turn& a, Turn b) { return a = a + b; }

/// Whether it is i or -i, by which real and imaginary parts change places.
constexpr bool exchanges_parts(Turn t) { return t == Turn::quarter || t == Turn::three_quarters; }

/// Its place in a table of all four.
inline std::size_t at(Turn t) { return at(static_cast<int>(t)); }

}  // namespace haldgen::kernelgen
