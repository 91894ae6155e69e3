#include "dft_complex/recipes.h"

#include "dft_complex/rules.h"

#include "kernelgen/design_table.h"

namespace haldgen::dft_complex {
namespace {

using kernelgen::DesignTable;
using kernelgen::FloatType;

const Recipe b2 = butterfly(2);
const Recipe b3 = butterfly(3);
const Recipe b4 = butterfly(4);
const Recipe b5 = butterfly(5);
const Recipe b5w = five_folded();
const Recipe b7 = direct(7);
const Recipe b8 = split_eight();
const Recipe b11 = direct(11);
const Recipe b16 = shared_sixteen();

Recipe pfa(const Recipe& first, const Recipe& second) { return coprime(first, second); }
Recipe pfa(const Recipe& one, const Recipe& two, const Recipe& three) {
  return coprime(coprime(one, two), three);
}
Recipe ct(const Recipe& first, const Recipe& second) { return cooley_tukey(first, second); }
/// Classes and bins by least magnitude: conjugate twiddles stand at conjugate bins.
Recipe symmetric_ct(const Recipe& first, const Recipe& second) {
  return with_bins(with_places(ct(first, second), symmetric(second.length)),
                   symmetric(first.length));
}

// A column whose class 0 is read from another place carries twiddles there too.
const Recipe ct9 = ct(b3, b3);
const Recipe ct9_shifted = with_places(ct9, {3, 1, 2});
const Recipe ct9_symmetric = symmetric_ct(b3, b3);
// Classes 0, 4, 2: only W9^+-4 and W9^+-2 occur.
const Recipe ct9_even = with_bins(with_places(ct9, {0, 4, 2}), {0, 1, -1});

// What a row says besides its recipe, where it is not the default.
constexpr auto singles = kernelgen::Access::singles;
constexpr auto pairs = kernelgen::Access::pairs;
constexpr auto pairs_and_lone = kernelgen::Access::pairs_and_lone;
constexpr auto reversal = Inverse::reversal;
constexpr auto wide = Products::wide;
Design scalar(Recipe recipe, Products products = Products::narrow) {
  return {std::move(recipe), singles, Inverse::mirror, Execution::scalar, products};
}

/// Kernels whose sums are written down: exact zeros have their signs.
Design as_written(Recipe recipe) {
  Design design{std::move(recipe)};
  design.signs = kernelgen::Signs::as_written;
  return design;
}

DesignTable<Design> designs_of_32_bits() {
  const Recipe n10 = pfa(b5, b2);
  const Recipe n12 = pfa(b4, b3);
  const Recipe n15 = pfa(b5, b3);
  const Recipe ct25 = ct(b5, b5);
  const Recipe n18 = coprime({ct9, ct9_shifted}, {b2});
  const Recipe n22 = pfa(b2, b11);
  const Recipe n28 = pfa(b4, b7);
  const Recipe n30 = pfa(b5, b2, b3);
  const Recipe n36 = pfa(b4, ct9);
  const Recipe n40 = ct(n10, b4);
  const Recipe n42 = pfa(b7, b2, b3);
  const Recipe n16 = ct(b4, b4);
  const Recipe ct27 = ct(ct9, b3);
  const Recipe ct27_shifted = cooley_tukey({ct9_shifted, ct9, ct9}, {b3});
  const Recipe ct15_shifted = with_places(ct(b3, b5), {5, 1, 2, 3, 4});
  const Recipe n60 = pfa(b4, ct15_shifted);

  // Prime blocks of composite lengths: pairs joined, as additions on lanes are dear there.
  const Recipe r13 = folded_there(joined_rader(13, n12));
  const Recipe r17 = joined_rader(17, b16);
  const Recipe ct9_unfolded =
      with_first_apart(with_bins(with_places(ct9, {3, 1, -1}), symmetric(3)));
  const Recipe r19 = folded_there(joined_rader(19, coprime({b2}, {ct9_symmetric, ct9_unfolded})));
  const Recipe r11 = joined_rader(11, pfa(b5w, b2), n10);
  const Recipe r23 = joined_rader(23, n22, pfa(b2, r11));
  const Recipe r29 = joined_rader(29, n28);
  const Recipe ct15_symmetric = with_bins(with_places(ct(b5, b3), {3, 1, -1}), symmetric(5));
  const Recipe r31 =
      with_zero_lanes(joined_rader(31, n30, coprime({b2}, {n15, ct15_symmetric})), 3);
  const Recipe n24 = pfa(b8, b3);

  return {
      {2, scalar(b2)},
      {3, scalar(b3, wide)},
      {4, scalar(b4)},
      {5, scalar(b5, wide)},
      {6, as_written(pfa(b2, b3))},
      {7, {with_zero_lanes(rader(7, pfa(b2, b3)), 2)}},
      {8, {with_late_twiddles(ct(b4, b2)), pairs}},
      {9, {ct9, pairs}},
      {10, {n10}},
      {11, {with_mate(with_zero_lanes(rader(11, n10), 6), 2)}},
      {12, {n12}},
      {13, {with_zero_lanes(rader(13, n12), 6)}},
      {14, {pfa(b2, b7)}},
      {15, {n15}},
      {16, {n16, pairs}},
      {17, {with_mate(with_zero_lanes(rader(17, n16), 6), 1)}},
      {18, {n18, pairs_and_lone}},
      {19, {with_zero_lanes(rader(19, n18), 6), singles, reversal}},
      {20, {pfa(b4, b5)}},
      {21, {pfa(b7, b3)}},
      {22, {n22}},
      {23, {with_zero_lanes(rader(23, n22), 2), singles, reversal}},
      {24, {ct(b4, pfa(b2, b3)), pairs}},
      {25, {ct25, pairs}},
      {26, {pfa(r13, b2)}},
      {27, {ct27, pairs}},
      {28, {n28}},
      {29, {with_zero_lanes(rader(29, n28), 6)}},
      {30, {n30}},
      {31, {with_zero_lanes(rader(31, n30), 6)}},
      {32, {ct(b4, b8), pairs}},
      {33, {pfa(b11, b3)}},
      {34, {pfa(b2, r17)}},
      {35, {pfa(b5, b7)}},
      {36, {n36}},
      {37, {with_zero_lanes(rader(37, n36), 6), singles, reversal}},
      {38, {pfa(b2, r19)}},
      {39, {pfa(r13, b3)}},
      {40, {n40, pairs}},
      // Back with the factors exchanged: four-point blocks on reversed input give the same bits, so
      // that the mirror of the kernel is its reversal.
      {41, {with_mate(with_zero_lanes(rader(41, n40, ct(b4, n10)), 6), 2)}},
      {42, {n42}},
      {43, {with_zero_lanes(rader(43, n42), 6)}},
      {44, {pfa(b4, b11)}},
      {45, {ct(n15, b3), pairs}},
      {46, {ct(r23, b2), pairs_and_lone}},
      {47,
       {with_zero_lanes(bluestein(47, with_eighths_sum_first(ct(b4, n24)), 56,
                                  with_eighths_sum_first(ct(ct(b4, b2), n12)), 57),
                        2),
        pairs}},
      {48, {ct(b4, n12), pairs}},
      {49, {ct(b7, b7), pairs}},
      {50, {coprime({ct25, with_places(ct25, {5, 1, 2, 3, 4})}, {b2}), pairs}},
      {51, {pfa(r17, b3)}},
      {52, {pfa(b4, r13)}},
      {53, {with_zero_lanes(rader(53, pfa(b4, r13), pfa(b4, joined_rader(13, n12))), 6)}},
      {54, {coprime({b2}, {ct27, ct27_shifted}), pairs}},
      {55, {pfa(b5, b11)}},
      {56, {ct(pfa(b2, b7), b4), pairs}},
      {57, {pfa(r19, b3)}},
      {58, {pfa(b2, r29)}},
      {59,
       {with_zero_lanes(bluestein(59, ct(shared_sixteen_joined(), b8), 64,
                                  with_eighths_sum_first(ct(b8, b16), {{8, 2}, {8, 6}}), 59),
                        2),
        pairs}},
      {60, {n60, pairs}},
      {61, {with_zero_lanes(rader(61, n60), 6), singles, reversal}},
      {62, {pfa(b2, r31), pairs}},
      {63, {pfa(ct9, b7)}},
      {64, {ct(b8, b8), pairs}},
  };
}

DesignTable<Design> designs_of_64_bits() {
  const Recipe n6 = pfa(b2, b3);
  const Recipe n12 = pfa(b3, b4);
  const Recipe n15 = pfa(b5, b3);
  const Recipe n28 = pfa(b4, b7);
  const Recipe n30 = pfa(b2, b5, b3);
  // Class 3 is read from place 12, so that W27^3 = W9 does not occur.
  const Recipe ct27 =
      with_bins(with_places(ct(b3, ct9_even), {0, 1, 2, 12, 4, 5, 6, 7, 8}), {0, 1, -1});

  const Recipe r7 = folded_there(joined_rader(7, n6));
  const Recipe r11 = joined_rader(11, pfa(b2, b5));
  const Recipe r13 = folded_back(joined_rader(13, n12, four_odd(b3)));
  const Recipe r13_twist = joined_rader(13, n12, halves(pfa(b3, b2), twisted(b3)));
  const Recipe r17 =
      joined_rader(17, b16, with_bins(with_eighths_sum_first(ct(b8, b2)), symmetric(8)));
  const Recipe r19 = folded_there(joined_rader(19, pfa(b2, ct9_symmetric), pfa(ct9_symmetric, b2)));
  const Recipe r23 = joined_rader(23, pfa(b11, b2), pfa(r11, b2));
  const Recipe r29 = joined_rader(29, n28, four_odd(b7));
  const Recipe r29_twist = joined_rader(29, n28, halves(pfa(b2, b7), twisted(b7)));
  const Recipe r31 = folded_there(joined_rader(31, n30));
  const Recipe n36_symmetric = pfa(b4, ct9_symmetric);
  const Recipe r37 = folded_there(
      joined_rader(37, n36_symmetric, halves(pfa(b2, ct9_symmetric), twisted(ct9_symmetric))));
  const Recipe n40_mixed = halves(four_odd(b5w), odd_of(pfa(b8, b5)));
  const Recipe n21 = pfa(b7, b3);
  const Recipe r43 = folded_there(joined_rader(43, coprime({b2}, {n21, pfa(b3, b7)}),
                                               coprime({b2}, {n21, symmetric_ct(b7, b3)})));
  const Recipe n46 = pfa(r23, b2);
  const Recipe r53 = joined_rader(53, pfa(r13, b4), halves(pfa(b2, r13), twisted(r13_twist)));
  const Recipe r59 = joined_rader(59, pfa(b2, r29), pfa(b2, r29_twist));
  const Recipe r61 = folded_back(joined_rader(61, pfa(b3, b4, b5), four_odd(n15)));

  return {
      {2, as_written(b2)},
      {3, as_written(b3)},
      {4, as_written(b4)},
      {5, as_written(b5)},
      {6, as_written(n6)},
      {7, {b7}},
      {8, {b8}},
      {9, {ct9_even}},
      {10, {pfa(b5w, b2)}},
      {11, {b11}},
      {12, {n12}},
      {13, {r13}},
      {14, {pfa(b2, b7)}},
      {15, {n15}},
      {16, {b16}},
      {17, {r17}},
      {18, {pfa(ct9_even, b2)}},
      {19, {r19}},
      {20, {pfa(b5, b4)}},
      {21, {n21}},
      {22, {pfa(b11, b2)}},
      {23, {r23}},
      {24, {pfa(b8, b3)}},
      {25, {ct(b5, b5)}},
      {26, {pfa(r13, b2)}},
      {27, {ct27}},
      {28, {n28}},
      {29, {r29}},
      {30, {n30}},
      {31, {r31}},
      {32, {with_eighths_sum_first(ct(b8, b4))}},
      {33, {pfa(b11, b3)}},
      {34, {pfa(b2, r17)}},
      // One of the five columns has the Rader form, the others are direct.
      {35, {coprime({b5w}, {r7, b7, b7, b7, b7})}},
      {36, {pfa(b4, ct9_even)}},
      {37, {r37}},
      {38, {pfa(b2, r19)}},
      {39, {pfa(r13, b3)}},
      {40, {pfa(b8, b5)}},
      {41, {joined_rader(41, n40_mixed)}},
      {42, {pfa(b2, b7, b3)}},
      {43, {r43}},
      {44, {pfa(b4, b11)}},
      {45, {pfa(b5, ct9_even)}},
      {46, {n46}},
      {47, {joined_rader(47, n46)}},
      {48, {pfa(b16, b3)}},
      {49, {ct(b7, b7)}},
      {50, {pfa(cooley_tukey({b5w}, {b5w, b5, b5, b5, b5}), b2)}},
      {51, {pfa(r17, b3)}},
      {52, {pfa(r13, b4)}},
      {53, {r53}},
      {54, {pfa(b2, ct27)}},
      {55, {pfa(b11, b5)}},
      {56, {pfa(b7, b8)}},
      {57, {pfa(r19, b3)}},
      {58, {pfa(b2, r29)}},
      {59, {r59}},
      // The columns of bin 0 of the three-point stage have the folded form.
      {60, {coprime({n12}, {b5w, b5, b5, b5w, b5, b5, b5w, b5, b5, b5w, b5, b5})}},
      {61, {r61}},
      {62, {pfa(b2, r31)}},
      {63, {pfa(b7, ct9_even)}},
      {64, {with_eighths_sum_first(ct(b16, b4))}},
  };
}

DesignTable<Design>& table_of(FloatType type) {
  static DesignTable<Design> f32 = designs_of_32_bits();
  static DesignTable<Design> f64 = designs_of_64_bits();
  return type == FloatType::f32 ? f32 : f64;
}

}  // namespace

const Design& design_of(int length, FloatType type) {
  return kernelgen::row_of(table_of(type), length,
                           [&](int without_row) { return design_by_rule(without_row, type); });
}

}  // namespace haldgen::dft_complex
