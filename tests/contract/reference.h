// The transforms by their definitions, in long double.
#pragma once

#include <complex>
#include <cstddef>
#include <string_view>
#include <vector>

namespace haldgen::test {

/// The unscaled transform that a family (named by its word) defines; src and the result are laid
/// out as the family's arrays. Throws for a family that is not described.
/// `points` is the N of the transform.
std::vector<long double> definition(std::string_view word, int points,
                                    const std::vector<long double>& src);

/// A half spectrum of N real samples by bins 0..N/2, in one of the packed formats "CCS", "Pack" and
/// "Perm"; and back, with zeros where a format holds nothing.
using Spectrum = std::vector<std::complex<long double>>;
std::vector<long double> packed(std::string_view format, std::size_t samples, const Spectrum& bins);
Spectrum unpacked(std::string_view format, std::size_t samples,
                  const std::vector<long double>& values);

}  // namespace haldgen::test
