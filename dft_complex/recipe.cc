#include "dft_complex/recipe.h"

namespace haldgen::dft_complex {
namespace {

using kernelgen::EighthRoot;

int product_of_lengths(const Columns& first, const Columns& second) {
  return first.front().length * second.front().length;
}

Recipe make(Method method, int length, Columns first = {}, Columns second = {}) {
  Recipe recipe{};
  recipe.method = method;
  recipe.length = length;
  recipe.first = std::move(first);
  recipe.second = std::move(second);
  return recipe;
}

std::string list(const std::vector<int>& numbers) {
  std::string text;
  for (const int n : numbers) text += (text.empty() ? "" : " ") + std::to_string(n);
  return text;
}

// Runs of equal columns are written once, with their number.
std::string columns(const Columns& parts) {
  if (parts.size() == 1) return to_string(parts.front());
  std::string text = "[";
  for (std::size_t i = 0; i < parts.size();) {
    std::size_t end = i;
    while (end < parts.size() && parts[end] == parts[i]) ++end;
    if (i > 0) text += " ";
    text += (end - i > 1 ? std::to_string(end - i) + "*" : "") + to_string(parts[i]);
    i = end;
  }
  return text + "]";
}

std::string there_and_back(const Recipe& r) {
  std::string text = columns(r.first);
  if (r.fold_there) text += " folded";
  if (r.first != r.second || r.fold_there != r.fold_back) {
    text += " || " + columns(r.second);
    if (r.fold_back) text += " folded";
  }
  if (r.zero_lanes != 0) text += "; " + std::to_string(r.zero_lanes) + " zero lanes";
  if (r.mate != 0) text += "; bin 0 beside bin " + std::to_string(r.mate);
  return text;
}

}  // namespace

std::string to_string(const Recipe& r) {
  const std::string length = std::to_string(r.length);
  switch (r.method) {
    case Method::butterfly:
    case Method::split_eight:
      return length;
    case Method::shared_sixteen:
      return r.eighths_joined ? "16 shared, eighths joined" : "16 shared";
    case Method::five_folded:
      return "5w";
    case Method::direct:
      return length + "d";
    case Method::coprime:
      return "PFA(" + columns(r.first) + ", " + columns(r.second) + ")";
    case Method::cooley_tukey: {
      std::string text = "CT(" + columns(r.first) + ", " + columns(r.second);
      if (r.eighth == EighthRoot::sum_first) text += "; split eighths";
      for (const auto& [place, bin] : r.eighth_exceptions) {
        text += "; split eighth at class " + std::to_string(place) + " bin " + std::to_string(bin);
      }
      if (!r.shifts.places.empty()) text += "; classes " + list(r.shifts.places);
      if (!r.shifts.bins.empty()) text += "; bins " + list(r.shifts.bins);
      if (r.shifts.keep_first_apart) text += "; class 0 unfolded";
      if (r.late_twiddles) text += "; twiddles late";
      return text + ")";
    }
    case Method::rader:
      return length + "r literal(" + there_and_back(r) + ")";
    case Method::joined_rader:
      return length + "r(" + there_and_back(r) + ")";
    case Method::four_odd:
      return "Q4(" + columns(r.first) + ")";
    case Method::halves:
      return "halves(" + columns(r.first) + ", " + columns(r.second) + ")";
    case Method::odd_of_block:
      return "odd of " + columns(r.first);
    case Method::odd_twist:
      return "twist(" + columns(r.first) + ")";
    case Method::bluestein:
      return length + " Bluestein(" + columns(r.first) + " carrying " + std::to_string(r.carried) +
             " || " + columns(r.second) + " computing " + std::to_string(r.computed) +
             (r.zero_lanes ? "; " + std::to_string(r.zero_lanes) + " zero lanes" : "") + ")";
  }
  return "";
}

Recipe butterfly(int length) { return make(Method::butterfly, length); }
Recipe five_folded() { return make(Method::five_folded, 5); }
Recipe direct(int prime) { return make(Method::direct, prime); }
Recipe split_eight() { return make(Method::split_eight, 8); }
Recipe shared_sixteen() { return make(Method::shared_sixteen, 16); }
Recipe shared_sixteen_joined() {
  Recipe recipe = shared_sixteen();
  recipe.eighths_joined = true;
  return recipe;
}

Recipe coprime(Columns first, Columns second) {
  const int length = product_of_lengths(first, second);
  return make(Method::coprime, length, std::move(first), std::move(second));
}
Recipe coprime(Recipe first, Recipe second) {
  return coprime(Columns{std::move(first)}, Columns{std::move(second)});
}
Recipe cooley_tukey(Columns first, Columns second) {
  const int length = product_of_lengths(first, second);
  return make(Method::cooley_tukey, length, std::move(first), std::move(second));
}
Recipe cooley_tukey(Recipe first, Recipe second) {
  return cooley_tukey(Columns{std::move(first)}, Columns{std::move(second)});
}
Recipe rader(int prime, Recipe there, Recipe back) {
  return make(Method::rader, prime, {std::move(there)}, {std::move(back)});
}
Recipe rader(int prime, Recipe block) { return rader(prime, block, block); }
Recipe joined_rader(int prime, Recipe there, Recipe back) {
  return make(Method::joined_rader, prime, {std::move(there)}, {std::move(back)});
}
Recipe joined_rader(int prime, Recipe block) { return joined_rader(prime, block, block); }
Recipe four_odd(Recipe odd_block) {
  const int length = 4 * odd_block.length;
  return make(Method::four_odd, length, {std::move(odd_block)});
}
Recipe halves(Recipe even, Recipe odd) {
  const int length = 2 * even.length;
  return make(Method::halves, length, {std::move(even)}, {std::move(odd)});
}
Recipe odd_of(Recipe block) {
  const int length = block.length / 2;
  return make(Method::odd_of_block, length, {std::move(block)});
}
Recipe odd_twist(Recipe block) {
  const int length = 2 * block.length;
  return make(Method::odd_twist, length, {std::move(block)});
}
Recipe bluestein(int prime, Recipe there, int carried, Recipe back, int computed) {
  Recipe recipe = make(Method::bluestein, prime, {std::move(there)}, {std::move(back)});
  recipe.carried = carried;
  recipe.computed = computed;
  return recipe;
}

Recipe with_split_eighths(Recipe recipe) {
  recipe.eighth = EighthRoot::sum_first;
  return recipe;
}
Recipe with_split_eighths(Recipe recipe, std::vector<std::pair<int, int>> exceptions) {
  recipe.eighth_exceptions = std::move(exceptions);
  return recipe;
}
Recipe with_places(Recipe recipe, std::vector<int> places) {
  recipe.shifts.places = std::move(places);
  return recipe;
}
Recipe with_bins(Recipe recipe, std::vector<int> bins) {
  recipe.shifts.bins = std::move(bins);
  return recipe;
}
Recipe with_first_apart(Recipe recipe) {
  recipe.shifts.keep_first_apart = true;
  return recipe;
}
Recipe with_late_twiddles(Recipe recipe) {
  recipe.late_twiddles = true;
  return recipe;
}
Recipe folded_there(Recipe recipe) {
  recipe.fold_there = true;
  return recipe;
}
Recipe folded_back(Recipe recipe) {
  recipe.fold_back = true;
  return recipe;
}
Recipe with_zero_lanes(Recipe recipe, int count) {
  recipe.zero_lanes = count;
  return recipe;
}
Recipe with_mate(Recipe recipe, int bin) {
  recipe.mate = bin;
  return recipe;
}
Recipe with_written_signs(Recipe recipe) {
  recipe.signs_as_written = true;
  return recipe;
}

std::vector<int> symmetric(int count) {
  std::vector<int> result;
  for (int k = 0; k < count; ++k) result.push_back(k <= count / 2 ? k : k - count);
  return result;
}

}  // namespace haldgen::dft_complex
