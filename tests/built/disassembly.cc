#include "tests/built/disassembly.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdio>
#include <memory>
#include <sstream>
#include <stdexcept>

namespace haldgen::test {
namespace {

std::string output_of(const std::string& command) {
  const std::unique_ptr<FILE, int (*)(FILE*)> pipe(popen(command.c_str(), "r"), pclose);
  if (!pipe) throw std::runtime_error("cannot run " + command);
  std::string text;
  std::array<char, 1 << 16> chunk;
  while (const std::size_t got = std::fread(chunk.data(), 1, chunk.size(), pipe.get())) {
    text.append(chunk.data(), got);
  }
  return text;
}

/// Lines are "0000000000012340 <symbol>:" and "   12344:\tmnemonic operands".
std::map<std::string, Mnemonics> parsed(const std::string& listing) {
  std::map<std::string, Mnemonics> functions;
  Mnemonics* current = nullptr;
  std::istringstream lines(listing);
  for (std::string line; std::getline(lines, line);) {
    if (line.ends_with(">:")) {
      const auto open = line.find('<');
      current = &functions[line.substr(open + 1, line.size() - open - 3)];
      current->begin();
      continue;
    }
    const auto tab = line.find(":\t");
    if (current == nullptr || tab == std::string::npos) continue;
    std::istringstream words(line.substr(tab + 2));
    std::string mnemonic, operands;
    words >> mnemonic >> operands;
    current->add(mnemonic, operands);
  }
  return functions;
}

}  // namespace

void Mnemonics::add(const std::string& mnemonic, const std::string& operands) {
  ++counts_[mnemonic];
  if (mnemonic.starts_with("push")) taken_ += 8;
  if (operands.ends_with(",%rsp")) {
    const bool constant = operands.starts_with('$');
    const auto number =
        constant ? static_cast<std::int64_t>(std::stoull(operands.substr(1), nullptr, 16)) : 0;
    if (mnemonic.starts_with("sub")) {
      taken_ += number < 0 ? 0 : static_cast<int>(number);
      unbounded_ = unbounded_ || !constant;
    } else if (mnemonic.starts_with("add")) {
      // That of -128 takes fewer bytes than a subtraction of 128.
      taken_ += number < 0 ? static_cast<int>(-number) : 0;
      unbounded_ = unbounded_ || !constant;
    } else if (mnemonic.starts_with("and")) {
      taken_ += static_cast<int>(-number);
    }
  }
  frame_ = std::max(frame_, taken_);
}

int Mnemonics::frame() const {
  if (unbounded_) throw std::runtime_error("a frame of no fixed size");
  return frame_;
}

int Mnemonics::count(std::initializer_list<std::string_view> mnemonics) const {
  int total = 0;
  for (const auto mnemonic : mnemonics) {
    const auto found = counts_.find(std::string(mnemonic));
    total += found == counts_.end() ? 0 : found->second;
  }
  return total;
}

int Mnemonics::all() const {
  int total = 0;
  for (const auto& [mnemonic, count] : counts_) total += count;
  return total;
}

int Mnemonics::fused_that_round() const {
  int total = 0;
  for (const auto& [mnemonic, count] : counts_) {
    // Of x86 (vfmadd213sd, vfnmsub231ps, vfmaddsub132pd) and of ARM processors (fmadd, fnmsub,
    // fmla, fcmla).
    for (const std::string_view start :
         {"vfm", "vfnm", "fma", "fms", "fnma", "fnms", "fml", "fcml"}) {
      if (mnemonic.starts_with(start) && !mnemonic.starts_with("fmax") &&
          !mnemonic.starts_with("vfmaddsub") && !mnemonic.starts_with("vfmsubadd")) {
        total += count;
        break;
      }
    }
  }
  return total;
}

int Mnemonics::packed_arithmetic() const {
  int total = 0;
  for (const auto& [mnemonic, count] : counts_) {
    const bool packed = mnemonic.ends_with("ps") || mnemonic.ends_with("pd");
    for (const std::string_view operation : {"add", "sub", "mul", "hadd", "hsub", "cvt"}) {
      if (packed && mnemonic.starts_with(operation)) total += count;
    }
  }
  return total;
}

const std::map<std::string, Mnemonics>& disassembly() {
  static const auto functions = disassembly(HALDGEN_LIBRARY);
  return functions;
}

std::map<std::string, Mnemonics> disassembly(const std::string& path) {
  return parsed(output_of(OBJDUMP " -d --no-show-raw-insn '" + path + "'"));
}

ScalarOperations scalar_operations(const Mnemonics& m) {
  return {m.count({"addss", "subss"}), m.count({"addsd", "subsd"}), m.count({"mulss"}),
          m.count({"mulsd"}), m.count({"cvtsd2ss"})};
}

ScalarOperations scalar_operations(const kernelgen::Tally& t) {
  return {t.in32.additions + t.in32.negations, t.in64.additions + t.in64.negations,
          t.in32.products + t.in32.scales, t.in64.products + t.in64.scales, t.narrowings};
}

std::string text(const ScalarOperations& o) {
  std::ostringstream stream;
  stream << o.additions32 << " + " << o.additions64 << " additions, " << o.multiplications32
         << " + " << o.multiplications64 << " multiplications, " << o.narrowings << " narrowings";
  return stream.str();
}

}  // namespace haldgen::test
