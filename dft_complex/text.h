// What the public header says of the complex DFT.
#pragma once

#include "names/names.h"

namespace haldgen::dft_complex {

inline names::TransformText text(const char* direction, const char* sign) {
  return {std::string(direction) + " complex DFT",
          std::string("    X[k] = s * sum over n of x[n] * exp(") + sign +
              "2*pi*i*k*n/N),   k, n = 0..N-1\n",
          "", "",
          R"(@param src     N complex elements x[0..N-1]; only read.
@param dst     N complex elements X[0..N-1].)"};
}

}  // namespace haldgen::dft_complex
