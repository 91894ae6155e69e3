// The file of sums: one line for each, the name, a tab, 16 hexadecimal digits.
#include "bits/program.h"

#include <fstream>
#include <iomanip>
#include <ostream>
#include <sstream>

namespace haldgen::bits {
namespace {

constexpr std::string_view usage =
    "usage: haldgen-bits [--library PATH] compare|record FILE\n"
    "Takes a checksum of the results of each transform of the library that the program is linked\n"
    "with, or of the one at PATH, and compares them with those in FILE or writes them to FILE.\n";

using Lines = std::map<std::string, std::string>;  // sums by name

std::string digits(std::uint64_t sum) {
  std::ostringstream text;
  text << std::hex << std::setw(16) << std::setfill('0') << sum;
  return text.str();
}

std::string with_commas(std::size_t number) {
  std::string text = std::to_string(number);
  for (std::size_t at = text.size(); at > 3; at -= 3) text.insert(at - 3, ",");
  return text;
}

// What is wrong with a finding; empty if nothing is.
std::string difference(const std::string& name, const Finding& finding, const Lines& published) {
  if (!finding.fault.empty() || !finding.sum) return finding.fault;
  const auto line = published.find(name);
  if (line == published.end()) return "no sum is published";
  if (line->second == digits(*finding.sum)) return {};
  return digits(*finding.sum) + " is not " + line->second + " as published";
}

int compare(const Findings& findings, const Lines& published, std::ostream& out) {
  std::size_t all = findings.size();
  std::size_t good = 0;
  for (const auto& [name, finding] : findings) {
    const std::string text = difference(name, finding, published);
    if (text.empty())
      ++good;
    else
      out << name << ": " << text << "\n";
  }
  for (const auto& [name, sum] : published) {
    if (findings.contains(name)) continue;
    ++all;
    out << name << ": published, but there is no such transform\n";
  }
  out << with_commas(good) << " of " << with_commas(all) << " as published\n";
  return good == all ? 0 : 1;
}

int record(const Findings& findings, const std::string& path, std::ostream& out,
           std::ostream& errors) {
  std::ostringstream text;
  std::size_t faults = 0;
  std::size_t sums = 0;
  for (const auto& [name, finding] : findings) {
    if (!finding.fault.empty()) {
      ++faults;
      errors << name << ": " << finding.fault << "\n";
    } else if (finding.sum) {
      ++sums;
      text << name << "\t" << digits(*finding.sum) << "\n";
    }
  }
  if (faults != 0) {
    errors << "nothing recorded: faults in " << with_commas(faults) << "\n";
    return 1;
  }
  std::ofstream file(path, std::ios::binary);
  if (!(file << text.str() << std::flush)) {
    errors << "cannot write " << path << "\n";
    return 2;
  }
  out << with_commas(sums) << " sums recorded\n";
  return 0;
}

}  // namespace

int run(const Find& find, std::span<const std::string> arguments, std::ostream& out,
        std::ostream& errors) {
  if (arguments.size() == 2 && arguments[0] == "record") {
    return record(take_sums(find), arguments[1], out, errors);
  }
  if (arguments.size() != 2 || arguments[0] != "compare") {
    errors << usage;
    return 2;
  }
  std::ifstream file(arguments[1]);
  Lines published;
  for (std::string name, sum; file >> name >> sum;) published[name] = sum;
  if (published.empty()) {
    errors << "no sums in " << arguments[1] << "\n";
    return 2;
  }
  return compare(take_sums(find), published, out);
}

}  // namespace haldgen::bits
