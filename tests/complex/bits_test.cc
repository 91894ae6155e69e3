// The compiled kernels give the bits of their programs: every path, every flag, in place, whatever
// the order of instructions.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "dft_complex/kernel.h"
#include "haldgen.h"
#include "tests/complex/library.h"

namespace haldgen::dft_complex {
namespace {

using kernelgen::Order;
using kernelgen::Program;
using test::Floats;
using test::LiveKernel;

std::size_t at(int k) { return static_cast<std::size_t>(k); }

template <class Float>
std::vector<std::vector<Float>> inputs(int length) {
  const std::size_t count = 2 * at(length);
  using Limits = std::numeric_limits<Float>;
  std::vector<std::vector<Float>> all;
  for (unsigned seed = 0; seed < 6; ++seed) {
    all.push_back(test::random_floats<Float>(count, seed));
  }
  const auto scaled = [&](double factor) {
    auto values = test::random_floats<Float>(count, 17);
    for (Float& v : values) v = static_cast<Float>(v * factor);
    all.push_back(values);
  };
  // Near overflow, results that are denormal, inputs that are.
  scaled(Limits::max() / (4.0 * length * length));
  scaled(8.0 * Limits::min());
  scaled(100.0 * Limits::denorm_min());
  // Magnitudes that differ widely: every sum rounds.
  auto mixed = test::random_floats<Float>(count, 18);
  for (std::size_t i = 0; i < count; ++i) {
    mixed[i] = std::ldexp(mixed[i], static_cast<int>(i * 7 % 31) - 15);
  }
  all.push_back(mixed);
  // Zeros of all signs, alone and among numbers.
  for (const unsigned seed : {19U, 20U, 21U}) {
    auto zeros = test::random_floats<Float>(count, seed);
    for (std::size_t i = 0; i < count; ++i) {
      if (seed == 19U || i % 3 != 0) zeros[i] = std::copysign(Float{0}, zeros[i]);
    }
    all.push_back(zeros);
  }
  all.emplace_back(count, Float{0});
  all.emplace_back(count, -Float{0});
  for (const std::size_t place : {std::size_t{0}, std::size_t{1}, std::size_t{2}, count - 1}) {
    std::vector<Float> impulse(count, Float{0});
    impulse[place] = 1;
    all.push_back(impulse);
  }
  return all;
}

struct Scale {
  std::int32_t flag;
  long double value;
};

std::vector<Scale> scales(int length, bool inverse) {
  const long double n = length;
  return {{haldScaleFwdByN, inverse ? 1 : 1 / n},
          {haldScaleInvByN, inverse ? 1 / n : 1},
          {haldScaleBySqrtN, 1 / std::sqrt(n)},
          {haldScaleNone, 1}};
}

template <class Float>
std::vector<Float> interpreted(const Program& program, const std::vector<Float>& source,
                               long double scale) {
  std::vector<Float> result(source.size());
  kernelgen::interpret(program, source, static_cast<Float>(scale), result);
  return result;
}

template <class Float>
void expect_bits_of_program(const LiveKernel& kernel) {
  const Program program = kernel_program(kernel.length, kernel.type, kernel.inverse,
                                         schedule_of(kernel.length, kernel.type, kernel.inverse));
  std::vector<std::size_t> misalignments;
  for (std::size_t m = 0; m < 16; m += sizeof(Float)) misalignments.push_back(m);
  int number = 0;
  for (const auto& source : inputs<Float>(kernel.length)) {
    ++number;
    for (const Scale& scale : scales(kernel.length, kernel.inverse)) {
      const auto expected = interpreted(program, source, scale.value);
      for (const std::size_t from : misalignments) {
        for (const std::size_t to : misalignments) {
          Floats<Float> src(source, from);
          Floats<Float> dst(std::vector<Float>(source.size(), Float{77}), to);
          ASSERT_EQ(kernel.function(src.data(), dst.data(), scale.flag), haldStatusOk);
          ASSERT_TRUE(test::identical(dst.values(), expected))
              << kernel.name << " input " << number << " flag " << scale.flag << " misaligned by "
              << from << " and " << to;
          ASSERT_TRUE(test::identical(src.values(), source)) << kernel.name;
        }
        Floats<Float> both(source, from);
        ASSERT_EQ(kernel.function(both.data(), both.data(), scale.flag), haldStatusOk);
        ASSERT_TRUE(test::identical(both.values(), expected))
            << kernel.name << " in place, input " << number << " flag " << scale.flag
            << " misaligned by " << from;
      }
    }
  }
}

TEST(Bits, KernelsAreLive) { EXPECT_GE(test::live_kernels().size(), 16U); }

TEST(Bits, CompiledKernelsEqualTheirPrograms) {
  for (const LiveKernel& kernel : test::live_kernels()) {
    if (kernel.type == ElementType::c32) {
      expect_bits_of_program<float>(kernel);
    } else {
      expect_bits_of_program<double>(kernel);
    }
  }
}

template <class Float>
void expect_bits_of_every_order(const LiveKernel& kernel) {
  Floats<Float> src(test::random_floats<Float>(2 * at(kernel.length), 5), 0);
  Floats<Float> dst(src.values(), 0);
  ASSERT_EQ(kernel.function(src.data(), dst.data(), haldScaleNone), haldStatusOk);
  for (const Order order : {Order::program, Order::bisection, Order::pressure, Order::critical}) {
    for (const int cap : {6, 14}) {
      const Program program =
          kernel_program(kernel.length, kernel.type, kernel.inverse, {order, cap});
      EXPECT_TRUE(test::identical(interpreted(program, src.values(), 1), dst.values()))
          << kernel.name << " " << name_of(order) << " " << cap;
    }
  }
}

TEST(Bits, DoNotDependOnTheOrderOfInstructions) {
  for (const LiveKernel& kernel : test::live_kernels()) {
    if (kernel.length > 32) continue;  // the choice of forms takes long, and is the same
    if (kernel.type == ElementType::c32) {
      expect_bits_of_every_order<float>(kernel);
    } else {
      expect_bits_of_every_order<double>(kernel);
    }
  }
}

}  // namespace
}  // namespace haldgen::dft_complex
