// The command line of haldgen_bench.
#include "bench/options.h"

#include <getopt.h>

#include <charconv>
#include <sstream>
#include <stdexcept>
#include <string_view>

#include "bench/core/size_list.h"
#include "lanes/processor.h"
#include "names/flavour.h"

namespace haldgen::bench {
namespace {

enum Code : int {
  code_lengths = 1,
  code_types,
  code_mode,
  code_repetitions,
  code_rounds,
  code_slice,
  code_filter,
  code_out,
  code_counts,
  code_library,
  code_also,
  code_flavours,
  code_plans,
  code_help,
};

constexpr option long_options[] = {
    {"lengths", required_argument, nullptr, code_lengths},
    {"types", required_argument, nullptr, code_types},
    {"mode", required_argument, nullptr, code_mode},
    {"repetitions", required_argument, nullptr, code_repetitions},
    {"rounds", required_argument, nullptr, code_rounds},
    {"slice", required_argument, nullptr, code_slice},
    {"filter", required_argument, nullptr, code_filter},
    {"out", required_argument, nullptr, code_out},
    {"counts", required_argument, nullptr, code_counts},
    {"kernel-library", required_argument, nullptr, code_library},
    {"also", required_argument, nullptr, code_also},
    {"flavours", no_argument, nullptr, code_flavours},
    {"show-plans", no_argument, nullptr, code_plans},
    {"help", no_argument, nullptr, code_help},
    {nullptr, 0, nullptr, 0},
};

int parse_number(const std::string& text, int smallest, int largest, const char* what) {
  int value = 0;
  const char* const end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, value);
  if (error != std::errc() || stop != end || value < smallest || value > largest) {
    throw std::invalid_argument(std::string(what) + " must be a number from " +
                                std::to_string(smallest) + " to " + std::to_string(largest) +
                                ", not '" + text + "'");
  }
  return value;
}

std::set<std::string> parse_types(const std::string& text) {
  std::set<std::string> types;
  std::istringstream stream(text);
  for (std::string type; std::getline(stream, type, ',');) {
    if (type != "32f" && type != "64f" && type != "32fc" && type != "64fc") {
      throw std::invalid_argument("unknown type '" + type +
                                  "' (there are 32f, 64f, 32fc and 64fc)");
    }
    types.insert(type);
  }
  return types;
}

std::vector<Mode> parse_mode(std::string_view text) {
  if (text == "hot") return {Mode::hot};
  if (text == "ring") return {Mode::ring};
  if (text == "both") return {Mode::hot, Mode::ring};
  throw std::invalid_argument("unknown mode '" + std::string(text) + "' (hot, ring or both)");
}

Variant parse_variant(const std::string& text, std::size_t index) {
  const std::size_t sign = text.find('=');
  if (sign != std::string::npos) return {text.substr(0, sign), text.substr(sign + 1)};
  return {index == 0 ? "also" : "also" + std::to_string(index + 1), text};
}

void apply(Options& options, int code, const std::string& value) {
  switch (code) {
    case code_lengths:
      options.lengths = parse_size_list(value);
      break;
    case code_types:
      options.types = parse_types(value);
      break;
    case code_mode:
      options.modes = parse_mode(value);
      break;
    case code_repetitions:
      options.repetitions = parse_number(value, 1, 1000, "--repetitions");
      break;
    case code_rounds:
      options.rounds = parse_number(value, 1, 1000000, "--rounds");
      break;
    case code_slice:
      options.slice_us = parse_number(value, 1, 1000000, "--slice");
      break;
    case code_filter:
      options.filter = value;
      break;
    case code_out:
      options.out = value;
      break;
    case code_counts:
      options.counts = value;
      break;
    case code_library:
      options.library = value;
      break;
    case code_also:
      options.variants.push_back(parse_variant(value, options.variants.size()));
      break;
    case code_flavours:
      options.flavours = true;
      break;
    case code_plans:
      options.show_plans = true;
      break;
    case code_help:
      options.help = true;
      break;
    default:
      throw std::invalid_argument("unknown or incomplete option; see --help");
  }
}

/// Where the loader would look for them.
void add_flavours(Options& options) {
  for (const names::Flavour& flavour : names::flavours) {
    const auto path = options.library.parent_path() / "glibc-hwcaps" /
                      (std::string("x86-64-") + flavour.tag) / "libhaldgenp8.so.8";
    if (std::filesystem::exists(path) && lanes::processor_has(flavour.vector_bits)) {
      options.variants.push_back({flavour.tag, path});
    }
  }
}

void require_distinct_labels(const std::vector<Variant>& variants) {
  std::set<std::string> labels = {"haldgen",   "fftw",      "fftw128",     "kissfft", "av_tx",
                                  "null_call", "best_peer", "best",        "bound",   "vector_add",
                                  "convert",   "plain",     "plain_fixed", "memcpy"};
  for (const Variant& variant : variants) {
    if (variant.label.empty() || !labels.insert(variant.label).second) {
      throw std::invalid_argument("the label '" + variant.label + "' of --also is taken or empty");
    }
  }
}

}  // namespace

Options parse_options(int argc, char** argv, const std::filesystem::path& default_library) {
  Options options;
  options.library = default_library;
  std::vector<char*> own;
  for (int i = 0; i < argc; ++i) {
    if (std::string_view(argv[i]).starts_with("--benchmark_")) {
      options.front_end.emplace_back(argv[i]);
    } else {
      own.push_back(argv[i]);
    }
  }
  const int count = static_cast<int>(own.size());
  own.push_back(nullptr);
  opterr = 0;
  optind = 1;
  for (int code = 0; (code = getopt_long(count, own.data(), "", long_options, nullptr)) != -1;) {
    apply(options, code, optarg == nullptr ? std::string() : std::string(optarg));
  }
  if (optind < count) {
    throw std::invalid_argument(std::string("unexpected argument '") +
                                own[static_cast<std::size_t>(optind)] + "'; see --help");
  }
  if (options.flavours) add_flavours(options);
  require_distinct_labels(options.variants);
  return options;
}

void print_help(std::ostream& out) {
  out << R"(haldgen_bench: the kernels of libhaldgenp8 against other libraries and plain loops,
interleaved.

  --lengths LIST          lengths or orders, such as 8,16,20-24 (default: all that are built)
  --types LIST            of 32f, 64f, 32fc, 64fc (default: all)
  --mode MODE             hot, ring or both (default)
  --repetitions N         visits to each kernel and mode, in random order (default 3)
  --rounds N              rounds per visit (default 100)
  --slice US              microseconds per slice of one contestant (default 30)
  --filter REGEX          of the benchmarks' names, family/type/length/mode
  --out DIR               writes tables (TSV) and pictures (SVG) there
  --counts FILE           operation counts (TSV); without them there is no bound
  --kernel-library PATH   the libhaldgenp8.so to measure (default: of this build)
  --also [LABEL=]PATH     another libhaldgenp8.so beside it; may be repeated
  --flavours              the same with the flavours below its folder that the processor can run
  --show-plans            prints the plans that FFTW chooses and stops
  --benchmark_*           options of Google Benchmark, such as --benchmark_list_tests
                          and --benchmark_out=FILE (JSON)
)";
}

}  // namespace haldgen::bench
