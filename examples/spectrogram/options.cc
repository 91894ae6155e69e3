// Numbers must be numbers to their last character; nothing is guessed.
#include "spectrogram/options.h"

#include <getopt.h>

#include <charconv>
#include <cmath>
#include <string_view>

#include "spectrogram/failure.h"

namespace haldgen::demo {
namespace {

template <typename Number>
Number parse_number(const std::string& option, std::string_view text) {
  Number number{};
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc{} || end != text.data() + text.size()) {
    throw Failure(option + ": '" + std::string(text) + "' is not a usable number");
  }
  return number;
}

double parse_frequency(const std::string& option, std::string_view text) {
  const auto value = parse_number<double>(option, text);
  if (!std::isfinite(value) || value <= 0) {
    throw Failure(option + ": the frequency must be above zero");
  }
  return value;
}

}  // namespace

const char* const kHelp =
    R"(usage: spectrogram [options] RECORDING

Draws the short-time spectrum of a recording (WAV or any other format that libsndfile reads;
all channels are mixed to one) in the terminal and as a PNG picture.

  -o, --output FILE   the picture to write (default: spectrogram.png)
  -l, --length N      length of the transform (default: 64)
      --hop SAMPLES   step from frame to frame, 1..N (default: a quarter of N)
      --top HZ        show only the band up to about HZ: the sample rate is lowered by the
                      largest whole factor that keeps it
  -h, --help          this text

0 dB is a sine of full scale. The exit status is 0, or 1 after any error.
)";

Options parse_options(int count, char** arguments) {
  constexpr int kHop = 256;
  constexpr int kTop = 257;
  static const option known[] = {
      {"output", required_argument, nullptr, 'o'}, {"length", required_argument, nullptr, 'l'},
      {"hop", required_argument, nullptr, kHop},   {"top", required_argument, nullptr, kTop},
      {"help", no_argument, nullptr, 'h'},         {nullptr, 0, nullptr, 0}};
  Options options;
  opterr = 0;
  for (int c = 0; (c = getopt_long(count, arguments, ":o:l:h", known, nullptr)) != -1;) {
    switch (c) {
      case 'o':
        options.output = optarg;
        break;
      case 'l':
        options.length = parse_number<int>("--length", optarg);
        break;
      case kHop:
        options.hop = parse_number<int>("--hop", optarg);
        break;
      case kTop:
        options.top_hz = parse_frequency("--top", optarg);
        break;
      case 'h':
        options.help = true;
        return options;
      case ':':
        throw Failure(std::string(arguments[optind - 1]) + " needs a value; see --help");
      default:
        throw Failure(std::string(arguments[optind - 1]) + " is not understood; see --help");
    }
  }
  if (optind + 1 != count) throw Failure("give exactly one recording; see --help");
  options.recording = arguments[optind];
  return options;
}

}  // namespace haldgen::demo
