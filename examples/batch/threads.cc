// A batch split among threads, by OpenMP and by oneTBB: each takes as many transforms as its share
// is, whoever chooses the shares, and the bits are those of one call.
#include <haldbatch.h>
#include <omp.h>
#include <tbb/blocked_range.h>
#include <tbb/global_control.h>
#include <tbb/parallel_for.h>

#include <cstdio>
#include <cstring>

#include "batch/signal.h"

namespace {

constexpr std::int32_t kLength = 64;
constexpr std::ptrdiff_t kCount = 10007;
constexpr int kThreads = 8;

using Signal = std::vector<Cplx32>;

// Rows from first to last; the call is the same with any share.
void transform_rows(const Signal& src, Signal& dst, std::ptrdiff_t first, std::ptrdiff_t last) {
  const std::ptrdiff_t from = first * kLength;
  haldbDFTFwd_CToC_32fc(&src[static_cast<std::size_t>(from)], 1, kLength,
                        &dst[static_cast<std::size_t>(from)], 1, kLength, kLength, last - first,
                        haldScaleBySqrtN);
}

// Equal shares.
void by_openmp(const Signal& src, Signal& dst) {
#pragma omp parallel num_threads(kThreads)
  {
    const std::ptrdiff_t thread = omp_get_thread_num();
    const std::ptrdiff_t all = omp_get_num_threads();
    transform_rows(src, dst, kCount * thread / all, kCount * (thread + 1) / all);
  }
}

// Shares as threads become free; of some hundred, which keeps them out of each other's cache lines.
void by_tbb(const Signal& src, Signal& dst) {
  const tbb::global_control limit(tbb::global_control::max_allowed_parallelism, kThreads);
  tbb::parallel_for(tbb::blocked_range<std::ptrdiff_t>(0, kCount, 256), [&](const auto& share) {
    transform_rows(src, dst, share.begin(), share.end());
  });
}

}  // namespace

int main() {
  const Signal signal = noise(static_cast<std::size_t>(kLength * kCount));
  Signal in_one_call(signal.size());
  Signal openmp(signal.size());
  Signal tbb(signal.size());
  transform_rows(signal, in_one_call, 0, kCount);
  by_openmp(signal, openmp);
  by_tbb(signal, tbb);
  const std::size_t bytes = signal.size() * sizeof signal[0];
  const bool same = std::memcmp(in_one_call.data(), openmp.data(), bytes) == 0 &&
                    std::memcmp(in_one_call.data(), tbb.data(), bytes) == 0;
  std::printf("%td transforms of %d points, 1 and %d threads: %s bits\n", kCount, kLength, kThreads,
              same ? "the same" : "OTHER");
  return same ? 0 : 1;
}
