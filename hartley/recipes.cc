// Rows of the design table.
#include "hartley/recipes.h"

#include <utility>

#include "kernelgen/design_table.h"
#include "real_blocks/pieces.h"
#include "real_blocks/rules.h"

namespace haldgen::hartley {
namespace {

// The table is written in these words.
using namespace real_blocks;          // NOLINT(google-build-using-namespace)
using namespace real_blocks::pieces;  // NOLINT(google-build-using-namespace)
using kernelgen::DesignTable;
using kernelgen::Into;
using kernelgen::WideSums;

Design paired(Recipe recipe, Into fold = Into::foldable, WideSums wide_sums = {}) {
  return {totalled_by_power(std::move(recipe)), Structure::paired, fold, wide_sums};
}

Design transposed(Recipe recipe, Into fold = Into::foldable, WideSums wide_sums = {}) {
  return {totalled_by_power(std::move(recipe)), Structure::paired_transposed, fold, wide_sums};
}

DesignTable<Design> designs() {
  constexpr auto spectral = Into::foldable;
  constexpr auto all = Into::all;
  constexpr auto none = Into::none;
  const Recipe eight = power_of_two(8);
  const Recipe sixteen = power_of_two(16);
  const Recipe nineteen_relabelled =
      rader(19, coprime(nine, two), nine, alternated(relabelled(2, nine)));
  // The twist of the odd half comes before its transform of half the size, not after.
  const Recipe thirteen = rader(13, halves(coprime(three, two), twisted(three)),
                                coprime(two, three), coprime_odd(three, odd_two));
  const Recipe fifty_three = rader(
      53, coprime(four, thirteen_by_column), coprime(two, shifted(1, thirteen_classes_three_first)),
      classes(alternated(shifted(2, thirteen_classes_three_first)), two, odd_two));
  const Recipe twenty_nine_two_first = rader(29, coprime(seven, four), coprime(two, seven),
                                             classes(alternated(seven), two, odd_two));
  const Recipe fifty_nine_two_first =
      rader(59, coprime(twenty_nine_two_first, two), twenty_nine_two_first,
            alternated(shifted(1, twenty_nine_two_first)));
  return {
      {2, paired(two)},
      {3, paired(three)},
      {4, paired(four)},
      {5, paired(five)},
      {6, turned(paired(coprime(three, two)), {{1, 1}})},
      {7, paired(seven)},
      {8, turned(paired(eight), {{3, 1}})},
      {9, paired(nine)},
      {10, paired(coprime(five, two))},
      {11, paired(direct(11))},
      {12, turned(transposed(coprime(four, three)),
                  {{3, 1, 0}, {3, 1, 1, 1}, {1, 1, 1}, {1, 0, 1, 1}})},
      {13, paired(thirteen)},
      {14, paired(coprime(seven, two))},
      {15, transposed(coprime(five, three))},
      {16, paired(sixteen)},
      {17, paired(seventeen)},
      {18, transposed(coprime(nine, two))},
      {19, paired(nineteen_relabelled, all, {2, -2})},
      {20, transposed(coprime(four, five))},
      {21, paired(coprime(seven, three))},
      {22, paired(coprime(two, direct(11)))},
      {23, paired(twenty_three_direct)},
      {24, paired(coprime(three, eight))},
      {25, transposed(twenty_five)},
      {26, paired(coprime(thirteen_from_behind, two), all)},
      {27, transposed(twenty_seven, spectral, {1, -1})},
      {28, transposed(coprime(seven, four))},
      {29, paired(twenty_nine)},
      {30, transposed(coprime(coprime(two, five), three))},
      {31, transposed(thirty_one_five_first, none, {4, -4})},
      {32, transposed(thirty_two_halves)},
      {33, transposed(coprime(rader_eleven, three))},
      {34, transposed(coprime(two, seventeen))},
      {35, transposed(coprime(seven, five))},
      {36, transposed(coprime(nine, four))},
      {37, transposed(thirty_seven_twisted, spectral, {2, -2})},
      {38, paired(coprime(nineteen_relabelled, two), all, {4, -4})},
      {39, paired(coprime(thirteen_from_behind, three), all)},
      {40, transposed(coprime(eight, five))},
      {41, paired(forty_one)},
      {42, transposed(coprime(coprime(seven, three), two))},
      {43, transposed(rader(43, coprime(three, coprime(two, seven)), coprime(seven, three),
                            alternated(coprime(seven, three))))},
      {44, transposed(coprime(rader_eleven, four))},
      {45, transposed(coprime(nine, five))},
      {46, transposed(coprime(two, twenty_three_direct))},
      {47, paired(rader(47, coprime(twenty_three_nested, two), twenty_three_direct,
                        alternated(shifted(1, twenty_three_direct))),
                  spectral, {19, -5})},
      {48, transposed(coprime(three, sixteen_decimated))},
      {49, paired(cooley_tukey(seven, seven))},
      {50, paired(coprime(twenty_five, two))},
      {51, transposed(coprime(seventeen, three))},
      {52, paired(coprime(thirteen_from_behind, four), all)},
      {53, paired(fifty_three, spectral, {6, -6})},
      {54, transposed(coprime(two, twenty_seven), spectral, {6, -6})},
      {55, transposed(coprime(rader_eleven, five))},
      {56, transposed(coprime(seven, eight))},
      {57, paired(coprime(nineteen_relabelled, three), all, {6, -6})},
      {58, paired(coprime(two, twenty_nine))},
      {59, paired(fifty_nine_two_first, spectral, {18, -6})},
      {60, transposed(coprime(coprime(five, three), four))},
      {61, paired(sixty_one_five_first, all, {8, -8})},
      {62, transposed(coprime(two, rader(31, coprime(two, coprime(three, five)),
                                         coprime(five, three), alternated(coprime(five, three)))),
                      none, {18, -13})},
      {63, paired(coprime(seven, nine))},
      {64, transposed(sixty_four_halves)},
  };
}

DesignTable<Design>& table() {
  static DesignTable<Design> rows = designs();
  return rows;
}

}  // namespace

const Design& design_of(int length) {
  return kernelgen::row_of(table(), length, [](int without_row) {
    return paired(recipe_by_rule(
        without_row, [](int row) { return design_of(row).recipe; },
        [](const Recipe& recipe) { return operations_of(paired(recipe)); }));
  });
}

}  // namespace haldgen::hartley
