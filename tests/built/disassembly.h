// The instructions of the built library's functions, read off its disassembly.
#pragma once

#include <initializer_list>
#include <map>
#include <string>
#include <string_view>

#include "kernelgen/count.h"

namespace haldgen::test {

/// How often each mnemonic occurs in a function, and the stack that it takes.
class Mnemonics {
 public:
  /// Another function of the same name begins. They are counted together, stack is that of the
  /// largest.
  void begin() { taken_ = 0; }
  void add(const std::string& mnemonic, const std::string& operands = {});
  /// Bytes pushed, reserved and skipped to align, as if all of them on one path. Throws if that is
  /// not known before the function runs.
  int frame() const;
  int count(std::initializer_list<std::string_view> mnemonics) const;
  int all() const;
  /// Products and sums in one instruction, which round once. Sums that alternate are left out: they
  /// have products with 1 alone, where a processor has no other form of them.
  int fused_that_round() const;
  /// Additions, subtractions, multiplications and conversions of more than one float at once.
  int packed_arithmetic() const;

 private:
  std::map<std::string, int> counts_;
  int taken_ = 0, frame_ = 0;
  bool unbounded_ = false;
};

/// By symbol; of symbols at one address only one is there.
const std::map<std::string, Mnemonics>& disassembly();
/// Of another library.
std::map<std::string, Mnemonics> disassembly(const std::string& path);

/// Additions and so on by precision, as compiled.
struct ScalarOperations {
  int additions32, additions64, multiplications32, multiplications64, narrowings;
  friend bool operator==(const ScalarOperations&, const ScalarOperations&) = default;
};
ScalarOperations scalar_operations(const Mnemonics& mnemonics);
/// The same, as a program executes them.
ScalarOperations scalar_operations(const kernelgen::Tally& tally);
std::string text(const ScalarOperations& operations);

}  // namespace haldgen::test
