// haldgen_bench: measures and writes one table.
#include <unistd.h>

#include <cstdio>
#include <exception>
#include <fstream>
#include <iostream>
#include <stdexcept>
#include <string>

#include "bench/contest.h"
#include "bench/core/arena.h"
#include "bench/core/results.h"
#include "bench/options.h"
#include "bench/peers/peers.h"

namespace haldgen::bench {
namespace {

/// A bar on terminals.
void show_progress(double done, const std::string& title) {
  constexpr int width = 40;
  if (isatty(STDERR_FILENO) == 0) return;
  const std::string bar(static_cast<std::size_t>(done * width), '#');
  std::fprintf(stderr, "\r[%-*s] %3.0f %%  %.32s\x1b[K", width, bar.c_str(), done * 100,
               title.c_str());
  if (title.empty()) std::fputc('\n', stderr);
}

void show_plans(const Options& options) {
  for (const auto& [function, problem] : selected_kernels(options)) {
    if (problem.transform == Transform::wht) continue;
    const Arena arena(Mode::hot, problem.source_bytes(), problem.result_bytes());
    std::cout << function.name << '\n'
              << "fftw:\n"
              << describe_fftw_plan(problem, arena.walk(), FftwWidth::full) << "\nfftw128:\n"
              << describe_fftw_plan(problem, arena.walk(), FftwWidth::narrow) << '\n'
              << std::endl;
  }
}

void write(const Options& options, const Head& head, const Contest& contest) {
  if (options.out.empty()) {
    write_results(std::cout, head, contest.measurements());
    return;
  }
  std::ofstream file(options.out / "results.tsv");
  write_results(file, head, contest.measurements());
  if (!file.flush()) throw std::runtime_error("cannot write to " + options.out.string());
}

int run(const Options& options) {
  if (options.show_plans) {
    show_plans(options);
    return 0;
  }
  Head head = describe_machine();
  Contest contest(options);
  if (options.list) {
    for (const std::string& title : contest.titles()) std::cout << title << '\n';
    return 0;
  }
  if (!options.out.empty()) std::filesystem::create_directories(options.out);
  for (auto& line : contest.describe()) head.push_back(std::move(line));
  head.emplace_back("versions", peer_versions());
  head.emplace_back("rounds", std::to_string(options.repetitions) + " x " +
                                  std::to_string(options.rounds) + ", slices of " +
                                  std::to_string(static_cast<int>(options.slice_us)) + " us");
  contest.run(show_progress);
  show_progress(1, "");
  if (!contest.measurements().empty()) write(options, head, contest);
  for (const std::string& fault : contest.faults()) std::cerr << "fault: " << fault << '\n';
  return contest.faults().empty() ? 0 : 1;
}

}  // namespace
}  // namespace haldgen::bench

int main(int argc, char** argv) {
  namespace bench = haldgen::bench;
  CLI::App app("The kernels of libhaldgenp8 against other libraries and plain loops, interleaved.",
               "haldgen_bench");
  try {
    bench::Options options;
    options.library = HALDGEN_BENCH_LIBRARY;
    bench::parse_options(app, argc, argv, options);
    return bench::run(options);
  } catch (const CLI::ParseError& error) {
    return bench::exit_status(app, error);
  } catch (const std::exception& error) {
    std::cerr << "haldgen_bench: " << error.what() << '\n';
    return 2;
  }
}
