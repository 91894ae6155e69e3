// Draws the short-time spectrum of a recording: a whole program around one small transform.
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <exception>
#include <filesystem>
#include <iostream>
#include <span>
#include <string>
#include <system_error>

#include "spectrogram/decimator.h"
#include "spectrogram/failure.h"
#include "spectrogram/options.h"
#include "spectrogram/png_picture.h"
#include "spectrogram/progress.h"
#include "spectrogram/recording.h"
#include "spectrogram/scale.h"
#include "spectrogram/short_time.h"
#include "spectrogram/terminal_picture.h"
#include "spectrogram/time_grid.h"

namespace haldgen::demo {
namespace {

using Clock = std::chrono::steady_clock;
using Seconds = std::chrono::duration<double>;

int hop_of(const Options& options) {
  const int hop = options.hop.value_or(std::max(1, options.length / 4));
  if (hop < 1 || hop > options.length) {
    throw Failure("--hop must lie between 1 and the length, " + std::to_string(options.length));
  }
  return hop;
}

void require_different_files(const std::string& recording, const std::string& output) {
  std::error_code error;
  if (std::filesystem::equivalent(recording, output, error)) {
    throw Failure(output + ": the picture would overwrite the recording");
  }
}

// Passes the whole recording through; `block` is its first block, already read.
void analyse(Recording& recording, std::span<const float> block, Decimator& decimator,
             ShortTimeSpectrum& spectrum, Clock::time_point start) {
  Progress progress(std::cerr, isatty(STDERR_FILENO) != 0, recording.stated_length(), start);
  for (; !block.empty(); block = recording.next_block()) {
    spectrum.feed(decimator.feed(block));
    const auto done = recording.position();
    progress.report(done, static_cast<double>(done) / recording.sample_rate(), Clock::now());
  }
  spectrum.feed(decimator.finish());
  spectrum.finish();
}

// In whole numbers where that says enough.
std::string times_real_time(double seconds, Seconds taken) {
  const double times = seconds / taken.count();
  return (times < 100 ? short_number(times, 3) : std::to_string(std::llround(times))) +
         " times real time";
}

std::string number(double value, const char* unit) { return short_number(value) + ' ' + unit; }

void describe(const Recording& recording, double seconds, int factor, const std::string& path) {
  std::cout << path << ": " << number(seconds, "s") << " at " << recording.sample_rate() << " Hz, "
            << recording.channels() << (recording.channels() == 1 ? " channel" : " channels mixed")
            << '\n';
  if (factor > 1) std::cout << "low-pass filtered, every sample out of " << factor << " kept\n";
}

void describe(const ShortTimeSpectrum& spectrum, const Options& options, int hop, double rate) {
  std::cout << spectrum.frames() << " frames of " << options.length << " samples ("
            << number(1000 * options.length / rate, "ms") << "), one every " << hop << " ("
            << number(1000 * hop / rate, "ms") << "); frequencies "
            << number(rate / options.length, "Hz") << " apart\n";
}

void describe_speed(const ShortTimeSpectrum& spectrum, double seconds, Seconds elapsed) {
  const Seconds inside = spectrum.transform_time();
  const auto transforms = static_cast<double>(spectrum.transforms());
  std::cout << spectrum.transforms()
            << " complex transforms, two frames in each: " << number(inside.count() * 1e3, "ms")
            << ", " << number(inside.count() * 1e9 / transforms, "ns") << " per transform, "
            << times_real_time(seconds, inside) << "\n"
            << "with reading, filtering and drawing: " << number(elapsed.count() * 1e3, "ms")
            << ", " << times_real_time(seconds, elapsed) << '\n';
}

void run(const Options& options) {
  const auto start = Clock::now();
  require_length(options.length);
  const int hop = hop_of(options);
  Recording recording(options.recording);
  const auto first_block = recording.next_block();
  if (first_block.empty()) throw Failure(options.recording + ": holds no samples");
  require_different_files(options.recording, options.output);
  PngFile png(options.output);

  const int factor =
      options.top_hz ? decimation_factor(recording.sample_rate(), *options.top_hz) : 1;
  const double rate = static_cast<double>(recording.sample_rate()) / factor;
  const double bin_hz = rate / options.length;
  Decimator decimator(factor);
  TimeGrid grid(options.length / 2 + 1);
  ShortTimeSpectrum spectrum(options.length, hop, [&](auto power) { grid.add(power); });
  analyse(recording, first_block, decimator, spectrum, start);
  if (recording.unusable() > 0) {
    std::cerr << "spectrogram: " << recording.unusable()
              << " samples were no usable numbers and count as silence\n";
  }

  const double seconds = static_cast<double>(recording.position()) / recording.sample_rate();
  png.write(grid, seconds, bin_hz);
  const std::string text =
      text_picture(grid, seconds, bin_hz, style_of_stdout(), width_of_stdout());
  const Seconds elapsed = Clock::now() - start;

  describe(recording, seconds, factor, options.recording);
  std::cout << '\n' << text << '\n';
  describe(spectrum, options, hop, rate);
  describe_speed(spectrum, seconds, elapsed);
  std::cout << "picture: " << options.output << std::endl;
  if (!std::cout) throw Failure("standard output cannot be written");
}

}  // namespace
}  // namespace haldgen::demo

int main(int count, char** arguments) {
  try {
    const auto options = haldgen::demo::parse_options(count, arguments);
    if (options.help) {
      std::cout << haldgen::demo::kHelp;
    } else {
      haldgen::demo::run(options);
    }
    return 0;
  } catch (const std::exception& failure) {
    std::cerr << "spectrogram: " << failure.what() << '\n';
    return 1;
  }
}
