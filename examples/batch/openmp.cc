// A batch split among the threads of OpenMP: each takes as many transforms as its share is, and the
// bits are those of one call.
#include <haldbatch.h>
#include <omp.h>

#include <cstdio>

#include "batch/signal.h"

namespace {

constexpr std::int32_t kLength = 64;
constexpr std::ptrdiff_t kCount = 10007;

// Rows from first to last; the call is the same with any share.
std::int32_t transform_rows(const Cplx32* src, Cplx32* dst, std::ptrdiff_t first,
                            std::ptrdiff_t last) {
  return haldbDFTFwd_CToC_32fc(src + first * kLength, 1, kLength, dst + first * kLength, 1, kLength,
                               kLength, last - first, haldScaleBySqrtN);
}

std::vector<Cplx32> spectra(const std::vector<Cplx32>& signal, int threads) {
  std::vector<Cplx32> result(signal.size());
#pragma omp parallel num_threads(threads)
  {
    const std::ptrdiff_t thread = omp_get_thread_num();
    const std::ptrdiff_t all = omp_get_num_threads();
    transform_rows(signal.data(), result.data(), kCount * thread / all,
                   kCount * (thread + 1) / all);
  }
  return result;
}

}  // namespace

int main() {
  const std::vector<Cplx32> signal = noise(static_cast<std::size_t>(kLength * kCount));
  const bool same = same_bits(spectra(signal, 1), spectra(signal, 8));
  std::printf("%td transforms of %d points, 1 and 8 threads: %s bits\n", kCount, kLength,
              same ? "the same" : "OTHER");
  return same ? 0 : 1;
}
