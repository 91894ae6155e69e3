// Wide arithmetic: digits, symmetries, single rounding.
#include "kernelgen/wide.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <string>

namespace haldgen::kernelgen {
namespace {

// 0.d1d2d3... as a wide number.
Wide from_digits(const std::string& fraction) {
  Wide value;
  Wide unit = 1.0;
  for (const char digit : fraction) {
    value = value * Wide(10.0) + Wide(static_cast<double>(digit - '0'));
    unit = unit * Wide(10.0);
  }
  return value / unit;
}

double distance(Wide a, Wide b) { return abs(a - b).hi; }

TEST(Wide, TrigonometricDigits) {
  struct Row {
    Wide value;
    const char* fraction;
  };
  const Row rows[] = {
      {cos_turn(1, 5), "309016994374947424102293417182819"},
      {sin_turn(1, 5), "951056516295153572116439333379382"},
      {sin_turn(2, 5), "587785252292473129168705954639073"},
      {sin_turn(1, 3), "866025403784438646763723170752936"},
      {cos_turn(1, 16), "923879532511286756128183189396788"},
      {sin_turn(1, 16), "382683432365089771728459984030399"},
      {cos_turn(1, 8), "707106781186547524400844362104849"},
      {sin_turn(1, 8), "707106781186547524400844362104849"},
      {cos_turn(1, 9), "766044443118978035202392650555417"},
      {cos_turn(1, 7), "623489801858733530525004884004240"},
      {-cos_turn(3, 7), "900968867902419126236102319507445"},
      {cos_turn(1, 64), "995184726672196886244836953109480"},
      {sin_turn(1, 64), "098017140329560601994195563888642"},
      {cos(Wide(25.0 / 32)), "710033883566079674974121643959490"},
      {sin(Wide(25.0 / 32)), "704167511454533672780059509973943"},
      {-sin(Wide(-1.0 / 32)), "031244913985326078739581121257464"},
      {cos_turn(1, 61), "994699875614589047976256806722091"},
  };
  for (const Row& row : rows) {
    EXPECT_LT(distance(row.value, from_digits(row.fraction)), 3e-32) << row.fraction;
  }
}

TEST(Wide, ToDoubleRoundsOnce) {
  EXPECT_EQ(to_double({1.0, 0x1p-54}), 1.0);
  EXPECT_EQ(to_double(cos_turn(1, 5)), 0.30901699437494745);
  EXPECT_EQ(to_double(sin_turn(1, 3)), 0.8660254037844386);  // not ...4387, its neighbour
  EXPECT_EQ(to_double(sqrt(Wide(0.5))), 0.7071067811865476);
  // A tie goes to the even neighbour, upward and downward.
  EXPECT_EQ(to_double({1.0, 0x1p-53}), 1.0);
  EXPECT_EQ(to_double({1.0 + 0x1p-52, 0x1p-53}), 1.0 + 0x1p-51);
}

TEST(Wide, ToFloatRoundsOnce) {
  // Halfway between two floats, and next to it by less than a double can say.
  const float above = 1.0F + 0x1p-23F;
  EXPECT_EQ(to_float(1.0 + 0x1p-24), 1.0F);
  EXPECT_EQ(to_float({1.0 + 0x1p-24, 0x1p-90}), above);
  EXPECT_EQ(to_float({1.0 + 0x1p-24, -0x1p-90}), 1.0F);
  EXPECT_EQ(to_float(1.0 + 3 * 0x1p-24), 1.0F + 0x1p-22F);
  EXPECT_EQ(to_float({1.0 + 3 * 0x1p-24, -0x1p-90}), above);
  EXPECT_EQ(to_float({-1.0 - 0x1p-24, -0x1p-90}), -above);
  EXPECT_EQ(to_float({-1.0 - 0x1p-24, 0x1p-90}), -1.0F);
  // Below a power of two the neighbours are unequally far.
  EXPECT_EQ(to_float({1.0 - 0x1p-25, -0x1p-90}), 1.0F - 0x1p-24F);
  EXPECT_EQ(to_float({1.0 - 0x1p-25, 0x1p-90}), 1.0F);
  EXPECT_EQ(to_float(Wide(1.0) / Wide(3.0)), 0.33333334F);
  EXPECT_EQ(to_float(Wide(1.0) / sqrt(Wide(3.0))), 0.57735026F);
}

}  // namespace
}  // namespace haldgen::kernelgen
