#include "real_blocks/rules.h"

#include <bit>
#include <limits>
#include <numeric>
#include <vector>

#include "real_blocks/pieces.h"

namespace haldgen::real_blocks {
namespace {

using Row = std::function<Recipe(int)>;

/// Blocks of the odd bins of twice the length.
std::vector<Recipe> odd_ways(int length, const Row& row) {
  if (length % 2 != 0) return {alternated(row(length))};
  std::vector<Recipe> all{twisted(row(length / 2))};
  const int odd = length / (length & -length);
  if (odd != 1) {
    for (const Recipe& half : odd_ways(length / 2, row)) {
      all.push_back(classes(half, pieces::two, pieces::odd_two));
    }
  }
  return all;
}

std::vector<Recipe> ways(int length, const Row& row) {
  std::vector<Recipe> all;
  std::vector<Recipe> twiddled;
  for (int first = 2; first < length; ++first) {
    const int second = length / first;
    if (length % first != 0 || second == 1) continue;
    const bool apart = std::gcd(first, second) == 1;
    (apart ? all : twiddled).push_back((apart ? coprime : cooley_tukey)(row(first), row(second)));
  }
  if (!all.empty()) return all;
  if (std::has_single_bit(static_cast<unsigned>(length))) {
    all.push_back(power_of_two(length, EighthRoot::sum_first));
    for (const Recipe& odd : odd_ways(length / 2, row)) all.push_back(halves(row(length / 2), odd));
    all.push_back(
        halves(row(length / 2), classes(twisted(row(length / 8)), pieces::two, pieces::odd_two)));
    return all;
  }
  if (!twiddled.empty()) return twiddled;
  const int half = (length - 1) / 2;
  for (const Recipe& odd : odd_ways(half, row)) {
    all.push_back(rader(length, row(length - 1), row(half), odd));
  }
  return all;
}

}  // namespace

Recipe recipe_by_rule(int length, const Row& row,
                      const std::function<int(const Recipe&)>& work_of) {
  int least = std::numeric_limits<int>::max();
  Recipe best = pieces::two;
  for (const Recipe& way : ways(length, row)) {
    const int work = work_of(way);
    if (work >= least) continue;
    least = work;
    best = way;
  }
  return best;
}

}  // namespace haldgen::real_blocks
