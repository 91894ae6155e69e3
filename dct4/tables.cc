#include "dct4/tables.h"

#include <algorithm>
#include <cmath>

#include "dct4/passes.h"
#include "dct4/walk.h"

namespace haldgen::dct4 {
namespace {

constexpr double kPi = 3.141592653589793;

double cos_pi(double x) { return std::cos(x * kPi); }
double sin_pi(double x) { return std::sin(x * kPi); }
float cos_pi(float x) { return static_cast<float>(cos_pi(double{x})); }
float sin_pi(float x) { return static_cast<float>(sin_pi(double{x})); }

/// Column `column` of row b of the rotations, in which 2j is the cosine and 2j + 1 the sine of
/// pi (2j+1)(2b+1) / (4N).
template <class Float>
Float rotation_element(const RotationFormula& formula, int32_t row, int32_t column) {
  const int32_t element = formula.rowLength * row + column;
  const int32_t block = element / 2 / formula.radix;
  const int32_t j = element / 2 % formula.radix;
  const auto x = static_cast<Float>((4 * block + 2) * (2 * j + 1)) /
                 static_cast<Float>(formula.angleDenominator);
  return element % 2 == 0 ? cos_pi(x) : sin_pi(x);
}

/// The same for lane `lane` of a group of blocks.
template <class Float>
Float rotation_element(const RotationView& view, int32_t group, int32_t lane, int32_t column) {
  return rotation_element<Float>(*view.formula.get(), kLanes<Float> * group + lane, column);
}

/// (b + 1/2) / (m / r') of row b.
template <class Float>
Float inner_rotation_element(const InnerRotationFormula& formula, int32_t row) {
  const int32_t sub_length = formula.foldLength / formula.innerRadix;
  return (static_cast<Float>(row) + Float{0.5}) / static_cast<Float>(sub_length);
}

}  // namespace

template <class Float>
void fill_rotation_table(const RecombineNode& node) {
  const RotationView& view = *node.view.get();
  auto* entry = reinterpret_cast<Float*>(node.table.get());
  for (int32_t group = 0; group < view.groupCount; ++group) {
    for (int32_t position = 0; position < node.radix; ++position) {
      const int32_t cosine = 2 * walk_index(node.radix, position);
      for (const int32_t column : {cosine, cosine + 1}) {
        for (int32_t lane = 0; lane < kLanes<Float>; ++lane) {
          // The node has a table. NOLINTNEXTLINE(clang-analyzer-core.NullDereference)
          *entry++ = rotation_element<Float>(view, group, lane, column);
        }
      }
    }
  }
}

template <class Float>
void fill_inner_table(const InnerRecombineNode& node) {
  const InnerRotationFormula& formula = *node.formula.get();
  const auto radix = static_cast<Float>(formula.innerRadix);
  auto* entry = reinterpret_cast<Float*>(node.table.get());
  for (int32_t row = 0; row < node.rowCount; ++row) {
    const auto x = inner_rotation_element<Float>(formula, row);
    for (int32_t a = 1; a < formula.innerRadix; ++a) {
      const Float angle = x * (static_cast<Float>(2 * a) / radix);
      entry = std::fill_n(entry, kLanes<Float>, cos_pi(angle));
      entry = std::fill_n(entry, kLanes<Float>, sin_pi(angle));
    }
  }
}

template void fill_rotation_table<float>(const RecombineNode&);
template void fill_rotation_table<double>(const RecombineNode&);
template void fill_inner_table<float>(const InnerRecombineNode&);
template void fill_inner_table<double>(const InnerRecombineNode&);

}  // namespace haldgen::dct4
