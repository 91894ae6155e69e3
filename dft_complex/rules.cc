#include "dft_complex/rules.h"

#include <limits>
#include <numeric>
#include <utility>
#include <vector>

#include "dft_complex/recipes.h"
#include "kernelgen/count.h"

namespace haldgen::dft_complex {
namespace {

using kernelgen::Access;
using kernelgen::FloatType;
using kernelgen::Graph;

/// A stage of a shorter length. Convolutions with literal constants run on whole elements, which is
/// for kernels of their own; inside of others the 64-bit row's serve.
Recipe block(int length, FloatType type) {
  const Recipe& own = design_of(length, type).recipe;
  const bool literal = own.method == Method::rader || own.method == Method::bluestein;
  return literal ? design_of(length, FloatType::f64).recipe : own;
}

std::vector<Recipe> two_stages(int length, FloatType type) {
  std::vector<Recipe> all;
  for (int first = 2; first < length; ++first) {
    const int second = length / first;
    if (length % first != 0 || second == 1) continue;
    if (std::gcd(first, second) == 1) {
      all.push_back(coprime(block(first, type), block(second, type)));
      continue;
    }
    const Recipe recipe = cooley_tukey(block(first, type), block(second, type));
    if (type == FloatType::f64) {
      all.push_back(with_eighths_sum_first(recipe));
    } else {
      all.push_back(recipe);
      all.push_back(with_late_twiddles(recipe));
    }
  }
  return all;
}

}  // namespace

Design design_by_rule(int length, FloatType type) {
  std::vector<Recipe> ways = two_stages(length, type);
  if (ways.empty()) {
    if (type == FloatType::f32) return {rader(length, design_of(length - 1, type).recipe)};
    for (const Recipe& convolution : two_stages(length - 1, type)) {
      ways.push_back(folded_there(joined_rader(length, convolution)));
    }
  }
  const bool pairs = type == FloatType::f32;
  Design best{ways.front()};
  std::pair<int, int> least{std::numeric_limits<int>::max(), 0};
  for (const Recipe& way : ways) {
    const Graph graph = expand(way, pairs);
    const kernelgen::Counts counts = count(graph);
    for (const Access access : {Access::singles, Access::pairs, Access::pairs_and_lone}) {
      const std::pair work(vector_operations(pack(graph, pairs ? 2 : 1, access)),
                           counts.additions + counts.multiplications);
      if (work < least) {
        least = work;
        best.recipe = way;
        best.access = access;
      }
      if (!pairs) break;  // one element fills a vector
    }
  }
  return best;
}

}  // namespace haldgen::dft_complex
