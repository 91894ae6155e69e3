// The whole numbers modulo n, as index permutations need them.
#pragma once

#include <stdexcept>

namespace haldgen::kernelgen {

/// The k in 0..n-1 that is congruent to `k`.
inline int modulo(int k, int n) { return ((k % n) + n) % n; }

/// base^exponent modulo n, 0 <= base < n and exponent >= 0.
inline int power(int base, int exponent, int n) {
  int result = 1;
  for (int i = 0; i < exponent; ++i) result = result * base % n;
  return result;
}

/// The smallest primitive root of an odd prime.
inline int primitive_root(int prime) {
  for (int g = 2; g < prime; ++g) {
    int order = 1;
    for (int v = g; v != 1 && order < prime; v = v * g % prime) ++order;
    if (order == prime - 1) return g;
  }
  throw std::logic_error("not an odd prime");
}

/// The k below a * b, which are coprime, with k = i modulo a and k = j modulo b.
inline int congruent(int i, int a, int j, int b) {
  for (int k = i; k < a * b; k += a) {
    if (k % b == j) return k;
  }
  throw std::logic_error("factors are not coprime");
}

}  // namespace haldgen::kernelgen
