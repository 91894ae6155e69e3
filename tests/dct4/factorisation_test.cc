// The graphs against the sums that they stand for, in wide arithmetic.
#include "dct4/factorisation.h"

#include <gtest/gtest.h>

#include <random>

#include "dct4/walk.h"
#include "kernelgen/evaluate.h"
#include "kernelgen/integers.h"

namespace haldgen::dct4 {
namespace {

using kernelgen::at;
using kernelgen::Wide;
using kernelgen::WideComplex;

std::vector<WideComplex> random_inputs(int count, unsigned seed) {
  std::mt19937 random(seed);
  std::vector<WideComplex> inputs;
  for (int i = 0; i < count; ++i) {
    inputs.push_back({Wide(static_cast<double>(random()) * 0x1p-31 - 1), Wide(0.0)});
  }
  return inputs;
}

/// exp(i pi numerator / denominator).
WideComplex half_turn(std::int64_t numerator, std::int64_t denominator) {
  return kernelgen::root(2 * denominator, -numerator);
}

void expect_equal(Wide actual, Wide expected, const std::string& what) {
  EXPECT_LT(abs(actual - expected).hi, 1e-27) << what;
}

TEST(Factorisation, FoldsAreTransformsWithOddFrequencies) {
  for (int m = 2; m <= 128; m *= 2) {
    for (const Division division : {Division::by_two, Division::mixed}) {
      const auto s = random_inputs(m, 1);
      const auto z = evaluate(fold_graph(m, division), s);
      ASSERT_EQ(z.size(), at(m));
      for (int b = 0; b < m / 2; ++b) {
        WideComplex sum;
        for (int t = -m / 2; t < m / 2; ++t) {
          const Wide sample = s[at(t >= 0 ? t : m / 2 - 1 - t)].re;
          sum = sum + sample * half_turn(std::int64_t{t} * (2 * b + 1), m);
        }
        const std::string what = "length " + std::to_string(m) + ", b " + std::to_string(b);
        expect_equal(z[at(2 * b)].re, sum.re, what);
        expect_equal(z[at(2 * b + 1)].re, sum.im, what);
      }
    }
  }
}

TEST(Factorisation, RecombinationsRotateAndSum) {
  for (int r = 1; r <= 32; r *= 2) {
    const int length = 16 * r;
    for (const int block : {0, 1, 7}) {
      const auto z = random_inputs(2 * r, 2);
      const auto y = evaluate(recombine_graph(r, length, block), z);
      for (int k = 0; k < 2 * r; ++k) {
        const int l = k < r ? k : r - 1 - k;
        Wide sum;
        for (int j = 0; j < r; ++j) {
          const WideComplex term{z[at(j)].re, z[at(r + j)].re};
          // (2j+1)(2b+1) pi / (4N) + (2j+1) l pi / (2r), over one denominator.
          const std::int64_t angle =
              std::int64_t{2 * j + 1} * (2 * block + 1 + 2 * (length / r) * l);
          sum += (term * half_turn(angle, 4 * std::int64_t{length})).re;
        }
        expect_equal(y[at(k)].re, sum, "radix " + std::to_string(r) + ", l " + std::to_string(l));
      }
    }
  }
}

TEST(Factorisation, InnerStepsJoinFolds) {
  for (int r = 2; r <= 32; r *= 2) {
    const int m = 8 * r;
    for (const int block : {0, 1, 3}) {
      const auto e = random_inputs(2 * r, 3);
      const auto z = evaluate(inner_recombine_graph(r, m, block), e);
      for (int p = 0; p < r; ++p) {
        WideComplex sum;
        for (int a = 0; a < r; ++a) {
          const WideComplex term{e[at(2 * a)].re, e[at(2 * a + 1)].re};
          const int index = block + p * (m / r);
          sum = sum + term * half_turn(std::int64_t{a} * (2 * index + 1), m);
        }
        if (p >= r / 2) sum = conj(sum);
        const std::string what = "radix " + std::to_string(r) + ", p " + std::to_string(p);
        expect_equal(z[at(2 * p)].re, sum.re, what);
        expect_equal(z[at(2 * p + 1)].re, sum.im, what);
      }
    }
  }
}

TEST(Factorisation, TheWalkPairsWhatIsAddedFirst) {
  const std::vector<int> radix_8 = {0, 7, 1, 6, 2, 5, 3, 4};
  const std::vector<int> radix_32 = {0, 31, 16, 15, 4, 27, 20, 11, 8, 23, 24, 7, 12, 19, 28, 3,
                                     1, 30, 17, 14, 5, 26, 21, 10, 9, 22, 25, 6, 13, 18, 29, 2};
  for (int s = 0; s < 8; ++s) EXPECT_EQ(walk_index(8, s), radix_8[at(s)]) << s;
  for (int s = 0; s < 32; ++s) EXPECT_EQ(walk_index(32, s), radix_32[at(s)]) << s;
  EXPECT_EQ(walk_index(1, 0), 0);
  EXPECT_EQ(walk_index(2, 0), 0);
  EXPECT_EQ(walk_index(2, 1), 1);
}

}  // namespace
}  // namespace haldgen::dct4
