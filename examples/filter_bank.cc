// A polyphase filter bank: 32 channels of a complex signal, each at 1/32 of its rate. The prototype
// low pass is cut into 32 phases; a batch of DFTs turns what these filter into the channels of all
// blocks.
#include <haldbatch.hpp>

#include <cmath>
#include <cstdio>
#include <numbers>
#include <vector>

namespace {

constexpr std::size_t kChannels = 32;
constexpr std::size_t kTaps = 12;  // a channel
using Complex = std::complex<float>;

// A windowed sinc (Blackman window) that cuts off at half the distance of channels; its sum is 1.
std::array<float, kChannels * kTaps> prototype() {
  constexpr double kPi = std::numbers::pi;
  std::array<float, kChannels * kTaps> taps{};
  constexpr double kMiddle = (static_cast<double>(taps.size()) - 1) / 2;
  for (std::size_t n = 0; n < taps.size(); ++n) {
    const double t = (static_cast<double>(n) - kMiddle) / kChannels;
    const double phase =
        2 * kPi * (static_cast<double>(n) + 0.5) / static_cast<double>(taps.size());
    const double window = 0.42 - 0.5 * std::cos(phase) + 0.08 * std::cos(2 * phase);
    taps[n] = static_cast<float>(std::sin(kPi * t) / (kPi * t) * window / kChannels);
  }
  return taps;
}

// Channel k of block b is in [b * kChannels + k].
std::vector<Complex> channels_of(const std::vector<Complex>& signal) {
  static const auto taps = prototype();
  const std::size_t blocks = signal.size() / kChannels - kTaps + 1;
  std::vector<Complex> channels(blocks * kChannels);
  for (std::size_t b = 0; b < blocks; ++b) {
    for (std::size_t tap = 0; tap < taps.size(); ++tap) {
      channels[b * kChannels + tap % kChannels] += taps[tap] * signal[b * kChannels + tap];
    }
  }
  haldgen::dft(haldgen::rows<kChannels>(channels));
  return channels;
}

}  // namespace

int main() {
  // A tone a little above the middle of channel 5.
  constexpr std::size_t kTone = 5;
  std::vector<Complex> signal(kChannels * 1000);
  for (std::size_t n = 0; n < signal.size(); ++n) {
    const double turns = (kTone + 0.1) / kChannels * static_cast<double>(n);
    signal[n] =
        std::polar(1.F, static_cast<float>(2 * std::numbers::pi * (turns - std::floor(turns))));
  }
  const auto channels = channels_of(signal);

  std::array<double, kChannels> power{};
  for (std::size_t i = 0; i < channels.size(); ++i) power[i % kChannels] += std::norm(channels[i]);
  double loudest_other = 0;
  for (std::size_t k = 0; k < kChannels; ++k) {
    if (k != kTone) loudest_other = std::max(loudest_other, power[k]);
  }
  const double mean = power[kTone] / static_cast<double>(channels.size() / kChannels);
  const double rejection = 10 * std::log10(power[kTone] / loudest_other);
  std::printf("channel %zu: power %.3f, all others at least %.0f dB below\n", kTone, mean,
              rejection);
  return std::abs(mean - 1) < 0.02 && rejection > 60 ? 0 : 1;
}
