// The compiled kernels give the bits of their programs: every flag, any address, in place, whatever
// the order of instructions.
#include <gtest/gtest.h>

#include <cmath>

#include "haldgen.h"
#include "hartley/kernel.h"
#include "kernelgen/emit.h"
#include "tests/built/library.h"

namespace haldgen::hartley {
namespace {

using kernelgen::FloatType;
using kernelgen::Order;
using kernelgen::Program;
using test::Floats;

test::KernelFunction built(int length, FloatType type) {
  return test::built_kernel("haldgHartley_" + std::to_string(length) + "_" +
                            kernelgen::suffix(type));
}

template <class Float>
Float scale_of(std::int32_t flag, int length) {
  const auto n = static_cast<long double>(length);
  if (flag == haldScaleNone) return 1;
  return static_cast<Float>(flag == haldScaleBySqrtN ? 1 / std::sqrt(n) : 1 / n);
}

template <class Float>
void expect_bits_of_program(int length, FloatType type) {
  const auto kernel = built(length, type);
  const Program program = kernel_program(length, type, tuning_of(length, type));
  const auto count = static_cast<std::size_t>(length);
  std::size_t number = 0;
  for (const auto& source : test::trying_inputs<Float>(count, length)) {
    for (const std::int32_t flag :
         {haldScaleFwdByN, haldScaleInvByN, haldScaleBySqrtN, haldScaleNone}) {
      std::vector<Float> expected(count);
      kernelgen::interpret(program, source, scale_of<Float>(flag, length), expected);
      const std::size_t from = number * 5 % 19;
      const std::size_t to = number * 3 % 17;
      ++number;
      Floats<Float> src(source, from);
      Floats<Float> dst(std::vector<Float>(count, Float{77}), to);
      ASSERT_EQ(kernel(src.data(), dst.data(), flag), haldStatusOk);
      ASSERT_TRUE(test::identical(dst.values(), expected))
          << length << " input " << number << " flag " << flag;
      ASSERT_TRUE(test::identical(src.values(), source)) << length;
      ASSERT_EQ(kernel(src.data(), src.data(), flag), haldStatusOk);
      ASSERT_TRUE(test::identical(src.values(), expected))
          << length << " in place, input " << number << " flag " << flag;
    }
  }
}

TEST(Bits, KernelsEqualTheirPrograms) {
  for (const int length : lengths()) {
    expect_bits_of_program<float>(length, FloatType::f32);
    expect_bits_of_program<double>(length, FloatType::f64);
  }
}

TEST(Bits, DoNotDependOnTheOrderOfInstructions) {
  for (const int length : lengths()) {
    const auto source = test::random_floats<float>(static_cast<std::size_t>(length), 5);
    std::vector<float> expected(source.size());
    kernelgen::interpret(kernel_program(length, FloatType::f32, {}), source, 1.0F, expected);
    for (const Order order : {Order::program, Order::pressure, Order::critical}) {
      std::vector<float> actual(source.size());
      kernelgen::interpret(kernel_program(length, FloatType::f32, {order, 12}), source, 1.0F,
                           actual);
      EXPECT_TRUE(test::identical(actual, expected)) << length << " " << name_of(order);
    }
  }
}

}  // namespace
}  // namespace haldgen::hartley
