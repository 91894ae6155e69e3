// Names of constants: given where the value is the named one, and nowhere else.
#include "kernelgen/constant_names.h"

#include <gtest/gtest.h>

#include <cmath>

namespace haldgen::kernelgen {
namespace {

std::string name_of(Wide value, int length) {
  const auto name = ConstantNames({length}).of(value);
  return name ? name->text : "";
}

TEST(ConstantNames, SayTheValue) {
  struct Row {
    Wide value;
    int length;
    const char* name;
  };
  const Row rows[] = {
      {cos_turn(1, 5), 15, "cos_1_5"},
      {abs(cos_turn(2, 5)), 15, "cos_2_5"},
      {-sin_turn(1, 3), 13, "sin_1_3"},  // 12, the length of a convolution
      {sin_turn(3, 128), 128, "sin_3_128"},
      {sin_turn(5, 64) / cos_turn(5, 64), 32, "tan_5_64"},
      {sqrt(Wide(0.5)), 7, "sqrt_half"},
      {cos_turn(1, 16), 7, "cos_1_16"},
      {Wide(1.0) / Wide(12.0), 13, "one_over_12"},
      {sqrt(Wide(13.0)) / Wide(12.0), 13, "sqrt_13_over_12"},
      {Wide(2.0) * cos_turn(2, 7), 7, "twice_cos_2_7"},
      {Wide(0.5) * sin_turn(1, 7), 7, "half_sin_1_7"},
      {cos_turn(1, 9) * sin_turn(1, 3), 9, "product_cos_1_9_sin_1_3"},
      {cos_turn(1, 5), 7, ""},  // no fifth has a place in 7 points
      {cos_turn(1, 5) * Wide{1.0, 1e-20}, 5, ""},
      {cos_turn(1, 5) + sin_turn(1, 3), 15, ""},
  };
  for (const Row& row : rows) {
    const std::string name = name_of(row.value, row.length);
    // The factors of a product stand in an order of their own.
    const bool swapped =
        row.name == std::string("product_cos_1_9_sin_1_3") && name == "product_sin_1_3_cos_1_9";
    EXPECT_TRUE(name == row.name || swapped) << name << " for " << row.name;
  }
  EXPECT_LT(ConstantNames({5}).of(abs(cos_turn(2, 5)))->value.hi, 0) << "the sign is the cosine's";
}

TEST(ConstantNames, AreForNumbersThatAreRoundedOnce) {
  const double cosine = to_double(cos_turn(1, 5));
  const double off = std::nextafter(to_double(sin_turn(1, 5)), 1.0);
  Program program{FloatType::f64, 2, {}};
  Instruction multiply;
  multiply.op = Op::multiply;
  multiply.constant = {-cosine, off};
  program.code = {multiply};
  program.exact = {{cosine, cos_turn(1, 5)}, {off, sin_turn(1, 5)}};
  multiply.constant = {0.5, 0.3};  // one that is short, and one of unknown origin
  program.code.push_back(multiply);
  const auto constants = named_constants(program, ConstantNames({5}));
  ASSERT_EQ(constants.size(), 3U);
  EXPECT_EQ(constants[0].name, "cos_1_5");
  EXPECT_EQ(constants[0].value, cosine);
  EXPECT_EQ(constants[1].name, "c0");
  EXPECT_EQ(constants[1].value, off);
  EXPECT_EQ(constants[2].name, "c1");
}

}  // namespace
}  // namespace haldgen::kernelgen
