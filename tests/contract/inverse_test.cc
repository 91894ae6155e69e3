// The transforms beside those that undo them.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <set>

#include "tests/contract/transform.h"

namespace haldgen::test {
namespace {

// Lengths at which the inverse kernel is the forward kernel with its output reversed, instead of
// its mirror.
const std::set<int> reversed_32{19, 23, 37, 61};

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

TEST(Inverse, IsTheMirrorOrTheReversalOfTheForwardComplexKernel) {
  int pairs = 0;
  for_each_fixed([&]<class Float>(const Transform<Float>& forward) {
    if (forward.word->word != "DFTFwd_CToC") return;
    const auto& inverse = *sibling(forward, "DFTInv_CToC");
    ++pairs;
    const bool reversal = sizeof(Float) == sizeof(float) && reversed_32.contains(forward.size);
    for (const auto& src : hard_inputs<Float>(forward.src_floats, forward.points)) {
      EXPECT_TRUE(identical(result(inverse, src), reversal
                                                      ? reversed(result(forward, src))
                                                      : swapped(result(forward, swapped(src)))))
          << inverse.name << " is not the " << (reversal ? "reversal" : "mirror");
    }
  });
  EXPECT_GT(pairs, 0);
}

// Empty if nothing undoes the transforms of a word, or what does is tried with them.
std::string undoing_word(std::string_view word) {
  if (word == "Hartley") return std::string(word);
  if (word == "DFTFwd_CToC") return "DFTInv_CToC";
  if (!word.starts_with("DFTFwd_RTo")) return {};
  return "DFTInv_" + std::string(word.substr(10)) + "ToR";
}

// The same flag twice scales by both its factors, and the transforms by N.
TEST(Inverse, UndoesTheForwardTransformOfTheSameFlag) {
  for_each_fixed([]<class Float>(const Transform<Float>& forward) {
    const std::string word = undoing_word(forward.word->word);
    if (word.empty()) return;
    const Transform<Float>& inverse = *sibling(forward, word);
    const std::vector<Float> src = random_floats<Float>(forward.src_floats, 9);
    for (const std::int32_t flag : flags) {
      const auto n = static_cast<long double>(forward.points);
      const long double factor = n *
                                 scale<Float>(forward.word->usage.scaling, forward.points, flag) *
                                 scale<Float>(inverse.word->usage.scaling, forward.points, flag);
      const std::vector<Float> back = result(inverse, result(forward, src, flag), flag);
      long double error = 0;
      long double norm = 0;
      for (std::size_t i = 0; i < src.size(); ++i) {
        error += std::pow(static_cast<long double>(back[i]) / factor - src[i], 2.0L);
        norm += std::pow(static_cast<long double>(src[i]), 2.0L);
      }
      // The errors of two transforms add like independent ones.
      const long double bound =
          1.25L * std::numeric_limits<Float>::epsilon() * std::sqrt(std::log2(n));
      EXPECT_LE(std::sqrt(error / norm), bound)
          << forward.name << " and " << inverse.name << ", flag " << flag;
    }
  });
}

}  // namespace
}  // namespace haldgen::test
