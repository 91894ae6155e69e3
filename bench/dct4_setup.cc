// haldgen_dct4_setup: what the set-up of a DCT-IV costs, in transforms and beside the planning of
// FFTW with FFTW_MEASURE, as a Markdown table. Each figure is the least of several.
#include <fftw3.h>
#include <haldgen.h>

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <memory>
#include <stdexcept>
#include <vector>

namespace {

template <class Call>
double least_microseconds(int rounds, int calls, const Call& call) {
  double least = 1e30;
  for (int round = 0; round < rounds; ++round) {
    const auto start = std::chrono::steady_clock::now();
    for (int i = 0; i < calls; ++i) call();
    const std::chrono::duration<double, std::micro> time = std::chrono::steady_clock::now() - start;
    least = std::min(least, time.count() / calls);
  }
  return least;
}

template <class Float>
struct Functions;
template <>
struct Functions<float> {
  static constexpr auto get_size = haldgDCT4GetSize_32f;
  static constexpr auto init = haldgDCT4Init_32f;
  static constexpr auto transform = haldgDCT4_32f;
  static void plan(int length, float* in, float* out) {
    fftwf_forget_wisdom();
    fftwf_destroy_plan(fftwf_plan_r2r_1d(length, in, out, FFTW_REDFT11, FFTW_MEASURE));
  }
};
template <>
struct Functions<double> {
  static constexpr auto get_size = haldgDCT4GetSize_64f;
  static constexpr auto init = haldgDCT4Init_64f;
  static constexpr auto transform = haldgDCT4_64f;
  static void plan(int length, double* in, double* out) {
    fftw_forget_wisdom();
    fftw_destroy_plan(fftw_plan_r2r_1d(length, in, out, FFTW_REDFT11, FFTW_MEASURE));
  }
};

template <class Float>
void print(int length) {
  using F = Functions<Float>;
  std::int32_t size = 0;
  if (F::get_size(length, &size) != haldStatusOk) throw std::runtime_error("no such length");
  std::vector<std::uint8_t> buffer(static_cast<std::size_t>(size));
  std::vector<Float> x(static_cast<std::size_t>(length), Float{1});
  std::vector<Float> y(x.size());
  Dct4State* state = nullptr;
  const int calls = std::max(1, 20000 / length);
  const double setup =
      least_microseconds(10, calls, [&] { F::init(&state, length, buffer.data()); });
  const double transform =
      least_microseconds(20, calls, [&] { F::transform(x.data(), y.data(), state); });
  const double plan = least_microseconds(2, 1, [&] { F::plan(length, x.data(), y.data()); });
  std::printf(" %.2f | %.0f | %.4f |", setup, setup / transform, setup / plan);
}

}  // namespace

// A failure ends the program. NOLINTNEXTLINE(bugprone-exception-escape)
int main() {
  std::puts(
      "| N | 32f: µs | in transforms | of FFTW_MEASURE | 64f: µs | in transforms | of FFTW_MEASURE "
      "|\n|--:|--:|--:|--:|--:|--:|--:|");
  for (int length = 2; length <= 1 << 20; length *= 2) {
    std::printf("| %d |", length);
    print<float>(length);
    print<double>(length);
    std::puts("");
    std::fflush(stdout);
  }
}
