// Rows of the design table. Names of blocks are their lengths; where a length has several forms,
// the name says which.
#include "dft_real/recipes.h"

#include <stdexcept>
#include <string>
#include <utility>

#include "real_blocks/pieces.h"

namespace haldgen::dft_real {
namespace {

// The table is written in these words.
using namespace real_blocks;          // NOLINT(google-build-using-namespace)
using namespace real_blocks::pieces;  // NOLINT(google-build-using-namespace)

struct Row {
  int length;
  Design design;
};

Row row(int length, Recipe recipe, std::vector<int> negated, int wide_additions = 0) {
  return {length, {std::move(recipe), std::move(negated), wide_additions}};
}

std::vector<Row> forward_rows() {
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
      row(2, two, {}),
      row(3, three, {1}),
      row(4, four, {1}),
      row(5, five, {2}),
      row(6, coprime(three, two), {1}),
      row(7, seven, {2}),
      row(8, eight, {1, 2, 3}),
      row(9, nine, {1, 2, 3}),
      row(10, coprime(five, two), {2, 3, 4}),
      row(11, eleven, {1}),
      row(12, coprime(four, three), {1, 4, 5}),
      row(13, thirteen, {4, 6}),
      row(14, coprime(two, seven), {2, 4, 6}),
      row(15, coprime(three, five), {2, 4, 7}),
      row(16, sixteen, {1, 2, 3, 4, 6, 7}),
      row(17, seventeen, {1, 3, 4, 5, 8}),
      row(18, coprime(two, relabelled(2, nine)), {1, 2, 3, 5}),
      row(19, nineteen, {2, 5, 8, 9}, 2),
      row(20, coprime(five, four), {1, 3, 4, 5, 9}),
      row(21, coprime(seven, three), {1, 4, 5, 6, 7, 9}),
      row(22, coprime(two, eleven), {6, 7, 8, 9, 10}),
      row(23, twenty_three, {8, 9, 10, 11}),
      row(24, coprime(three, eight), {2, 3, 5, 9, 11}),
      row(25, twenty_five, {3, 4, 8, 9, 10, 12}),
      row(26, coprime(thirteen, two), {2, 4, 6, 8, 9, 11, 12}),
      row(27, twenty_seven, {2, 3, 5, 6, 8, 9, 10, 11}),
      row(28, coprime(four, seven), {2, 3, 4, 6, 9, 11, 13}),
      row(29, twenty_nine, {2, 3, 4, 6, 8, 9, 12, 14}),
      row(30, coprime(coprime(five, three), two), {1, 4, 8, 9, 10, 11, 12, 13, 14}),
      row(31, thirty_one, {3, 6, 8, 9, 10, 13}, 4),
      row(32, power_of_two(32, EighthRoot::sum_first), {1, 2, 4, 5, 6, 7, 8, 12, 14, 15}),
      row(33, coprime(eleven, three), {1, 4, 6, 7, 8, 9, 10, 13}),
      row(34, coprime(two, seventeen), {3, 4, 5, 7, 9, 11, 15, 16}),
      row(35, coprime(seven, five), {2, 4, 6, 7, 9, 11, 12, 13}),
      row(36, coprime(nine, four), {1, 2, 5, 6, 7, 9, 12, 14, 15, 17}),
      row(37,
          rader(37, coprime(four, nine), coprime(nine, two),
                classes(alternated(three), coprime(two, three), odd_six)),
          {2, 4, 8, 9, 11, 13, 15, 16}, 5),
      row(38, coprime(nineteen, two), {1, 2, 3, 4, 5, 8, 11, 13, 15, 16, 17, 18}, 4),
      row(39, coprime(thirteen, three), {1, 3, 4, 6, 7, 8, 10, 11, 12, 13, 15}),
      row(40, coprime(eight, five), {2, 4, 6, 7, 9, 10, 12, 13, 14, 17, 19}),
      row(41, forty_one, {2, 4, 6, 7, 8, 10, 11, 18, 19}),
      row(42, coprime(coprime(seven, three), two), {1, 4, 6, 11, 13, 15, 17, 18, 19, 20}),
      row(43,
          rader(43, coprime(two, coprime(three, seven)), coprime(seven, three),
                alternated(coprime(seven, three))),
          {1, 3, 4, 7, 9, 10, 12, 14, 19}, 6),
      row(44, coprime(eleven, four), {1, 6, 7, 8, 9, 10, 17, 18, 19, 20, 21}),
      row(45, coprime(five, nine), {3, 4, 5, 8, 9, 10, 12, 13, 14, 19, 20}),
      row(46, coprime(two, twenty_three), {2, 4, 5, 8, 9, 10, 11, 16, 17, 20, 22}, 9),
      row(47,
          rader(47, coprime(twenty_three_direct, two), shifted(1, twenty_three),
                alternated(shifted(1, twenty_three))),
          {10, 11, 13, 15, 17, 18, 19, 21, 23}, 19),
      row(48, coprime(sixteen, three), {1, 3, 4, 6, 7, 9, 10, 11, 13, 14, 16, 18, 19, 22}),
      row(49, cooley_tukey(seven, seven), {2, 4, 5, 6, 11, 12, 13, 14, 18, 19, 20}),
      row(50, coprime(twenty_five, two),
          {1, 3, 4, 5, 7, 8, 10, 12, 13, 14, 15, 17, 18, 19, 20, 21, 23, 24}),
      row(51, coprime(seventeen, three),
          {1, 3, 4, 7, 9, 10, 11, 13, 14, 15, 16, 19, 21, 22, 24, 25}),
      row(52, coprime(thirteen, four), {1, 4, 7, 8, 9, 10, 11, 12, 13, 16, 21, 22, 23, 25}),
      row(53, fifty_three, {2, 4, 8, 11, 12, 13, 14, 15, 16, 17, 22, 23, 24, 26}, 6),
      row(54, coprime(two, twenty_seven), {2, 3, 5, 6, 8, 9, 10, 11, 14, 15, 20, 23, 26}, 4),
      row(55, coprime(eleven, five), {2, 4, 6, 7, 8, 9, 10, 12, 17, 18, 19, 20, 21, 22}),
      row(56, coprime(seven, eight), {1, 4, 5, 6, 11, 12, 13, 16, 18, 19, 20, 25, 26, 27}),
      row(57, coprime(nineteen, three),
          {1, 4, 7, 9, 10, 11, 13, 14, 16, 17, 18, 19, 21, 22, 24, 27}, 6),
      row(58, coprime(two, twenty_nine), {2, 3, 4, 6, 7, 8, 9, 12, 14, 16, 18, 19, 24, 28}),
      row(59, fifty_nine, {2, 4, 11, 14, 20, 21, 22, 23, 28, 29}, 18),
      row(60, coprime(coprime(three, five), four),
          {1, 2, 5, 6, 8, 9, 10, 11, 12, 13, 14, 15, 23, 24, 25, 26, 27, 29}),
      row(61, sixty_one, {2, 3, 4, 5, 11, 14, 16, 18, 19, 20, 22, 24, 27, 30}, 8),
      row(62, coprime(thirty_one, two),
          {1, 3, 5, 6, 7, 8, 9, 10, 11, 16, 17, 19, 20, 21, 23, 24, 25, 26, 27, 29, 30}, 18),
      row(63, coprime(seven, nine),
          {3, 4, 5, 6, 9, 11, 12, 13, 14, 18, 19, 20, 21, 22, 25, 26, 27, 28}),
      row(64, power_of_two(64, EighthRoot::sum_first),
          {1, 2, 3, 4, 8, 9, 10, 11, 12, 13, 14, 15, 16, 24, 27, 28, 29, 30, 31}),
  };
}

Row transposed(int length, Recipe recipe, int wide_additions = 0,
               kernelgen::Into fold = kernelgen::Into::foldable) {
  Row result = row(length, std::move(recipe), {}, wide_additions);
  result.design.fold_before_transposing = fold;
  return result;
}

std::vector<Row> inverse_rows() {
  constexpr auto unfolded = kernelgen::Into::none;
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
      transposed(2, two),
      transposed(3, three),
      transposed(4, four),
      transposed(5, five),
      transposed(6, coprime(three, two)),
      transposed(7, seven),
      transposed(8, eight),
      transposed(9, nine),
      transposed(10, coprime(five, two)),
      transposed(11, eleven),
      transposed(12, coprime(four, three)),
      transposed(13, thirteen),
      transposed(14, coprime(two, seven)),
      transposed(15, coprime(five, three)),
      transposed(16, sixteen),
      transposed(17, seventeen_products_first),
      transposed(18, coprime(nine, two)),
      transposed(19, nineteen, 2, unfolded),
      transposed(20, coprime(five, four)),
      transposed(21, coprime(seven, three)),
      transposed(22, coprime(two, eleven)),
      transposed(23, twenty_three),
      transposed(24, coprime(three, eight)),
      transposed(25, twenty_five),
      transposed(26, coprime(thirteen, two)),
      transposed(27, twenty_seven, 1),
      transposed(28, coprime(four, seven)),
      transposed(29, twenty_nine),
      transposed(30, coprime(coprime(two, five), three)),
      transposed(31, thirty_one, 4),
      transposed(32, thirty_two_halves),
      transposed(33, coprime(eleven, three)),
      transposed(34, coprime(two, seventeen_products_first)),
      transposed(35, coprime(seven, five)),
      transposed(36, coprime(nine, four)),
      transposed(37, thirty_seven_twisted, 2),
      transposed(38, coprime(nineteen, two), 9, unfolded),
      transposed(39, coprime(three, thirteen_by_column), 6),
      transposed(40, coprime(eight, five)),
      transposed(41, forty_one),
      transposed(42, coprime(coprime(seven, three), two)),
      transposed(43, rader(43, coprime(two, coprime(seven, three)), coprime(three, seven),
                           alternated(coprime(three, seven)))),
      transposed(44, coprime(eleven, four)),
      transposed(45, coprime(nine, five)),
      transposed(46, coprime(two, twenty_three)),
      transposed(47,
                 rader(47, coprime(twenty_three_nested, two), shifted(1, twenty_three),
                       alternated(shifted(1, twenty_three))),
                 19),
      transposed(48, coprime(three, sixteen_decimated)),
      transposed(49, cooley_tukey(seven, seven)),
      transposed(50, coprime(twenty_five, two)),
      transposed(51, coprime(seventeen, three)),
      transposed(52, coprime(thirteen_classes, four), 6),
      transposed(53, fifty_three, 6),
      transposed(54, coprime(two, twenty_seven), 6),
      transposed(55, coprime(eleven, five)),
      transposed(56, coprime(seven, eight)),
      transposed(57, coprime(nineteen, three), 16, unfolded),
      transposed(58, coprime(two, twenty_nine), 3),
      transposed(59, fifty_nine, 18),
      transposed(60, coprime(coprime(three, five), four)),
      transposed(61, sixty_one, 12),
      transposed(62, coprime(thirty_one, two), 18),
      transposed(63, coprime(seven, nine)),
      transposed(64, sixty_four_halves),
  };
}

}  // namespace

const Design& design_of(int length, Direction direction) {
  static const std::vector<Row> forward = forward_rows();
  static const std::vector<Row> inverse = inverse_rows();
  for (const Row& row : direction == Direction::forward ? forward : inverse) {
    if (row.length == length) return row.design;
  }
  throw std::out_of_range("no real transform of length " + std::to_string(length));
}

}  // namespace haldgen::dft_real
