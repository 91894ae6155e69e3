// The command line of haldgen_bench.
#include "bench/options.h"

#include <algorithm>
#include <cctype>
#include <map>
#include <stdexcept>

#include "bench/core/size_list.h"
#include "lanes/processor.h"
#include "names/flavour.h"

namespace haldgen::bench {
namespace {

std::vector<Variant> parse_variants(const std::vector<std::string>& texts) {
  std::vector<Variant> variants;
  for (const std::string& text : texts) {
    const std::size_t sign = text.find('=');
    const std::string number = variants.empty() ? "" : std::to_string(variants.size() + 1);
    if (sign == std::string::npos) {
      variants.push_back({"also" + number, text});
    } else {
      variants.push_back({text.substr(0, sign), text.substr(sign + 1)});
    }
  }
  return variants;
}

/// The flavours of the library where the loader would look for them.
void add_flavours(Options& options) {
  for (const names::Flavour& flavour : names::flavours) {
    const auto path = options.library.parent_path() / "glibc-hwcaps" /
                      (std::string("x86-64-") + flavour.tag) / "libhaldgenp8.so.8";
    if (std::filesystem::exists(path) && lanes::processor_has(flavour.vector_bits)) {
      options.variants.push_back({flavour.tag, path});
    }
  }
}

void require_labels(const std::vector<Variant>& variants) {
  // Columns of the table, and headings over their figures.
  std::set<std::string> taken = {"haldgen",    "fftw",    "fftw128",     "kissfft", "av_tx",
                                 "null_call",  "plain",   "plain_fixed", "memcpy",  "convert",
                                 "vector_add", "subject", "best",        "bound"};
  for (const Variant& variant : variants) {
    const std::string& label = variant.label;
    const bool word = std::none_of(label.begin(), label.end(),
                                   [](unsigned char c) { return std::isspace(c) != 0; });
    if (label.empty() || !word || !taken.insert(label).second) {
      throw CLI::ValidationError("--also", "the label '" + label + "' is taken or no word");
    }
  }
}

}  // namespace

void add_lengths(CLI::App& app, std::set<int>& lengths, const std::string& help) {
  const auto parse = [&lengths](const std::string& text) {
    try {
      lengths = parse_size_list(text);
    } catch (const std::invalid_argument& error) {
      throw CLI::ValidationError("--lengths", error.what());
    }
  };
  app.add_option_function<std::string>("--lengths", parse, help)->type_name("LIST");
}

int exit_status(const CLI::App& app, const CLI::ParseError& error) {
  return app.exit(error) == 0 ? 0 : 2;
}

void parse_options(CLI::App& app, int argc, char** argv, Options& options) {
  std::vector<std::string> also;
  bool flavours = false;
  add_lengths(app, options.lengths, "lengths or orders, such as 8,16,20-24 (default: all)");
  app.add_option("--types", options.types, "of 32f, 64f, 32fc, 64fc (default: all)")
      ->delimiter(',')
      ->check(CLI::IsMember({"32f", "64f", "32fc", "64fc"}));
  const std::map<std::string, std::vector<Mode>> modes = {
      {"hot", {Mode::hot}}, {"ring", {Mode::ring}}, {"both", options.modes}};
  std::string mode = "both";
  app.add_option("--mode", mode, "hot, ring or both (default)")
      ->check(CLI::IsMember({"hot", "ring", "both"}));
  app.add_option("--repetitions", options.repetitions,
                 "visits to each kernel and mode, in random order (default 3)")
      ->check(CLI::Range(1, 1000));
  app.add_option("--rounds", options.rounds, "rounds per visit (default 100)")
      ->check(CLI::Range(1, 1000000));
  app.add_option("--slice", options.slice_us, "microseconds per slice of a contestant (default 30)")
      ->check(CLI::Range(1, 1000000));
  app.add_option("--filter", options.filter, "regular expression on family/type/length/mode");
  app.add_option("--out", options.out, "folder for results.tsv (default: standard output)");
  app.add_option("--kernel-library", options.library,
                 "the libhaldgenp8.so to measure (default: of this build)");
  app.add_option("--also", also, "another libhaldgenp8.so beside it, [LABEL=]PATH; repeatable")
      ->allow_extra_args(false);
  app.add_flag("--flavours", flavours,
               "the same with the flavours below its folder that the processor can run");
  app.add_flag("--show-plans", options.show_plans, "prints the plans that FFTW chooses and stops");
  app.add_flag("--list", options.list, "prints the names of all measurements and stops");
  app.parse(argc, argv);
  options.modes = modes.at(mode);
  options.variants = parse_variants(also);
  if (flavours) add_flavours(options);
  require_labels(options.variants);
}

}  // namespace haldgen::bench
