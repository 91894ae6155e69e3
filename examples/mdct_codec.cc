// A small transform codec: the MDCT of 256 coefficients as a DCT-IV of folded, windowed blocks that
// overlap by half (Princen, Johnson and Bradley, 1987). Coefficients are quantised and taken back.
#include <haldgen.hpp>

#include <cmath>
#include <cstdio>
#include <numbers>
#include <vector>

namespace {

constexpr std::size_t kCoefficients = 256;
constexpr std::size_t kHalf = kCoefficients / 2;
using Block = std::array<float, kCoefficients>;

float window(std::size_t n) {
  return std::sin(std::numbers::pi_v<float> * (static_cast<float>(n) + 0.5F) / (2 * kCoefficients));
}

// Of a block (a, b, c, d) in quarters, r for reversed: (-c_r - d, a - b_r).
Block folded(const float* x) {
  const auto at = [x](std::size_t n) { return x[n] * window(n); };
  Block u;
  for (std::size_t n = 0; n < kHalf; ++n) {
    u[n] = -at(3 * kHalf - 1 - n) - at(3 * kHalf + n);
    u[kHalf + n] = at(n) - at(2 * kHalf - 1 - n);
  }
  return u;
}

// Adds (a - b_r, b - a_r, c + d_r, d + c_r); neighbours cancel what is reversed.
void add_unfolded(const Block& u, float* x) {
  for (std::size_t n = 0; n < kHalf; ++n) {
    const std::size_t back = kHalf - 1 - n;
    x[n] += u[kHalf + n] * window(n);
    x[kHalf + n] -= u[kHalf + back] * window(kHalf + n);
    x[2 * kHalf + n] -= u[back] * window(2 * kHalf + n);
    x[3 * kHalf + n] -= u[n] * window(3 * kHalf + n);
  }
}

}  // namespace

int main() {
  // A chord that decays.
  std::vector<float> sound(100 * kCoefficients), decoded(sound.size());
  for (std::size_t n = 0; n < sound.size(); ++n) {
    const double t = static_cast<double>(n) / 44100;
    for (const double frequency : {261.6, 329.6, 392.0, 1046.5}) {
      sound[n] += static_cast<float>(0.2 * std::exp(-3 * t) *
                                     std::sin(2 * std::numbers::pi * frequency * t));
    }
  }

  haldgen::dct4<float> transform(kCoefficients);
  constexpr float kStep = 0.02F;
  double bits = 0;
  for (std::size_t first = 0; first + 2 * kCoefficients <= sound.size(); first += kCoefficients) {
    Block block = folded(&sound[first]);
    transform(block, block);
    for (float& x : block) {
      const float level = std::round(x / kStep);
      bits += 1 + 2 * std::ilogb(std::abs(level) + 1) + (level != 0 ? 1 : 0);  // Elias gamma
      x = level * kStep * (2.F / kCoefficients);  // the DCT-IV is its own inverse, times N/2
    }
    transform(block, block);
    add_unfolded(block, &decoded[first]);
  }

  double signal = 0, error = 0;
  for (std::size_t n = kCoefficients; n + kCoefficients < sound.size(); ++n) {
    signal += sound[n] * sound[n];
    error += (sound[n] - decoded[n]) * (sound[n] - decoded[n]);
  }
  const double ratio = 10 * std::log10(signal / error);
  const double rate = bits / static_cast<double>(sound.size());
  std::printf("signal to noise %.1f dB at %.2f bits a sample\n", ratio, rate);
  return ratio > 40 && rate < 4 ? 0 : 1;
}
