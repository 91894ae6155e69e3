// The instructions of the compiled kernels without loops: compilers know transformations that give
// the same bits at the cost of more additions.
#include <gtest/gtest.h>

#include <string>

#include "tests/built/disassembly.h"

namespace haldgen::wht::test {
namespace {

using haldgen::test::disassembly;
using haldgen::test::Mnemonics;

const Mnemonics& exported(int order, bool single) {
  return disassembly().at("haldgImpl_WHT_" + std::to_string(order) + (single ? "_32f" : "_64f"));
}

/// The unaligned path, if it is a function of its own; else null.
const Mnemonics* path_apart(int order, bool single) {
  // haldgen::wht::unaligned<Kernel<float, order>>
  const std::string stem = std::string("_ZN7haldgen3wht9unalignedINS0_6KernelI") +
                           (single ? "f" : "d") + "Li" + std::to_string(order) + "EEE";
  const auto found = disassembly().lower_bound(stem);
  return found != disassembly().end() && found->first.starts_with(stem) ? &found->second : nullptr;
}

/// `bodies` straight-line bodies: every addition and multiplication, and none of another kind.
void expect_arithmetic(const Mnemonics& found, int order, bool single, bool vectors, int bodies) {
  const std::string mine = std::string(vectors ? "p" : "s") + (single ? "s" : "d");
  const int n = (1 << order) / (vectors ? (single ? 4 : 2) : 1);
  EXPECT_EQ(found.count({"add" + mine}), bodies * n * order / 2);
  EXPECT_EQ(found.count({"sub" + mine}), bodies * n * order / 2);
  EXPECT_EQ(found.count({"mul" + mine}), bodies * n);
  for (const std::string kind : {"ss", "sd", "ps", "pd"}) {
    for (const std::string operation : {"add", "sub", "mul"}) {
      if (kind == mine) continue;
      EXPECT_EQ(found.count({operation + kind}), 0) << operation + kind;
    }
    for (const std::string operation : {"hadd", "hsub", "addsub", "div"}) {
      EXPECT_EQ(found.count({operation + kind}), 0) << operation + kind;
    }
  }
}

bool stands_apart(int order, bool single) { return single ? order >= 6 && order != 8 : order >= 5; }

TEST(Disassembly, SmallOrdersHoldTheArithmeticOfTheNetworkAndNoOther) {
  for (const bool single : {true, false}) {
    for (int order = 1; order <= 7; ++order) {
      SCOPED_TRACE(std::to_string(order) + (single ? "_32f" : "_64f"));
      const bool vectors = order >= (single ? 4 : 3);
      const int bodies = vectors && !stands_apart(order, single) ? 2 : 1;
      expect_arithmetic(exported(order, single), order, single, vectors, bodies);
      if (const Mnemonics* const path = path_apart(order, single)) {
        expect_arithmetic(*path, order, single, vectors, 1);
      }
    }
  }
}

TEST(Disassembly, AlignedPathsHaveNoUnalignedAccess) {
  for (const bool single : {true, false}) {
    for (int order = 6; order <= 13; ++order) {
      if (!stands_apart(order, single)) continue;
      SCOPED_TRACE(std::to_string(order) + (single ? "_32f" : "_64f"));
      for (const std::string access : {"movups", "movupd", "movdqu"}) {
        EXPECT_EQ(exported(order, single).count({access}), 0) << access;
      }
    }
  }
}

TEST(Disassembly, LongUnalignedPathsStandApart) {
  for (const bool single : {true, false}) {
    for (int order = 1; order <= 13; ++order) {
      EXPECT_EQ(path_apart(order, single) != nullptr, stands_apart(order, single))
          << order << (single ? "_32f" : "_64f");
    }
  }
}

}  // namespace
}  // namespace haldgen::wht::test
