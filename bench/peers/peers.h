// The other libraries, each at its best single-threaded settings for repeated calls out of place.
#pragma once

#include <optional>
#include <string>

#include "bench/complex_problem.h"
#include "bench/core/contestant.h"

namespace haldgen::bench {

/// FFTW 3 planned with FFTW_PATIENT, free to use every vector width of the machine.
std::optional<Contestant> fftw_contestant(const ComplexProblem& problem);

/// The same, by a copy of the library that believes the machine has no vectors beyond 128 bits.
/// Throws std::runtime_error should a plan name a wider codelet all the same.
std::optional<Contestant> narrow_fftw_contestant(const ComplexProblem& problem);

/// kissfft. Debian ships it for float only, so there is none for `Cplx64`.
std::optional<Contestant> kissfft_contestant(const ComplexProblem& problem);

/// FFmpeg's av_tx; none for lengths that it refuses.
std::optional<Contestant> av_tx_contestant(const ComplexProblem& problem);

/// The plans that FFTW chose for the problem at full width and at 128 bits, as FFTW prints them.
std::string describe_fftw_plans(const ComplexProblem& problem);

/// Name and version of each library.
std::string peer_versions();

}  // namespace haldgen::bench
