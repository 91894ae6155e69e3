// Recipes of the complex DFT: a value that says which factorisation, which blocks and which order a
// kernel has. It can be printed and compared; `expand` turns it into a graph.
#pragma once

#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "kernelgen/element.h"

namespace haldgen::dft_complex {

enum class Method {
  butterfly,       ///< 2, 3, 4, 5: written out
  five_folded,     ///< 5 with sqrt(5)/4 and 1/4 (S. Winograd, Math. Comp. 32 (1978))
  direct,          ///< odd p: the sums and differences x[k] +- x[p-k], then the full products
  split_eight,     ///< 8 as 2 then 4
  shared_sixteen,  ///< 16 as 2 then 8, odd outputs made of shared products
  coprime,         ///< I. J. Good, J. Royal Stat. Soc. B 20 (1958): no twiddles
  cooley_tukey,    ///< J. W. Cooley, J. W. Tukey, Math. Comp. 19 (1965)
  rader,           ///< C. M. Rader, Proc. IEEE 56 (1968), literal constants C[m]
  joined_rader,    ///< the same, constants of the pairs m, L-m joined
  four_odd,        ///< 4M, M odd: odd outputs as two M-point transforms joined by twiddles
  halves,          ///< sums and differences at half the length, then an even and an odd half
  odd_of_block,    ///< odd half: the odd outputs of a block fed with zeros behind
  twisted,         ///< odd half: two quarter-length transforms of rotated x[n] -+ i x[n+M]
  bluestein,       ///< L. Bluestein, IEEE Trans. AU-18 (1970): the chirp transform
};

// The choices that one method leaves open.

struct SharedSixteen {
  bool eighths_joined = false;  ///< sum and difference before the eighth roots

  friend bool operator==(const SharedSixteen&, const SharedSixteen&) = default;
};

/// Which classes a Cooley-Tukey step reads and which bins it writes, where they are not 0..n-1, and
/// how its twiddles are formed.
struct CooleyTukey {
  std::vector<int>
      places;             ///< a representative of each class of the input, modulo the second factor
  std::vector<int> bins;  ///< a representative of each bin of the first factor
  bool first_apart = false;  ///< no folding into the twiddles of class 0
  kernelgen::EighthRoot eighth = kernelgen::EighthRoot::full_product;
  std::vector<std::pair<int, int>> eighths_sum_first;  ///< (class, bin) of those that are
  /// The twiddles stand with the second stage's columns instead of the first's: the same
  /// arithmetic, other neighbours in vectors of two elements.
  bool late_twiddles = false;

  friend bool operator==(const CooleyTukey&, const CooleyTukey&) = default;
};

struct Rader {
  int zero_lanes = 0;  ///< executed additions of lanes that hold zero
  int mate = 0;        ///< the bin that shares a vector with bin 0; 0: the middle one

  friend bool operator==(const Rader&, const Rader&) = default;
};

struct JoinedRader {
  int zero_lanes = 0;       ///< executed additions of lanes that hold zero
  bool fold_there = false;  ///< constants meet and become one, on the way there
  bool fold_back = false;   ///< and on the way back

  friend bool operator==(const JoinedRader&, const JoinedRader&) = default;
};

struct Bluestein {
  int carried;         ///< places carried as values on the way there
  int computed;        ///< outputs computed on the way back
  int zero_lanes = 0;  ///< executed additions of lanes that hold zero

  friend bool operator==(const Bluestein&, const Bluestein&) = default;
};

using Choices =
    std::variant<std::monostate, SharedSixteen, CooleyTukey, Rader, JoinedRader, Bluestein>;

struct Recipe {
  Method method;
  int length;
  /// First and second stage; there and back; even and odd half. One recipe stands for all columns
  /// of a stage, several name each column.
  std::vector<Recipe> first = {};
  std::vector<Recipe> second = {};
  Choices choices = {};

  /// The choices of its method.
  template <class Choice>
  const Choice& chosen() const {
    return std::get<Choice>(choices);
  }

  friend bool operator==(const Recipe&, const Recipe&) = default;
};

std::string to_string(const Recipe& recipe);

// Blocks.
Recipe butterfly(int length);
Recipe five_folded();
Recipe direct(int prime);
Recipe split_eight();
Recipe shared_sixteen();
Recipe shared_sixteen_joined();

// Combinators. `first` reads the input.
using Columns = std::vector<Recipe>;
Recipe coprime(Recipe first, Recipe second);
Recipe coprime(Columns first, Columns second);
Recipe cooley_tukey(Recipe first, Recipe second);
Recipe cooley_tukey(Columns first, Columns second);
Recipe rader(int prime, const Recipe& block);
Recipe rader(int prime, Recipe there, Recipe back);
Recipe joined_rader(int prime, const Recipe& block);
Recipe joined_rader(int prime, Recipe there, Recipe back);
Recipe four_odd(Recipe odd_block);
Recipe halves(Recipe even, Recipe odd);
Recipe odd_of(Recipe block);
Recipe twisted(Recipe block);
Recipe bluestein(int prime, Recipe there, int carried, Recipe back, int computed);

// Modifiers, each a copy of the recipe with one choice made. Throw std::bad_variant_access where
// the method has no such choice.
Recipe with_eighths_sum_first(Recipe recipe);
Recipe with_eighths_sum_first(Recipe recipe, std::vector<std::pair<int, int>> classes_and_bins);
Recipe with_places(Recipe recipe, std::vector<int> places);
Recipe with_bins(Recipe recipe, std::vector<int> bins);
Recipe with_first_apart(Recipe recipe);
Recipe with_late_twiddles(Recipe recipe);
Recipe folded_there(Recipe recipe);
Recipe folded_back(Recipe recipe);
Recipe with_zero_lanes(Recipe recipe, int count);
Recipe with_mate(Recipe recipe, int bin);

/// 0, 1, .., then the negative ones: representatives of least magnitude.
std::vector<int> symmetric(int count);

/// The graph of the forward transform: inputs and outputs 0..length-1 in natural order. With
/// `paired`, columns whose partner has a twiddle are given plain copies.
kernelgen::Graph expand(const Recipe& recipe, bool paired);

}  // namespace haldgen::dft_complex
