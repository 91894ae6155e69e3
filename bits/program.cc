// The file of sums: a line with the version of the bits, then one for each sum, the name, a tab, 16
// hexadecimal digits.
#include "bits/program.h"

#include <haldgen.h>

#include <algorithm>
#include <array>
#include <fstream>
#include <optional>
#include <ostream>
#include <set>

#include "bits/batches.h"
#include "lanes/processor.h"

namespace haldgen::bits {
namespace {

constexpr std::string_view usage =
    "usage: haldgen-bits [--library PATH] [compare [FILE]]\n"
    "       haldgen-bits [--library PATH] batches [FILE]\n"
    "       haldgen-bits [--library PATH] record FILE\n"
    "       haldgen-bits --help|--version\n"
    "Calls every function of the library that the program is linked with, or of the one at PATH,\n"
    "takes a checksum of the results and compares it with the published one, or with that in "
    "FILE.\n"
    "batches does the same with the library of batches: every transform, many in a call.\n"
    "The exit status is 0 if all are equal, 1 if not, and 2 if there is nothing to compare with.\n"
    "record writes the checksums to FILE.\n";

constexpr std::array version = {HALDGEN_VERSION_MAJOR, HALDGEN_VERSION_MINOR,
                                HALDGEN_VERSION_UPDATE};
constexpr std::string_view version_name = "bits version\t";

std::string version_line() {
  return std::string(version_name) + std::to_string(HALDGEN_BITS_VERSION);
}

using Lines = std::map<std::string, std::string>;  // sums by name

std::string digits(std::uint64_t sum) {
  std::string text(16, '0');
  for (auto digit = text.rbegin(); digit != text.rend(); ++digit, sum >>= 4U) {
    *digit = "0123456789abcdef"[sum & 0xFU];
  }
  return text;
}

std::string with_commas(std::size_t number) {
  std::string text = std::to_string(number);
  for (std::size_t at = text.size(); at > 3; at -= 3) text.insert(at - 3, ",");
  return text;
}

// The function that a sum belongs to: "haldgDCT4_32f" of "haldgDCT4_32f/64".
std::string function_of(const std::string& name) { return name.substr(0, name.find('/')); }

// The sums of a file; nothing, and a message, if it has none for this version of the bits.
std::optional<Lines> read(const std::string& path, std::ostream& errors) {
  std::ifstream file(path);
  std::string line;
  if (!std::getline(file, line) || !line.starts_with(version_name)) {
    errors << "no published sums in " << (path.empty() ? "reach" : path) << "\n";
    return {};
  }
  if (line != version_line()) {
    errors << path << " has " << line << ", this program compares " << version_line() << "\n";
    return {};
  }
  Lines lines;
  while (std::getline(file, line)) {
    const std::size_t tab = std::min(line.find('\t'), line.size());
    lines[line.substr(0, tab)] = line.substr(std::min(tab + 1, line.size()));
  }
  return lines;
}

// What is wrong with a finding; empty if nothing is.
std::string difference(const std::string& name, const Finding& finding, const Lines& published) {
  if (!finding.fault.empty()) return finding.fault;
  const auto line = published.find(name);
  if (line == published.end()) return "no sum is published";
  if (line->second == digits(finding.sum)) return {};
  return digits(finding.sum) + " is not " + line->second + " as published";
}

// What counts is functions.
int compare(const Findings& findings, const Lines& published, const std::string& remark,
            std::ostream& out) {
  std::set<std::string> all;
  std::set<std::string> bad;
  const auto take = [&](const std::string& name, const std::string& text) {
    all.insert(function_of(name));
    if (text.empty()) return;
    bad.insert(function_of(name));
    out << name << ": " << text << "\n";
  };
  for (const auto& [name, finding] : findings) take(name, difference(name, finding, published));
  for (const auto& [name, sum] : published) {
    if (!findings.contains(name)) take(name, "published, but there is no such function");
  }
  out << with_commas(all.size() - bad.size()) << " of " << with_commas(all.size())
      << " as published" << remark << "\n";
  return bad.empty() ? 0 : 1;
}

int record(const Findings& findings, const std::string& path, std::ostream& out,
           std::ostream& errors) {
  std::string text = version_line() + "\n";
  std::size_t faults = 0;
  for (const auto& [name, finding] : findings) {
    if (!finding.fault.empty()) {
      ++faults;
      errors << name << ": " << finding.fault << "\n";
    }
    text += name + "\t" + digits(finding.sum) + "\n";
  }
  if (faults != 0) {
    errors << "nothing recorded: faults in " << with_commas(faults) << "\n";
    return 1;
  }
  std::ofstream file(path, std::ios::binary);
  if (!(file << text << std::flush)) {
    errors << "cannot write " << path << "\n";
    return 2;
  }
  out << with_commas(findings.size()) << " sums recorded\n";
  return 0;
}

}  // namespace

int run(const Find& find, std::span<const std::string> arguments, const std::string& published,
        std::ostream& out, std::ostream& errors) {
  const std::string command = arguments.empty() ? "compare" : arguments[0];
  if (command == "--help" && arguments.size() == 1) {
    out << usage;
    return 0;
  }
  if (command == "--version" && arguments.size() == 1) {
    out << "haldgen-bits " << version[0] << '.' << version[1] << '.' << version[2] << "\n";
    return 0;
  }
  const bool records = command == "record" && arguments.size() == 2;
  const bool batches = command == "batches";
  if ((command != "compare" && !batches && !records) || arguments.size() > 2) {
    errors << usage;
    return 2;
  }
  const int bits = batches ? batch_vector_bits(find) : vector_bits(find);
  if (!lanes::processor_has(bits)) {
    errors << "this processor has no vectors of " << bits << " bits\n";
    return 2;
  }
  if (records) return record(take_sums(find), arguments[1], out, errors);
  auto lines = read(arguments.size() == 2 ? arguments[1] : published, errors);
  if (!lines) return 2;
  if (!batches) return compare(take_sums(find), *lines, "", out);
  const Findings findings = take_batch_sums(find);
  std::erase_if(*lines, [&](const auto& line) { return !findings.contains(line.first); });
  return compare(findings, *lines, ", in batches of " + std::to_string(bits) + " bits", out);
}

}  // namespace haldgen::bits
