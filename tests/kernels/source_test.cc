// The constants of printed kernels: names mean their values, and values are those of the program.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <numbers>
#include <regex>
#include <sstream>

#include "hartley/recipes.h"
#include "registry/registry.h"

namespace haldgen::test {
namespace {

using kernelgen::FloatType;

/// What a name says, read word by word.
class Meaning {
 public:
  explicit Meaning(const std::string& name) {
    std::istringstream words(name);
    for (std::string word; std::getline(words, word, '_');) words_.push_back(word);
  }
  long double value() {
    const std::string word = next();
    if (word == "twice") return 2 * value();
    if (word == "half") return value() / 2;
    if (word == "quarter") return value() / 4;
    if (word == "product") return value() * value();
    if (word == "one") return over(1);
    if (word == "sqrt" && peek() == "half") return next(), std::sqrt(0.5L);
    if (word == "sqrt") return over(std::sqrt(number()));
    const long double k = number();
    const long double angle = 2 * std::numbers::pi_v<long double> * k / number();
    if (word == "cos") return std::cos(angle);
    if (word == "sin") return std::sin(angle);
    EXPECT_EQ(word, "tan");
    return std::tan(angle);
  }

 private:
  std::string peek() const { return at_ < words_.size() ? words_[at_] : ""; }
  std::string next() { return at_ < words_.size() ? words_[at_++] : ""; }
  long double number() { return std::strtold(next().c_str(), nullptr); }
  long double over(long double numerator) {
    if (peek() != "over") return numerator;
    next();
    return numerator / number();
  }

  std::vector<std::string> words_;
  std::size_t at_ = 0;
};

TEST(Source, NamesOfConstantsMeanTheirValues) {
  const std::regex definition(" constexpr (float|double) ([a-z_0-9]+) = ([-0-9.e]+)f?;");
  int named = 0;
  for (const family::Family& family : registry::families()) {
    if (!family.generated) continue;
    std::vector<int> numbers(family.sizes.begin(), family.sizes.end());
    for (std::size_t i = 0; i < family.generated->kernels.size(); ++i) {
      numbers.push_back(static_cast<int>(i));
    }
    for (const int number : numbers) {
      if (family.name == "complex" && number > 13) continue;  // these take long
      for (const FloatType type : {FloatType::f32, FloatType::f64}) {
        const std::string text = print(family.generated->source(number, type, family::Tuning()));
        for (std::sregex_iterator it(text.begin(), text.end(), definition), end; it != end; ++it) {
          const std::string name = (*it)[2];
          if (name[0] == 'c' && name.find('_') == std::string::npos) continue;  // numbered
          const bool narrow = (*it)[1] == "float";
          const std::string digits = (*it)[3];
          const long double value =
              narrow ? std::strtof(digits.c_str(), nullptr) : std::strtod(digits.c_str(), nullptr);
          // Half a unit of the last place; a product may be that of two roundings.
          const double bound = narrow ? 0x1p-24 : 3.01 * 0x1p-53;
          EXPECT_LE(std::abs(value / Meaning(name).value() - 1), bound)
              << name << " = " << digits << ", " << family.name << " " << number;
          ++named;
        }
      }
    }
  }
  EXPECT_GT(named, 1000);
}

TEST(Source, NamedConstantsAreThoseOfTheProgram) {
  for (const int length : {8, 13, 15, 36, 61}) {
    for (const FloatType type : {FloatType::f32, FloatType::f64}) {
      const auto program = program_of(hartley::design_of(length), type);
      const auto constants = named_constants(program, kernelgen::ConstantNames({length}));
      std::string text = emit_body(program, {}, constants);
      std::istringstream definitions(emit_constants(constants, ""));
      std::string word, name, value;
      std::getline(definitions, word);  // the comment
      while (definitions >> word >> word >> name >> word >> value) {
        value.pop_back();
        const std::string minus = value.front() == '-' ? value.substr(1) : "-" + value;
        text = std::regex_replace(text, std::regex("-" + name + "\\b"), minus);
        text = std::regex_replace(text, std::regex("\\b" + name + "\\b"), value);
      }
      EXPECT_EQ(text, emit_body(program)) << length;
    }
  }
}

}  // namespace
}  // namespace haldgen::test
