#include <cstdio>
#include <haldbatch.hpp>
#include <vector>

int main() {
  using namespace haldgen;
  std::vector<std::complex<float>> x(1000 * 64, 1.0f), X(x.size());

  dft(rows<64>(x), rows<64>(X));  // 1,000 blocks, one behind the other, in one call
  dft(columns<64>(x));            // 1,000 columns of a matrix of 64 rows, in place

  // Windows of 32 samples that overlap by half, every other sample: element n of block t is
  // x[2 n + 32 t].
  const blocks<const std::complex<float>, 32> windows{x.data(), 2, 32, 100};
  std::vector<std::complex<float>> spectra(100 * 32);
  dft(windows, rows<32>(spectra));

  std::printf("%.0f %.0f\n", X[0].real(), x[0].real());
}
