// The compiled kernels give the bits of their programs: every format and flag, any address, in
// place, whatever the order of instructions.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "dft_real/kernel.h"
#include "dft_real/packing.h"
#include "haldgen.h"
#include "kernelgen/integers.h"
#include "tests/built/library.h"

namespace haldgen::dft_real {
namespace {

using kernelgen::at;
using kernelgen::FloatType;
using kernelgen::Order;
using kernelgen::Program;
using test::BuiltKernel;
using test::Floats;

struct RealKernel {
  BuiltKernel built;
  Direction direction;
  Packing packing;

  int length() const { return built.length; }
  FloatType type() const {
    return built.element == frame::Element::f32 ? FloatType::f32 : FloatType::f64;
  }
  int source_size() const {
    return direction == Direction::forward ? length() : size(packing, length());
  }
  int result_size() const {
    return direction == Direction::forward ? size(packing, length()) : length();
  }
};

const std::vector<RealKernel>& real_kernels() {
  static const std::vector<RealKernel> all = [] {
    std::vector<RealKernel> found;
    constexpr std::pair<std::string_view, Packing> kFormats[] = {
        {"CCS", Packing::ccs}, {"Pack", Packing::pack}, {"Perm", Packing::perm}};
    for (const BuiltKernel& kernel : test::built_kernels()) {
      for (const auto& [format, packing] : kFormats) {
        const std::string name(format);
        if (kernel.family->word == "DFTFwd_RTo" + name) {
          found.push_back({kernel, Direction::forward, packing});
        } else if (kernel.family->word == "DFTInv_" + name + "ToR") {
          found.push_back({kernel, Direction::inverse, packing});
        }
      }
    }
    return found;
  }();
  return all;
}

/// The values of an array in their own order, and an array that holds values.
template <class Float>
std::vector<Float> values_of(const RealKernel& kernel, const std::vector<Float>& array) {
  std::vector<Float> values;
  for (int i = 0; i < kernel.length(); ++i) {
    values.push_back(array[at(position(kernel.packing, kernel.length(), i))]);
  }
  return values;
}
template <class Float>
std::vector<Float> array_of(const RealKernel& kernel, const std::vector<Float>& values) {
  std::vector<Float> array(at(size(kernel.packing, kernel.length())));
  for (int i = 0; i < kernel.length(); ++i) {
    array[at(position(kernel.packing, kernel.length(), i))] = values[at(i)];
  }
  return array;
}

template <class Float>
std::vector<Float> interpreted(const RealKernel& kernel, const Program& program,
                               const std::vector<Float>& source, Float scale) {
  std::vector<Float> result(at(kernel.length()));
  if (kernel.direction == Direction::forward) {
    kernelgen::interpret(program, source, scale, result);
    return array_of(kernel, result);
  }
  kernelgen::interpret(program, values_of(kernel, source), scale, result);
  return result;
}

struct Scale {
  std::int32_t flag;
  long double value;
};

std::vector<Scale> scales(int length, Direction direction) {
  const long double n = length;
  const bool inverse = direction == Direction::inverse;
  return {{haldScaleFwdByN, inverse ? 1 : 1 / n},
          {haldScaleInvByN, inverse ? 1 / n : 1},
          {haldScaleBySqrtN, 1 / std::sqrt(n)},
          {haldScaleNone, 1}};
}

template <class Float>
void expect_bits_of_program(const RealKernel& kernel) {
  const Program program =
      kernel_program(kernel.length(), kernel.direction, kernel.type(),
                     tuning_of(kernel.length(), kernel.direction, kernel.type()));
  std::size_t number = 0;
  for (const auto& source : test::trying_inputs<Float>(at(kernel.source_size()), kernel.length())) {
    for (const Scale& scale : scales(kernel.length(), kernel.direction)) {
      const auto expected = interpreted(kernel, program, source, static_cast<Float>(scale.value));
      // Any byte address will do.
      const std::size_t from = number * 5 % 19;
      const std::size_t to = number * 3 % 17;
      ++number;
      Floats<Float> src(source, from);
      Floats<Float> dst(std::vector<Float>(expected.size(), Float{77}), to);
      ASSERT_EQ(kernel.built.function(src.data(), dst.data(), scale.flag), haldStatusOk);
      ASSERT_TRUE(test::identical(dst.values(), expected))
          << kernel.built.name << " input " << number << " flag " << scale.flag;
      ASSERT_TRUE(test::identical(src.values(), source)) << kernel.built.name;

      std::vector<Float> shared = source;
      shared.resize(std::max(source.size(), expected.size()), Float{77});
      Floats<Float> both(shared, from);
      ASSERT_EQ(kernel.built.function(both.data(), both.data(), scale.flag), haldStatusOk);
      std::copy(expected.begin(), expected.end(), shared.begin());
      ASSERT_TRUE(test::identical(both.values(), shared))
          << kernel.built.name << " in place, input " << number << " flag " << scale.flag;
    }
  }
}

TEST(Bits, AllKernelsAreBuilt) { EXPECT_EQ(real_kernels().size(), 756U); }

TEST(Bits, KernelsEqualTheirPrograms) {
  for (const RealKernel& kernel : real_kernels()) {
    if (kernel.type() == FloatType::f32) {
      expect_bits_of_program<float>(kernel);
    } else {
      expect_bits_of_program<double>(kernel);
    }
  }
}

TEST(Bits, DoNotDependOnTheOrderOfInstructions) {
  for (const RealKernel& kernel : real_kernels()) {
    if (kernel.packing != Packing::pack || kernel.type() != FloatType::f32) continue;
    const auto source = test::random_floats<float>(at(kernel.length()), 5);
    std::vector<std::vector<float>> results;
    for (const Order order : {Order::program, Order::bisection, Order::pressure, Order::critical}) {
      results.push_back(interpreted(
          kernel, kernel_program(kernel.length(), kernel.direction, FloatType::f32, {order, 12}),
          source, 1.0F));
    }
    for (const auto& result : results) {
      EXPECT_TRUE(test::identical(result, results.front())) << kernel.built.name;
    }
  }
}

// In place a store must not overtake a load of the same place, in whichever format: the interpreter
// works on one array, as the kernel would.
TEST(Bits, NoStoreComesBeforeALoadOfItsPlace) {
  for (const RealKernel& kernel : real_kernels()) {
    if (kernel.type() != FloatType::f64) continue;
    for (const Order order : {Order::bisection, Order::pressure, Order::critical}) {
      const Program program =
          kernel_program(kernel.length(), kernel.direction, FloatType::f64, {order, 12});
      std::vector<char> overwritten(at(kernel.length() + 2), 0);
      for (const auto& in : program.code) {
        const bool spectrum_side =
            (in.op == kernelgen::Op::store) == (kernel.direction == Direction::forward);
        const int place = spectrum_side ? position(kernel.packing, kernel.length(), in.address[0])
                                        : in.address[0];
        if (in.op == kernelgen::Op::store) overwritten[at(place)] = 1;
        if (in.op == kernelgen::Op::load) {
          ASSERT_FALSE(overwritten[at(place)]) << kernel.built.name << " " << name_of(order);
        }
      }
    }
  }
}

}  // namespace
}  // namespace haldgen::dft_real
