// FFTW on real samples.
#pragma once

#include <vector>

#include "bench/core/contestant.h"
#include "registry/registry.h"

namespace haldgen::bench {

enum class FftwReal {
  r2c,
  c2r,
  hartley,  ///< FFTW_DHT
  dct4,     ///< FFTW_REDFT11, twice the DCT-IV
};

/// FFTW 3 planned with FFTW_PATIENT to keep its source: at full width, and held to 128 bits.
std::vector<Contestant> fftw_real_contestants(FftwReal kind, names::Element element, int length);

}  // namespace haldgen::bench
