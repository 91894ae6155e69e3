#include "dct4/tables.h"

#include <algorithm>
#include <cmath>

#include "dct4/passes.h"
#include "dct4/walk.h"

namespace haldgen::dct4 {
namespace {

constexpr double kPi = 3.141592653589793;

}  // namespace

double CosPi(double x) { return std::cos(x * kPi); }
double SinPi(double x) { return std::sin(x * kPi); }
float CosPi(float x) { return static_cast<float>(CosPi(double{x})); }
float SinPi(float x) { return static_cast<float>(SinPi(double{x})); }

template <class Float>
Float RotationElement(const RotationFormula& formula, int32_t row, int32_t column) {
  const int32_t element = formula.rowLength * row + column;
  const int32_t block = element / 2 / formula.radix;
  const int32_t j = element / 2 % formula.radix;
  const auto x = static_cast<Float>((4 * block + 2) * (2 * j + 1)) /
                 static_cast<Float>(formula.angleDenominator);
  return element % 2 == 0 ? CosPi(x) : SinPi(x);
}

template <class Float>
Float RotationElement(const RotationView& view, int32_t group, int32_t lane, int32_t column) {
  return RotationElement<Float>(*view.formula.get(), kLanes<Float> * group + lane, column);
}

template <class Float>
void FillRotationTable(const RecombineNode& node) {
  const RotationView& view = *node.view.get();
  auto* entry = reinterpret_cast<Float*>(node.table.get());
  for (int32_t group = 0; group < view.groupCount; ++group) {
    for (int32_t position = 0; position < node.radix; ++position) {
      const int32_t cosine = 2 * WalkIndex(node.radix, position);
      for (const int32_t column : {cosine, cosine + 1}) {
        for (int32_t lane = 0; lane < kLanes<Float>; ++lane) {
          *entry++ = RotationElement<Float>(view, group, lane, column);
        }
      }
    }
  }
}

template <class Float>
Float InnerRotationElement(const InnerRotationFormula& formula, int32_t row) {
  const int32_t sub_length = formula.foldLength / formula.innerRadix;
  return (static_cast<Float>(row) + Float{0.5}) / static_cast<Float>(sub_length);
}

template <class Float>
void FillInnerTable(const InnerRecombineNode& node) {
  const InnerRotationFormula& formula = *node.formula.get();
  const auto radix = static_cast<Float>(formula.innerRadix);
  auto* entry = reinterpret_cast<Float*>(node.table.get());
  for (int32_t row = 0; row < node.rowCount; ++row) {
    const Float x = InnerRotationElement<Float>(formula, row);
    for (int32_t a = 1; a < formula.innerRadix; ++a) {
      const Float angle = x * (static_cast<Float>(2 * a) / radix);
      entry = std::fill_n(entry, kLanes<Float>, CosPi(angle));
      entry = std::fill_n(entry, kLanes<Float>, SinPi(angle));
    }
  }
}

template float RotationElement<float>(const RotationFormula&, int32_t, int32_t);
template double RotationElement<double>(const RotationFormula&, int32_t, int32_t);
template float RotationElement<float>(const RotationView&, int32_t, int32_t, int32_t);
template double RotationElement<double>(const RotationView&, int32_t, int32_t, int32_t);
template void FillRotationTable<float>(const RecombineNode&);
template void FillRotationTable<double>(const RecombineNode&);
template float InnerRotationElement<float>(const InnerRotationFormula&, int32_t);
template double InnerRotationElement<double>(const InnerRotationFormula&, int32_t);
template void FillInnerTable<float>(const InnerRecombineNode&);
template void FillInnerTable<double>(const InnerRecombineNode&);

}  // namespace haldgen::dct4
