// Draws the short-time spectrum of a recording: a whole program around one small transform.
#include <unistd.h>

#include <CLI/CLI.hpp>
#include <chrono>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <system_error>

#include "spectrogram/picture.h"
#include "spectrogram/recording.h"
#include "spectrogram/short_time.h"

namespace haldgen::demo {
namespace {

namespace fs = std::filesystem;
using Clock = std::chrono::steady_clock;

struct Options {
  std::string recording;
  std::string output = "spectrogram.png";
  int length = 64;
  int hop = 0;  // 0: a quarter of the length
  int width = 1160;
  int height = 500;
};

void refuse_output(const std::string& picture, const std::string& recording) {
  std::error_code none;
  if (fs::equivalent(recording, picture, none)) {
    throw std::runtime_error(picture + ": the picture would overwrite the recording");
  }
  if (fs::exists(picture) && !fs::is_regular_file(picture)) {
    throw std::runtime_error(picture + ": is there and no file of the usual kind");
  }
}

void run(const Options& options) {
  const auto start = Clock::now();
  refuse_output(options.output, options.recording);
  const bool terminal = isatty(STDERR_FILENO) != 0;
  const auto show_progress = [terminal](double part) {
    if (terminal) std::fprintf(stderr, "spectrogram: %.0f %%\033[K\r", 100 * part);
  };
  const Recording recording = read_recording(options.recording, show_progress);
  if (terminal) std::fputs("\033[K", stderr);
  if (recording.unusable > 0) {
    std::fprintf(stderr, "spectrogram: %zu samples were no usable numbers and count as silence\n",
                 recording.unusable);
  }
  const int hop = options.hop != 0 ? options.hop : std::max(1, options.length / 4);
  const ShortTimeSpectrum spectrum(recording.samples, options.length, hop,
                                   plot_area(options.width, options.height).width);
  const double rate = recording.rate;
  const double seconds = static_cast<double>(recording.samples.size()) / rate;
  // A picture has its name once it is complete, and never else.
  const std::string unfinished = options.output + ".part";
  try {
    draw_png(spectrum, seconds, rate / options.length, options.width, options.height, unfinished);
    fs::rename(unfinished, options.output);
  } catch (const std::exception& failure) {
    std::remove(unfinished.c_str());
    throw std::runtime_error(options.output + ": " + failure.what());
  }
  const double elapsed = std::chrono::duration<double>(Clock::now() - start).count();
  const double inside = spectrum.transform_time().count();
  std::printf("%s: %.4g s at %d Hz, %d %s\n", options.recording.c_str(), seconds, recording.rate,
              recording.channels, recording.channels == 1 ? "channel" : "channels mixed");
  std::printf(
      "%zu frames of %d samples (%.4g ms), one every %d (%.4g ms); "
      "frequencies %.4g Hz apart\n",
      spectrum.frames(), options.length, 1000 * options.length / rate, hop, 1000 * hop / rate,
      rate / options.length);
  std::printf(
      "the transforms: %.4g ms, %.4g ns each, %.0f times real time\n"
      "with reading and drawing: %.4g ms, %.0f times real time\npicture: %s\n",
      1e3 * inside, 1e9 * inside / static_cast<double>(spectrum.frames()), seconds / inside,
      1e3 * elapsed, seconds / elapsed, options.output.c_str());
  if (std::fflush(stdout) != 0) throw std::runtime_error("standard output cannot be written");
}

}  // namespace
}  // namespace haldgen::demo

// A failure of the parser itself ends the program. NOLINTNEXTLINE(bugprone-exception-escape)
int main(int count, char** arguments) {
  using namespace haldgen::demo;
  Options options;
  CLI::App app(
      "Draws the short-time spectrum of a recording (WAV or any other format that libsndfile reads;"
      "\nall channels are mixed to one) as a PNG picture. 0 dB is a sine of full scale.\n"
      "The exit status is 0, or 1 after any error.",
      "spectrogram");
  app.option_defaults()->multi_option_policy(CLI::MultiOptionPolicy::TakeLast);
  app.add_option("-o,--output", options.output, "the picture to write")->capture_default_str();
  const auto add_number = [&](const char* name, auto& value, auto least, auto most,
                              const char* help) {
    return app.add_option(name, value, help)->check(CLI::Range(least, most));
  };
  add_number("-l,--length", options.length, 1, 4096, "of the transform")->capture_default_str();
  add_number("--hop", options.hop, 1, 4096,
             "samples from frame to frame (a quarter of the length)");
  add_number("--width", options.width, 300, 30000, "of the picture, in pixels")
      ->capture_default_str();
  add_number("--height", options.height, 200, 30000, "of the picture, in pixels")
      ->capture_default_str();
  app.add_option("RECORDING", options.recording, "the recording")
      ->required()
      ->multi_option_policy(CLI::MultiOptionPolicy::Throw);
  try {
    app.parse(count, arguments);
    run(options);
    return 0;
  } catch (const CLI::Success& answer) {
    return app.exit(answer);
  } catch (const CLI::ParseError& error) {
    std::fprintf(stderr, "spectrogram: %s; see --help\n", error.what());
  } catch (const std::exception& failure) {
    std::fprintf(stderr, "spectrogram: %s\n", failure.what());
  }
  return 1;
}
