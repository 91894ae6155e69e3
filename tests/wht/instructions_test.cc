// The instructions of the compiled kernels without loops: compilers know transformations that give
// the same bits at the cost of more additions.
#include <gtest/gtest.h>

#include <cstdio>
#include <map>
#include <memory>
#include <sstream>
#include <string>

namespace haldgen::wht::test {
namespace {

/// How often each instruction stands in a function.
using Instructions = std::map<std::string, int>;

/// All functions of the library by their symbols, as objdump words them.
std::map<std::string, Instructions> disassemble() {
  const std::string command =
      std::string(OBJDUMP) + " -d --no-show-raw-insn '" + HALDGEN_LIBRARY + "'";
  const std::unique_ptr<FILE, int (*)(FILE*)> pipe(popen(command.c_str(), "r"), pclose);
  std::map<std::string, Instructions> functions;
  Instructions* function = nullptr;
  char line[512];
  while (pipe && std::fgets(line, sizeof line, pipe.get()) != nullptr) {
    std::istringstream words(line);
    std::string address;
    std::string word;
    if (!(words >> address >> word)) continue;
    if (line[0] != ' ' && word.starts_with('<') && word.ends_with(">:")) {
      function = &functions[word.substr(1, word.size() - 3)];
    } else if (function != nullptr) {
      ++(*function)[word];
    }
  }
  return functions;
}

class Kernels {
 public:
  Kernels() : functions_(disassemble()) {}

  const Instructions& exported(int order, bool single) const {
    return functions_.at("haldgImpl_WHT_" + std::to_string(order) + (single ? "_32f" : "_64f"));
  }
  /// The unaligned path, if it is a function of its own; else null.
  const Instructions* path_apart(int order, bool single) const {
    // haldgen::wht::unaligned<Kernel<float, order>>
    const std::string stem = std::string("_ZN7haldgen3wht9unalignedINS0_6KernelI") +
                             (single ? "f" : "d") + "Li" + std::to_string(order) + "EEE";
    const auto found = functions_.lower_bound(stem);
    return found != functions_.end() && found->first.starts_with(stem) ? &found->second : nullptr;
  }

 private:
  std::map<std::string, Instructions> functions_;
};

int count(const Instructions& instructions, const std::string& name) {
  const auto found = instructions.find(name);
  return found == instructions.end() ? 0 : found->second;
}

/// `bodies` straight-line bodies: every addition and multiplication, and none of another kind.
void expect_arithmetic(const Instructions& found, int order, bool single, bool vectors,
                       int bodies) {
  const std::string mine = std::string(vectors ? "p" : "s") + (single ? "s" : "d");
  const int n = (1 << order) / (vectors ? (single ? 4 : 2) : 1);
  EXPECT_EQ(count(found, "add" + mine), bodies * n * order / 2);
  EXPECT_EQ(count(found, "sub" + mine), bodies * n * order / 2);
  EXPECT_EQ(count(found, "mul" + mine), bodies * n);
  for (const std::string kind : {"ss", "sd", "ps", "pd"}) {
    for (const std::string operation : {"add", "sub", "mul"}) {
      if (kind == mine) continue;
      EXPECT_EQ(count(found, operation + kind), 0) << operation + kind;
    }
    for (const std::string operation : {"hadd", "hsub", "addsub", "div"}) {
      EXPECT_EQ(count(found, operation + kind), 0) << operation + kind;
    }
  }
}

bool stands_apart(int order, bool single) { return single ? order >= 6 && order != 8 : order >= 5; }

TEST(Instructions, SmallOrdersHoldTheArithmeticOfTheNetworkAndNoOther) {
  const Kernels kernels;
  for (const bool single : {true, false}) {
    for (int order = 1; order <= 7; ++order) {
      SCOPED_TRACE(std::to_string(order) + (single ? "_32f" : "_64f"));
      const bool vectors = order >= (single ? 4 : 3);
      const int bodies = vectors && !stands_apart(order, single) ? 2 : 1;
      expect_arithmetic(kernels.exported(order, single), order, single, vectors, bodies);
      if (const Instructions* const path = kernels.path_apart(order, single)) {
        expect_arithmetic(*path, order, single, vectors, 1);
      }
    }
  }
}

TEST(Instructions, AlignedPathsHaveNoUnalignedAccess) {
  const Kernels kernels;
  for (const bool single : {true, false}) {
    for (int order = 6; order <= 13; ++order) {
      if (!stands_apart(order, single)) continue;
      SCOPED_TRACE(std::to_string(order) + (single ? "_32f" : "_64f"));
      for (const std::string access : {"movups", "movupd", "movdqu"}) {
        EXPECT_EQ(count(kernels.exported(order, single), access), 0) << access;
      }
    }
  }
}

TEST(Instructions, LongUnalignedPathsStandApart) {
  const Kernels kernels;
  for (const bool single : {true, false}) {
    for (int order = 1; order <= 13; ++order) {
      EXPECT_EQ(kernels.path_apart(order, single) != nullptr, stands_apart(order, single))
          << order << (single ? "_32f" : "_64f");
    }
  }
}

}  // namespace
}  // namespace haldgen::wht::test
