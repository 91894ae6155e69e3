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

}  // namespace

std::vector<long double> definition(std::string_view word, const std::vector<long double>& src) {
  if (word == "DFTFwd_CToC") return complex_dft(src, false);
  if (word == "DFTInv_CToC") return complex_dft(src, true);
  throw std::logic_error("the transform " + std::string(word) + " is not described");
}

}  // namespace haldgen::test
