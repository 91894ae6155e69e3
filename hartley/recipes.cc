// Rows of the design table.
#include "hartley/recipes.h"

#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "real_blocks/pieces.h"

namespace haldgen::hartley {
namespace {

// The table is written in these words.
using namespace real_blocks;          // NOLINT(google-build-using-namespace)
using namespace real_blocks::pieces;  // NOLINT(google-build-using-namespace)
using kernelgen::Into;
using kernelgen::WideSums;

struct Row {
  int length;
  Design design;
};

Row paired(int length, Recipe recipe, Into fold = Into::foldable, WideSums wide_sums = {}) {
  return {length, {Structure::paired, totalled_by_power(std::move(recipe)), fold, wide_sums}};
}

Row transposed(int length, Recipe recipe, Into fold = Into::foldable, WideSums wide_sums = {}) {
  return {length, {Structure::transposed, totalled_by_power(std::move(recipe)), fold, wide_sums}};
}

std::vector<Row> rows() {
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
      paired(2, two),
      paired(3, three),
      paired(4, four),
      paired(5, five),
      paired(6, coprime(three, two)),
      paired(7, seven),
      paired(8, eight),
      paired(9, nine),
      paired(10, coprime(five, two)),
      paired(11, direct(11)),
      transposed(12, coprime(four, three)),
      paired(13, thirteen),
      paired(14, coprime(seven, two)),
      transposed(15, coprime(five, three)),
      paired(16, sixteen),
      paired(17, seventeen),
      transposed(18, coprime(nine, two)),
      paired(19, nineteen_relabelled, all, {2, -2}),
      transposed(20, coprime(four, five)),
      paired(21, coprime(seven, three)),
      paired(22, coprime(two, direct(11))),
      paired(23, twenty_three_direct),
      paired(24, coprime(three, eight)),
      transposed(25, twenty_five),
      paired(26, coprime(thirteen_from_behind, two), all),
      transposed(27, twenty_seven, spectral, {1, -1}),
      transposed(28, coprime(seven, four)),
      paired(29, twenty_nine),
      transposed(30, coprime(coprime(two, five), three)),
      transposed(31, thirty_one_five_first, none, {4, -4}),
      transposed(32, thirty_two_halves),
      transposed(33, coprime(rader_eleven, three)),
      transposed(34, coprime(two, seventeen)),
      transposed(35, coprime(seven, five)),
      transposed(36, coprime(nine, four)),
      transposed(37, thirty_seven_twisted, spectral, {2, -2}),
      paired(38, coprime(nineteen_relabelled, two), all, {4, -4}),
      paired(39, coprime(thirteen_from_behind, three), all),
      transposed(40, coprime(eight, five)),
      paired(41, forty_one),
      transposed(42, coprime(coprime(seven, three), two)),
      transposed(43, rader(43, coprime(three, coprime(two, seven)), coprime(seven, three),
                           alternated(coprime(seven, three)))),
      transposed(44, coprime(rader_eleven, four)),
      transposed(45, coprime(nine, five)),
      transposed(46, coprime(two, twenty_three_direct)),
      paired(47,
             rader(47, coprime(twenty_three_nested, two), twenty_three_direct,
                   alternated(shifted(1, twenty_three_direct))),
             spectral, {19, -5}),
      transposed(48, coprime(three, sixteen_decimated)),
      paired(49, cooley_tukey(seven, seven)),
      paired(50, coprime(twenty_five, two)),
      transposed(51, coprime(seventeen, three)),
      paired(52, coprime(thirteen_from_behind, four), all),
      paired(53, fifty_three, spectral, {6, -6}),
      transposed(54, coprime(two, twenty_seven), spectral, {6, -6}),
      transposed(55, coprime(rader_eleven, five)),
      transposed(56, coprime(seven, eight)),
      paired(57, coprime(nineteen_relabelled, three), all, {6, -6}),
      paired(58, coprime(two, twenty_nine)),
      paired(59, fifty_nine_two_first, spectral, {18, -6}),
      transposed(60, coprime(coprime(five, three), four)),
      paired(61, sixty_one_five_first, all, {8, -8}),
      transposed(62,
                 coprime(two, rader(31, coprime(two, coprime(three, five)), coprime(five, three),
                                    alternated(coprime(five, three)))),
                 none, {18, -13}),
      paired(63, coprime(seven, nine)),
      transposed(64, sixty_four_halves),
  };
}

}  // namespace

const Design& design_of(int length) {
  static const std::vector<Row> table = rows();
  for (const Row& row : table) {
    if (row.length == length) return row.design;
  }
  throw std::out_of_range("no Hartley transform of length " + std::to_string(length));
}

}  // namespace haldgen::hartley
