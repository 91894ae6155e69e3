#include <cstdio>
#include <haldgen.hpp>

int main() {
  const std::array<float, 8> x{1, 2, 3, 4, 5, 6, 7, 9};
  // Whatever the format, [k] is bin k.
  const auto X = haldgen::real_dft<haldgen::packing::perm>(x);
  for (std::size_t k = 0; k < X.size(); ++k) {
    std::printf("X[%zu] = %6.2f %+.2fi\n", k, X[k].real(), X[k].imag());
  }
}
