#include "real_blocks/recipe.h"

#include <utility>

namespace haldgen::real_blocks {
namespace {

std::string joined(const Recipe& recipe, const char* separator) {
  std::string text;
  for (const Recipe& block : recipe.blocks) {
    text += (text.empty() ? "" : separator) + to_string(block);
  }
  return text;
}

/// How eighth roots are formed, where that is not the usual way of the method.
std::string mark(const Recipe& recipe, EighthRoot usual) {
  const EighthRoot eighth = recipe.chosen<Twiddled>().eighth;
  if (eighth == EighthRoot::full_product) return "''";
  return eighth == usual ? "" : "'";
}

std::string word(const Recipe& recipe) {
  std::string length = std::to_string(recipe.length);
  switch (recipe.method) {
    case Method::single:
      return length;
    case Method::direct:
      return length + (recipe.chosen<Direct>().total == Total::by_power ? "p" : "");
    case Method::power_of_two:
      return length + mark(recipe, EighthRoot::products_first);
    case Method::halves:
      return "halves";
    case Method::coprime:
    case Method::cooley_tukey:
      return "";
    case Method::rader: {
      const int shift = recipe.chosen<Rader>().shift;
      return "rader " + length + (shift == 0 ? "" : " from " + std::to_string(shift));
    }
    case Method::by_column:
      return "by column";
    case Method::decimated:
      return "decimated";
    case Method::permuted:
      return "permuted " + std::to_string(recipe.chosen<Multiplied>().multiplier);
    case Method::relabelled:
      return "relabelled " + std::to_string(recipe.chosen<Multiplied>().multiplier);
    case Method::alternated:
      return "alternated";
    case Method::twisted:
      return "twisted" + mark(recipe, EighthRoot::sum_first);
    case Method::coprime_odd:
      return "coprime odd";
    case Method::classes:
      return recipe.chosen<Classes>().from_behind ? "classes from behind" : "classes";
  }
  return "";
}

}  // namespace

std::string to_string(const Recipe& recipe) {
  const char* separator = ", ";
  if (recipe.method == Method::coprime) separator = " . ";
  if (recipe.method == Method::cooley_tukey) separator = " x ";
  return word(recipe) + (recipe.blocks.empty() ? "" : "(" + joined(recipe, separator) + ")");
}

Recipe single() { return {Method::single, 1}; }

Recipe direct(int prime) { return {Method::direct, prime, {}, Direct{}}; }

Recipe power_of_two(int length, EighthRoot eighth) {
  return {Method::power_of_two, length, {}, Twiddled{eighth}};
}

Recipe halves(Recipe even, Recipe odd) {
  const int length = even.length + odd.length;
  return {Method::halves, length, {std::move(even), std::move(odd)}};
}

Recipe coprime(Recipe first, Recipe second) {
  const int length = first.length * second.length;
  return {Method::coprime, length, {std::move(first), std::move(second)}};
}

Recipe cooley_tukey(Recipe first, Recipe second) {
  const int length = first.length * second.length;
  return {Method::cooley_tukey, length, {std::move(first), std::move(second)}};
}

Recipe rader(int prime, Recipe block, Recipe even, Recipe odd) {
  return {Method::rader, prime, {std::move(block), std::move(even), std::move(odd)}, Rader{}};
}

Recipe shifted(int shift, Recipe rader) {
  std::get<Rader>(rader.choices).shift = shift;
  return rader;
}

Recipe by_column(Recipe real, Recipe complex) {
  const int length = real.length;
  return {Method::by_column, length, {std::move(real), std::move(complex)}};
}

Recipe decimated(Recipe half) {
  const int length = 2 * half.length;
  return {Method::decimated, length, {std::move(half)}};
}

Recipe permuted(int multiplier, Recipe block) {
  const int length = block.length;
  return {Method::permuted, length, {std::move(block)}, Multiplied{multiplier}};
}

Recipe relabelled(int multiplier, Recipe cooley_tukey) {
  const int length = cooley_tukey.length;
  return {Method::relabelled, length, std::move(cooley_tukey.blocks), Multiplied{multiplier}};
}

Recipe totalled_by_power(Recipe recipe) {
  if (recipe.method == Method::direct && recipe.length > 7) {
    recipe.choices = Direct{Total::by_power};
  }
  for (Recipe& block : recipe.blocks) block = totalled_by_power(std::move(block));
  return recipe;
}

Recipe alternated(Recipe block) {
  const int length = block.length;
  return {Method::alternated, length, {std::move(block)}};
}

Recipe twisted(Recipe block, EighthRoot eighth) {
  const int length = 2 * block.length;
  return {Method::twisted, length, {std::move(block)}, Twiddled{eighth}};
}

Recipe coprime_odd(Recipe first, Recipe odd) {
  const int length = first.length * odd.length;
  return {Method::coprime_odd, length, {std::move(first), std::move(odd)}};
}

Recipe classes(Recipe odd, Recipe across) {
  const int length = odd.length * across.length;
  return {Method::classes, length, {std::move(odd), std::move(across)}, Classes{}};
}

Recipe classes(Recipe odd, Recipe across, Recipe real_across) {
  Recipe recipe = classes(std::move(odd), std::move(across));
  recipe.blocks.push_back(std::move(real_across));
  return recipe;
}

Recipe classes_from_behind(Recipe odd, Recipe across, Recipe real_across) {
  Recipe recipe = classes(std::move(odd), std::move(across), std::move(real_across));
  recipe.choices = Classes{true};
  return recipe;
}

}  // namespace haldgen::real_blocks
