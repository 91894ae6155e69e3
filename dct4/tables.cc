#include "dct4/tables.h"

#include <algorithm>

#include "dct4/angle.h"
#include "dct4/passes.h"
#include "dct4/walk.h"

namespace haldgen::dct4 {
namespace {

constexpr double kPi = 3.141592653589793;

/// Cosine and sine of pi x, rounded to the type.
template <class Float>
struct Rotation {
  explicit Rotation(Float x) {
    const CosineSine exact = cosine_sine(double{x} * kPi);
    cosine = static_cast<Float>(exact.cosine);
    sine = static_cast<Float>(exact.sine);
  }
  Float cosine;
  Float sine;
};

/// By pi (2j+1)(2b+1) / (4N).
template <class Float>
Rotation<Float> rotation(const RotationFormula& formula, int32_t b, int32_t j) {
  return Rotation<Float>(static_cast<Float>((4 * b + 2) * (2 * j + 1)) /
                         static_cast<Float>(formula.angleDenominator));
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
  const int32_t at_once = groups_at_once(view.groupCount);
  const int32_t width = at_once * kLanes<Float>;
  auto* entry = reinterpret_cast<Float*>(node.table.get());
  for (int32_t group = 0; group < view.groupCount; group += at_once) {
    for (int32_t position = 0; position < node.radix; ++position) {
      const int32_t j = walk_index(node.radix, position);
      for (int32_t lane = 0; lane < width; ++lane) {
        const auto value = rotation<Float>(*view.formula.get(), kLanes<Float> * group + lane, j);
        // The node has a table. NOLINTNEXTLINE(clang-analyzer-core.NullDereference)
        entry[lane] = value.cosine;
        entry[width + lane] = value.sine;
      }
      entry += 2 * width;
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
      const Rotation<Float> value(x * (static_cast<Float>(2 * a) / radix));
      entry = std::fill_n(entry, kLanes<Float>, value.cosine);
      entry = std::fill_n(entry, kLanes<Float>, value.sine);
    }
  }
}

template void fill_rotation_table<float>(const RecombineNode&);
template void fill_rotation_table<double>(const RecombineNode&);
template void fill_inner_table<float>(const InnerRecombineNode&);
template void fill_inner_table<double>(const InnerRecombineNode&);

}  // namespace haldgen::dct4
