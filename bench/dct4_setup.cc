// haldgen_dct4_setup: what the set-up of a DCT-IV costs, in transforms and beside the planning of
// FFTW with FFTW_MEASURE, as a Markdown table. Each figure is the least of several.
#include <fftw3.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <haldgen.hpp>
#include <vector>

#include "bench/core/arena.h"
#include "bench/peers/peers.h"

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
void print(std::size_t length, haldgen::names::Element element) {
  using namespace haldgen::bench;
  std::vector<std::byte> buffer(haldgen::dct4<Float>::state_bytes(length));
  std::vector<Float> x(length, Float{1});
  std::vector<Float> y(length);
  haldgen::dct4<Float> dct4;
  const int calls = std::max(1, static_cast<int>(20000 / length));
  const double setup = least_microseconds(10, calls, [&] { (void)dct4.set_up(length, buffer); });
  const double transform = least_microseconds(20, calls, [&] { dct4(x, y); });
  const Problem problem{Transform::dct4, element, static_cast<int>(length)};
  const Arena arena(Mode::hot, problem.source_bytes(), problem.result_bytes());
  const double plan = least_microseconds(2, 1, [&] {
    fftw_forget_wisdom();
    fftwf_forget_wisdom();
    planned_by_fftw(problem, {}, arena.walk(), FftwWidth::full, FftwEffort::measure);
  });
  std::printf(" %.2f | %.0f | %.4f |", setup, setup / transform, setup / plan);
}

}  // namespace

// A failure ends the program. NOLINTNEXTLINE(bugprone-exception-escape)
int main() {
  std::puts(
      "| N | 32f: µs | in transforms | of FFTW_MEASURE | 64f: µs | in transforms | of FFTW_MEASURE "
      "|\n|--:|--:|--:|--:|--:|--:|--:|");
  for (std::size_t length = 2; length <= 1 << 20; length *= 2) {
    std::printf("| %zu |", length);
    print<float>(length, haldgen::names::Element::f32);
    print<double>(length, haldgen::names::Element::f64);
    std::puts("");
    std::fflush(stdout);
  }
}
