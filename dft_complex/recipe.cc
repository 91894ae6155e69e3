#include "dft_complex/recipe.h"

namespace haldgen::dft_complex {
namespace {

using kernelgen::EighthRoot;

int product_of_lengths(const Columns& first, const Columns& second) {
  return first.front().length * second.front().length;
}

/// The recipe with one of the choices of its method made.
template <class Choice, class Value>
Recipe with(Recipe recipe, Value Choice::*choice, Value value) {
  std::get<Choice>(recipe.choices).*choice = std::move(value);
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

std::string zero_lanes(int count) {
  return count == 0 ? "" : "; " + std::to_string(count) + " zero lanes";
}

std::string there_and_back(const Recipe& r, bool fold_there, bool fold_back) {
  std::string text = columns(r.first);
  if (fold_there) text += " folded";
  if (r.first != r.second || fold_there != fold_back) {
    text += " || " + columns(r.second);
    if (fold_back) text += " folded";
  }
  return text;
}

}  // namespace

std::string to_string(const Recipe& r) {
  std::string length = std::to_string(r.length);
  switch (r.method) {
    case Method::butterfly:
    case Method::split_eight:
      return length;
    case Method::shared_sixteen:
      return r.chosen<SharedSixteen>().eighths_joined ? "16 shared, eighths joined" : "16 shared";
    case Method::five_folded:
      return "5w";
    case Method::direct:
      return length + "d";
    case Method::coprime:
      return "PFA(" + columns(r.first) + ", " + columns(r.second) + ")";
    case Method::cooley_tukey: {
      const auto& c = r.chosen<CooleyTukey>();
      std::string text = "CT(" + columns(r.first) + ", " + columns(r.second);
      if (c.eighth == EighthRoot::sum_first) text += "; split eighths";
      for (const auto& [place, bin] : c.eighths_sum_first) {
        text += "; split eighth at class " + std::to_string(place) + " bin " + std::to_string(bin);
      }
      if (!c.places.empty()) text += "; classes " + list(c.places);
      if (!c.bins.empty()) text += "; bins " + list(c.bins);
      if (c.first_apart) text += "; class 0 unfolded";
      if (c.late_twiddles) text += "; twiddles late";
      return text + ")";
    }
    case Method::rader: {
      const auto& c = r.chosen<Rader>();
      const std::string mate = c.mate == 0 ? "" : "; bin 0 beside bin " + std::to_string(c.mate);
      return length + "r literal(" + there_and_back(r, false, false) + zero_lanes(c.zero_lanes) +
             mate + ")";
    }
    case Method::joined_rader: {
      const auto& c = r.chosen<JoinedRader>();
      return length + "r(" + there_and_back(r, c.fold_there, c.fold_back) +
             zero_lanes(c.zero_lanes) + ")";
    }
    case Method::four_odd:
      return "Q4(" + columns(r.first) + ")";
    case Method::halves:
      return "halves(" + columns(r.first) + ", " + columns(r.second) + ")";
    case Method::odd_of_block:
      return "odd of " + columns(r.first);
    case Method::twisted:
      return "twist(" + columns(r.first) + ")";
    case Method::bluestein: {
      const auto& c = r.chosen<Bluestein>();
      return length + " Bluestein(" + columns(r.first) + " carrying " + std::to_string(c.carried) +
             " || " + columns(r.second) + " computing " + std::to_string(c.computed) +
             zero_lanes(c.zero_lanes) + ")";
    }
  }
  return "";
}

Recipe butterfly(int length) { return {Method::butterfly, length}; }
Recipe five_folded() { return {Method::five_folded, 5}; }
Recipe direct(int prime) { return {Method::direct, prime}; }
Recipe split_eight() { return {Method::split_eight, 8}; }
Recipe shared_sixteen() { return {Method::shared_sixteen, 16, {}, {}, SharedSixteen{}}; }
Recipe shared_sixteen_joined() {
  return with(shared_sixteen(), &SharedSixteen::eighths_joined, true);
}

Recipe coprime(Columns first, Columns second) {
  const int length = product_of_lengths(first, second);
  return {Method::coprime, length, std::move(first), std::move(second)};
}
Recipe coprime(Recipe first, Recipe second) {
  return coprime(Columns{std::move(first)}, Columns{std::move(second)});
}
Recipe cooley_tukey(Columns first, Columns second) {
  const int length = product_of_lengths(first, second);
  return {Method::cooley_tukey, length, std::move(first), std::move(second), CooleyTukey{}};
}
Recipe cooley_tukey(Recipe first, Recipe second) {
  return cooley_tukey(Columns{std::move(first)}, Columns{std::move(second)});
}
Recipe rader(int prime, Recipe there, Recipe back) {
  return {Method::rader, prime, {std::move(there)}, {std::move(back)}, Rader{}};
}
Recipe rader(int prime, const Recipe& block) { return rader(prime, block, block); }
Recipe joined_rader(int prime, Recipe there, Recipe back) {
  return {Method::joined_rader, prime, {std::move(there)}, {std::move(back)}, JoinedRader{}};
}
Recipe joined_rader(int prime, const Recipe& block) { return joined_rader(prime, block, block); }
Recipe four_odd(Recipe odd_block) {
  const int length = 4 * odd_block.length;
  return {Method::four_odd, length, {std::move(odd_block)}};
}
Recipe halves(Recipe even, Recipe odd) {
  const int length = 2 * even.length;
  return {Method::halves, length, {std::move(even)}, {std::move(odd)}};
}
Recipe odd_of(Recipe block) {
  const int length = block.length / 2;
  return {Method::odd_of_block, length, {std::move(block)}};
}
Recipe twisted(Recipe block) {
  const int length = 2 * block.length;
  return {Method::twisted, length, {std::move(block)}};
}
Recipe bluestein(int prime, Recipe there, int carried, Recipe back, int computed) {
  return {Method::bluestein,
          prime,
          {std::move(there)},
          {std::move(back)},
          Bluestein{carried, computed}};
}

Recipe with_eighths_sum_first(Recipe recipe) {
  return with(std::move(recipe), &CooleyTukey::eighth, EighthRoot::sum_first);
}
Recipe with_eighths_sum_first(Recipe recipe, std::vector<std::pair<int, int>> classes_and_bins) {
  return with(std::move(recipe), &CooleyTukey::eighths_sum_first, std::move(classes_and_bins));
}
Recipe with_places(Recipe recipe, std::vector<int> places) {
  return with(std::move(recipe), &CooleyTukey::places, std::move(places));
}
Recipe with_bins(Recipe recipe, std::vector<int> bins) {
  return with(std::move(recipe), &CooleyTukey::bins, std::move(bins));
}
Recipe with_first_apart(Recipe recipe) {
  return with(std::move(recipe), &CooleyTukey::first_apart, true);
}
Recipe with_late_twiddles(Recipe recipe) {
  return with(std::move(recipe), &CooleyTukey::late_twiddles, true);
}
Recipe folded_there(Recipe recipe) {
  return with(std::move(recipe), &JoinedRader::fold_there, true);
}
Recipe folded_back(Recipe recipe) { return with(std::move(recipe), &JoinedRader::fold_back, true); }
Recipe with_zero_lanes(Recipe recipe, int count) {
  if (recipe.method == Method::rader) return with(std::move(recipe), &Rader::zero_lanes, count);
  if (recipe.method == Method::bluestein) {
    return with(std::move(recipe), &Bluestein::zero_lanes, count);
  }
  return with(std::move(recipe), &JoinedRader::zero_lanes, count);
}
Recipe with_mate(Recipe recipe, int bin) { return with(std::move(recipe), &Rader::mate, bin); }

std::vector<int> symmetric(int count) {
  std::vector<int> result;
  for (int k = 0; k < count; ++k) result.push_back(k <= count / 2 ? k : k - count);
  return result;
}

}  // namespace haldgen::dft_complex
