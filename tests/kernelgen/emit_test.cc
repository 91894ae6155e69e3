// The printed form of programs.
#include "kernelgen/emit.h"

#include <gtest/gtest.h>

#include <cstdlib>

#include "kernelgen/lower.h"
#include "tests/kernelgen/random_graph.h"

namespace haldgen::kernelgen {
namespace {

using test::Dice;

TEST(Literal, ReadsBackAsTheSameNumber) {
  Dice dice(1);
  for (int i = 0; i < 2000; ++i) {
    const double value = to_double(dice.constant()) * (dice.chance(50) ? -1 : 1);
    const std::string text = literal(value, FloatType::f64);
    char* end = nullptr;
    ASSERT_EQ(std::strtod(text.c_str(), &end), value) << text;
    ASSERT_EQ(*end, '\0') << text;
    const auto narrow = static_cast<float>(value);
    const std::string narrow_text = literal(double{narrow}, FloatType::f32);
    ASSERT_EQ(std::strtof(narrow_text.c_str(), &end), narrow) << narrow_text;
    ASSERT_STREQ(end, "f") << narrow_text;
  }
  EXPECT_EQ(literal(1.0, FloatType::f64), "1.0");
  EXPECT_EQ(literal(-0.0, FloatType::f64), "-0.0");
  EXPECT_EQ(literal(-2.0, FloatType::f32), "-2.0f");
}

Instruction make(Op op, int a, int b, std::array<int, 2> address = {}) {
  Instruction in;
  in.op = op;
  in.a = a;
  in.b = b;
  in.address = address;
  return in;
}

TEST(Emit, ScalarStatementsOfMixedPrecision) {
  Program program{FloatType::f32, 1, {}};
  program.code = {make(Op::load, -1, -1, {3, 0}), make(Op::widen, 0, -1), make(Op::multiply, 1, -1),
                  make(Op::narrow, 2, -1),        make(Op::scale, 3, -1), make(Op::negate, 4, -1),
                  make(Op::store, 5, -1, {1, 0})};
  for (const std::size_t wide : {1U, 2U, 3U}) program.code[wide].wide = true;
  program.code[2].constant[0] = 0.1;
  program.code[4].constant[0] = 1.0;
  EXPECT_EQ(emit_body(program),
            "    const float v0 = scalar::load(src + 3);\n"
            "    const double v1 = v0;\n"
            "    const double v2 = 0.1 * v1;\n"
            "    const float v3 = static_cast<float>(v2);\n"
            "    const float v4 = scale * v3;\n"
            "    const float v5 = 0.0f - v4;\n"
            "    scalar::store(dst + 1, v5);\n");
}

TEST(Emit, StagesAreMarked) {
  Program program{FloatType::f64, 1, {make(Op::load, -1, -1)}};
  const auto add = [&](Op op, const char* stage) {
    program.code.push_back(make(op, 0, 0));
    program.code.back().stage = stage;
  };
  for (int i = 0; i < 4; ++i) add(Op::add, "columns");
  add(Op::add, "rows");  // for a moment
  add(Op::add, "columns");
  add(Op::store, "stores");
  for (int i = 0; i < 4; ++i) add(Op::subtract, "rows");
  EXPECT_EQ(emit_body(program),
            "    // columns\n"
            "    const double v0 = scalar::load(src);\n"
            "    const double v1 = v0 + v0;\n"
            "    const double v2 = v0 + v0;\n"
            "    const double v3 = v0 + v0;\n"
            "    const double v4 = v0 + v0;\n"
            "    const double v5 = v0 + v0;  // rows\n"
            "    const double v6 = v0 + v0;\n"
            "    scalar::store(dst, v0);\n"
            "    // rows\n"
            "    const double v8 = v0 - v0;\n"
            "    const double v9 = v0 - v0;\n"
            "    const double v10 = v0 - v0;\n"
            "    const double v11 = v0 - v0;\n");
}

TEST(Emit, ScalarProgramsReachMemoryThroughSubscripts) {
  Graph g(Field::real);
  g.set_outputs({g.multiply(2.0, g.input(1))});
  const Program program = lower_real(g, {FloatType::f64});
  // The compiler must not see the 2: it would make an addition.
  EXPECT_EQ(emit_body(program, {"Format::at", ""}),
            "    const double two = scalar::opaque(2.0);\n"
            "    const double v0 = scalar::load(src + Format::at(1));\n"
            "    const double v1 = two * v0;\n"
            "    const double v2 = scale * v1;\n"
            "    scalar::store(dst, v2);\n");
}

}  // namespace
}  // namespace haldgen::kernelgen
