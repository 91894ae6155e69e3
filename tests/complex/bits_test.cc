// The compiled kernels give the bits of their programs and of their graphs: every path, every flag,
// in place, whatever the order of instructions. Inverse kernels give the bits of forward ones.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "dft_complex/kernel.h"
#include "haldgen.h"
#include "kernelgen/integers.h"
#include "tests/complex/live_kernels.h"
#include "tests/kernelgen/direct.h"

namespace haldgen::dft_complex {
namespace {

using kernelgen::at;
using kernelgen::Order;
using kernelgen::Program;
using test::Floats;
using test::LiveKernel;

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
  // Zeros of both signs alone, then among ones, so that sums vanish too.
  for (const unsigned seed : {19U, 20U, 21U, 22U, 23U, 24U}) {
    auto zeros = test::random_floats<Float>(count, seed);
    for (Float& v : zeros)
      v = std::copysign(seed >= 22U && std::abs(v) < 0.5 ? Float{1} : Float{0}, v);
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
std::vector<Float> exchanged_parts(std::vector<Float> v) {
  for (std::size_t i = 0; i < v.size(); i += 2) std::swap(v[i], v[i + 1]);
  return v;
}

/// Output k to -k modulo the length.
template <class Float>
std::vector<Float> reversed(const std::vector<Float>& v) {
  const std::size_t n = v.size() / 2;
  std::vector<Float> result;
  for (std::size_t k = 0; k < n; ++k) {
    const std::size_t from = (n - k) % n;
    result.insert(result.end(), {v[2 * from], v[2 * from + 1]});
  }
  return result;
}

/// The inverse kernels of these are reversed forward kernels, all others mirrored ones.
bool is_reversed(const LiveKernel& kernel) {
  const int n = kernel.length;
  return kernel.type == ElementType::c32 && (n == 19 || n == 23 || n == 37 || n == 61);
}

template <class Float>
std::vector<Float> called(const LiveKernel& kernel, const std::vector<Float>& source,
                          std::int32_t flag) {
  Floats<Float> src(source, 0);
  Floats<Float> dst(source, 0);
  EXPECT_EQ(kernel.function(src.data(), dst.data(), flag), haldStatusOk);
  return dst.values();
}

/// Calls a kernel on all paths, with all flags; `expected` says what it must give, `equal` how
/// exactly.
template <class Float, class Expected, class Equal>
void expect_everywhere(const LiveKernel& kernel, const std::vector<std::vector<Float>>& sources,
                       const Expected& expected_of, const Equal& equal) {
  std::vector<std::size_t> misalignments;
  for (std::size_t m = 0; m < 16; m += sizeof(Float)) misalignments.push_back(m);
  int number = 0;
  for (const auto& source : sources) {
    ++number;
    for (const Scale& scale : scales(kernel.length, kernel.inverse)) {
      const std::vector<Float> expected = expected_of(source, static_cast<Float>(scale.value));
      for (const std::size_t from : misalignments) {
        for (const std::size_t to : misalignments) {
          Floats<Float> src(source, from);
          Floats<Float> dst(std::vector<Float>(source.size(), Float{77}), to);
          ASSERT_EQ(kernel.function(src.data(), dst.data(), scale.flag), haldStatusOk);
          ASSERT_TRUE(equal(dst.values(), expected))
              << kernel.name << " input " << number << " flag " << scale.flag << " misaligned by "
              << from << " and " << to;
          ASSERT_TRUE(test::identical(src.values(), source)) << kernel.name;
        }
        Floats<Float> both(source, from);
        ASSERT_EQ(kernel.function(both.data(), both.data(), scale.flag), haldStatusOk);
        ASSERT_TRUE(equal(both.values(), expected))
            << kernel.name << " in place, input " << number << " flag " << scale.flag
            << " misaligned by " << from;
      }
    }
  }
}

template <class Float>
void expect_bits_of_program(const LiveKernel& kernel) {
  const Programs programs =
      kernel_programs(kernel.length, kernel.type, tuning_of(kernel.length, kernel.type));
  const Program& program = kernel.inverse ? programs.inverse : programs.forward;
  expect_everywhere<Float>(
      kernel, inputs<Float>(kernel.length),
      [&](const std::vector<Float>& source, Float scale) {
        std::vector<Float> result(source.size());
        kernelgen::interpret(program, source, scale, result);
        return result;
      },
      test::identical<Float>);
}

template <class Float>
void expect_bits_of_graph(const LiveKernel& kernel) {
  const auto graph = kernel_graph(kernel.length, kernel.type);
  const bool reverse = kernel.inverse && is_reversed(kernel);
  const bool mirror = kernel.inverse && !reverse;
  const auto expected = [&](const std::vector<Float>& source, Float scale) {
    if (mirror) {
      return exchanged_parts(kernelgen::test::direct(graph, exchanged_parts(source), scale));
    }
    const auto forward = kernelgen::test::direct(graph, source, scale);
    return reverse ? reversed(forward) : forward;
  };
  expect_everywhere<Float>(kernel, inputs<Float>(kernel.length), expected,
                           kernelgen::test::same_bits<Float>);
}

template <class Float>
void expect_bits_of_forward(const LiveKernel& kernel, const LiveKernel& forward) {
  for (const auto& source : inputs<Float>(kernel.length)) {
    const auto expected =
        is_reversed(kernel)
            ? reversed(called(forward, source, haldScaleNone))
            : exchanged_parts(called(forward, exchanged_parts(source), haldScaleNone));
    ASSERT_TRUE(test::identical(called(kernel, source, haldScaleNone), expected)) << kernel.name;
  }
}

TEST(Bits, AllKernelsAreLive) { EXPECT_EQ(test::live_kernels().size(), 252U); }

// Signs of zeros included. Which they are is decided with the forms of a program's values, and that
// takes long for the longer ones; the tests below see to all of them.
TEST(Bits, ShortKernelsEqualTheirPrograms) {
  for (const LiveKernel& kernel : test::live_kernels()) {
    if (kernel.length > 16 && kernel.length != 19 && kernel.length != 32) continue;
    if (kernel.type == ElementType::c32) {
      expect_bits_of_program<float>(kernel);
    } else {
      expect_bits_of_program<double>(kernel);
    }
  }
}

TEST(Bits, KernelsOf32BitElementsEqualTheirGraphs) {
  for (const LiveKernel& kernel : test::live_kernels()) {
    // Lengths 3 and 5 have 64-bit steps, which the graph does not say.
    if (kernel.type != ElementType::c32 || kernel.length == 3 || kernel.length == 5) continue;
    expect_bits_of_graph<float>(kernel);
  }
}

TEST(Bits, KernelsOf64BitElementsEqualTheirGraphs) {
  for (const LiveKernel& kernel : test::live_kernels()) {
    if (kernel.type == ElementType::c64) expect_bits_of_graph<double>(kernel);
  }
}

TEST(Bits, InverseKernelsEqualForwardOnes) {
  for (const LiveKernel& kernel : test::live_kernels()) {
    if (!kernel.inverse) continue;
    for (const LiveKernel& forward : test::live_kernels()) {
      if (forward.inverse || forward.length != kernel.length || forward.type != kernel.type)
        continue;
      if (kernel.type == ElementType::c32) {
        expect_bits_of_forward<float>(kernel, forward);
      } else {
        expect_bits_of_forward<double>(kernel, forward);
      }
    }
  }
}

template <class Float>
void expect_bits_of_every_tuning(const LiveKernel& kernel) {
  const auto source = test::random_floats<Float>(2 * at(kernel.length), 5);
  const auto expected = called(kernel, source, haldScaleNone);
  const auto expect_same = [&](const Tuning& tuning) {
    const Programs programs = kernel_programs(kernel.length, kernel.type, tuning);
    std::vector<Float> result(source.size());
    kernelgen::interpret(kernel.inverse ? programs.inverse : programs.forward, source, Float{1},
                         result);
    EXPECT_TRUE(test::identical(result, expected))
        << kernel.name << " " << name_of(tuning.forward.order) << " seed " << tuning.seed;
  };
  for (const Order order : {Order::program, Order::bisection, Order::pressure, Order::critical}) {
    expect_same({0, {order, 6}, {order, 6}});
  }
  for (const int seed : {1, 2}) expect_same({seed, {}, {}});
}

TEST(Bits, DoNotDependOnTheTuning) {
  for (const LiveKernel& kernel : test::live_kernels()) {
    const int n = kernel.length;
    if (kernel.inverse || (n != 4 && n != 9 && n != 13 && n != 16 && n != 20)) continue;
    if (kernel.type == ElementType::c32) {
      expect_bits_of_every_tuning<float>(kernel);
    } else {
      expect_bits_of_every_tuning<double>(kernel);
    }
  }
}

}  // namespace
}  // namespace haldgen::dft_complex
