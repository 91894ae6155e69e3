// The generated source text.
#include <gtest/gtest.h>

#include "tests/complex/kernels.h"

namespace haldgen::dft_complex {
namespace {

std::string head_of(const std::string& source) { return source.substr(0, source.find("#include")); }

TEST(Source, IsTheSameOnEveryCall) {
  for (const int n : {2, 5, 8, 13, 16}) {
    for (const FloatType type : {FloatType::f32, FloatType::f64}) {
      EXPECT_EQ(kernel_source(n, type, tuning_of(n, type)),
                kernel_source(n, type, tuning_of(n, type)))
          << n << complex_suffix(type);
    }
  }
}

TEST(Source, HeadNamesAlgorithmAndCounts) {
  const auto expect_head = [](int n, FloatType type, std::initializer_list<const char*> parts) {
    const std::string head = head_of(kernel_source(n, type, tuning_of(n, type)));
    for (const char* part : parts) {
      EXPECT_NE(head.find(part), std::string::npos) << part << " in\n" << head;
    }
  };
  expect_head(8, FloatType::f32,
              {"length 8, 32-bit", "CT(4, 2", "52 additions, 8 multiplications, depth 5"});
  expect_head(8, FloatType::f64, {"length 8, 64-bit", "52 additions, 4 multiplications, depth 5"});
  expect_head(16, FloatType::f64, {"16 shared", "144 additions, 24 multiplications, depth 6"});
  expect_head(15, FloatType::f64, {"PFA(5, 3)", "156 additions, 68 multiplications, depth 9"});
}

TEST(Source, DefinesBothDirections) {
  const std::string source = kernel_source(4, FloatType::f64, Tuning{});
  EXPECT_NE(source.find("haldgImpl_DFTFwd_CToC_4_64fc("), std::string::npos);
  EXPECT_NE(source.find("haldgImpl_DFTInv_CToC_4_64fc("), std::string::npos);
}

TEST(Source, ScaleConstantsAreRoundedOnce) {
  const auto expect_part = [](int n, FloatType type, const char* part) {
    const std::string source = kernel_source(n, type, tuning_of(n, type));
    EXPECT_NE(source.find(part), std::string::npos) << n << " " << part;
  };
  expect_part(3, FloatType::f32, "kFwdByN = 0.33333334f;");
  expect_part(3, FloatType::f32, "kBySqrtN = 0.57735026f;");
  expect_part(5, FloatType::f32, "kFwdByN = 0.2f;");
  expect_part(3, FloatType::f64, "kFwdByN = 0.3333333333333333;");
  expect_part(3, FloatType::f64, "kBySqrtN = 0.5773502691896257;");
  expect_part(64, FloatType::f64, "kBySqrtN = 0.125;");
}

}  // namespace
}  // namespace haldgen::dft_complex
