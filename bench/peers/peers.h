// Whom kernels meet: other libraries, each at its best single-threaded settings for repeated calls
// out of place, plain loops, and what the machine itself needs.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "bench/core/contestant.h"
#include "bench/problem.h"

namespace haldgen::bench {

/// Where `count` transforms lie: elements of one `step` apart, transforms at these distances; one
/// after another if the distances are 0. Of rank 2, each is a square of rows.
struct Places {
  int count = 1;
  int step = 1;
  int src_dist = 0;
  int dst_dist = 0;
  int rank = 1;
};

enum class FftwEffort { measure, patient };
enum class FftwWidth {
  full,    ///< free to use every vector width of the machine
  narrow,  ///< a copy of the library that believes the machine has no vectors beyond 128 bits
};

struct FftwPlan {
  std::string description;  ///< as FFTW prints it
  Contestant contestant;
};

/// FFTW 3 planned for the arrays of the walk, which planning overwrites. It keeps its source.
/// Throws std::runtime_error should a narrow plan name a wider codelet all the same.
FftwPlan planned_by_fftw(const Problem& problem, const Places& places, const Walk& walk,
                         FftwWidth width, FftwEffort effort);

/// kissfft. Debian ships it for float only, and its real transform has even lengths.
std::optional<Contestant> kissfft_contestant(const Problem& problem);

/// FFmpeg's av_tx; none for what it refuses, for inverse real transforms, which overwrite their
/// source, and forward ones of lengths that are no multiples of 4, where it computes no DFT.
std::optional<Contestant> av_tx_contestant(const Problem& problem);

/// The Walsh-Hadamard transform written down plainly: a function for all orders, and one compiled
/// for this order, with constant bounds and arrays promised not to overlap.
std::vector<Contestant> plain_wht_contestants(const Problem& problem);

/// What needs no check: a call, an addition, a conversion, a copy, where they say something.
std::vector<Contestant> yardsticks(const Problem& problem);

/// Name and version of each library.
std::string peer_versions();

}  // namespace haldgen::bench
