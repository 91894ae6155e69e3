// The library that the DCT-IV meets.
#pragma once

#include <vector>

#include "bench/core/contestant.h"
#include "frame/families.h"

namespace haldgen::bench {

/// FFTW 3's REDFT11, twice the DCT-IV, planned with FFTW_PATIENT to keep its source: at full width,
/// and held to 128 bits.
std::vector<Contestant> fftw_dct4_contestants(frame::Element element, int length);

}  // namespace haldgen::bench
