// The command line of haldgen_bench.
#pragma once

#include <filesystem>
#include <ostream>
#include <set>
#include <string>
#include <vector>

#include "bench/core/arena.h"

namespace haldgen::bench {

/// A further build of the library to run beside the first.
struct Variant {
  std::string label;
  std::filesystem::path path;
};

struct Options {
  std::set<int> lengths;        ///< empty for all
  std::set<std::string> types;  ///< element suffixes; empty for all
  std::vector<Mode> modes = {Mode::hot, Mode::ring};
  int repetitions = 3;  ///< visits to a kernel and mode, spread over the run
  int rounds = 100;     ///< rounds per visit
  double slice_us = 30;
  std::string filter;             ///< regular expression on benchmark names; empty for all
  std::filesystem::path out;      ///< folder for tables and pictures; empty for none
  std::filesystem::path counts;   ///< operation counts; empty for none
  std::filesystem::path library;  ///< the build under test
  std::vector<Variant> variants;
  bool flavours = false;  ///< those of the library are further variants
  bool show_plans = false;
  bool help = false;
  std::vector<std::string> front_end;  ///< arguments for Google Benchmark
};

/// Throws std::invalid_argument with a message for users.
Options parse_options(int argc, char** argv, const std::filesystem::path& default_library);

void print_help(std::ostream& out);

}  // namespace haldgen::bench
