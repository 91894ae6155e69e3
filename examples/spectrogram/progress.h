// Signs of life while a long recording is read.
#pragma once

#include <chrono>
#include <cstdint>
#include <ostream>

namespace haldgen::demo {

/// Silent for the first second, then one report at intervals: rewriting one line on a terminal,
/// a line each otherwise, and then less often.
class Progress {
 public:
  using Clock = std::chrono::steady_clock;

  /// `total` is in any unit; zero or less when it is not known.
  Progress(std::ostream& out, bool terminal, std::int64_t total, Clock::time_point start);

  /// Removes the line from a terminal, so that whatever comes next starts on a clean one.
  ~Progress();
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;

  /// `done` in the unit of `total`; `seconds` of audio done so far.
  void report(std::int64_t done, double seconds, Clock::time_point now);

 private:
  std::ostream& out_;
  bool terminal_;
  std::int64_t total_;
  Clock::time_point next_;
  bool shown_ = false;
};

}  // namespace haldgen::demo
