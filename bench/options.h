// The command line of haldgen_bench.
#pragma once

#include <CLI/CLI.hpp>
#include <filesystem>
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
  std::set<int> lengths;           ///< empty for all
  std::vector<std::string> types;  ///< element suffixes; empty for all
  std::vector<Mode> modes = {Mode::hot, Mode::ring};
  int repetitions = 3;  ///< visits to a kernel and mode, spread over the run
  int rounds = 100;     ///< rounds per visit
  double slice_us = 30;
  std::string filter;             ///< regular expression on names of measurements; empty for all
  std::filesystem::path out;      ///< folder for the table; empty for standard output
  std::filesystem::path library;  ///< the build under test
  std::vector<Variant> variants;
  bool show_plans = false;
  bool list = false;
};

/// An option with a list of lengths, such as "8,16,20-24".
void add_lengths(CLI::App& app, std::set<int>& lengths, const std::string& help);

/// What main returns when the arguments end the program: 0 after help, 2 after an error.
int exit_status(const CLI::App& app, const CLI::ParseError& error);

/// Fills `options` from the command line; `options.library` holds the default. Throws
/// CLI::ParseError.
void parse_options(CLI::App& app, int argc, char** argv, Options& options);

}  // namespace haldgen::bench
