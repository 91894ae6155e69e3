// Indices, and the number theory of factorisations.
#pragma once

#include <cstddef>

namespace haldgen::kernelgen {

inline std::size_t at(int i) { return static_cast<std::size_t>(i); }

/// k modulo n in 0..n-1, for negative k too.
inline int modulo(int k, int n) { return ((k % n) + n) % n; }

int power(int base, int exponent, int modulus);

/// The smallest generator of the group of a prime.
int primitive_root(int prime);

/// The k below a * b with k = i modulo a and k = j modulo b.
int congruent(int i, int a, int j, int b);

}  // namespace haldgen::kernelgen
