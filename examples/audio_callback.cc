// An audio callback that may not allocate: overlapping blocks of 64 samples go through a spectral
// gate, by a real DFT and back. Whoever takes memory while the callback runs ends the program.
#include <haldgen.hpp>

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <numbers>
#include <random>

static thread_local bool in_callback = false;

// In place of the C library's, which operator new calls as well.
extern "C" void* __libc_malloc(std::size_t size);
extern "C" void* malloc(std::size_t size) {
  if (in_callback) std::abort();
  return __libc_malloc(size);
}

namespace {

constexpr std::size_t kBlock = 64;
constexpr std::size_t kHop = kBlock / 2;

class Gate {
 public:
  Gate() {
    for (std::size_t n = 0; n < kBlock; ++n) {
      window_[n] = std::sin(std::numbers::pi_v<float> * (static_cast<float>(n) + 0.5F) / kBlock);
    }
  }

  // Takes kHop samples and returns those of one hop before.
  void process(std::span<const float, kHop> in, std::span<float, kHop> out) {
    in_callback = true;
    std::copy(in.begin(), in.end(), input_.begin() + kHop);
    std::array<float, kBlock> block;
    for (std::size_t n = 0; n < kBlock; ++n) block[n] = input_[n] * window_[n];
    auto spectrum = haldgen::real_dft(block);
    for (auto& bin : spectrum.bins()) {
      if (std::abs(bin) < kThreshold) bin = 0;
    }
    haldgen::inverse_real_dft(spectrum, block);  // with 1/N
    for (std::size_t n = 0; n < kHop; ++n) {
      out[n] = rest_[n] + block[n] * window_[n];
      rest_[n] = block[kHop + n] * window_[kHop + n];
    }
    std::copy(input_.begin() + kHop, input_.end(), input_.begin());
    in_callback = false;
  }

 private:
  static constexpr float kThreshold = 1;
  std::array<float, kBlock> window_{}, input_{};
  std::array<float, kHop> rest_{};
};

}  // namespace

int main() {
  Gate gate;
  std::minstd_rand random(1);
  std::normal_distribution<float> noise(0, 0.06F);
  std::array<float, kHop> in, out, tone{}, before;
  double noise_before = 0, noise_after = 0;
  for (int block = 0, n = 0; block < 2000; ++block) {
    before = tone;
    for (std::size_t i = 0; i < kHop; ++i, ++n) {
      tone[i] = std::sin(0.3F * static_cast<float>(n));
      in[i] = tone[i] + noise(random);
      noise_before += std::norm(in[i] - tone[i]);
    }
    gate.process(in, out);
    for (std::size_t i = 0; i < kHop && block > 1; ++i)
      noise_after += std::norm(out[i] - before[i]);
  }
  std::printf("noise falls by %.1f dB, and nothing allocates\n",
              10 * std::log10(noise_before / noise_after));
  return noise_after < noise_before / 3 ? 0 : 1;
}
