// Names for the constants of printed kernels. A name says what the number is: it is given where the
// exact value that a constant stands for is the named one to 24 digits, and the number in the code
// is that value rounded. What has no name is numbered.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "kernelgen/program.h"

namespace haldgen::kernelgen {

/// Names of numbers that turn up in transforms of some lengths:
///   cos_1_5, sin_2_5, tan_1_64   of 2 pi 1/5 and so on; the sign is the function's
///   sqrt_half, sqrt_13, one_over_12, sqrt_13_over_12
///   twice_, half_, quarter_      before any of these
///   product_cos_1_9_sin_1_3      of any two
/// Angles and fractions have as denominators the divisors of the lengths, those of p - 1 for a
/// prime p among them, as convolutions have that length, 8 and 16; and twice and four times these.
class ConstantNames {
 public:
  explicit ConstantNames(const std::vector<int>& lengths);

  struct Name {
    std::string text;
    Wide value;
    /// The factors of a product: merged constants can be the product of two roundings.
    std::vector<Wide> factors = {};
  };

  /// The name of a number or of its negative.
  std::optional<Name> of(Wide exact) const;

 private:
  void add(const std::string& text, Wide value);
  std::optional<Name> simple(Wide magnitude) const;

  std::vector<Name> names_;  ///< the telling ones first
  std::multimap<double, std::size_t> by_magnitude_;
};

/// A constant of a program, by which it multiplies or by whose negative.
struct NamedConstant {
  std::string name;
  double value = 0;  ///< as the code has it
  FloatType type = FloatType::f64;
};

/// The constant that a number, or its negative, has in the code of a type.
const NamedConstant* find(const std::vector<NamedConstant>& constants, double number,
                          FloatType type);

/// The constants of a program, the largest first and those with a number last, whatever the order
/// of instructions. Short binary fractions stand for themselves.
std::vector<NamedConstant> named_constants(const Program& program, const ConstantNames& names);

}  // namespace haldgen::kernelgen
