// Calls into the library: general entries, version record, the header from C and C++.
#include <dlfcn.h>
#include <gtest/gtest.h>
#include <haldgen.h>

#include <array>
#include <climits>
#include <cstring>
#include <random>
#include <set>

#include "frame/families.h"

extern "C" {
int32_t header_user_c(const Cplx32* src, Cplx32* dst);
int32_t header_user_cxx(const Cplx32* src, Cplx32* dst);
}

namespace haldgen::test {
namespace {

using frame::Element;
using frame::Export;
using frame::Signature;

template <typename Function>
Function* resolve(const std::string& name) {
  auto* function = reinterpret_cast<Function*>(dlsym(RTLD_DEFAULT, name.c_str()));
  EXPECT_NE(function, nullptr) << name;
  return function;
}

// Source samples of a complex array as floats, so that real and complex arrays are alike.
template <typename Array>
std::array<Array, frame::max_size + 2> samples() {
  std::array<Array, frame::max_size + 2> array;
  std::array<unsigned char, sizeof array> bytes{};
  std::mt19937 random(1);
  // Bytes below 0x40 make positive floats of moderate size in both widths.
  for (unsigned char& byte : bytes) byte = static_cast<unsigned char>(random() % 0x3f + 1);
  std::memcpy(&array, &bytes, sizeof array);
  return array;
}

template <typename Array>
void check_general_entry(const Export& entry) {
  SCOPED_TRACE(entry.name);
  auto* general = resolve<int32_t(const Array*, Array*, int32_t, int32_t)>(entry.name);
  ASSERT_NE(general, nullptr);
  const auto src = samples<Array>();

  std::set<int> bad = {0, -1, 1, frame::max_size + 1, INT_MAX, INT_MIN};
  for (int size = entry.family->sizes.first; size <= entry.family->sizes.last; ++size) {
    if (!entry.family->live.contains(size)) bad.insert(size);
  }
  for (const int size : bad) {
    auto dst = src;
    EXPECT_EQ(general(nullptr, nullptr, size, 3), haldStatusSizeError) << size;
    EXPECT_EQ(general(src.data(), dst.data(), size, haldScaleNone), haldStatusSizeError) << size;
    EXPECT_EQ(std::memcmp(dst.data(), src.data(), sizeof src), 0) << size;
  }

  for (int size = entry.family->sizes.first; size <= entry.family->sizes.last; ++size) {
    if (!entry.family->live.contains(size)) continue;
    auto dst = src;
    EXPECT_EQ(general(nullptr, nullptr, size, 3), haldStatusNullPointer) << size;
    EXPECT_EQ(general(nullptr, dst.data(), size, haldScaleNone), haldStatusNullPointer) << size;
    EXPECT_EQ(general(src.data(), nullptr, size, haldScaleNone), haldStatusNullPointer) << size;
    EXPECT_EQ(general(src.data(), dst.data(), size, 3), haldStatusFlagError) << size;
    EXPECT_EQ(std::memcmp(dst.data(), src.data(), sizeof src), 0) << size;

    // The fixed function of another flag would differ by its scale, that of another size by more.
    auto* fixed = resolve<int32_t(const Array*, Array*, int32_t)>(
        "haldg" + std::string(entry.family->word) + "_" + std::to_string(size) + "_" +
        std::string(frame::suffix(entry.element)));
    ASSERT_NE(fixed, nullptr);
    for (const int flag : {haldScaleFwdByN, haldScaleInvByN, haldScaleBySqrtN, haldScaleNone}) {
      auto expected = src;
      EXPECT_EQ(general(src.data(), dst.data(), size, flag), haldStatusOk) << size;
      EXPECT_EQ(fixed(src.data(), expected.data(), flag), haldStatusOk) << size;
      EXPECT_EQ(std::memcmp(dst.data(), expected.data(), sizeof src), 0) << size;
    }
    EXPECT_NE(std::memcmp(dst.data(), src.data(), sizeof src), 0) << size;
  }
}

TEST(Calls, GeneralEntriesTestTheSizeFirstAndAlone) {
  int checked = 0;
  for (const Export& entry : frame::live_exports()) {
    if (entry.family->signature != Signature::sized_transform) continue;
    ++checked;
    switch (entry.element) {
      case Element::f32:
        check_general_entry<float>(entry);
        break;
      case Element::f64:
        check_general_entry<double>(entry);
        break;
      case Element::c32:
        check_general_entry<Cplx32>(entry);
        break;
      case Element::c64:
        check_general_entry<Cplx64>(entry);
        break;
      case Element::none:
        FAIL() << entry.name;
    }
  }
  EXPECT_GT(checked, 0);
}

TEST(Calls, VersionRecord) {
  const LibraryVersion* version = haldgenGetLibVersion();
  ASSERT_NE(version, nullptr);
  EXPECT_EQ(haldgenGetLibVersion(), version);
  EXPECT_EQ(version->majorVersion, 8);
  EXPECT_EQ(version->minorVersion, 1);
  EXPECT_EQ(version->updateLevel, 0);
  EXPECT_EQ(version->sourceRevision, 41664);
  EXPECT_EQ(std::memcmp(version->processorTag, "v8\0", 4), 0);
  EXPECT_STREQ(version->name, "haldGEN SSSE3 (v8)");
  EXPECT_STREQ(version->versionText, "8.1.0 (r41664)");
  EXPECT_STREQ(version->buildDate, "Jan 15 2014");
}

TEST(Calls, HeaderServesCAndCxx) {
  const Cplx32 src[2] = {{1, 2}, {3, 5}};
  for (auto* user : {header_user_c, header_user_cxx}) {
    Cplx32 dst[2] = {};
    EXPECT_EQ(user(src, dst), haldStatusOk);
    EXPECT_EQ(dst[0].re, 4);
    EXPECT_EQ(dst[0].im, 7);
    EXPECT_EQ(dst[1].re, -2);
    EXPECT_EQ(dst[1].im, -3);
  }
}

}  // namespace
}  // namespace haldgen::test
