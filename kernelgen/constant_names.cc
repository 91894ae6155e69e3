#include "kernelgen/constant_names.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <numeric>
#include <set>
#include <utility>

#include "kernelgen/integers.h"

namespace haldgen::kernelgen {
namespace {

bool is_prime(int n) {
  for (int d = 2; d * d <= n; ++d) {
    if (n % d == 0) return false;
  }
  return n > 1;
}

/// The lengths of blocks that a transform of length n may have inside.
void add_blocks(std::set<int>& blocks, int n) {
  for (int d = 2; d <= n; ++d) {
    if (n % d != 0 || !blocks.insert(d).second) continue;
    if (is_prime(d)) add_blocks(blocks, d - 1);
  }
}

std::string fraction(int k, int n) { return "_" + std::to_string(k) + "_" + std::to_string(n); }

bool equal(Wide a, Wide b) { return is_negligible((a - b) / b); }

/// Whether the number is the named one in the code of a type, or its negative.
bool gives(const ConstantNames::Name& name, double number, FloatType type) {
  const double magnitude = std::abs(number);
  if (std::abs(rounded(name.value, type)) == magnitude) return true;
  return name.factors.size() == 2 &&
         std::abs(to_double(name.factors[0]) * to_double(name.factors[1])) == magnitude;
}

/// Eighths up to 16: the literal says it.
bool is_short(double value) { return std::abs(value) <= 16 && 8 * value == std::round(8 * value); }

}  // namespace

ConstantNames::ConstantNames(const std::vector<int>& lengths) {
  std::set<int> blocks{2, 4, 8, 16};
  for (const int length : lengths) add_blocks(blocks, length);
  std::set<int> denominators;
  for (const int n : blocks) denominators.insert({n, 2 * n, 4 * n});

  add("sqrt_half", sqrt(Wide(0.5)));
  for (const int n : denominators) {
    for (int k = 1; 2 * k < n; ++k) {
      if (std::gcd(k, n) != 1) continue;
      add("cos" + fraction(k, n), cos_turn(k, n));
      add("sin" + fraction(k, n), sin_turn(k, n));
    }
  }
  for (const int n : denominators) {
    if (!is_short(1.0 / n)) add("one_over_" + std::to_string(n), Wide(1.0) / Wide(n));
  }
  for (const int p : blocks) {
    if (!is_prime(p)) continue;
    const std::string root = "sqrt_" + std::to_string(p);
    add(root, sqrt(Wide(p)));
    for (const int n : denominators) {
      add(root + "_over_" + std::to_string(n), sqrt(Wide(p)) / Wide(n));
    }
  }
  for (const int n : denominators) {
    for (int k = 1; 4 * k < n; ++k) {
      if (std::gcd(k, n) == 1) add("tan" + fraction(k, n), sin_turn(k, n) / cos_turn(k, n));
    }
  }
}

void ConstantNames::add(const std::string& text, Wide value) {
  if (is_short(value.hi) || simple(abs(value))) return;
  by_magnitude_.emplace(abs(value).hi, names_.size());
  names_.push_back({text, value});
}

std::optional<ConstantNames::Name> ConstantNames::simple(Wide magnitude) const {
  const double tolerance = 1e-15 * magnitude.hi;
  for (auto it = by_magnitude_.lower_bound(magnitude.hi - tolerance);
       it != by_magnitude_.end() && it->first <= magnitude.hi + tolerance; ++it) {
    if (equal(magnitude, abs(names_[it->second].value))) return names_[it->second];
  }
  return std::nullopt;
}

std::optional<ConstantNames::Name> ConstantNames::of(Wide exact) const {
  const Wide magnitude = abs(exact);
  constexpr std::pair<const char*, double> kMultiples[] = {
      {"", 1.0}, {"twice_", 2.0}, {"half_", 0.5}, {"quarter_", 0.25}};
  for (const auto& [prefix, factor] : kMultiples) {
    if (const auto name = simple(magnitude / Wide(factor))) {
      return Name{prefix + name->text, Wide(factor) * name->value};
    }
  }
  for (const Name& first : names_) {
    if (const auto second = simple(magnitude / abs(first.value))) {
      return Name{"product_" + first.text + "_" + second->text,
                  first.value * second->value,
                  {first.value, second->value}};
    }
  }
  return std::nullopt;
}

const NamedConstant* find(const std::vector<NamedConstant>& constants, double number,
                          FloatType type) {
  for (const NamedConstant& c : constants) {
    if (c.type == type && std::abs(c.value) == std::abs(number)) return &c;
  }
  return nullptr;
}

std::vector<NamedConstant> named_constants(const Program& program, const ConstantNames& names) {
  std::set<std::pair<double, FloatType>, std::greater<>> numbers;
  for (const Instruction& in : program.code) {
    if (in.op != Op::multiply) continue;
    for (int l = 0; l < lanes_of(program, in); ++l) {
      const double number = std::abs(in.constant[at(l)]);
      if (!is_short(number)) numbers.emplace(number, in.wide ? FloatType::f64 : program.type);
    }
  }
  std::vector<NamedConstant> named, numbered;
  for (const auto& [number, type] : numbers) {
    std::optional<ConstantNames::Name> name;
    const auto exact = program.exact.find(number);
    if (exact != program.exact.end()) name = names.of(exact->second);
    const auto same_name = [&](const NamedConstant& c) { return c.name == name->text; };
    if (name && gives(*name, number, type) && std::none_of(named.begin(), named.end(), same_name)) {
      named.push_back({name->text, name->value.hi < 0 ? -number : number, type});
    } else {
      numbered.push_back({"c" + std::to_string(numbered.size()), number, type});
    }
  }
  named.insert(named.end(), numbered.begin(), numbered.end());
  return named;
}

}  // namespace haldgen::kernelgen
