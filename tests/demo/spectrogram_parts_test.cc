// The parts of the demonstration one by one, against definitions written out anew.
#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <complex>
#include <cstddef>
#include <numbers>
#include <ostream>
#include <span>
#include <sstream>
#include <string>
#include <vector>

#include "spectrogram/decimator.h"
#include "spectrogram/failure.h"
#include "spectrogram/progress.h"
#include "spectrogram/scale.h"
#include "spectrogram/short_time.h"
#include "spectrogram/terminal_picture.h"
#include "spectrogram/time_grid.h"

namespace haldgen::demo {
namespace {

using std::numbers::pi;

std::vector<float> sine(std::size_t count, double cycles_per_sample, double amplitude = 1) {
  std::vector<float> samples(count);
  for (std::size_t n = 0; n < count; ++n) {
    const double phase = 2 * pi * cycles_per_sample * static_cast<double>(n);
    samples[n] = static_cast<float>(amplitude * std::sin(phase));
  }
  return samples;
}

// Uneven values without any symmetry between neighbouring frames.
std::vector<float> uneven(std::size_t count) {
  std::vector<float> samples(count);
  unsigned state = 12345;
  for (float& sample : samples) {
    state = state * 1664525U + 1013904223U;
    sample = static_cast<float>(state >> 8U) / 8388608.0F - 1.0F;
  }
  return samples;
}

// Power of frame `frame` at bin k from the definition, in double.
double power_by_definition(const std::vector<float>& samples, int length, int hop, int frame,
                           int k) {
  std::complex<double> sum = 0;
  for (int n = 0; n < length; ++n) {
    const int at = frame * hop - length / 2 + n;
    if (at < 0 || at >= static_cast<int>(samples.size())) continue;
    const double window = 0.5 - 0.5 * std::cos(2 * pi * n / length);
    sum += window * static_cast<double>(samples[static_cast<std::size_t>(at)]) *
           std::polar(1.0, -2 * pi * k * n / length);
  }
  return std::norm(sum / static_cast<double>(length)) * (k == 0 || 2 * k == length ? 4 : 16);
}

using Frames = std::vector<std::vector<double>>;

Frames analyse(const std::vector<float>& samples, int length, int hop, std::size_t block) {
  Frames frames;
  ShortTimeSpectrum spectrum(length, hop, [&](std::span<const double> power) {
    frames.emplace_back(power.begin(), power.end());
  });
  for (std::size_t at = 0; at < samples.size(); at += block) {
    spectrum.feed(std::span(samples).subspan(at, std::min(block, samples.size() - at)));
  }
  spectrum.finish();
  EXPECT_EQ(spectrum.frames(), static_cast<std::int64_t>(frames.size()));
  EXPECT_EQ(spectrum.transforms(), static_cast<std::int64_t>((frames.size() + 1) / 2));
  return frames;
}

struct Cutting {
  int length;
  int hop;
  std::size_t samples;
};

void PrintTo(const Cutting& c, std::ostream* out) {
  *out << c.samples << " samples, length " << c.length << ", hop " << c.hop;
}

class EveryFrame : public testing::TestWithParam<Cutting> {};

TEST_P(EveryFrame, HasThePowersOfTheDefinition) {
  const auto [length, hop, count] = GetParam();
  const std::vector<float> samples = uneven(count);
  const Frames frames = analyse(samples, length, hop, 100);
  ASSERT_EQ(frames.size(),
            (count + static_cast<std::size_t>(hop) - 1) / static_cast<std::size_t>(hop));
  for (std::size_t frame = 0; frame < frames.size(); ++frame) {
    ASSERT_EQ(frames[frame].size(), static_cast<std::size_t>(length / 2 + 1));
    for (int k = 0; k <= length / 2; ++k) {
      EXPECT_NEAR(frames[frame][static_cast<std::size_t>(k)],
                  power_by_definition(samples, length, hop, static_cast<int>(frame), k), 2e-6)
          << "frame " << frame << ", bin " << k;
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Cuttings, EveryFrame,
                         testing::Values(Cutting{64, 16, 3000}, Cutting{64, 64, 1000},
                                         Cutting{64, 1, 70}, Cutting{64, 16, 1},
                                         Cutting{64, 16, 17}, Cutting{5, 3, 200}, Cutting{2, 1, 9},
                                         Cutting{32, 7, 500}));

TEST(ShortTimeSpectrum, SineOfFullScaleHasPowerOne) {
  const Frames frames = analyse(sine(1000, 5.0 / 64), 64, 16, 1000);
  EXPECT_NEAR(frames[20][5], 1.0, 1e-5);
  EXPECT_NEAR(frames[21][5], 1.0, 1e-5);
  EXPECT_LT(frames[20][12], 1e-10);
}

std::vector<float> decimated(const std::vector<float>& samples, int factor, std::size_t block) {
  Decimator decimator(factor);
  std::vector<float> output;
  const auto append = [&](std::span<const float> part) {
    output.insert(output.end(), part.begin(), part.end());
  };
  for (std::size_t at = 0; at < samples.size(); at += block) {
    append(decimator.feed(std::span(samples).subspan(at, std::min(block, samples.size() - at))));
  }
  append(decimator.finish());
  return output;
}

double largest_inside(const std::vector<float>& samples) {
  double largest = 0;
  for (std::size_t n = 100; n + 100 < samples.size(); ++n) {
    largest = std::max(largest, static_cast<double>(std::abs(samples[n])));
  }
  return largest;
}

TEST(Decimator, KeepsTheSamplesOfLowFrequenciesInPlace) {
  const std::vector<float> output = decimated(sine(6001, 0.02), 3, 77);
  ASSERT_EQ(output.size(), 2001U);
  for (std::size_t n = 40; n + 40 < output.size(); ++n) {
    EXPECT_NEAR(output[n], std::sin(2 * pi * 0.06 * static_cast<double>(n)), 1e-3) << n;
  }
}

TEST(Decimator, RemovesWhatWouldFoldDown) {
  // Half the lower rate is 1/6; the transition band ends a little above.
  EXPECT_LT(largest_inside(decimated(sine(6000, 0.2), 3, 6000)), 1e-3);
  EXPECT_LT(largest_inside(decimated(sine(6000, 0.42), 3, 6000)), 1e-3);
}

TEST(Decimator, FactorKeepsTheWantedBand) {
  EXPECT_EQ(decimation_factor(48000, 8000), 3);
  EXPECT_EQ(decimation_factor(44100, 8000), 2);
  EXPECT_EQ(decimation_factor(8000, 8000), 1);
  EXPECT_EQ(decimation_factor(2000000000, 1e-9), 4096);
}

TEST(TimeGrid, StaysSmallAndKeepsTheMeanOfEveryFrame) {
  TimeGrid grid(2, 8);
  double sum = 0;
  for (int frame = 0; frame < 1000; ++frame) {
    grid.add(std::vector<double>{static_cast<double>(frame), 1.0});
    sum += frame;
    ASSERT_LE(grid.columns(), 8U);
  }
  EXPECT_EQ(grid.frames(), 1000);
  EXPECT_DOUBLE_EQ(grid.slice(0, 1)[0], sum / 1000);
  EXPECT_DOUBLE_EQ(grid.slice(0, 1)[1], 1.0);
}

TEST(TimeGrid, SlicesFollowTime) {
  TimeGrid grid(1, 16);
  for (int frame = 0; frame < 777; ++frame) {
    grid.add(std::vector<double>{static_cast<double>(frame)});
  }
  // Columns stand for 64 frames here, so a slice is exact to that.
  for (int index = 0; index < 7; ++index) {
    EXPECT_NEAR(grid.slice(index, 7)[0], (index + 0.5) * 777 / 7, 64) << index;
  }
  EXPECT_GT(grid.slice(99, 100)[0], 700);
  EXPECT_GT(grid.peak(), 760);
}

TEST(Colours, BrightnessRisesWithTheLevel) {
  const auto brightness = [](double level) {
    const Colour c = colour_of(level);
    return 0.2126 * c.red + 0.7152 * c.green + 0.0722 * c.blue;
  };
  for (int i = 1; i <= 50; ++i) EXPECT_GT(brightness(i / 50.0), brightness((i - 1) / 50.0)) << i;
  EXPECT_LT(brightness(0), 15);
  EXPECT_GT(brightness(1), 230);
}

TEST(Loudness, RangeEndsAboveThePeak) {
  TimeGrid grid(1);
  grid.add(std::vector<double>{std::pow(10, -1.3)});
  const LoudnessRange range = loudness_range(grid);
  EXPECT_EQ(range.top_db, -10);
  EXPECT_EQ(range.bottom_db, -80);
  EXPECT_NEAR(range.level(std::pow(10, -4.5)), 0.5, 1e-12);
  EXPECT_EQ(range.level(0), 0);
  EXPECT_EQ(range.level(10), 1);
}

TEST(Axes, MarksAreRoundNumbers) {
  const Axis band = frequency_axis(24000, 8);
  EXPECT_EQ(band.unit, "kHz");
  ASSERT_EQ(band.marks.size(), 5U);
  EXPECT_EQ(band.label(band.marks[4]), "20");
  EXPECT_EQ(frequency_axis(4000, 8).marks.size(), 9U);
  EXPECT_EQ(time_axis(0.004, 10).unit, "ms");
  EXPECT_EQ(time_axis(3600, 10).unit, "min");
  EXPECT_EQ(time_axis(3600, 10).label(time_axis(3600, 10).marks.back()), "60");
}

TEST(Progress, IsSilentForASecondAndRareAfterwards) {
  using std::chrono::milliseconds;
  const auto start = Progress::Clock::now();
  std::ostringstream out;
  {
    Progress progress(out, false, 200, start);
    progress.report(10, 1, start + milliseconds(999));
    EXPECT_EQ(out.str(), "");
    progress.report(50, 2, start + milliseconds(1000));
    EXPECT_EQ(out.str(), "2 s of audio, 25 %\n");
    progress.report(60, 3, start + milliseconds(5900));
    progress.report(100, 4, start + milliseconds(6000));
  }
  EXPECT_EQ(out.str(), "2 s of audio, 25 %\n4 s of audio, 50 %\n");
}

TEST(Progress, LeavesACleanLineOnATerminal) {
  using std::chrono::milliseconds;
  const auto start = Progress::Clock::now();
  std::ostringstream out;
  { Progress(out, true, 0, start).report(50, 2, start + milliseconds(10)); }
  EXPECT_EQ(out.str(), "");
  { Progress(out, true, 0, start).report(50, 2, start + milliseconds(2000)); }
  EXPECT_EQ(out.str(), "\r2 s of audio\r\033[K");
}

// Characters, not bytes, and without colour codes.
std::size_t shown_width(const std::string& line) {
  std::size_t width = 0;
  for (std::size_t i = 0; i < line.size(); ++i) {
    if (line[i] == '\033') {
      i = line.find('m', i);
    } else if ((static_cast<unsigned char>(line[i]) & 0xC0U) != 0x80U) {
      ++width;
    }
  }
  return width;
}

TEST(TextPicture, FitsItsWidthInEveryStyle) {
  for (const int bins : {2, 3, 5, 17, 33}) {
    TimeGrid grid(bins);
    for (int frame = 0; frame < 50; ++frame) {
      grid.add(std::vector<double>(static_cast<std::size_t>(bins), 0.01 * frame));
    }
    for (const auto style : {TextStyle::ascii, TextStyle::colours_256, TextStyle::true_colour}) {
      for (const int width : {1, 40, 80, 133}) {
        std::istringstream lines(text_picture(grid, 0.05, 750, style, width));
        for (std::string line; std::getline(lines, line);) {
          EXPECT_LE(shown_width(line), static_cast<std::size_t>(std::max(width, 40)))
              << bins << " bins, width " << width << ": " << line;
        }
      }
    }
  }
}

TEST(TextPicture, PlainStyleIsPlainAndShowsWhereTheSoundIs) {
  TimeGrid grid(33);
  std::vector<double> power(33, 0.0);
  power[8] = 1.0;  // 6 kHz
  for (int frame = 0; frame < 100; ++frame) grid.add(power);
  const std::string text = text_picture(grid, 1, 750, TextStyle::ascii, 80);
  EXPECT_TRUE(std::all_of(text.begin(), text.end(),
                          [](char c) { return c == '\n' || (c >= ' ' && c <= '~'); }));
  std::vector<std::string> lines;
  std::istringstream stream(text);
  for (std::string line; std::getline(stream, line);) lines.push_back(line);
  ASSERT_GT(lines.size(), 33U);
  for (std::size_t bin = 0; bin < 33; ++bin) {
    EXPECT_EQ(lines[32 - bin].find("@@@@") != std::string::npos, bin == 8) << bin;
  }
  EXPECT_NE(lines[32].find("0 kHz |"), std::string::npos);
}

}  // namespace
}  // namespace haldgen::demo
