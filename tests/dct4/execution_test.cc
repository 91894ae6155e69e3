// The two stages of a planned transform: what lies between them, and what each does with classes
// and marks that no plan has.
#include "dct4/execution.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numbers>
#include <random>

#include "tests/dct4/state.h"

namespace haldgen::dct4 {
namespace {

using test::OwnState;

template <class Float>
std::vector<Float> random_floats(int count) {
  std::mt19937 random(1);
  std::uniform_real_distribution<Float> uniform(-1, 1);
  std::vector<Float> floats(static_cast<std::size_t>(count));
  for (Float& value : floats) value = uniform(random);
  return floats;
}

template <class Float>
class Execution : public ::testing::Test {};
using FloatTypes = ::testing::Types<float, double>;
TYPED_TEST_SUITE(Execution, FloatTypes);

/// Re and Im Z(j, b) by definition.
template <class Float>
std::pair<long double, long double> folded(const std::vector<Float>& x, int radix, int j, int b) {
  const int m = static_cast<int>(x.size()) / radix;
  long double re = 0, im = 0;
  for (int t = -m / 2; t < m / 2; ++t) {
    const int n = t >= 0 ? 2 * radix * t + j : 2 * radix * -t - 1 - j;
    const long double angle = std::numbers::pi_v<long double> *
                              static_cast<long double>(std::int64_t{t} * (2 * b + 1) % (2 * m)) / m;
    re += x[static_cast<std::size_t>(n)] * std::cos(angle);
    im += x[static_cast<std::size_t>(n)] * std::sin(angle);
  }
  return {re, im};
}

// Lengths with one pass, with one inner plan and with two.
TYPED_TEST(Execution, FirstStageLeavesFoldsInBlocks) {
  for (const int length : {64, 512, 2048, 4096, 16384, 131072}) {
    OwnState<TypeParam> state(length);
    const auto x = random_floats<TypeParam>(length);
    ASSERT_EQ(FoldPass(*state.folds(), state.scratch(), x.data()), haldStatusOk);
    const int radix = state->radix, blocks = length / (2 * radix);
    const long double bound =
        2 * std::sqrt(length / radix) * std::numeric_limits<TypeParam>::epsilon();
    std::mt19937 random(2);
    for (int sample = 0; sample < 100; ++sample) {
      const int j = static_cast<int>(random() % static_cast<unsigned>(radix));
      const int b = static_cast<int>(random() % static_cast<unsigned>(blocks));
      const auto [re, im] = folded(x, radix, j, b);
      EXPECT_LE(std::abs(state.scratch()[2 * radix * b + j] - re), bound) << length << " " << j;
      EXPECT_LE(std::abs(state.scratch()[2 * radix * b + radix + j] - im), bound) << length;
    }
  }
}

// Outputs l m + b and l m + m-1-b come from block b alone.
TYPED_TEST(Execution, SecondStageKeepsBlocksApart) {
  OwnState<TypeParam> state(64);
  for (int block = 0; block < 4; ++block) {
    std::vector<TypeParam> y(64);
    std::fill_n(state.scratch(), 64, TypeParam{0});
    std::fill_n(state.scratch() + 16 * block, 16, TypeParam{1});
    ASSERT_EQ(RecombinePass(*state.recombination(), y.data(), state.scratch()), haldStatusOk);
    for (int k = 0; k < 64; ++k) {
      const int b = k % 8 < 4 ? k % 8 : 7 - k % 8;
      EXPECT_EQ(y[static_cast<std::size_t>(k)] != 0, b == block) << k;
    }
  }
}

TYPED_TEST(Execution, UnknownClassesAreRefused) {
  OwnState<TypeParam> state(4096);
  const auto x = random_floats<TypeParam>(4096);
  std::vector<TypeParam> y(4096, TypeParam{7});
  const auto untouched = y;
  for (const int bad : {-1, 0, 8}) {
    state.folds()->foldClass = bad;
    EXPECT_EQ(FoldPass(*state.folds(), y.data(), x.data()), haldStatusBadArgument) << bad;
  }
  auto* const plan = state.template item<InnerPlan>(state.folds()->stageList.get());
  plan->hasChild = 0;
  EXPECT_EQ(InnerRun<TypeParam>(*plan, {y.data(), 64, 32}, {x.data(), x.data(), 64}),
            haldStatusBadArgument);
  for (const int bad : {-1, 0, 7}) {
    state->sizeClass = bad;
    EXPECT_EQ(RunState(x.data(), y.data(), *state.get()), haldStatusBadArgument) << bad;
  }
  EXPECT_EQ(y, untouched);
}

TYPED_TEST(Execution, StagesWithoutAChildAreSkipped) {
  OwnState<TypeParam> state(64);
  const auto x = random_floats<TypeParam>(64);
  std::vector<TypeParam> y(64, TypeParam{7});
  const auto untouched = y;
  state.second_stage()->hasChild = 0;
  EXPECT_EQ(RunState(x.data(), y.data(), *state.get()), haldStatusOk);
  EXPECT_EQ(y, untouched);
  state.second_stage()->hasChild = 1;
  state.first_stage()->hasChild = 0;
  std::fill_n(state.scratch(), 64, TypeParam{0});
  EXPECT_EQ(RunState(x.data(), y.data(), *state.get()), haldStatusOk);
  EXPECT_EQ(y, std::vector<TypeParam>(64));
}

}  // namespace
}  // namespace haldgen::dct4
