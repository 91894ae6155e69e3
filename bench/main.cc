// haldgen_bench: measures, prints one table, writes tables and pictures.
#include <benchmark/benchmark.h>
#include <stdlib.h>

#include <exception>
#include <fstream>
#include <iostream>
#include <sstream>
#include <stdexcept>
#include <string>
#include <thread>

#include "bench/contest.h"
#include "bench/core/report.h"
#include "bench/core/table.h"
#include "bench/options.h"
#include "bench/peers/peers.h"

namespace haldgen::bench {
namespace {

/// Says on stderr what is done; the tables on stdout come at the end.
class Progress : public benchmark::BenchmarkReporter {
 public:
  bool ReportContext(const Context& /*context*/) override { return true; }
  void ReportRuns(const std::vector<Run>& runs) override {
    const Run& last = runs.back();
    if (last.run_type != Run::RT_Iteration) return;
    std::cerr << last.run_name.function_name << (last.error_occurred ? ": " : "")
              << last.error_message << std::endl;
  }
};

std::string processor() {
  std::ifstream file("/proc/cpuinfo");
  for (std::string line; std::getline(file, line);) {
    const std::size_t colon = line.find(": ");
    if (line.starts_with("model name") && colon != std::string::npos) {
      return line.substr(colon + 2);
    }
  }
  return "unknown";
}

std::string load_average() {
  double loads[1] = {};
  return getloadavg(loads, 1) == 1 ? cell(loads[0], 2) : "unknown";
}

std::string describe_run(const Options& options, const Contest& contest, const std::string& load) {
  std::ostringstream text;
  text << "processor: " << processor() << ", " << std::thread::hardware_concurrency()
       << " cores, load at the start " << load << ", at the end " << load_average() << '\n'
       << contest.describe() << "peers: " << peer_versions() << '\n'
       << "rounds: " << options.repetitions << " x " << options.rounds << ", slices of "
       << options.slice_us << " us\n";
  return text.str();
}

void print_report(std::ostream& out, const Options& options,
                  const std::vector<Measurement>& measurements) {
  out << "Nanoseconds per call; a column that begins with '/' is the time of haldgen over that of\n"
         "the other, so below 1 haldgen is faster. The best peer is one at full vector width.\n";
  for (const std::vector<Measurement>& part : split_by_size(measurements)) {
    for (const Mode mode : options.modes) {
      for (const Statistic statistic : {Statistic::median, Statistic::minimum}) {
        out << "\n== " << name(mode) << ", " << name(statistic) << " of the rounds\n";
        write_aligned(out, figures_table(part, mode, statistic));
      }
    }
    out << "\n== geometric means of the ratios, and the worst kernels\n";
    write_aligned(out, summary_table(part));
  }
}

std::ofstream open_for_writing(const std::filesystem::path& path) {
  std::ofstream file(path);
  if (!file) throw std::runtime_error("cannot write " + path.string());
  return file;
}

void write_files(const Options& options, const std::vector<Measurement>& measurements,
                 const std::string& report) {
  open_for_writing(options.out / "report.txt") << report;
  std::ofstream results = open_for_writing(options.out / "results.tsv");
  write_tsv(results, long_table(measurements));
  std::ofstream summary = open_for_writing(options.out / "summary.tsv");
  write_tsv(summary, summary_table(measurements));
  std::set<std::string> families;
  for (const Measurement& measurement : measurements) families.insert(measurement.family);
  for (const std::string& family : families) {
    for (const Mode mode : options.modes) {
      const std::string stem = family + "-" + std::string(name(mode)) + ".svg";
      std::ofstream picture = open_for_writing(options.out / stem);
      write_picture(picture, measurements, family, mode);
    }
  }
  std::cerr << "written to " << options.out.string() << '\n';
}

void show_plans(const Options& options) {
  for (const Kernel& kernel : selected_kernels(options)) {
    const std::optional<ComplexProblem> problem = complex_problem_of(kernel.function);
    if (!problem) continue;
    std::cout << kernel.function.name << '\n' << describe_fftw_plans(*problem) << std::endl;
  }
}

/// Google Benchmark with its options. It keeps pointers to its arguments, so they live here.
class FrontEnd {
 public:
  explicit FrontEnd(const Options& options) {
    // Spreads the repetitions over the whole run, so that a busy spell of the machine spoils one
    // of them and not a kernel.
    arguments_ = {"haldgen_bench", "--benchmark_enable_random_interleaving=true"};
    if (!options.filter.empty()) arguments_.push_back("--benchmark_filter=" + options.filter);
    arguments_.insert(arguments_.end(), options.front_end.begin(), options.front_end.end());
    for (std::string& argument : arguments_) pointers_.push_back(argument.data());
    int count = static_cast<int>(pointers_.size());
    pointers_.push_back(nullptr);
    benchmark::Initialize(&count, pointers_.data());
    if (benchmark::ReportUnrecognizedArguments(count, pointers_.data())) {
      throw std::invalid_argument("unknown option of Google Benchmark");
    }
  }
  ~FrontEnd() { benchmark::Shutdown(); }
  FrontEnd(const FrontEnd&) = delete;
  FrontEnd& operator=(const FrontEnd&) = delete;

  /// Throws std::runtime_error if no benchmark matches the filter.
  // Needs what the constructor set up.
  // NOLINTNEXTLINE(readability-convert-member-functions-to-static)
  void run() {
    Progress progress;
    if (benchmark::RunSpecifiedBenchmarks(&progress) == 0) {
      throw std::runtime_error("there is no such kernel to measure");
    }
  }

 private:
  std::vector<std::string> arguments_;
  std::vector<char*> pointers_;
};

int run(const Options& options) {
  if (options.show_plans) {
    show_plans(options);
    return 0;
  }
  if (!options.out.empty()) std::filesystem::create_directories(options.out);
  const std::string load = load_average();
  Contest contest(options);
  FrontEnd front_end(options);
  contest.register_benchmarks();
  front_end.run();
  const std::vector<Measurement> measurements = contest.measurements();
  if (!measurements.empty()) {
    std::ostringstream report;
    report << describe_run(options, contest, load) << '\n';
    print_report(report, options, measurements);
    std::cout << report.str();
    if (!options.out.empty()) write_files(options, measurements, report.str());
  }
  for (const std::string& fault : contest.faults()) std::cerr << "fault: " << fault << '\n';
  return contest.faults().empty() ? 0 : 1;
}

}  // namespace
}  // namespace haldgen::bench

int main(int argc, char** argv) {
  namespace bench = haldgen::bench;
  try {
    const bench::Options options = bench::parse_options(argc, argv, HALDGEN_BENCH_LIBRARY);
    if (options.help) {
      bench::print_help(std::cout);
      return 0;
    }
    return bench::run(options);
  } catch (const std::exception& error) {
    std::cerr << "haldgen_bench: " << error.what() << '\n';
    return 2;
  }
}
