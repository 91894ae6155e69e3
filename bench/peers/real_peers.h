// The libraries that transforms of real samples meet.
#pragma once

#include "bench/real_problem.h"

namespace haldgen::bench {

/// All of them: FFTW at full width and held to 128 bits, kissfft and av_tx where they have the
/// transform.
std::vector<Contestant> real_peers(const RealTransform& transform);

/// FFTW 3 planned with FFTW_PATIENT: at full width, and held to 128 bits. r2c and c2r keep their
/// source; a Hartley transform is FFTW_DHT.
std::vector<Contestant> fftw_real_contestants(const RealTransform& transform);

}  // namespace haldgen::bench
