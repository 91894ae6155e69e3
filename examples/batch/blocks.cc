// The two-dimensional DFT of a block of L rows of M samples: all rows in one call, then all columns
// in one, in place. An image of many blocks is a loop over this.
#include <haldbatch.h>

#include <cmath>
#include <complex>
#include <cstdio>
#include <numbers>

#include "batch/signal.h"

namespace {

std::int32_t dft_2d(Cplx32* block, std::int32_t rows, std::int32_t columns, std::int32_t flag) {
  const std::int32_t status =
      haldbDFTFwd_CToC_32fc(block, 1, columns, block, 1, columns, columns, rows, flag);
  if (status != haldStatusOk) return status;
  return haldbDFTFwd_CToC_32fc(block, columns, 1, block, columns, 1, rows, columns, flag);
}

// One value of the transform by its definition.
std::complex<double> value(const std::vector<Cplx32>& block, int rows, int columns, int k, int l) {
  std::complex<double> sum = 0;
  for (int i = 0; i < rows * columns; ++i) {
    const double turns = 1.0 * k * (i / columns) / rows + 1.0 * l * (i % columns) / columns;
    const Cplx32& x = block[static_cast<std::size_t>(i)];
    sum += std::complex<double>(x.re, x.im) * std::polar(1.0, -2 * std::numbers::pi * turns);
  }
  return sum;
}

}  // namespace

int main() {
  constexpr int rows = 24;
  constexpr int columns = 60;
  const std::vector<Cplx32> block = noise(static_cast<std::size_t>(rows) * columns);
  std::vector<Cplx32> spectrum = block;
  if (dft_2d(spectrum.data(), rows, columns, haldScaleNone) != haldStatusOk) return 1;
  double error = 0;
  for (int i = 0; i < rows * columns; i += 7) {
    const Cplx32& bin = spectrum[static_cast<std::size_t>(i)];
    const std::complex<double> found(bin.re, bin.im);
    error =
        std::max(error, std::abs(value(block, rows, columns, i / columns, i % columns) - found));
  }
  std::printf("a block of %d x %d: largest error %.1e of a sum of %d numbers\n", rows, columns,
              error, rows * columns);
  return error < 1e-4 ? 0 : 1;
}
