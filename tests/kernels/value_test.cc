// The graphs against the definitions of the transforms, in wide arithmetic.
#include <gtest/gtest.h>

#include <cmath>

#include "dft_complex/recipes.h"
#include "dft_real/recipes.h"
#include "hartley/recipes.h"
#include "kernelgen/design_table.h"
#include "kernelgen/evaluate.h"
#include "tests/built/library.h"

namespace haldgen::test {
namespace {

using dft_real::Direction;
using kernelgen::FloatType;
using kernelgen::Wide;
using kernelgen::WideComplex;
using Inputs = std::vector<WideComplex>;

/// The library's lengths and those for which there are rules.
std::set<int> all_lengths(std::string_view word) {
  std::set<int> lengths = lengths_of(word);
  for (int n = *lengths.rbegin() + 1; n <= kernelgen::kLongestByRule; ++n) lengths.insert(n);
  return lengths;
}

/// Random numbers, or complex ones.
Inputs random_inputs(int count, bool complex) {
  const auto n = static_cast<std::size_t>(count);
  const auto numbers = random_floats<float>(2 * n, static_cast<unsigned>(count));
  Inputs inputs;
  for (std::size_t i = 0; i < n; ++i) {
    inputs.push_back({Wide(double{numbers[i]}), complex ? double{numbers[n + i]} : 0.0});
  }
  return inputs;
}

/// Output k is the sum of input j times factor(root, j, k), where root(i) is exp(-2 pi i / count).
template <class Factor>
void expect_sums(const kernelgen::Graph& graph, int count, bool complex, const std::string& name,
                 const Factor& factor) {
  Inputs roots;
  for (int i = 0; i < count; ++i) roots.push_back(kernelgen::root(count, i));
  const auto root = [&](int i) { return roots[static_cast<std::size_t>(i % count)]; };
  const Inputs x = random_inputs(count, complex);
  const Inputs y = evaluate(graph, x);
  ASSERT_EQ(y.size(), x.size()) << name;
  double error = 0, norm = 0;
  for (int k = 0; k < count; ++k) {
    WideComplex sum;
    for (int j = 0; j < count; ++j) sum = sum + factor(root, j, k) * x[static_cast<std::size_t>(j)];
    const WideComplex difference = y[static_cast<std::size_t>(k)] - sum;
    error += std::pow(difference.re.hi, 2) + std::pow(difference.im.hi, 2);
    norm += std::pow(sum.re.hi, 2) + std::pow(sum.im.hi, 2);
  }
  EXPECT_LT(std::sqrt(error / norm), 1e-29) << name;
}

TEST(Value, OfComplexGraphs) {
  for (const int n : all_lengths("DFTFwd_CToC")) {
    for (const auto type : {FloatType::f32, FloatType::f64}) {
      expect_sums(graph_of(dft_complex::design_of(n, type)), n, true,
                  std::to_string(n) + std::string(type == FloatType::f32 ? "32fc" : "64fc"),
                  [](const auto& root, int j, int k) { return root(j * k); });
    }
  }
}

TEST(Value, OfRealGraphs) {
  // Value i of a half spectrum, of R(0), R(1), I(1), .., from sample j.
  const auto forward = [](const auto& root, int j, int i) {
    const WideComplex turn = root((i + 1) / 2 * j);
    return WideComplex{i > 0 && i % 2 == 0 ? turn.im : turn.re, 0.0};
  };
  for (const int n : all_lengths("DFTFwd_RToCCS")) {
    const std::string name = std::to_string(n);
    expect_sums(graph_of(dft_real::design_of(n, Direction::forward)), n, false, name + " forward",
                forward);
    expect_sums(graph_of(dft_real::design_of(n, Direction::inverse)), n, false, name + " inverse",
                [&](const auto& root, int i, int j) {
                  const bool alone = i == 0 || (i + 1 == n && n % 2 == 0);
                  return Wide(alone ? 1.0 : 2.0) * forward(root, j, i);
                });
  }
}

TEST(Value, OfHartleyGraphs) {
  for (const int n : all_lengths("Hartley")) {
    expect_sums(graph_of(hartley::design_of(n)), n, false, std::to_string(n),
                [](const auto& root, int j, int k) {
                  const WideComplex turn = root(j * k);
                  return WideComplex{turn.re - turn.im, 0.0};
                });
  }
}

}  // namespace
}  // namespace haldgen::test
