// The command line of the demonstration.
#pragma once

#include <optional>
#include <string>

namespace haldgen::demo {

struct Options {
  std::string recording;
  std::string output = "spectrogram.png";
  int length = 64;
  std::optional<int> hop;  ///< in samples
  std::optional<double> top_hz;
  bool help = false;
};

/// Throws Failure for anything that is not understood.
Options parse_options(int count, char** arguments);

extern const char* const kHelp;

}  // namespace haldgen::demo
