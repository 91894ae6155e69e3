#include "kernelgen/integers.h"

#include <stdexcept>

namespace haldgen::kernelgen {

int power(int base, int exponent, int modulus) {
  int result = 1;
  for (int i = 0; i < exponent; ++i) result = result * base % modulus;
  return result;
}

int primitive_root(int prime) {
  for (int g = 2; g < prime; ++g) {
    int order = 1;
    for (int v = g; v != 1; v = v * g % prime) ++order;
    if (order == prime - 1) return g;
  }
  throw std::logic_error("not an odd prime");
}

int congruent(int i, int a, int j, int b) {
  for (int k = i; k < a * b; k += a) {
    if (k % b == j) return k;
  }
  throw std::logic_error("factors are not coprime");
}

}  // namespace haldgen::kernelgen
