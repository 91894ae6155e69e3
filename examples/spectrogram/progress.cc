// Time comes from the caller, so that tests need not wait.
#include "spectrogram/progress.h"

#include <algorithm>
#include <string>

namespace haldgen::demo {

using std::chrono::milliseconds;

Progress::Progress(std::ostream& out, bool terminal, std::int64_t total, Clock::time_point start)
    : out_(out), terminal_(terminal), total_(total), next_(start + milliseconds(1000)) {}

void Progress::report(std::int64_t done, double seconds, Clock::time_point now) {
  if (now < next_) return;
  next_ = now + milliseconds(terminal_ ? 200 : 5000);
  shown_ = true;
  std::string text = std::to_string(static_cast<std::int64_t>(seconds)) + " s of audio";
  if (total_ > 0) text += ", " + std::to_string(std::min(done, total_) * 100 / total_) + " %";
  out_ << (terminal_ ? "\r" : "") << text << (terminal_ ? "" : "\n") << std::flush;
}

Progress::~Progress() {
  if (terminal_ && shown_) out_ << "\r\033[K" << std::flush;
}

}  // namespace haldgen::demo
