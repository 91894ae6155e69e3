// The stages of a planned transform: recombination at any radix, and what each does with classes
// and marks that no plan has.
#include "dct4/execution.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numbers>

#include "dct4/tables.h"
#include "tests/built/floats.h"
#include "tests/dct4/state.h"

namespace haldgen::dct4 {
namespace {

using test::OwnState;

template <class Float>
std::vector<Float> random_floats(int count) {
  return haldgen::test::random_floats<Float>(static_cast<std::size_t>(count), 1);
}

template <class Float>
class Execution : public ::testing::Test {};
using FloatTypes = ::testing::Types<float, double>;
TYPED_TEST_SUITE(Execution, FloatTypes);

/// The first of them that lies as a block of a state does.
template <class Float>
const Float* aligned(const std::vector<Float>& floats) {
  const auto beyond = reinterpret_cast<std::uintptr_t>(floats.data()) % 32;
  return floats.data() + (32 - beyond) % 32 / sizeof(Float);
}

/// A recombination of any radix r and any m; the rotations are those of this length.
template <class Float>
class Recombination {
 public:
  Recombination(int radix, int m, int length)
      : bytes_(sizeof(Nodes) + static_cast<std::size_t>(radix * m + 8) * sizeof(Float)) {
    auto& [formula, view, node] = *new (bytes_.data()) Nodes{};
    formula.rowLength = view.rowLength = node.rowLength = 2 * radix;
    formula.radix = node.radix = radix;
    formula.angleDenominator = 8 * length;
    view.groupCount = node.groupCount = m / 2 / kLanes<Float>;
    view.formula = &formula;
    // The check does not see through the binding. NOLINTNEXTLINE(bugprone-infinite-loop)
    while (radix >> node.tableClass != 0) ++node.tableClass;
    node.length = length;
    node.vectorStride = node.rowLength * kLanes<Float>;
    node.innerLength = m;
    node.view = &view;
    std::byte* const table = bytes_.data() + sizeof(Nodes);
    node.table = table + (32 - reinterpret_cast<std::uintptr_t>(table) % 32) % 32;
    fill_rotation_table<Float>(node);
  }
  const RecombineNode& node() const { return reinterpret_cast<const Nodes*>(bytes_.data())->node; }

 private:
  struct Nodes {
    RotationFormula formula;
    RotationView view;
    RecombineNode node;
  };
  std::vector<std::byte> bytes_;
};

/// The second pass against the sums that define it.
template <class Float>
void check_second_stage(const RecombineNode& node, std::int64_t length) {
  const int radix = node.radix, m = node.innerLength;
  const auto random = random_floats<Float>(radix * m + 8);
  const Float* const z = aligned(random);
  std::vector<Float> y(random.size(), std::numeric_limits<Float>::quiet_NaN());
  std::vector<Float> tile(1024 + 16);
  ASSERT_EQ(recombine_pass(node, y.data(), z, tile.data()), haldStatusOk);
  // A term is two products of sum at most 2 with at most five roundings each, half an epsilon every
  // one; the errors of a sum grow like the root of its terms, and its last levels round too.
  const long double bound = 8 * std::sqrt(radix) * std::numeric_limits<Float>::epsilon();
  for (int k = 0; k < radix * m; ++k) {
    if (m > 64 && k % 37 > 1) continue;
    const bool mirrored = k % m >= m / 2;
    const int b = mirrored ? m - 1 - k % m : k % m;
    const int l = mirrored ? -(k / m + 1) : k / m;
    long double sum = 0;
    for (int j = 0; j < radix; ++j) {
      const long double angle =
          std::numbers::pi_v<long double> * (2 * j + 1) *
          (static_cast<long double>(2 * b + 1) / static_cast<long double>(4 * length) +
           static_cast<long double>(l) / (2 * radix));
      const Float* const term = z + 2 * radix * b + j;
      sum += term[0] * std::cos(angle) - term[radix] * std::sin(angle);
    }
    EXPECT_LE(std::abs(y[static_cast<std::size_t>(k)] - sum), bound)
        << "radix " << radix << ", m " << m << ", length " << length << ", output " << k;
  }
  EXPECT_TRUE(std::isnan(y[static_cast<std::size_t>(radix * m)]));
}

// Every radix, those too that no power of two leads to: one group of blocks, several, and so many
// that they go by tiles.
TYPED_TEST(Execution, SecondStageRotatesAndRecombines) {
  for (int radix = 1; radix <= 32; radix *= 2) {
    for (const int m : {8, 64, 1024}) {
      for (const int length : {radix * m, radix * m + 1}) {
        const Recombination<TypeParam> recombination(radix, m, length);
        check_second_stage<TypeParam>(recombination.node(), length);
      }
    }
  }
  // The plan of radix 2; in 32 bits its two sequences do not fill a vector, and it is refused.
  OwnState<TypeParam> state(17);
  EXPECT_EQ(state.recombination()->tableClass, 2);
  check_second_stage<TypeParam>(*state.recombination(), 17);
}

TYPED_TEST(Execution, UnknownClassesAreRefused) {
  OwnState<TypeParam> state(4096);
  const auto x = random_floats<TypeParam>(4096);
  std::vector<TypeParam> y(4096, TypeParam{7});
  const auto untouched = y;
  for (const int bad : {-1, 0, 8}) {
    state.folds()->foldClass = bad;
    EXPECT_EQ(fold_pass(*state.folds(), y.data(), x.data()), haldStatusBadArgument) << bad;
  }
  auto* const plan = state.template item<InnerPlan>(state.folds()->stageList.get());
  plan->hasChild = 0;
  EXPECT_EQ(inner_run<TypeParam>(*plan, {y.data(), 64, 32}, {x.data(), x.data(), 64}),
            haldStatusBadArgument);
  for (const int bad : {-1, 0, 7}) {
    state.recombination()->tableClass = bad;
    EXPECT_EQ(recombine_pass<TypeParam>(*state.recombination(), y.data(), x.data(), nullptr),
              haldStatusBadArgument);
    state->sizeClass = bad;
    EXPECT_EQ(run_state(x.data(), y.data(), *state.get()), haldStatusBadArgument) << bad;
  }
  EXPECT_EQ(y, untouched);
}

TYPED_TEST(Execution, StagesWithoutAChildAreSkipped) {
  OwnState<TypeParam> state(64);
  const auto x = random_floats<TypeParam>(64);
  std::vector<TypeParam> y(64, TypeParam{7});
  const auto untouched = y;
  state.second_stage()->hasChild = 0;
  EXPECT_EQ(run_state(x.data(), y.data(), *state.get()), haldStatusOk);
  EXPECT_EQ(y, untouched);
  state.second_stage()->hasChild = 1;
  state.first_stage()->hasChild = 0;
  std::fill_n(state.scratch(), 64, TypeParam{0});
  EXPECT_EQ(run_state(x.data(), y.data(), *state.get()), haldStatusOk);
  EXPECT_EQ(y, std::vector<TypeParam>(64));
}

}  // namespace
}  // namespace haldgen::dct4
