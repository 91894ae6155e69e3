// The rotation tables, read back from states.
#include "dct4/tables.h"

#include <gtest/gtest.h>

#include <span>

#include "dct4/angle.h"
#include "dct4/passes.h"
#include "dct4/walk.h"
#include "tests/dct4/state.h"

namespace haldgen::dct4 {
namespace {

using test::OwnState;

template <class Float>
std::span<const Float> entries(const Link<std::byte>& table, std::int32_t count) {
  return {reinterpret_cast<const Float*>(table.get()), static_cast<std::size_t>(count)};
}

/// What a table holds at the angle pi numerator / denominator: its value is that of the angle
/// rounded to the type of the elements.
template <class Float>
Float value(bool sine, std::int64_t numerator, std::int64_t denominator) {
  const Float x = static_cast<Float>(numerator) / static_cast<Float>(denominator);
  const CosineSine exact = cosine_sine(double{x} * 3.141592653589793);
  return static_cast<Float>(sine ? exact.sine : exact.cosine);
}

template <class Float>
class Tables : public ::testing::Test {};
using FloatTypes = ::testing::Types<float, double>;
TYPED_TEST_SUITE(Tables, FloatTypes);

TYPED_TEST(Tables, RotationsInTheOrderOfTheWalk) {
  constexpr int kWidth = kLanes<TypeParam>;
  for (const int length : {17, 33, 64, 65, 256, 1024, 2048, 8192}) {
    OwnState<TypeParam> state(length);
    const int radix = state->radix;
    const int groups = length / (2 * radix) / kWidth;
    const auto table =
        entries<TypeParam>(state.recombination()->table, 2 * groups * kWidth * radix);
    std::size_t index = 0;
    for (int g = 0; g < groups; ++g) {
      for (int s = 0; s < radix; ++s) {
        for (const bool sine : {false, true}) {
          for (int lane = 0; lane < kWidth; ++lane) {
            const std::int64_t odd_j = 2 * walk_index(radix, s) + 1;
            const std::int64_t odd_b = 2 * (kWidth * g + lane) + 1;
            ASSERT_EQ(table[index], value<TypeParam>(sine, odd_j * odd_b, 4 * length))
                << length << ", entry " << index;
            ++index;
          }
        }
      }
    }
  }
}

TYPED_TEST(Tables, InnerRotationsFillWholeVectors) {
  constexpr int kWidth = kLanes<TypeParam>;
  for (const int length : {4096, 65536}) {
    OwnState<TypeParam> state(length);
    const auto* plan = state.template item<InnerPlan>(state.folds()->stageList.get());
    const auto* node = state.template item<InnerRecombineNode>(plan->secondList.get());
    const int radix = node->innerRadix, m = plan->foldLength;
    const auto table = entries<TypeParam>(node->table, node->rowCount * 2 * (radix - 1) * kWidth);
    std::size_t index = 0;
    for (int b = 0; b < node->rowCount; ++b) {
      for (int a = 1; a < radix; ++a) {
        for (const bool sine : {false, true}) {
          for (int lane = 0; lane < kWidth; ++lane) {
            ASSERT_EQ(table[index], value<TypeParam>(sine, std::int64_t{a} * (2 * b + 1), m))
                << length << ", entry " << index;
            ++index;
          }
        }
      }
    }
  }
}

}  // namespace
}  // namespace haldgen::dct4
