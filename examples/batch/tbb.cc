// A batch split by oneTBB, which chooses the shares as threads become free: the bits do not hang on
// its choice.
#include <haldbatch.h>
#include <tbb/blocked_range.h>
#include <tbb/global_control.h>
#include <tbb/parallel_for.h>

#include <cstdio>

#include "batch/signal.h"

namespace {

constexpr std::int32_t kLength = 48;
constexpr std::ptrdiff_t kCount = 10007;

// Columns: element n of all transforms side by side.
std::vector<Cplx32> spectra(const std::vector<Cplx32>& signal, std::size_t threads) {
  const tbb::global_control limit(tbb::global_control::max_allowed_parallelism, threads);
  std::vector<Cplx32> result(signal.size());
  // A share of some hundred keeps the threads out of each other's cache lines.
  tbb::parallel_for(tbb::blocked_range<std::ptrdiff_t>(0, kCount, 256), [&](const auto& share) {
    haldbDFTFwd_CToC_32fc(signal.data() + share.begin(), kCount, 1, result.data() + share.begin(),
                          kCount, 1, kLength, share.end() - share.begin(), haldScaleNone);
  });
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
