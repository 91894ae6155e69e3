// The measuring loop.
#include "bench/core/duel.h"

#include <algorithm>
#include <chrono>
#include <utility>

namespace haldgen::bench {
namespace {

using Clock = std::chrono::steady_clock;

double nanoseconds(const Slice& slice, const Walk& walk, std::int64_t calls) {
  const Clock::time_point start = Clock::now();
  slice(walk, calls);
  const Clock::time_point stop = Clock::now();
  return std::chrono::duration<double, std::nano>(stop - start).count();
}

}  // namespace

Duel::Duel(std::vector<Contestant> contestants, const Walk& walk, double slice_ns)
    : contestants_(std::move(contestants)), walk_(walk) {
  for (const Contestant& contestant : contestants_) {
    calls_.push_back(calibrate(contestant.slice, slice_ns));
  }
}

std::int64_t Duel::calibrate(const Slice& slice, double slice_ns) const {
  std::int64_t calls = 1;
  while (nanoseconds(slice, walk_, calls) < slice_ns && calls < (std::int64_t{1} << 40)) calls *= 2;
  // An interruption makes a call look slow and would leave the slice too short: trust the fastest.
  double fastest = nanoseconds(slice, walk_, calls);
  for (int i = 0; i < 4; ++i) fastest = std::min(fastest, nanoseconds(slice, walk_, calls));
  const double scaled = static_cast<double>(calls) * slice_ns / std::max(fastest, 1.0);
  return std::max(std::int64_t{1}, static_cast<std::int64_t>(scaled));
}

void Duel::round() {
  const std::size_t count = contestants_.size();
  const std::size_t first = rounds_ % count;
  const bool backwards = (rounds_ / count) % 2 != 0;
  for (std::size_t i = 0; i < count; ++i) {
    const std::size_t index = (first + (backwards ? count - i : i)) % count;
    auto& [name, role, slice, per_call, samples] = contestants_[index];
    const std::int64_t calls = calls_[index];
    // The neighbour has just used the instruction cache and the branch predictor.
    slice(walk_, std::max(std::int64_t{2}, calls / 8));
    samples.push_back(nanoseconds(slice, walk_, calls) / (static_cast<double>(calls) * per_call));
  }
  ++rounds_;
}

}  // namespace haldgen::bench
