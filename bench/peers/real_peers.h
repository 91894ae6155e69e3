// The libraries that transforms of real samples meet.
#pragma once

#include "bench/real_problem.h"

namespace haldgen::bench {

/// All of them: FFTW at full width and held to 128 bits, kissfft and av_tx where they have the
/// transform.
std::vector<Contestant> real_peers(const RealTransform& transform);

}  // namespace haldgen::bench
