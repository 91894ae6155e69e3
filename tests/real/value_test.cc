// The graphs against the definition of the transform, in wide arithmetic.
#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "dft_real/kernel.h"
#include "kernelgen/count.h"
#include "kernelgen/evaluate.h"
#include "real_blocks/pieces.h"

namespace haldgen::dft_real {
namespace {

using kernelgen::Wide;
using kernelgen::WideComplex;

std::size_t at(int k) { return static_cast<std::size_t>(k); }

/// Numbers in -1..1 of 24 bits.
std::vector<Wide> random_numbers(int count) {
  std::mt19937 engine(static_cast<unsigned>(count));
  std::vector<Wide> numbers;
  for (int i = 0; i < count; ++i) {
    numbers.emplace_back(static_cast<double>(static_cast<std::int32_t>(engine()) >> 8) * 0x1p-23);
  }
  return numbers;
}

/// Bin k of value i: R(0), R(1), I(1), ..
int bin_of(int i) { return (i + 1) / 2; }
bool is_imaginary(int i) { return i > 0 && i % 2 == 0; }

std::vector<Wide> forward(const std::vector<Wide>& x) {
  const int n = static_cast<int>(x.size());
  std::vector<Wide> values;
  for (int i = 0; i < n; ++i) {
    Wide sum;
    for (int j = 0; j < n; ++j) {
      const int turn = bin_of(i) * j % n;
      sum += (is_imaginary(i) ? -kernelgen::sin_turn(turn, n) : kernelgen::cos_turn(turn, n)) *
             x[at(j)];
    }
    values.push_back(sum);
  }
  return values;
}

std::vector<Wide> inverse(const std::vector<Wide>& values) {
  const int n = static_cast<int>(values.size());
  std::vector<Wide> x;
  for (int j = 0; j < n; ++j) {
    Wide sum;
    for (int i = 0; i < n; ++i) {
      const int k = bin_of(i);
      const int turn = k * j % n;
      const Wide factor =
          is_imaginary(i) ? -kernelgen::sin_turn(turn, n) : kernelgen::cos_turn(turn, n);
      const Wide weight = k == 0 || 2 * k == n ? 1.0 : 2.0;
      sum += weight * factor * values[at(i)];
    }
    x.push_back(sum);
  }
  return x;
}

double relative_error(const kernelgen::Graph& graph, const std::vector<Wide>& source,
                      const std::vector<Wide>& expected) {
  std::vector<WideComplex> inputs;
  for (const Wide v : source) inputs.push_back({v, 0.0});
  const auto actual = evaluate(graph, inputs);
  double error = 0, norm = 0;
  for (std::size_t i = 0; i < expected.size(); ++i) {
    error += std::pow((actual.at(i).re - expected[i]).hi, 2);
    norm += std::pow(expected[i].hi, 2);
  }
  return actual.size() == expected.size() ? std::sqrt(error / norm) : 1;
}

TEST(Value, EveryGraphIsTheTransform) {
  for (const int n : lengths()) {
    const std::vector<Wide> source = random_numbers(n);
    EXPECT_LT(relative_error(kernel_graph(n, Direction::forward), source, forward(source)), 1e-29)
        << n;
    EXPECT_LT(relative_error(kernel_graph(n, Direction::inverse), source, inverse(source)), 1e-29)
        << n;
  }
}

// Rows that leave the signs of their outputs to the recipe, of lengths that no table has too.
TEST(Value, RowsWithoutSignsAreTheTransform) {
  using namespace real_blocks::pieces;  // NOLINT(google-build-using-namespace)
  std::vector<Design> designs;
  for (const int n : lengths()) designs.push_back(design_of(n, Direction::forward));
  for (const auto eighth :
       {kernelgen::EighthRoot::sum_first, kernelgen::EighthRoot::full_product}) {
    designs.push_back({real_blocks::coprime(nine, real_blocks::power_of_two(8, eighth)),
                       real_blocks::Structure::spectrum, kernelgen::Into::all});
  }
  for (Design& design : designs) {
    const kernelgen::Counts listed = count(graph_of(design));
    design.negated.reset();
    const kernelgen::Graph graph = graph_of(design);
    const std::vector<Wide> source = random_numbers(design.recipe.length);
    EXPECT_LT(relative_error(graph, source, forward(source)), 1e-29) << source.size();
    EXPECT_EQ(count(graph).additions, listed.additions) << source.size();
    EXPECT_EQ(count(graph).multiplications, listed.multiplications) << source.size();
  }
}

TEST(Value, ASignThatCannotBeNamesBinAndWayOut) {
  Design design = design_of(5, Direction::forward);
  const auto error_of = [&](std::vector<int> negated) -> std::string {
    design.negated = std::move(negated);
    try {
      graph_of(design);
    } catch (const std::logic_error& error) {
      return error.what();
    }
    return "";
  };
  EXPECT_EQ(error_of({2}), "");
  EXPECT_EQ(error_of({1}),
            "real DFT of length 5, bin 2: output 4 cannot carry a plus: no difference behind it "
            "can be turned around; change `negated` there or leave it out");
  EXPECT_EQ(error_of({3}), "bin 3 has no imaginary part to negate");
}

}  // namespace
}  // namespace haldgen::dft_real
