// Rows of the design table. Names of blocks are their lengths; where a length has several forms,
// the name says which.
#include "dft_real/recipes.h"

#include <utility>

#include "kernelgen/design_table.h"
#include "real_blocks/pieces.h"
#include "real_blocks/rules.h"

namespace haldgen::dft_real {
namespace {

// The table is written in these words.
using namespace real_blocks;          // NOLINT(google-build-using-namespace)
using namespace real_blocks::pieces;  // NOLINT(google-build-using-namespace)

using kernelgen::DesignTable;
using kernelgen::Into;

/// Without a list, outputs have the signs that the recipe leaves them with.
Design forward(Recipe recipe) { return {std::move(recipe), Structure::spectrum, Into::all}; }

Design forward(Recipe recipe, std::vector<int> negated, int wide_additions = 0) {
  Design design = forward(std::move(recipe));
  design.negated = std::move(negated);
  design.wide_sums = {wide_additions};
  return design;
}

Design transposed(Recipe recipe, int wide_additions = 0, Into fold = Into::foldable) {
  return {std::move(recipe), Structure::samples, fold, {wide_additions}};
}

DesignTable<Design> forward_designs() {
  const Recipe eight = power_of_two(8);
  const Recipe sixteen = power_of_two(16);
  const Recipe eleven = direct(11);
  const Recipe& thirteen = thirteen_from_behind;
  const Recipe& twenty_three = twenty_three_nested;
  const Recipe& thirty_one = thirty_one_five_first;
  const Recipe fifty_three =
      rader(53, coprime(four, thirteen_classes_three_first), coprime(two, thirteen_twisted),
            classes(alternated(thirteen_classes), two, odd_two));
  const Recipe& sixty_one = sixty_one_five_first;
  return {
      {2, forward(two)},
      {3, forward(three, {1})},
      {4, forward(four, {1})},
      {5, forward(five, {2})},
      {6, forward(coprime(three, two), {1})},
      {7, forward(seven, {2})},
      {8, forward(eight, {1, 2, 3})},
      {9, forward(nine, {1, 2, 3})},
      {10, forward(coprime(five, two), {2, 3, 4})},
      {11, forward(eleven, {1})},
      {12, forward(coprime(four, three), {1, 4, 5})},
      {13, turned(forward(thirteen, {4, 6}), {{6, 1, 1}, {6, 1}})},
      {14, forward(coprime(two, seven), {2, 4, 6})},
      {15, forward(coprime(three, five), {2, 4, 7})},
      {16, forward(sixteen, {1, 2, 3, 4, 6, 7})},
      {17, forward(seventeen, {1, 3, 4, 5, 8})},
      {18, forward(coprime(two, relabelled(2, nine)), {1, 2, 3, 5})},
      {19, forward(nineteen, {2, 5, 8, 9}, 2)},
      {20, forward(coprime(five, four), {1, 3, 4, 5, 9})},
      {21, forward(coprime(seven, three), {1, 4, 5, 6, 7, 9})},
      {22, forward(coprime(two, eleven), {6, 7, 8, 9, 10})},
      {23, forward(twenty_three, {8, 9, 10, 11})},
      {24, forward(coprime(three, eight), {2, 3, 5, 9, 11})},
      {25, forward(twenty_five, {3, 4, 8, 9, 10, 12})},
      {26, forward(coprime(thirteen, two), {2, 4, 6, 8, 9, 11, 12})},
      {27, forward(twenty_seven, {2, 3, 5, 6, 8, 9, 10, 11})},
      {28, forward(coprime(four, seven), {2, 3, 4, 6, 9, 11, 13})},
      {29, forward(twenty_nine, {2, 3, 4, 6, 8, 9, 12, 14})},
      {30, forward(coprime(coprime(five, three), two), {1, 4, 8, 9, 10, 11, 12, 13, 14})},
      {31, forward(thirty_one, {3, 6, 8, 9, 10, 13}, 4)},
      {32, forward(power_of_two(32, EighthRoot::sum_first), {1, 2, 4, 5, 6, 7, 8, 12, 14, 15})},
      {33, forward(coprime(eleven, three), {1, 4, 6, 7, 8, 9, 10, 13})},
      {34, forward(coprime(two, seventeen), {3, 4, 5, 7, 9, 11, 15, 16})},
      {35, forward(coprime(seven, five), {2, 4, 6, 7, 9, 11, 12, 13})},
      {36, forward(coprime(nine, four), {1, 2, 5, 6, 7, 9, 12, 14, 15, 17})},
      {37, forward(rader(37, coprime(four, nine), coprime(nine, two),
                         classes(alternated(three), coprime(two, three), odd_six)),
                   {2, 4, 8, 9, 11, 13, 15, 16}, 5)},
      {38, forward(coprime(nineteen, two), {1, 2, 3, 4, 5, 8, 11, 13, 15, 16, 17, 18}, 4)},
      {39, forward(coprime(thirteen, three), {1, 3, 4, 6, 7, 8, 10, 11, 12, 13, 15})},
      {40, forward(coprime(eight, five), {2, 4, 6, 7, 9, 10, 12, 13, 14, 17, 19})},
      {41, forward(forty_one, {2, 4, 6, 7, 8, 10, 11, 18, 19})},
      {42, forward(coprime(coprime(seven, three), two), {1, 4, 6, 11, 13, 15, 17, 18, 19, 20})},
      {43, forward(rader(43, coprime(two, coprime(three, seven)), coprime(seven, three),
                         alternated(coprime(seven, three))),
                   {1, 3, 4, 7, 9, 10, 12, 14, 19}, 6)},
      {44, forward(coprime(eleven, four), {1, 6, 7, 8, 9, 10, 17, 18, 19, 20, 21})},
      {45, forward(coprime(five, nine), {3, 4, 5, 8, 9, 10, 12, 13, 14, 19, 20})},
      {46, forward(coprime(two, twenty_three), {2, 4, 5, 8, 9, 10, 11, 16, 17, 20, 22}, 9)},
      {47, forward(rader(47, coprime(twenty_three_direct, two), shifted(1, twenty_three),
                         alternated(shifted(1, twenty_three))),
                   {10, 11, 13, 15, 17, 18, 19, 21, 23}, 19)},
      {48, forward(coprime(sixteen, three), {1, 3, 4, 6, 7, 9, 10, 11, 13, 14, 16, 18, 19, 22})},
      {49, forward(cooley_tukey(seven, seven), {2, 4, 5, 6, 11, 12, 13, 14, 18, 19, 20})},
      {50, forward(coprime(twenty_five, two),
                   {1, 3, 4, 5, 7, 8, 10, 12, 13, 14, 15, 17, 18, 19, 20, 21, 23, 24})},
      {51, forward(coprime(seventeen, three),
                   {1, 3, 4, 7, 9, 10, 11, 13, 14, 15, 16, 19, 21, 22, 24, 25})},
      {52, forward(coprime(thirteen, four), {1, 4, 7, 8, 9, 10, 11, 12, 13, 16, 21, 22, 23, 25})},
      {53, forward(fifty_three, {2, 4, 8, 11, 12, 13, 14, 15, 16, 17, 22, 23, 24, 26}, 6)},
      {54, forward(coprime(two, twenty_seven), {2, 3, 5, 6, 8, 9, 10, 11, 14, 15, 20, 23, 26}, 4)},
      {55, forward(coprime(eleven, five), {2, 4, 6, 7, 8, 9, 10, 12, 17, 18, 19, 20, 21, 22})},
      {56, forward(coprime(seven, eight), {1, 4, 5, 6, 11, 12, 13, 16, 18, 19, 20, 25, 26, 27})},
      {57, forward(coprime(nineteen, three),
                   {1, 4, 7, 9, 10, 11, 13, 14, 16, 17, 18, 19, 21, 22, 24, 27}, 6)},
      {58, forward(coprime(two, twenty_nine), {2, 3, 4, 6, 7, 8, 9, 12, 14, 16, 18, 19, 24, 28})},
      {59, forward(fifty_nine, {2, 4, 11, 14, 20, 21, 22, 23, 28, 29}, 18)},
      {60, forward(coprime(coprime(three, five), four),
                   {1, 2, 5, 6, 8, 9, 10, 11, 12, 13, 14, 15, 23, 24, 25, 26, 27, 29})},
      {61, forward(sixty_one, {2, 3, 4, 5, 11, 14, 16, 18, 19, 20, 22, 24, 27, 30}, 8)},
      {62,
       forward(coprime(thirty_one, two),
               {1, 3, 5, 6, 7, 8, 9, 10, 11, 16, 17, 19, 20, 21, 23, 24, 25, 26, 27, 29, 30}, 18)},
      {63, forward(coprime(seven, nine),
                   {3, 4, 5, 6, 9, 11, 12, 13, 14, 18, 19, 20, 21, 22, 25, 26, 27, 28})},
      {64, forward(power_of_two(64, EighthRoot::sum_first),
                   {1, 2, 3, 4, 8, 9, 10, 11, 12, 13, 14, 15, 16, 24, 27, 28, 29, 30, 31})},
  };
}

DesignTable<Design> inverse_designs() {
  constexpr auto unfolded = Into::none;
  const Recipe eight = power_of_two(8, EighthRoot::sum_first);
  const Recipe sixteen = power_of_two(16);
  const Recipe eleven = rader(11, coprime(permuted(2, five), two), five, alternated(five));
  const Recipe& thirteen = thirteen_twisted;
  const Recipe seventeen_products_first =
      rader(17, power_of_two(16), power_of_two(8), twisted(four, EighthRoot::products_first));
  const Recipe& twenty_three = twenty_three_direct;
  const Recipe thirty_one = rader(31, coprime(three, coprime(five, two)), coprime(three, five),
                                  alternated(coprime(three, five)));
  const Recipe fifty_three =
      rader(53, coprime(four, thirteen_classes_three_first), coprime(two, thirteen_classes),
            classes(alternated(thirteen_classes), two, odd_two));
  const Recipe sixty_one =
      rader(61, coprime(coprime(three, five), four), coprime(two, coprime(three, five)),
            classes(alternated(coprime(three, five)), two, odd_two));
  return {
      {2, transposed(two)},
      {3, transposed(three)},
      {4, transposed(four)},
      {5, transposed(five)},
      {6, transposed(coprime(three, two))},
      {7, transposed(seven)},
      {8, turned(transposed(eight), {{2, 1}})},
      {9, transposed(nine)},
      {10, transposed(coprime(five, two))},
      {11, turned(transposed(eleven), {{5, 1, 0, 0, 1, 1}, {5, 1, 0, 0}, {5, 1, 0}})},
      {12, transposed(coprime(four, three))},
      {13, transposed(thirteen)},
      {14, transposed(coprime(two, seven))},
      {15, transposed(coprime(five, three))},
      {16, transposed(sixteen)},
      {17, transposed(seventeen_products_first)},
      {18, transposed(coprime(nine, two))},
      {19, transposed(nineteen, 2, unfolded)},
      {20, transposed(coprime(five, four))},
      {21, transposed(coprime(seven, three))},
      {22, transposed(coprime(two, eleven))},
      {23, transposed(twenty_three)},
      {24, transposed(coprime(three, eight))},
      {25, transposed(twenty_five)},
      {26, transposed(coprime(thirteen, two))},
      {27, transposed(twenty_seven, 1)},
      {28, transposed(coprime(four, seven))},
      {29, transposed(twenty_nine)},
      {30, transposed(coprime(coprime(two, five), three))},
      {31, transposed(thirty_one, 4)},
      {32, transposed(thirty_two_halves)},
      {33, transposed(coprime(eleven, three))},
      {34, transposed(coprime(two, seventeen_products_first))},
      {35, transposed(coprime(seven, five))},
      {36, transposed(coprime(nine, four))},
      {37, transposed(thirty_seven_twisted, 2)},
      {38, transposed(coprime(nineteen, two), 9, unfolded)},
      {39, transposed(coprime(three, thirteen_by_column), 6)},
      {40, transposed(coprime(eight, five))},
      {41, transposed(forty_one)},
      {42, transposed(coprime(coprime(seven, three), two))},
      {43, transposed(rader(43, coprime(two, coprime(seven, three)), coprime(three, seven),
                            alternated(coprime(three, seven))))},
      {44, transposed(coprime(eleven, four))},
      {45, transposed(coprime(nine, five))},
      {46, transposed(coprime(two, twenty_three))},
      {47, transposed(rader(47, coprime(twenty_three_nested, two), shifted(1, twenty_three),
                            alternated(shifted(1, twenty_three))),
                      19)},
      {48, transposed(coprime(three, sixteen_decimated))},
      {49, transposed(cooley_tukey(seven, seven))},
      {50, transposed(coprime(twenty_five, two))},
      {51, transposed(coprime(seventeen, three))},
      {52, transposed(coprime(thirteen_classes, four), 6)},
      {53, transposed(fifty_three, 6)},
      {54, transposed(coprime(two, twenty_seven), 6)},
      {55, transposed(coprime(eleven, five))},
      {56, transposed(coprime(seven, eight))},
      {57, transposed(coprime(nineteen, three), 16, unfolded)},
      {58, transposed(coprime(two, twenty_nine), 3)},
      {59, transposed(fifty_nine, 18)},
      {60, transposed(coprime(coprime(three, five), four))},
      {61, transposed(sixty_one, 12)},
      {62, transposed(coprime(thirty_one, two), 18)},
      {63, transposed(coprime(seven, nine))},
      {64, transposed(sixty_four_halves)},
  };
}

DesignTable<Design>& table_of(Direction direction) {
  static DesignTable<Design> forward = forward_designs();
  static DesignTable<Design> inverse = inverse_designs();
  return direction == Direction::forward ? forward : inverse;
}

}  // namespace

const Design& design_of(int length, Direction direction) {
  return kernelgen::row_of(table_of(direction), length, [&](int without_row) {
    const auto design = [&](const Recipe& recipe) {
      return direction == Direction::forward ? forward(recipe) : transposed(recipe);
    };
    return design(recipe_by_rule(
        without_row, [&](int row) { return design_of(row, direction).recipe; },
        [&](const Recipe& recipe) { return operations_of(design(recipe)); }));
  });
}

}  // namespace haldgen::dft_real
