// The demonstration: its powers against the definition, and the program as a user meets it.
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cmath>
#include <complex>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <numbers>
#include <sstream>
#include <string>
#include <vector>

#include "spectrogram/picture.h"
#include "spectrogram/recording.h"
#include "spectrogram/short_time.h"

namespace haldgen::demo {
namespace {

namespace fs = std::filesystem;
using std::numbers::pi;

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

TEST(ShortTimeSpectrum, HasThePowersOfTheDefinition) {
  struct Cutting {
    int length, hop, samples, columns;
  };
  for (const auto [length, hop, count, columns] :
       {Cutting{64, 16, 3000, 1000}, Cutting{64, 64, 1000, 5}, Cutting{64, 1, 70, 70},
        Cutting{64, 16, 1, 10}, Cutting{5, 3, 200, 7}, Cutting{2, 1, 9, 1}}) {
    std::vector<float> samples;
    unsigned state = 12345;
    for (int n = 0; n < count; ++n) {
      state = state * 1664525U + 1013904223U;
      samples.push_back(static_cast<float>(state >> 8U) / 8388608.0F - 1.0F);
    }
    const ShortTimeSpectrum spectrum(samples, length, hop, columns);
    const int frames = (count + hop - 1) / hop;
    ASSERT_EQ(spectrum.frames(), static_cast<std::size_t>(frames));
    ASSERT_EQ(spectrum.columns(), static_cast<std::size_t>(std::min(frames, columns)));
    for (int k = 0; k <= length / 2; ++k) {
      // Each frame belongs to the column in whose share of time it begins.
      std::vector<double> sums(spectrum.columns());
      std::vector<int> in(spectrum.columns());
      for (int frame = 0; frame < frames; ++frame) {
        const auto column = static_cast<std::size_t>(
            frames <= columns ? frame : static_cast<int>(1.0 * frame * columns / frames));
        sums[column] += power_by_definition(samples, length, hop, frame, k);
        ++in[column];
      }
      for (std::size_t column = 0; column < sums.size(); ++column) {
        EXPECT_NEAR(spectrum.power(column, static_cast<std::size_t>(k)), sums[column] / in[column],
                    2e-6)
            << "length " << length << ", column " << column << ", bin " << k;
      }
    }
  }
}

// A channel as a function of time in seconds.
using Signal = std::function<double(double)>;

Signal sine(double hertz, double amplitude = 0.5) {
  return [=](double t) { return amplitude * std::sin(2 * pi * hertz * t); };
}

std::string read(const fs::path& path) {
  std::ostringstream text;
  text << std::ifstream(path, std::ios::binary).rdbuf();
  return text.str();
}

class Program : public testing::Test {
 protected:
  struct Outcome {
    int status;
    std::string out, err;
  };

  void SetUp() override {
    std::string name = (fs::temp_directory_path() / "spectrogram-XXXXXX").string();
    ASSERT_NE(mkdtemp(name.data()), nullptr);
    folder_ = name;
  }
  void TearDown() override { fs::remove_all(folder_); }

  fs::path file(const std::string& name) const { return folder_ / name; }

  void write_recording(const std::string& name, int rate, int frames,
                       const std::vector<Signal>& channels,
                       int format = SF_FORMAT_WAV | SF_FORMAT_FLOAT) const {
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

  // Runs in the test's own folder.
  Outcome run(const std::string& arguments, const std::string& before = "") const {
    const std::string command = "cd '" + folder_.string() + "' && " + before +
                                "'" SPECTROGRAM "' " + arguments + " >out.txt 2>err.txt </dev/null";
    const int status = std::system(command.c_str());
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, read(file("out.txt")),
            read(file("err.txt"))};
  }

  void expect_refusal(const std::string& arguments, const std::string& reason,
                      const std::string& before = "") const {
    const Outcome outcome = run(arguments, before);
    EXPECT_EQ(outcome.status, 1) << arguments;
    EXPECT_EQ(outcome.out, "") << arguments;
    EXPECT_EQ(std::count(outcome.err.begin(), outcome.err.end(), '\n'), 1) << outcome.err;
    EXPECT_EQ(outcome.err.find("spectrogram: "), 0U) << outcome.err;
    EXPECT_NE(outcome.err.find(reason), std::string::npos) << outcome.err;
    for (const auto& entry : fs::directory_iterator(folder_)) {
      EXPECT_NE(entry.path().extension(), ".part") << arguments;
    }
  }

  // The brightest bin of the picture at `time`, a share of the width; none if all is dark.
  int brightest(double time, int bins = 33, int width = 1160, int height = 500) const {
    const std::shared_ptr<cairo_surface_t> picture(
        cairo_image_surface_create_from_png(file("spectrogram.png").c_str()),
        cairo_surface_destroy);
    EXPECT_EQ(cairo_image_surface_get_width(picture.get()), width);
    EXPECT_EQ(cairo_image_surface_get_height(picture.get()), height);
    const unsigned char* pixels = cairo_image_surface_get_data(picture.get());
    if (pixels == nullptr) return -2;
    const int stride = cairo_image_surface_get_stride(picture.get());
    const Rectangle area = plot_area(width, height);
    const int x = area.left + static_cast<int>(time * area.width);
    int best = -1;
    int most = 300;  // of three times 255
    for (int bin = 0; bin < bins; ++bin) {
      const int y = area.top + static_cast<int>((bins - bin - 0.5) / bins * area.height);
      const unsigned char* pixel = pixels + y * stride + 4 * x;
      const int brightness = pixel[0] + pixel[1] + pixel[2];
      if (brightness > most) best = bin;
      most = std::max(most, brightness);
    }
    return best;
  }

  fs::path folder_;
};

TEST_F(Program, DrawsATonesRowBrightestInAPictureOfTheAskedSize) {
  write_recording("stereo.wav", 8000, 8001, {sine(1000, 0.5), sine(3000, 0.05)});
  const Outcome outcome =
      run("--output other.png -o spectrogram.png --width 700 --height 333 stereo.wav");
  ASSERT_EQ(outcome.status, 0) << outcome.err;
  EXPECT_EQ(outcome.err, "");
  for (const char* part :
       {"8000 Hz, 2 channels mixed\n", "501 frames of 64 samples (8 ms), one every 16 (2 ms)",
        " ns each, ", " times real time", "picture: spectrogram.png\n"}) {
    EXPECT_NE(outcome.out.find(part), std::string::npos) << part << " is not in\n" << outcome.out;
  }
  EXPECT_EQ(brightest(0.5, 33, 700, 333), 8);
  EXPECT_FALSE(fs::exists(file("other.png")));
  ASSERT_EQ(run("--length 16 --hop 5 stereo.wav").status, 0);
  EXPECT_EQ(brightest(0.5, 9), 2);
}

TEST_F(Program, TakesShortRecordingsAndWhatIsNoNumber) {
  write_recording("short.wav", 8000, 1, {[](double) { return 0.5; }});
  ASSERT_EQ(run("short.wav").status, 0);
  EXPECT_EQ(brightest(0.5), 1);  // an impulse: all bins alike, those at the ends 6 dB below
  const Signal tone = sine(2000);
  write_recording("nan.wav", 8000, 8000, {[=](double t) { return t < 0.001 ? NAN : tone(t); }});
  EXPECT_EQ(run("nan.wav").err,
            "spectrogram: 8 samples were no usable numbers and count as silence\n");
  EXPECT_EQ(brightest(0.5), 16);
}

TEST_F(Program, RefusesBadRecordings) {
  Signal noise = [state = 1U](double) mutable {
    state = state * 1664525U + 1013904223U;
    return static_cast<double>(state) / 4294967296.0 - 0.5;
  };
  write_recording("empty.wav", 8000, 0, {sine(1000)});
  write_recording("whole.flac", 8000, 40000, {noise}, SF_FORMAT_FLAC | SF_FORMAT_PCM_16);
  const std::string flac = read(file("whole.flac"));
  std::ofstream(file("cut.flac"), std::ios::binary) << flac.substr(0, flac.size() / 2);
  std::ofstream(file("text.wav")) << "This is no recording, only a line of text.\n";
  expect_refusal("missing.wav", "missing.wav: No such file");
  expect_refusal(".", ".: is a directory");
  expect_refusal("text.wav", "text.wav: ");
  expect_refusal("cut.flac", "cut.flac: ");
  expect_refusal("empty.wav", "empty.wav: holds no samples");
  EXPECT_FALSE(fs::exists(file("spectrogram.png")));
}

TEST_F(Program, RefusesPicturesThatCannotBeWrittenAndKeepsWhatIsThere) {
  write_recording("good.wav", 8000, 1000, {sine(1000)});
  const std::string before = read(file("good.wav"));
  expect_refusal("-o missing/picture.png good.wav", "missing/picture.png: No such file");
  expect_refusal("-o . good.wav", ".: is there");
  expect_refusal("-o /dev/full good.wav", "/dev/full: is there");
  expect_refusal("-o ./good.wav good.wav", "overwrite");
  EXPECT_EQ(read(file("good.wav")), before);
  // A full disk: no file may have more than half a kilobyte or so.
  std::ofstream(file("old.png")) << "old";
  expect_refusal("-o old.png good.wav", "old.png: File too large", "trap '' XFSZ; ulimit -f 1; ");
  EXPECT_EQ(read(file("old.png")), "old");
}

TEST_F(Program, RefusesBadArgumentsAndHelps) {
  write_recording("good.wav", 8000, 1000, {sine(1000)});
  expect_refusal("--length 65 good.wav", "65 points");
  expect_refusal("--length -1 good.wav", "-1");
  expect_refusal("--length 64x good.wav", "64x");
  expect_refusal("--hop 65 good.wav", "--hop");
  expect_refusal("good.wav --output", "--output");
  expect_refusal("--loud good.wav", "--loud");
  expect_refusal("", "RECORDING");
  expect_refusal("good.wav good.wav", "not expected");
  const Outcome outcome = run("--help");
  EXPECT_EQ(outcome.status, 0);
  for (const char* option : {"--output", "--length", "--hop", "--width", "--height"}) {
    EXPECT_NE(outcome.out.find(option), std::string::npos) << option;
  }
}

}  // namespace
}  // namespace haldgen::demo
