// The program as a user meets it: recordings in, pictures and messages out.
#include <gtest/gtest.h>
#include <png.h>
#include <sndfile.h>
#include <stdlib.h>
#include <sys/wait.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <limits>
#include <numbers>
#include <sstream>
#include <string>
#include <vector>

#include "spectrogram/png_picture.h"
#include "spectrogram/scale.h"

namespace haldgen::demo {
namespace {

namespace fs = std::filesystem;

// A channel as a function of time in seconds.
using Signal = std::function<double(double)>;

Signal sine(double hertz, double db) {
  const double amplitude = std::pow(10, db / 20);
  return [=](double t) { return amplitude * std::sin(2 * std::numbers::pi * hertz * t); };
}

Signal sum(const Signal& a, const Signal& b) {
  return [=](double t) { return a(t) + b(t); };
}

struct Outcome {
  int status;
  std::string out;
  std::string err;
};

// The levels of a spectrogram, read back from the colours of its picture.
class Picture {
 public:
  Picture(const fs::path& path, int bins) : area_(plot_area(bins)) {
    png_image image{};
    image.version = PNG_IMAGE_VERSION;
    if (png_image_begin_read_from_file(&image, path.c_str()) == 0) return;
    image.format = PNG_FORMAT_RGB;
    pixels_.resize(PNG_IMAGE_SIZE(image));
    width_ = static_cast<int>(image.width);
    height_ = static_cast<int>(image.height);
    if (png_image_finish_read(&image, nullptr, pixels_.data(), 0, nullptr) == 0) pixels_.clear();
  }

  bool good() const {
    return !pixels_.empty() && area_.left + area_.width < width_ &&
           area_.top + area_.height < height_;
  }

  // `time` as a fraction of the width.
  double level(double time, int bin) const {
    const int x = area_.left + static_cast<int>(time * area_.width);
    const int y = area_.top + area_.height - bin * area_.row_height - area_.row_height / 2 - 1;
    const std::uint8_t* pixel =
        &pixels_[3 * (static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) +
                      static_cast<std::size_t>(x))];
    double best = 0;
    int least = std::numeric_limits<int>::max();
    for (int i = 0; i <= 1000; ++i) {
      const Colour c = colour_of(i / 1000.0);
      const int distance =
          std::abs(c.red - pixel[0]) + std::abs(c.green - pixel[1]) + std::abs(c.blue - pixel[2]);
      if (distance < least) {
        least = distance;
        best = i / 1000.0;
      }
    }
    EXPECT_LE(least, 3) << "a colour that is not of the map";
    return best;
  }

  // Bins that are brighter than both neighbours and than a quarter of the range.
  std::vector<int> peaks(double time, int bins) const {
    std::vector<double> levels(static_cast<std::size_t>(bins) + 2, 0.0);
    for (int k = 0; k < bins; ++k) levels[static_cast<std::size_t>(k) + 1] = level(time, k);
    std::vector<int> found;
    for (std::size_t k = 1; k + 1 < levels.size(); ++k) {
      if (levels[k] > 0.25 && levels[k] > levels[k - 1] && levels[k] > levels[k + 1]) {
        found.push_back(static_cast<int>(k) - 1);
      }
    }
    return found;
  }

 private:
  PlotArea area_;
  int width_ = 0;
  int height_ = 0;
  std::vector<std::uint8_t> pixels_;
};

class Spectrogram : public testing::Test {
 protected:
  void SetUp() override {
    std::string name = (fs::temp_directory_path() / "spectrogram-XXXXXX").string();
    ASSERT_NE(mkdtemp(name.data()), nullptr);
    folder_ = name;
  }
  void TearDown() override { fs::remove_all(folder_); }

  fs::path file(const std::string& name) const { return folder_ / name; }

  void write_recording(const std::string& name, int rate, int frames,
                       const std::vector<Signal>& channels,
                       int format = SF_FORMAT_WAV | SF_FORMAT_PCM_16) {
    SF_INFO info{};
    info.samplerate = rate;
    info.channels = static_cast<int>(channels.size());
    info.format = format;
    SNDFILE* out = sf_open(file(name).c_str(), SFM_WRITE, &info);
    ASSERT_NE(out, nullptr) << sf_strerror(nullptr);
    std::vector<float> samples;
    for (int n = 0; n < frames; ++n) {
      for (const Signal& channel : channels) {
        samples.push_back(static_cast<float>(channel(static_cast<double>(n) / rate)));
      }
    }
    EXPECT_EQ(sf_writef_float(out, samples.data(), frames), frames);
    sf_close(out);
  }

  void write_bytes(const std::string& name, const std::string& bytes) {
    std::ofstream(file(name), std::ios::binary) << bytes;
  }

  static std::string read(const fs::path& path) {
    std::ostringstream text;
    text << std::ifstream(path, std::ios::binary).rdbuf();
    return text.str();
  }

  // Runs in the test's own folder.
  Outcome run(const std::string& arguments) {
    const std::string command = "cd '" + folder_.string() + "' && '" SPECTROGRAM "' " + arguments +
                                " >out.txt 2>err.txt </dev/null";
    const int status = std::system(command.c_str());
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, read(file("out.txt")),
            read(file("err.txt"))};
  }

  void expect_refusal(const std::string& arguments, const std::string& reason) {
    const Outcome outcome = run(arguments);
    EXPECT_EQ(outcome.status, 1) << arguments;
    EXPECT_EQ(outcome.out, "") << arguments;
    EXPECT_EQ(std::count(outcome.err.begin(), outcome.err.end(), '\n'), 1) << outcome.err;
    EXPECT_EQ(outcome.err.find("spectrogram: "), 0U) << outcome.err;
    EXPECT_NE(outcome.err.find(reason), std::string::npos) << outcome.err;
  }

  Picture draw(const std::string& arguments, int bins = 33) {
    const Outcome outcome = run(arguments);
    EXPECT_EQ(outcome.status, 0) << outcome.err;
    EXPECT_EQ(outcome.err, "");
    Picture picture(file("spectrogram.png"), bins);
    EXPECT_TRUE(picture.good());
    return picture;
  }

 private:
  fs::path folder_;
};

TEST_F(Spectrogram, ShowsTwoSinesAtTheirFrequenciesAndLoudness) {
  write_recording("two.wav", 8000, 8000, {sum(sine(1000, -6), sine(3000, -26))});
  const Picture picture = draw("two.wav");
  if (!picture.good()) return;
  EXPECT_EQ(picture.peaks(0.5, 33), (std::vector<int>{8, 24}));
  // Seventy decibels from dark to bright, of which the brightest lies at the top or below.
  EXPECT_NEAR(picture.level(0.5, 8), 64.0 / 70, 0.02);
  EXPECT_NEAR(picture.level(0.5, 24), 44.0 / 70, 0.02);
  EXPECT_LT(picture.level(0.5, 16), 0.05);
}

TEST_F(Spectrogram, MixesAllChannels) {
  write_recording("stereo.wav", 48000, 24000, {sine(3000, -6), sine(18000, -6)});
  const Picture picture = draw("stereo.wav");
  if (!picture.good()) return;
  EXPECT_EQ(picture.peaks(0.5, 33), (std::vector<int>{4, 24}));
  EXPECT_NEAR(picture.level(0.5, 4), 68.0 / 70, 0.02);  // -12 dB below a top of -10 dB
}

TEST_F(Spectrogram, LowersTheRateWithoutFolding) {
  // Without a filter, 14.5 kHz would come down to 1.5 kHz.
  write_recording("wide.wav", 48000, 48000, {sum(sine(4000, -6), sine(14500, -6))});
  const Picture picture = draw("--top 8000 wide.wav");
  if (!picture.good()) return;
  EXPECT_EQ(picture.peaks(0.5, 33), (std::vector<int>{16}));
}

TEST_F(Spectrogram, TakesOtherLengths) {
  write_recording("tone.wav", 8000, 8000, {sine(2000, -6)});
  for (const int length : {8, 16, 32, 64}) {
    const int bins = length / 2 + 1;
    const Picture picture = draw("--length " + std::to_string(length) + " tone.wav", bins);
    if (!picture.good()) return;
    EXPECT_EQ(picture.peaks(0.5, bins), (std::vector<int>{length / 4})) << length;
  }
}

TEST_F(Spectrogram, SaysWhatItDid) {
  write_recording("tone.wav", 8000, 8001, {sine(2000, -6)});
  const Outcome outcome = run("--output other.png tone.wav");
  EXPECT_EQ(outcome.status, 0) << outcome.err;
  // One frame for each 16 samples begun, two to a transform.
  for (const char* part :
       {"8000 Hz, 1 channel\n", "501 frames of 64 samples (8 ms), one every 16 (2 ms)",
        "251 complex transforms", " ns per transform, ", " times real time",
        "picture: other.png\n"}) {
    EXPECT_NE(outcome.out.find(part), std::string::npos) << part << " is not in\n" << outcome.out;
  }
  EXPECT_TRUE(Picture(file("other.png"), 33).good());
  EXPECT_FALSE(fs::exists(file("spectrogram.png")));
}

TEST_F(Spectrogram, DrawsLessThanOneFrame) {
  for (const int frames : {1, 2, 40}) {
    write_recording("short.wav", 8000, frames, {[](double) { return 0.5; }});
    const Picture picture = draw("short.wav");
    if (!picture.good()) return;
    EXPECT_GT(picture.level(0.0, 0), 0.5) << frames;
  }
}

TEST_F(Spectrogram, TakesWhatIsNoNumberForSilenceAndSaysSo) {
  const Signal tone = sine(2000, -6);
  const double nan = std::numeric_limits<double>::quiet_NaN();
  write_recording("nan.wav", 8000, 8000, {[=](double t) { return t < 0.001 ? nan : tone(t); }},
                  SF_FORMAT_WAV | SF_FORMAT_FLOAT);
  const Outcome outcome = run("nan.wav");
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.err, "spectrogram: 8 samples were no usable numbers and count as silence\n");
  const Picture picture(file("spectrogram.png"), 33);
  ASSERT_TRUE(picture.good());
  EXPECT_EQ(picture.peaks(0.5, 33), (std::vector<int>{16}));
}

TEST_F(Spectrogram, RefusesBadRecordings) {
  write_recording("good.wav", 8000, 1000, {sine(1000, -6)});
  write_recording("empty.wav", 8000, 0, {sine(1000, -6)});
  write_bytes("text.wav", "This is no recording, only a line of text.\n");
  write_bytes("nothing.wav", "");
  write_bytes("cut.wav", read(file("good.wav")).substr(0, 20));
  expect_refusal("missing.wav", "missing.wav: No such file");
  expect_refusal(".", "is a directory");
  expect_refusal("text.wav", "text.wav: ");
  expect_refusal("nothing.wav", "nothing.wav: ");
  expect_refusal("cut.wav", "cut.wav: ");
  expect_refusal("empty.wav", "empty.wav: holds no samples");
  EXPECT_FALSE(fs::exists(file("spectrogram.png")));
}

TEST_F(Spectrogram, RefusesDamagedData) {
  Signal noise = [state = 1U](double) mutable {
    state = state * 1664525U + 1013904223U;
    return static_cast<double>(state) / 4294967296.0 - 0.5;
  };
  write_recording("whole.flac", 8000, 40000, {noise}, SF_FORMAT_FLAC | SF_FORMAT_PCM_16);
  const std::string bytes = read(file("whole.flac"));
  write_bytes("cut.flac", bytes.substr(0, bytes.size() / 2));
  expect_refusal("cut.flac", "cut.flac: ");
}

TEST_F(Spectrogram, RefusesPicturesThatCannotBeWritten) {
  write_recording("good.wav", 8000, 1000, {sine(1000, -6)});
  const std::string before = read(file("good.wav"));
  expect_refusal("-o missing/picture.png good.wav", "missing/picture.png: No such file");
  expect_refusal("-o . good.wav", ".: Is a directory");
  expect_refusal("-o /dev/full good.wav", "/dev/full: ");
  expect_refusal("-o ./good.wav good.wav", "overwrite");
  EXPECT_EQ(read(file("good.wav")), before);
}

TEST_F(Spectrogram, RefusesBadArguments) {
  write_recording("good.wav", 8000, 1000, {sine(1000, -6)});
  expect_refusal("--length 65 good.wav", "length 65 (status -6)");
  expect_refusal("--length 1 good.wav", "length 1 (status -6)");
  expect_refusal("--length -1 good.wav", "length -1 (status -6)");
  expect_refusal("--length 64x good.wav", "64x");
  expect_refusal("--length 99999999999 good.wav", "99999999999");
  expect_refusal("--hop 0 good.wav", "--hop");
  expect_refusal("--hop 65 good.wav", "--hop");
  expect_refusal("--top 0 good.wav", "--top");
  expect_refusal("--top nan good.wav", "--top");
  expect_refusal("good.wav --output", "--output needs a value");
  expect_refusal("--loud good.wav", "--loud is not understood");
  expect_refusal("", "exactly one recording");
  expect_refusal("good.wav good.wav", "exactly one recording");
}

TEST_F(Spectrogram, Helps) {
  const Outcome outcome = run("--help");
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.err, "");
  for (const char* option : {"--output", "--length", "--hop", "--top", "--help"}) {
    EXPECT_NE(outcome.out.find(option), std::string::npos) << option;
  }
}

}  // namespace
}  // namespace haldgen::demo
