// The inverse complex transforms beside the forward ones.
#include <gtest/gtest.h>

#include "tests/contract/round_trip.h"
#include "tests/contract/transform.h"

namespace haldgen::test {
namespace {

// Lengths at which the inverse kernel is the forward kernel with its output reversed, instead of
// its mirror.
constexpr frame::SizeSet reversed_32{19, 23, 37, 61};

// Lengths at which mirror and reversal of the forward kernel need not round alike.
constexpr frame::SizeSet asymmetric_32{9,  18, 22, 24, 25, 27, 32, 33, 36, 38, 44, 45, 47,
                                       48, 49, 50, 54, 55, 57, 58, 59, 60, 62, 63, 64};
constexpr frame::SizeSet asymmetric_64{11, 22, 25, 29, 31, 33, 43, 44, 46,
                                       47, 49, 50, 55, 58, 59, 61, 62};

template <class Float>
constexpr bool is_single = sizeof(Float) == sizeof(float);

// Real and imaginary parts exchanged.
template <class Float>
std::vector<Float> swapped(std::vector<Float> elements) {
  for (std::size_t i = 0; i < elements.size(); i += 2) std::swap(elements[i], elements[i + 1]);
  return elements;
}

// Element k becomes element (N - k) mod N.
template <class Float>
std::vector<Float> reversed(const std::vector<Float>& elements) {
  std::vector<Float> result(elements.begin(), elements.begin() + 2);
  for (std::size_t i = elements.size(); i > 2; i -= 2) {
    result.insert(result.end(), {elements[i - 2], elements[i - 1]});
  }
  return result;
}

template <class Float>
std::vector<Float> mirrored(const Transform<Float>& forward, const std::vector<Float>& src) {
  return swapped(result(forward, swapped(src)));
}

// Visits the forward kernels with their inverse ones, where both are live; how many.
template <class Visitor>
int for_each_pair(Visitor&& visit) {
  int pairs = 0;
  for_each_fixed([&](const auto& forward) {
    if (forward.family->word != "DFTFwd_CToC") return;
    if (const auto* inverse = sibling(forward, "DFTInv_CToC")) {
      ++pairs;
      visit(forward, *inverse);
    }
  });
  return pairs;
}

TEST(Inverse, IsTheMirrorOrTheReversalOfTheForwardKernel) {
  const int pairs = for_each_pair(
      []<class Float>(const Transform<Float>& forward, const Transform<Float>& inverse) {
        const std::vector<Float> src = random_floats<Float>(forward.src_floats, 8);
        const bool reversal = is_single<Float> && reversed_32.contains(forward.size);
        const std::vector<Float> expected =
            reversal ? reversed(result(forward, src)) : mirrored(forward, src);
        EXPECT_TRUE(same_bits(result(inverse, src), expected))
            << inverse.name << " is not the " << (reversal ? "reversal" : "mirror");
      });
  if (pairs == 0) GTEST_SKIP() << "no inverse complex transform is live";
}

TEST(Inverse, UndoesTheForwardTransformOfTheSameFlag) {
  const int pairs = for_each_pair(
      []<class Float>(const Transform<Float>& forward, const Transform<Float>& inverse) {
        expect_undone(forward, inverse, 9);
      });
  if (pairs == 0) GTEST_SKIP() << "no inverse complex transform is live";
}

TEST(Inverse, MirrorAndReversalOfTheForwardKernelAgreeAtSymmetricLengths) {
  for_each_fixed([]<class Float>(const Transform<Float>& forward) {
    const frame::SizeSet& asymmetric = is_single<Float> ? asymmetric_32 : asymmetric_64;
    if (forward.family->word != "DFTFwd_CToC" || asymmetric.contains(forward.size)) return;
    if (is_single<Float> && reversed_32.contains(forward.size)) return;
    const std::vector<Float> src = random_floats<Float>(forward.src_floats, 10);
    EXPECT_TRUE(same_bits(mirrored(forward, src), reversed(result(forward, src)))) << forward.name;
  });
}

}  // namespace
}  // namespace haldgen::test
