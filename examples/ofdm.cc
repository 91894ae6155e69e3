// An OFDM link: 64 carriers of QPSK through a channel with echoes. A cyclic prefix makes the
// channel a circular convolution, so behind the DFT each carrier has one complex gain, which a
// known first symbol measures and one multiplication a carrier takes back.
#include <haldgen.hpp>

#include <cstdio>
#include <random>
#include <vector>

namespace {

constexpr std::size_t kCarriers = 64;
constexpr std::size_t kPrefix = 16;  // longer than the last echo
constexpr std::size_t kSymbols = 500;
using Complex = std::complex<float>;
using Symbol = std::array<Complex, kCarriers>;

Complex qpsk(unsigned bits) { return {bits & 1U ? -1.F : 1.F, bits & 2U ? -1.F : 1.F}; }
unsigned bits_of(Complex z) { return (z.real() < 0 ? 1U : 0U) | (z.imag() < 0 ? 2U : 0U); }

void send(std::vector<Complex>& line, Symbol spectrum) {
  haldgen::inverse_dft(spectrum, haldgen::scale::by_sqrt_n);
  line.insert(line.end(), spectrum.end() - kPrefix, spectrum.end());
  line.insert(line.end(), spectrum.begin(), spectrum.end());
}

Symbol receive(const std::vector<Complex>& line, std::size_t number) {
  Symbol spectrum;
  haldgen::dft(haldgen::block<kCarriers>(&line[number * (kPrefix + kCarriers) + kPrefix]), spectrum,
               haldgen::scale::by_sqrt_n);
  return spectrum;
}

}  // namespace

int main() {
  std::mt19937 random(1);
  std::vector<unsigned> data(kSymbols * kCarriers);
  for (unsigned& bits : data) bits = random() % 4;

  std::vector<Complex> sent;
  Symbol known, spectrum;
  for (std::size_t k = 0; k < kCarriers; ++k) known[k] = qpsk(static_cast<unsigned>(k * k / 2));
  send(sent, known);
  for (std::size_t s = 0; s < kSymbols; ++s) {
    for (std::size_t k = 0; k < kCarriers; ++k) spectrum[k] = qpsk(data[s * kCarriers + k]);
    send(sent, spectrum);
  }

  // Three echoes, and noise 25 dB below the signal.
  std::normal_distribution<float> noise(0, 0.056F);
  std::vector<Complex> received(sent.size());
  for (std::size_t n = 0; n < sent.size(); ++n) {
    received[n] = sent[n] + Complex(noise(random), noise(random));
    if (n >= 3) received[n] += Complex(0.3F, 0.2F) * sent[n - 3];
    if (n >= 11) received[n] += Complex(-0.1F, 0.25F) * sent[n - 11];
  }

  Symbol equaliser = receive(received, 0);
  for (std::size_t k = 0; k < kCarriers; ++k) equaliser[k] = known[k] / equaliser[k];
  int wrong = 0, wrong_without = 0;
  for (std::size_t s = 0; s < kSymbols; ++s) {
    spectrum = receive(received, 1 + s);
    for (std::size_t k = 0; k < kCarriers; ++k) {
      const unsigned bits = data[s * kCarriers + k];
      wrong += std::popcount(bits ^ bits_of(spectrum[k] * equaliser[k]));
      wrong_without += std::popcount(bits ^ bits_of(spectrum[k]));
    }
  }
  std::printf("%zu bits: %d wrong, without the equaliser %d\n", 2 * data.size(), wrong,
              wrong_without);
  return wrong == 0 && wrong_without > 0 ? 0 : 1;
}
