// haldgen_bench: measures and writes one table.
#include <unistd.h>

#include <CLI/CLI.hpp>
#include <algorithm>
#include <cstdio>
#include <fstream>
#include <iostream>
#include <random>
#include <stdexcept>

#include "bench/contest.h"
#include "bench/core/size_list.h"
#include "bench/kernels.h"
#include "bench/peers/peers.h"

namespace haldgen::bench {
namespace {

Build build_of(const std::string& label, const std::filesystem::path& path) {
  return {label, std::filesystem::weakly_canonical(path), open_library(path)};
}

/// The library under test, then [LABEL=]PATH each, then flavours.
std::vector<Build> builds_of(const std::filesystem::path& library,
                             const std::vector<std::string>& also, bool with_flavours) {
  std::vector<Build> builds = {build_of("haldgen", library)};
  for (const std::string& text : also) {
    const std::size_t sign = text.find('=');  // if none, both parts are all of it
    builds.push_back(build_of(text.substr(0, sign), text.substr(sign + 1)));
  }
  if (with_flavours) {
    for (const auto& [flavour, path] : flavours(library.parent_path(), "libhaldgenp8.so.8")) {
      builds.push_back(build_of(flavour.tag, path));
    }
  }
  // Columns of the table, and headings over their figures.
  std::set<std::string> taken = {"fftw",    "fftw128",     "kissfft", "av_tx",   "null_call",
                                 "plain",   "plain_fixed", "memcpy",  "convert", "vector_add",
                                 "subject", "best",        "bound"};
  for (const Build& build : builds) {
    if (build.label.empty() || build.label.find_first_of(" \t\n") != std::string::npos ||
        !taken.insert(build.label).second) {
      throw std::runtime_error("the label '" + build.label + "' is taken or no word");
    }
  }
  return builds;
}

/// Visits all in random order, as often as the options say, so that a busy spell of the machine
/// spoils one visit and not a kernel. Returns what went wrong, a line each.
std::vector<std::string> measure(std::vector<Bout>& bouts, const std::vector<Build>& builds,
                                 const Options& options) {
  const bool terminal = isatty(STDERR_FILENO) != 0;
  std::vector<std::string> faults;
  std::vector<Bout*> visits;
  for (int i = 0; i < options.repetitions; ++i) {
    for (Bout& bout : bouts) visits.push_back(&bout);
  }
  std::shuffle(visits.begin(), visits.end(), std::mt19937_64(std::random_device()()));
  for (std::size_t i = 0; i < visits.size(); ++i) {
    if (terminal) {
      const std::string bar(40 * i / visits.size(), '#');
      std::fprintf(stderr, "\r[%-40s] %zu of %zu visits, %s\x1b[K", bar.c_str(), i, visits.size(),
                   visits[i]->title().c_str());
    }
    visits[i]->visit(builds, options, faults);
  }
  if (terminal) std::fputs("\r\x1b[K", stderr);
  return faults;
}

int run(const Options& options, const std::vector<Build>& builds,
        const std::filesystem::path& out) {
  Head head = describe_machine();
  std::vector<Bout> all = bouts(options);
  for (const Build& build : builds) head.emplace_back(build.label, build.path);
  head.emplace_back("versions", peer_versions());
  head.emplace_back("rounds", std::to_string(options.repetitions) + " x " +
                                  std::to_string(options.rounds) + ", slices of " +
                                  std::to_string(static_cast<int>(options.slice_us)) + " us");
  if (!out.empty()) std::filesystem::create_directories(out);
  const std::vector<std::string> faults = measure(all, builds, options);
  std::vector<Measurement> measurements;
  for (const Bout& bout : all) {
    if (auto result = bout.result()) measurements.push_back(std::move(*result));
  }
  if (!measurements.empty()) {
    std::ofstream file;
    if (!out.empty()) file.open(out / "results.tsv");
    std::ostream& table = out.empty() ? std::cout : file;
    write_results(table, head, measurements);
    if (!table.flush()) throw std::runtime_error("the table cannot be written");
  }
  for (const std::string& fault : faults) std::cerr << "fault: " << fault << '\n';
  return faults.empty() ? 0 : 1;
}

int main_of(int argc, char** argv) {
  CLI::App app("The kernels of libhaldgenp8 against other libraries and plain loops, interleaved.",
               "haldgen_bench");
  Options options;
  std::string lengths;
  std::filesystem::path out;
  std::filesystem::path library = HALDGEN_BENCH_LIBRARY;
  std::vector<std::string> also;
  bool with_flavours = false;
  bool plans = false;
  bool list = false;
  app.add_option("--lengths", lengths, "lengths or orders, such as 8,16,20-24 (default: all)");
  app.add_option("--types", options.types, "of 32f, 64f, 32fc, 64fc (default: all)")
      ->delimiter(',')
      ->check(CLI::IsMember({"32f", "64f", "32fc", "64fc"}));
  app.add_option("--mode", options.mode, "hot, ring or both (default)")
      ->check(CLI::IsMember({"hot", "ring", "both"}));
  app.add_option("--repetitions", options.repetitions,
                 "visits to each kernel and mode, in random order (default 3)")
      ->check(CLI::Range(1, 1000));
  app.add_option("--rounds", options.rounds, "rounds per visit (default 100)")
      ->check(CLI::Range(1, 1000000));
  app.add_option("--slice", options.slice_us, "microseconds per slice of a contestant (default 30)")
      ->check(CLI::Range(1, 1000000));
  app.add_option("--filter", options.filter, "regular expression on family/type/length/mode");
  app.add_option("--out", out, "folder for results.tsv (default: standard output)");
  app.add_option("--kernel-library", library,
                 "the libhaldgenp8.so to measure (default: of this build)");
  app.add_option("--also", also, "another libhaldgenp8.so beside it, [LABEL=]PATH; repeatable")
      ->allow_extra_args(false);
  app.add_flag("--flavours", with_flavours,
               "the same with the flavours below its folder that the processor can run");
  app.add_flag("--show-plans", plans, "prints the plans that FFTW chooses and stops");
  app.add_flag("--list", list, "prints the names of all measurements and stops");
  CLI11_PARSE(app, argc, argv)
  if (!lengths.empty()) options.lengths = parse_size_list(lengths);
  if (plans) options.mode = "hot";  // those of rings are the same
  if (!plans && !list) return run(options, builds_of(library, also, with_flavours), out);
  for (const Bout& bout : bouts(options)) {
    std::cout << (list ? bout.title() + "\n" : bout.plans()) << std::flush;
  }
  return 0;
}

}  // namespace
}  // namespace haldgen::bench

int main(int argc, char** argv) {
  try {
    return haldgen::bench::main_of(argc, argv);
  } catch (const std::exception& error) {
    std::cerr << "haldgen_bench: " << error.what() << '\n';
    return 2;
  }
}
