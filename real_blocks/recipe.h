// Recipes of transforms of real data: a value that says which factorisation, which blocks and which
// order a kernel has. Every stage uses that the data are real: a block of length n gives bins
// 0..n/2. It can be printed and compared; `expand.h` turns it into statements.
#pragma once

#include <string>
#include <variant>
#include <vector>

#include "kernelgen/element.h"

namespace haldgen::real_blocks {

enum class Method {
  // Blocks of bins k = 0..n/2.
  single,        ///< length 1
  direct,        ///< odd prime: x[0], x[k] + x[n-k], x[k] - x[n-k], then the full sums of products
  power_of_two,  ///< 2, 4, 8 written out, 16 and above radix 4 by decimation in time
  halves,        ///< sums at half the length give the even bins, differences the odd ones
  coprime,       ///< I. J. Good, J. Royal Stat. Soc. B 20 (1958): no twiddles
  cooley_tukey,  ///< J. W. Cooley, J. W. Tukey, Math. Comp. 19 (1965); complex uses are complex
                 ///< throughout, where those of the others are two real blocks
  rader,         ///< C. M. Rader, Proc. IEEE 56 (1968), on real data, two sides of half the length
  by_column,     ///< one block for real columns, another for complex ones
  decimated,     ///< complex columns only: sums and twiddled differences, two half-length blocks
  permuted,      ///< a block on x[r n], whose bins are those at r k: another order of its sums
  relabelled,    ///< a Cooley-Tukey block on multiplied exponents, its bins renamed accordingly

  // Blocks of the odd bins j = 1, 3, .. of length 2n, fed with n values and their negatives.
  alternated,   ///< odd n: a block of length n on data of alternating sign
  twisted,      ///< even n: x[q] - i x[q + n/2], twiddled, a complex block of length n/2
  coprime_odd,  ///< odd factor first, then the odd bins over the power of two
  classes,      ///< classes modulo p, twiddled, complex blocks of length p across them
};

using kernelgen::EighthRoot;

/// The order in which a direct block adds its sums x[k] + x[n-k] to x[0] for bin 0. The cosine and
/// sine sums take the pairs by powers always; up to 7 points both orders are one.
enum class Total {
  by_index,  ///< k = 1, 2, 3, ..
  by_power,  ///< k = the powers of a generator
};

// The choices that one method, or two of a kind, leave open.

struct Direct {
  Total total = Total::by_index;

  friend bool operator==(const Direct&, const Direct&) = default;
};

/// Powers of two and twisted blocks.
struct Twiddled {
  EighthRoot eighth;

  friend bool operator==(const Twiddled&, const Twiddled&) = default;
};

struct Rader {
  int shift = 0;  ///< power of the root at which the outputs start

  friend bool operator==(const Rader&, const Rader&) = default;
};

/// Permuted and relabelled blocks.
struct Multiplied {
  int multiplier;  ///< r, factor of the exponents

  friend bool operator==(const Multiplied&, const Multiplied&) = default;
};

struct Classes {
  bool from_behind = false;  ///< of two classes the second has the places -1, 1, 3, ..

  friend bool operator==(const Classes&, const Classes&) = default;
};

using Choices = std::variant<std::monostate, Direct, Twiddled, Rader, Multiplied, Classes>;

struct Recipe {
  Method method;
  int length;
  std::vector<Recipe> blocks = {};
  Choices choices = {};

  /// The choices of its method.
  template <class Choice>
  const Choice& chosen() const {
    return std::get<Choice>(choices);
  }

  friend bool operator==(const Recipe&, const Recipe&) = default;
};

std::string to_string(const Recipe& recipe);

Recipe single();
Recipe direct(int prime);
Recipe power_of_two(int length, EighthRoot eighth = EighthRoot::products_first);
Recipe halves(Recipe even, Recipe odd);
Recipe coprime(Recipe first, Recipe second);
Recipe cooley_tukey(Recipe first, Recipe second);
/// `block` has length prime - 1; the sides, written in the forward direction, half of that: `even`
/// gives bins, `odd` odd bins. The kernel runs them transposed.
Recipe rader(int prime, Recipe block, Recipe even, Recipe odd);
/// Outputs start at the given power of the root: other constants, the same operations.
Recipe shifted(int shift, Recipe rader);
Recipe by_column(Recipe real, Recipe complex);
Recipe decimated(Recipe half);
Recipe permuted(int multiplier, Recipe block);
Recipe relabelled(int multiplier, Recipe cooley_tukey);

/// The recipe with the totals of all its direct blocks in the order of powers.
Recipe totalled_by_power(Recipe recipe);

Recipe alternated(Recipe block);
Recipe twisted(Recipe block, EighthRoot eighth = EighthRoot::sum_first);
Recipe coprime_odd(Recipe first, Recipe odd);
/// `odd` runs on each of p = length of `across` classes. Where its last bin is real, `real_across`
/// is the block of odd bins that runs across there.
Recipe classes(Recipe odd, Recipe across);
Recipe classes(Recipe odd, Recipe across, Recipe real_across);
Recipe classes_from_behind(Recipe odd, Recipe across, Recipe real_across);

}  // namespace haldgen::real_blocks
