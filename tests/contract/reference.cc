// Sums of products as the definitions write them.
#include "tests/contract/reference.h"

#include <cmath>
#include <complex>
#include <map>
#include <numbers>
#include <stdexcept>
#include <string>

namespace haldgen::test {
namespace {

using Complex = std::complex<long double>;

// exp(2*pi*i*k/n) for k = 0..n-1.
const std::vector<Complex>& roots(std::size_t n) {
  static std::map<std::size_t, std::vector<Complex>> known;
  std::vector<Complex>& found = known[n];
  for (std::size_t k = found.size(); k < n; ++k) {
    found.push_back(
        std::polar(1.0L, 2 * std::numbers::pi_v<long double> * static_cast<long double>(k) /
                             static_cast<long double>(n)));
  }
  return found;
}

// By the recursion of the Hadamard matrix on the highest bit: H(2n) = (H(n) H(n); H(n) -H(n)).
void walsh_hadamard(long double* values, std::size_t n) {
  if (n == 1) return;
  const std::size_t half = n / 2;
  for (std::size_t i = 0; i < half; ++i) {
    const long double low = values[i];
    const long double high = values[half + i];
    values[i] = low + high;
    values[half + i] = low - high;
  }
  walsh_hadamard(values, half);
  walsh_hadamard(values + half, half);
}

std::vector<long double> complex_dft(const std::vector<long double>& src, bool inverse) {
  const std::size_t n = src.size() / 2;
  const std::vector<Complex>& root = roots(n);
  std::vector<long double> dst;
  for (std::size_t k = 0; k < n; ++k) {
    Complex sum = 0;
    for (std::size_t j = 0; j < n; ++j) {
      const Complex& factor = root[j * k % n];
      sum += Complex(src[2 * j], src[2 * j + 1]) * (inverse ? factor : std::conj(factor));
    }
    dst.push_back(sum.real());
    dst.push_back(sum.imag());
  }
  return dst;
}

// The position of each value of a half spectrum: of the real part, then of the imaginary part, -1
// for one that the format does not hold. In CCS the parts that are zero have their places.
struct Places {
  int re;
  int im;
};

std::vector<Places> places(std::string_view format, int samples) {
  const bool even = samples % 2 == 0;
  std::vector<Places> all;
  for (int k = 0; k <= samples / 2; ++k) {
    const bool last = even && k == samples / 2;
    if (format == "CCS") {
      all.push_back({2 * k, 2 * k + 1});
    } else if (k == 0) {
      all.push_back({0, -1});
    } else if (format == "Perm" && even) {
      all.push_back(last ? Places{1, -1} : Places{2 * k, 2 * k + 1});
    } else {
      all.push_back(last ? Places{samples - 1, -1} : Places{2 * k - 1, 2 * k});
    }
  }
  return all;
}

Spectrum half_spectrum(const std::vector<long double>& x) {
  const std::size_t n = x.size();
  const std::vector<Complex>& root = roots(n);
  Spectrum bins;
  for (std::size_t k = 0; k <= n / 2; ++k) {
    Complex sum = 0;
    for (std::size_t j = 0; j < n; ++j) sum += x[j] * std::conj(root[j * k % n]);
    const bool real = k == 0 || 2 * k == n;
    bins.push_back(real ? Complex(sum.real()) : sum);
  }
  return bins;
}

std::vector<long double> samples_of(const Spectrum& bins, std::size_t n) {
  const std::vector<Complex>& root = roots(n);
  std::vector<long double> x;
  for (std::size_t j = 0; j < n; ++j) {
    long double sum = 0;
    for (std::size_t k = 0; k <= n / 2; ++k) {
      const bool once = k == 0 || 2 * k == n;
      const Complex bin = once ? Complex(bins[k].real()) : bins[k];
      sum += (once ? 1 : 2) * (bin * root[j * k % n]).real();
    }
    x.push_back(sum);
  }
  return x;
}

std::vector<long double> hartley(const std::vector<long double>& x) {
  const std::size_t n = x.size();
  const std::vector<Complex>& root = roots(n);
  std::vector<long double> y;
  for (std::size_t k = 0; k < n; ++k) {
    long double sum = 0;
    for (std::size_t j = 0; j < n; ++j) {
      const Complex& turn = root[j * k % n];
      sum += x[j] * (turn.real() + turn.imag());
    }
    y.push_back(sum);
  }
  return y;
}

}  // namespace

std::vector<long double> packed(std::string_view format, std::size_t samples,
                                const Spectrum& bins) {
  std::vector<long double> values(format == "CCS" ? samples / 2 * 2 + 2 : samples);
  const std::vector<Places> at = places(format, static_cast<int>(samples));
  for (std::size_t k = 0; k < bins.size(); ++k) {
    values[static_cast<std::size_t>(at[k].re)] = bins[k].real();
    if (at[k].im >= 0) values[static_cast<std::size_t>(at[k].im)] = bins[k].imag();
  }
  return values;
}

Spectrum unpacked(std::string_view format, std::size_t samples,
                  const std::vector<long double>& values) {
  Spectrum bins;
  for (const Places& at : places(format, static_cast<int>(samples))) {
    const long double re = values[static_cast<std::size_t>(at.re)];
    bins.emplace_back(re, at.im < 0 ? 0 : values[static_cast<std::size_t>(at.im)]);
  }
  return bins;
}

std::vector<long double> definition(std::string_view word, int points,
                                    const std::vector<long double>& src) {
  if (word == "WHT") {
    std::vector<long double> dst = src;
    walsh_hadamard(dst.data(), dst.size());
    return dst;
  }
  if (word == "DFTFwd_CToC") return complex_dft(src, false);
  if (word == "DFTInv_CToC") return complex_dft(src, true);
  if (word == "Hartley") return hartley(src);
  const auto n = static_cast<std::size_t>(points);
  if (word.starts_with("DFTFwd_RTo")) return packed(word.substr(10), n, half_spectrum(src));
  if (word.starts_with("DFTInv_") && word.ends_with("ToR")) {
    return samples_of(unpacked(word.substr(7, word.size() - 10), n, src), n);
  }
  throw std::logic_error("the transform " + std::string(word) + " is not described");
}

}  // namespace haldgen::test
