// The table of families: counts, names and order.
#include "frame/families.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iostream>
#include <map>
#include <set>

namespace haldgen::frame {
namespace {

const Export* find(std::string_view name) {
  for (const Export& function : exports()) {
    if (function.name == name) return &function;
  }
  return nullptr;
}

std::ptrdiff_t slot(std::string_view name) {
  const Export* function = find(name);
  EXPECT_NE(function, nullptr) << name;
  return function == nullptr ? -1 : function - exports().data();
}

TEST(Families, CountsPerFamily) {
  struct Count {
    std::size_t fixed;
    std::size_t other;
  };
  const std::map<std::string_view, Count> expected = {
      {"DFTFwd_CToC", {126, 2}},    {"DFTInv_CToC", {126, 2}},
      {"DFTFwd_RToCCS", {126, 2}},  {"DFTFwd_RToPack", {126, 2}},
      {"DFTFwd_RToPerm", {126, 2}}, {"DFTInv_CCSToR", {126, 2}},
      {"DFTInv_PackToR", {126, 2}}, {"DFTInv_PermToR", {126, 2}},
      {"Hartley", {126, 2}},        {"WHT", {26, 2}},
      {"WHTGetBufferSize", {0, 2}}, {"DCT4GetSize", {0, 2}},
      {"DCT4Init", {0, 2}},         {"DCT4InitAlloc", {0, 2}},
      {"DCT4Free", {0, 2}},         {"DCT4", {0, 2}},
      {"GetLibVersion", {0, 1}},
  };
  std::map<std::string_view, Count> counted;
  for (const Export& function : exports()) {
    Count& count = counted[function.family->word];
    ++(function.size != 0 ? count.fixed : count.other);
  }
  ASSERT_EQ(counted.size(), expected.size());
  for (const auto& [word, count] : expected) {
    EXPECT_EQ(counted[word].fixed, count.fixed) << word;
    EXPECT_EQ(counted[word].other, count.other) << word;
  }
  EXPECT_EQ(exports().size(), 1193u);
}

TEST(Families, SlotsAreInByteOrder) {
  EXPECT_TRUE(std::is_sorted(exports().begin(), exports().end(),
                             [](const Export& a, const Export& b) { return a.name < b.name; }));
  EXPECT_EQ(exports().front().name, "haldgDCT4Free_32f");
  EXPECT_EQ(exports().back().name, "haldgenGetLibVersion");
  EXPECT_LT(slot("haldgDFTFwd_CToC_10_32fc"), slot("haldgDFTFwd_CToC_2_32fc"));
  EXPECT_LT(slot("haldgDCT4InitAlloc_64f"), slot("haldgDCT4Init_32f"));
  EXPECT_LT(slot("haldgWHT_10_32f"), slot("haldgWHT_1_32f"));
  EXPECT_LT(slot("haldgWHT_1_32f"), slot("haldgWHT_2_32f"));
}

TEST(Families, EveryRangeIsFilled) {
  for (int n = 2; n <= 64; ++n) {
    const std::string number = std::to_string(n);
    EXPECT_NE(find("haldgDFTInv_CToC_" + number + "_64fc"), nullptr);
    EXPECT_NE(find("haldgDFTFwd_RToPerm_" + number + "_32f"), nullptr);
    EXPECT_NE(find("haldgHartley_" + number + "_64f"), nullptr);
  }
  EXPECT_EQ(find("haldgHartley_1_32f"), nullptr);
  EXPECT_EQ(find("haldgHartley_65_32f"), nullptr);
  EXPECT_NE(find("haldgWHT_13_64f"), nullptr);
  EXPECT_EQ(find("haldgWHT_14_64f"), nullptr);
}

TEST(Families, NamesAndSymbolsAreDistinct) {
  std::set<std::string> names;
  std::set<std::string> symbols;
  for (const Export& function : exports()) {
    names.insert(function.name);
    symbols.insert(implementation_symbol(function));
  }
  EXPECT_EQ(names.size(), exports().size());
  EXPECT_EQ(symbols.size(), exports().size());
  EXPECT_EQ(implementation_symbol(*find("haldgDFTFwd_CToC_13_32fc")),
            "haldgImpl_DFTFwd_CToC_13_32fc");
  EXPECT_EQ(implementation_symbol(*find("haldgenGetLibVersion")), "haldgImpl_GetLibVersion");
}

TEST(Families, DeclarationsNameTheArgumentsInOrder) {
  const auto declare = [](std::string_view name) {
    const Export* function = find(name);
    return declaration(function->family->signature, function->element, name);
  };
  EXPECT_EQ(declare("haldgDFTFwd_CToC_64fc"),
            "int32_t haldgDFTFwd_CToC_64fc(const Cplx64* src, Cplx64* dst, int32_t length, "
            "int32_t flag)");
  EXPECT_EQ(declare("haldgWHT_9_32f"),
            "int32_t haldgWHT_9_32f(const float* src, float* dst, int32_t flag, uint8_t* buffer)");
  EXPECT_EQ(declare("haldgWHT_64f"),
            "int32_t haldgWHT_64f(const double* src, double* dst, int32_t order, int32_t flag, "
            "uint8_t* buffer)");
  EXPECT_EQ(declare("haldgDCT4Init_32f"),
            "int32_t haldgDCT4Init_32f(Dct4State** state, int32_t length, uint8_t* buffer)");
  EXPECT_EQ(declare("haldgenGetLibVersion"), "const LibraryVersion* haldgenGetLibVersion(void)");
}

// Lengths are built for both element types and reachable through the general entry at once.
TEST(Families, WhatIsBuiltIsConsistent) {
  for (const Family& fixed : families()) {
    if (!size_in_name(fixed)) continue;
    for (const Family& general : families()) {
      if (!is_general(general) || general.word != fixed.word) continue;
      for (int size = 0; size <= max_size; ++size) {
        EXPECT_EQ(fixed.live.contains(size), general.live.contains(size)) << fixed.word << size;
        if (fixed.live.contains(size)) {
          EXPECT_TRUE(fixed.sizes.contains(size)) << fixed.word << size;
        }
      }
    }
  }
}

TEST(Families, LiveExportsAreTheLiveOnesInOrder) {
  const std::vector<Export> live = live_exports();
  std::size_t next = 0;
  for (const Export& function : exports()) {
    if (!function.live) continue;
    ASSERT_LT(next, live.size());
    EXPECT_EQ(live[next++].name, function.name);
  }
  EXPECT_EQ(next, live.size());
  EXPECT_TRUE(find("haldgenGetLibVersion")->live);
  std::cout << "live: " << live.size() << " of " << exports().size() << std::endl;
}

}  // namespace
}  // namespace haldgen::frame
