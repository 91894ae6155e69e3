// The header from C and from C++, and the version record.
#include <gtest/gtest.h>
#include <haldgen.h>

#include <cstring>

extern "C" {
const char* header_user_c90(const Cplx32* src, Cplx32* dst);
const char* header_user_c99(const Cplx32* src, Cplx32* dst);
const char* header_user_c11(const Cplx32* src, Cplx32* dst);
const char* header_user_cxx(const Cplx32* src, Cplx32* dst);
}

namespace {

TEST(Header, ServesCAndCxx) {
  const Cplx32 src[2] = {{1, 2}, {3, 5}};
  for (auto* user : {header_user_c90, header_user_c99, header_user_c11, header_user_cxx}) {
    Cplx32 dst[2] = {};
    EXPECT_STREQ(user(src, dst), "success");
    EXPECT_EQ(dst[0].re, 4);
    EXPECT_EQ(dst[0].im, 7);
    EXPECT_EQ(dst[1].re, -2);
    EXPECT_EQ(dst[1].im, -3);
    EXPECT_STREQ(user(src, nullptr), haldStatusText(haldStatusNullPointer));
  }
}

TEST(Header, VersionRecord) {
  const LibraryVersion* version = haldgenGetLibVersion();
  ASSERT_NE(version, nullptr);
  EXPECT_EQ(haldgenGetLibVersion(), version);
  EXPECT_EQ(version->majorVersion, 8);
  EXPECT_EQ(version->minorVersion, 1);
  EXPECT_EQ(version->updateLevel, 0);
  EXPECT_EQ(version->majorVersion * 10000 + version->minorVersion * 100 + version->updateLevel,
            HALDGEN_VERSION);
  EXPECT_EQ(version->sourceRevision, 41664);
  EXPECT_EQ(std::memcmp(version->processorTag, "v8\0", 4), 0);
  EXPECT_STREQ(version->name, "haldGEN SSSE3 (v8)");
  EXPECT_STREQ(version->versionText, "8.1.0 (r41664)");
  EXPECT_STREQ(version->buildDate, "Jan 15 2014");
}

}  // namespace
