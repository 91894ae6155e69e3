// What the public header says of the real DFT.
#pragma once

#include "dft_real/packing.h"
#include "names/names.h"

namespace haldgen::dft_real {

/// "CCS", "Pack", "Perm".
inline std::string word(Packing packing) {
  switch (packing) {
    case Packing::ccs:
      return "CCS";
    case Packing::pack:
      return "Pack";
    case Packing::perm:
      return "Perm";
  }
  return "";
}

inline std::string spectrum_array(Packing packing) {
  return "Half spectrum in " + word(packing) + " format: " +
         (packing == Packing::ccs ? "N+2 elements for even N, N+1 for odd N" : "N elements");
}

inline names::TransformText forward_text(Packing packing) {
  return {"Forward real DFT to " + word(packing),
          "    R(k) + i*I(k) = s * sum over n of x[n] * exp(-2*pi*i*k*n/N),   k = 0..N/2\n", "", "",
          "@param src     N real samples x[0..N-1]; only read.\n@param dst     " +
              spectrum_array(packing) + "."};
}

inline names::TransformText inverse_text(Packing packing) {
  return {
      "Inverse real DFT from " + word(packing),
      R"(    x[n] = s * (R(0) + (-1)^n * R(N/2) + 2 * sum over k = 1..q of (R(k) * cos(2*pi*k*n/N)
                                                                  - I(k) * sin(2*pi*k*n/N)))
)",
      R"(
The term of R(N/2) is there for even N only. Whatever the numbers, they are taken as half of a
conjugate-symmetric spectrum.
)",
      "",
      "@param src     " + spectrum_array(packing) +
          "; only read.\n@param dst     N real samples x[0..N-1]."};
}

}  // namespace haldgen::dft_real
