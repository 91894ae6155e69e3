// Named blocks that the tables of several families and lengths are written in. The names are
// lengths; where a length has several forms, the name says which.
#pragma once

#include "real_blocks/recipe.h"

namespace haldgen::real_blocks::pieces {

inline const Recipe two = power_of_two(2);
inline const Recipe three = direct(3);
inline const Recipe four = power_of_two(4);
inline const Recipe five = direct(5);
inline const Recipe seven = direct(7);
inline const Recipe nine = cooley_tukey(three, three);
inline const Recipe twenty_five = cooley_tukey(five, five);
inline const Recipe twenty_seven = cooley_tukey(three, nine);
inline const Recipe odd_two = twisted(single());
inline const Recipe odd_six = classes(alternated(three), two, odd_two);

inline const Recipe rader_eleven = rader(11, coprime(five, two), five, alternated(five));
inline const Recipe seventeen = rader(17, power_of_two(16), power_of_two(8), twisted(four));
inline const Recipe nineteen = rader(19, coprime(nine, two), nine, alternated(nine));
inline const Recipe twenty_three_direct =
    rader(23, coprime(two, direct(11)), direct(11), alternated(direct(11)));
inline const Recipe twenty_three_nested =
    rader(23, coprime(two, direct(11)), rader_eleven, alternated(rader_eleven));
inline const Recipe twenty_nine =
    rader(29, coprime(seven, four), coprime(seven, two), classes(alternated(seven), two, odd_two));
inline const Recipe forty_one = rader(41, coprime(five, power_of_two(8)), coprime(five, four),
                                      classes(alternated(five), four, twisted(two)));
// The outputs of the sides start one power on.
inline const Recipe fifty_nine = rader(59, coprime(twenty_nine, two), shifted(1, twenty_nine),
                                       alternated(shifted(1, twenty_nine)));
inline const Recipe thirteen_block = coprime(three, four);
// Forms of 13 by the sides of its convolution.
inline const Recipe thirteen_from_behind = rader(
    13, thirteen_block, coprime(three, two), classes_from_behind(alternated(three), two, odd_two));
inline const Recipe thirteen_twisted =
    rader(13, thirteen_block, coprime(two, three), twisted(three));
inline const Recipe thirteen_classes = rader(13, thirteen_block, coprime(two, three), odd_six);
inline const Recipe thirteen_classes_three_first =
    rader(13, thirteen_block, coprime(three, two), odd_six);
inline const Recipe thirteen_by_column = by_column(
    thirteen_twisted, rader(13, thirteen_block, coprime(two, three), coprime_odd(three, odd_two)));
inline const Recipe thirty_one_five_first = rader(
    31, coprime(three, coprime(five, two)), coprime(five, three), alternated(coprime(five, three)));
inline const Recipe thirty_two_halves = halves(power_of_two(16), twisted(power_of_two(8)));
inline const Recipe sixteen_decimated = by_column(power_of_two(16), decimated(power_of_two(8)));
inline const Recipe thirty_seven_twisted =
    rader(37, coprime(four, nine), coprime(nine, two),
          classes(alternated(three), coprime(two, three), twisted(three)));
inline const Recipe sixty_one_five_first =
    rader(61, coprime(coprime(three, five), four), coprime(two, coprime(five, three)),
          classes(alternated(coprime(five, three)), two, odd_two));
inline const Recipe sixty_four_halves =
    halves(thirty_two_halves, classes(twisted(power_of_two(8)), two, odd_two));

}  // namespace haldgen::real_blocks::pieces
