#include <cstdio>
#include <haldgen.hpp>

int main() {
  std::array<std::complex<float>, 16> x{}, X;
  for (std::size_t n = 0; n < 16; n += 4) x[n] = 1;  // a pulse every 4 samples

  haldgen::dft(x, X, haldgen::scale::forward_by_n);  // the length is part of the type

  for (int k = 0; const auto bin : X) {
    if (bin.real() > 0.01f) std::printf("bin %2d: %.2f\n", k, bin.real());
    ++k;
  }
}
