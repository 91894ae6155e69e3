// Draws the short-time spectrum of a recording: a whole program around one small transform.
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <CLI/CLI.hpp>
#include <cerrno>
#include <chrono>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <limits>
#include <stdexcept>
#include <string>
#include <system_error>

#include "spectrogram/picture.h"
#include "spectrogram/recording.h"
#include "spectrogram/short_time.h"

namespace haldgen::demo {
namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

struct Options {
  std::string recording;
  std::string output = "spectrogram.png";
  int length = 64;
  int hop = 0;  // 0: a quarter of the length
  double top_hz = std::numeric_limits<double>::infinity();
  int width = 1160;
  int height = 500;
};

// A file that has its name once it is complete, and never else.
struct NewFile {
  explicit NewFile(const std::string& name)
      : path(name), unfinished(name + '.' + std::to_string(getpid()) + ".part") {
    if (fs::exists(path) && !fs::is_regular_file(path)) {
      throw std::runtime_error(path + ": is there and no file of the usual kind");
    }
    // A bad path is known before any work is done.
    if (!std::ofstream(unfinished)) {
      throw std::runtime_error(path + ": " + std::generic_category().message(errno));
    }
  }
  ~NewFile() { std::remove(unfinished.c_str()); }
  NewFile(const NewFile&) = delete;
  NewFile& operator=(const NewFile&) = delete;

  const std::string path, unfinished;
};

const char* clean_line() { return isatty(STDERR_FILENO) != 0 ? "\r\033[K" : ""; }

// On a terminal one line tells how far it is, if it takes long.
void analyse(Recording& recording, ShortTimeSpectrum& spectrum) {
  const auto total = static_cast<double>(recording.info().frames);
  auto next = Clock::now() + 500ms;
  for (auto block = recording.next_block(); !block.empty(); block = recording.next_block()) {
    spectrum.feed(block);
    if (isatty(STDERR_FILENO) == 0 || Clock::now() < next) continue;
    next = Clock::now() + 200ms;
    const double share = static_cast<double>(recording.position()) / total;
    std::cerr << "\rspectrogram: " << static_cast<int>(100 * share) << " %" << std::flush;
  }
  spectrum.finish();
  std::cerr << clean_line();
}

// By chafa, where it is installed.
void show_in_terminal(const std::string& picture) {
  if (isatty(STDOUT_FILENO) == 0) return;
  std::string words[] = {"chafa", "--", picture};
  char* const arguments[] = {words[0].data(), words[1].data(), words[2].data(), nullptr};
  pid_t process = 0;
  if (posix_spawnp(&process, "chafa", nullptr, nullptr, arguments, environ) == 0) {
    waitpid(process, nullptr, 0);
  }
}

std::string shown(double value) {
  char text[32];
  std::snprintf(text, sizeof text, value < 1000 ? "%.4g" : "%.0f", value);
  return text;
}

void run(const Options& options) {
  const auto start = Clock::now();
  Recording recording(options.recording, options.top_hz);
  std::error_code none;
  if (fs::equivalent(options.recording, options.output, none)) {
    throw std::runtime_error(options.output + ": the picture would overwrite the recording");
  }
  const int hop = options.hop != 0 ? options.hop : std::max(1, options.length / 4);
  const SF_INFO& file = recording.info();
  const double rate = recording.rate();
  const double stated_samples = static_cast<double>(file.frames) * rate / file.samplerate;
  ShortTimeSpectrum spectrum(options.length, hop, stated_samples,
                             plot_area(options.width, options.height).width);
  const NewFile picture(options.output);
  analyse(recording, spectrum);
  if (spectrum.frames() == 0) {
    throw std::runtime_error(options.recording + ": too short, " +
                             std::to_string(recording.position()) + " samples");
  }
  if (recording.unusable() > 0) {
    std::cerr << "spectrogram: " << recording.unusable()
              << " samples were no usable numbers and count as silence\n";
  }
  const double seconds = static_cast<double>(recording.position()) / file.samplerate;
  try {
    draw_png(spectrum, seconds, rate / options.length, options.width, options.height,
             picture.unfinished);
    fs::rename(picture.unfinished, picture.path);
  } catch (const std::exception& failure) {
    throw std::runtime_error(options.output + ": " + failure.what());
  }
  const double elapsed = std::chrono::duration<double>(Clock::now() - start).count();
  const double inside = spectrum.transform_time().count();
  show_in_terminal(options.output);
  std::cout << options.recording << ": " << shown(seconds) << " s at " << file.samplerate << " Hz, "
            << file.channels << (file.channels == 1 ? " channel\n" : " channels mixed\n");
  if (rate < file.samplerate) std::cout << "filtered, brought to " << shown(rate) << " Hz\n";
  std::cout << spectrum.frames() << " frames of " << options.length << " samples ("
            << shown(1000 * options.length / rate) << " ms), one every " << hop << " ("
            << shown(1000 * hop / rate) << " ms); frequencies " << shown(rate / options.length)
            << " Hz apart\nthe transforms: " << shown(1e3 * inside) << " ms, "
            << shown(1e9 * inside / static_cast<double>(spectrum.frames())) << " ns each, "
            << shown(seconds / inside) << " times real time\n"
            << "with reading, filtering and drawing: " << shown(1e3 * elapsed) << " ms, "
            << shown(seconds / elapsed) << " times real time\n"
            << "picture: " << options.output << std::endl;
  if (!std::cout) throw std::runtime_error("standard output cannot be written");
}

}  // namespace
}  // namespace haldgen::demo

int main(int count, char** arguments) {
  using namespace haldgen::demo;
  Options options;
  CLI::App app(
      "Draws the short-time spectrum of a recording (WAV or any other format that libsndfile reads;"
      "\nall channels are mixed to one) as a PNG picture, and shows it in the terminal by chafa.\n"
      "0 dB is a sine of full scale. The exit status is 0, or 1 after any error.",
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
  add_number("--top", options.top_hz, 1.0, 1e6,
             "show the band up to this many Hz: the sample rate is lowered to twice as many");
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
    std::cerr << "spectrogram: " << error.what() << "; see --help\n";
  } catch (const std::exception& failure) {
    std::cerr << clean_line() << "spectrogram: " << failure.what() << '\n';
  }
  return 1;
}
