// Graphs and programs against the definition of the transform.
#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "kernelgen/evaluate.h"
#include "kernelgen/integers.h"
#include "tests/complex/kernels.h"

namespace haldgen::dft_complex {
namespace {

using kernelgen::at;
using kernelgen::Wide;
using kernelgen::WideComplex;

std::vector<WideComplex> transform(const std::vector<WideComplex>& x, bool inverse) {
  const int n = static_cast<int>(x.size());
  std::vector<WideComplex> y;
  for (int k = 0; k < n; ++k) {
    WideComplex sum;
    for (int j = 0; j < n; ++j) {
      sum = sum + kernelgen::root(n, (inverse ? -1 : 1) * k * j) * x[at(j)];
    }
    y.push_back(sum);
  }
  return y;
}

/// Distance over length, in the Euclidean norm.
double relative_error(const std::vector<WideComplex>& actual,
                      const std::vector<WideComplex>& expected) {
  double error = 0, norm = 0;
  for (std::size_t k = 0; k < expected.size(); ++k) {
    const WideComplex d = actual[k] - expected[k];
    error += d.re.hi * d.re.hi + d.im.hi * d.im.hi;
    norm += expected[k].re.hi * expected[k].re.hi + expected[k].im.hi * expected[k].im.hi;
  }
  return std::sqrt(error / norm);
}

/// Numbers in -1..1 of 24 bits, exact in both element types.
std::vector<WideComplex> random_elements(int n) {
  std::mt19937 engine(static_cast<unsigned>(n));
  const auto number = [&] {
    return Wide(static_cast<double>(static_cast<std::int32_t>(engine()) >> 8) * 0x1p-23);
  };
  std::vector<WideComplex> x;
  for (int j = 0; j < n; ++j) {
    const Wide re = number();
    x.push_back({re, number()});
  }
  return x;
}

TEST(Value, EveryGraphIsTheTransform) {
  for (const auto& kernel : test::all_kernels()) {
    const auto x = random_elements(kernel.length);
    const auto y = evaluate(kernel_graph(kernel.length, kernel.type), x);
    EXPECT_LT(relative_error(y, transform(x, false)), 1e-29) << kernel.text();
  }
}

TEST(Value, EveryGraphWithFillersIsTheTransform) {
  for (const auto& kernel : test::all_kernels()) {
    if (kernel.type != ElementType::c32) continue;
    const auto x = random_elements(kernel.length);
    const auto y = evaluate(expand(recipe_of(kernel.length, kernel.type), true), x);
    EXPECT_LT(relative_error(y, transform(x, false)), 1e-29) << kernel.text();
  }
}

template <class Float>
void expect_program(int length, ElementType type, bool inverse) {
  const auto x = random_elements(length);
  std::vector<Float> source;
  for (const WideComplex& v : x) {
    source.push_back(static_cast<Float>(v.re.hi));
    source.push_back(static_cast<Float>(v.im.hi));
  }
  std::vector<Float> result(source.size());
  const Programs programs = kernel_programs(length, type, tuning_of(length, type));
  kernelgen::interpret(inverse ? programs.inverse : programs.forward, source, Float{1}, result);
  std::vector<WideComplex> y;
  for (std::size_t k = 0; k < result.size(); k += 2) {
    y.push_back({double{result[k]}, double{result[k + 1]}});
  }
  const double epsilon = std::numeric_limits<Float>::epsilon();
  EXPECT_LT(relative_error(y, transform(x, inverse)), epsilon * (1 + std::log2(length)))
      << length << suffix(type) << (inverse ? " inverse" : "");
}

// The longer ones differ from these in nothing but time.
TEST(Value, ShortPrograms) {
  for (int n = kFirstLength; n <= 20; ++n) {
    for (const bool inverse : {false, true}) {
      expect_program<float>(n, ElementType::c32, inverse);
      expect_program<double>(n, ElementType::c64, inverse);
    }
  }
}

}  // namespace
}  // namespace haldgen::dft_complex
