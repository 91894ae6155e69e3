#include "real_blocks/expand.h"

#include <algorithm>
#include <stdexcept>

#include "kernelgen/integers.h"
#include "kernelgen/stage.h"
#include "real_blocks/statements.h"

namespace haldgen::real_blocks {
namespace {

using kernelgen::columns_of;
using kernelgen::kDifferences;
using kernelgen::kEvenBins;
using kernelgen::kOddBins;
using kernelgen::kTwiddles;
using kernelgen::rows_of;
using kernelgen::Stage;

const Recipe& block(const Recipe& recipe, int i) { return recipe.blocks[at(i)]; }

Bins no_bins(int count) { return Bins(at(count), Bin{nullptr, {}, {}}); }

Reals strided(const Reals& x, int first, int stride) {
  Reals part;
  for (std::size_t i = at(first); i < x.size(); i += at(stride)) part.push_back(x[i]);
  return part;
}

/// Bin k of each column.
Bins row(const std::vector<Bins>& columns, int k) {
  Bins bins;
  for (const Bins& column : columns) bins.push_back(column[at(k)]);
  return bins;
}

Reals real_parts(const Bins& bins) {
  Reals parts;
  for (const Bin& bin : bins) parts.push_back(bin.re);
  return parts;
}

/// Pairs k, n-k in the order of a generator of the group modulo n, up to sign: each cosine sum
/// takes them in turn.
std::vector<int> pair_order(int n) {
  int generator = 1;
  if (n == 5) generator = 3;
  if (n == 7) generator = 5;
  if (n == 11) generator = 6;
  std::vector<int> order;
  int k = 1;
  for (int i = 0; i < (n - 1) / 2; ++i) {
    order.push_back(k);
    k = k * generator % n;
  }
  return order;
}

Bins direct_bins(Graph& g, const Recipe& recipe, const Reals& x) {
  const int n = recipe.length;
  const std::vector<int> order = pair_order(n);
  Reals sums, differences;
  for (const int k : order) sums.push_back(g.add(x[at(k)], x[at(n - k)]));
  for (const int k : order) differences.push_back(g.subtract(x[at(k)], x[at(n - k)]));
  Reals totalled = sums;
  if (recipe.chosen<Direct>().total == Total::by_index) {
    for (std::size_t i = 0; i < order.size(); ++i) {
      totalled[at(std::min(order[i], n - order[i]) - 1)] = sums[i];
    }
  }
  Value total = x[0];
  for (const Value sum : totalled) total = g.add(total, sum);
  Bins bins{{&g, total, {}}};
  for (int k = 1; 2 * k < n; ++k) {
    std::vector<Term> cosines{term(x[0])}, sines;
    for (std::size_t i = 0; i < order.size(); ++i) {
      const int turn = k * order[i] % n;
      cosines.push_back(term(g, kernelgen::cos_turn(turn, n), sums[i]));
      sines.push_back(term(g, -kernelgen::sin_turn(turn, n), differences[i]));
    }
    const Value re = g.statement(cosines);
    bins.push_back({&g, re, g.statement(sines)});
  }
  return bins;
}

/// The real bin of the middle of four classes, at an eighth of the circle, and the bin above it.
void place_middle(Graph& g, Bins& bins, int n, const Reals& x) {
  const Wide c = sqrt(Wide(0.5));
  const Value p = product(g, c, x[1]);
  const Value r = product(g, c, x[3]);
  const Value difference = g.subtract(p, r);
  const Value sum = g.add(p, r);
  const int k = n / 8;
  const Value upper_re = g.add(x[0], difference);
  place(bins, n, k, {&g, upper_re, -g.add(sum, x[2])});
  const Value lower_re = g.subtract(x[0], difference);
  place(bins, n, k + n / 4, {&g, lower_re, -g.subtract(sum, x[2])});
}

Bins power_of_two_bins(Graph& g, const Recipe& recipe, const Reals& x) {
  const int n = recipe.length;
  if (n == 2) {
    const Value sum = g.add(x[0], x[1]);
    return {{&g, sum, {}}, {&g, g.subtract(x[0], x[1]), {}}};
  }
  Bins bins = no_bins(n / 2 + 1);
  if (n == 4) {
    const Value even = g.add(x[0], x[2]);
    const Value odd = g.add(x[1], x[3]);
    bins[0] = {&g, g.add(even, odd), {}};
    bins[2] = {&g, g.subtract(even, odd), {}};
    const Value re = g.subtract(x[0], x[2]);
    bins[1] = {&g, re, -g.subtract(x[1], x[3])};
    return bins;
  }
  Stage stage(g, columns_of(n == 8 ? 4 : n / 4));
  if (n == 8) {
    const Bins even = real_bins(g, power_of_two(4), strided(x, 0, 2));
    const Bins odd = real_bins(g, power_of_two(4), strided(x, 1, 2));
    stage.next(rows_of(2));
    bins[0] = {&g, g.add(even[0].re, odd[0].re), {}};
    bins[4] = {&g, g.subtract(even[0].re, odd[0].re), {}};
    bins[2] = even[2] + turned(odd[2], Turn::three_quarters);
    const Bin turned_odd = rotated(odd[1], 1, 8, recipe.chosen<Twiddled>().eighth);
    place(bins, n, 1, even[1] + turned_odd);
    place(bins, n, 5, even[1] - turned_odd);
    return bins;
  }
  std::vector<Bins> quarter;
  for (int r = 0; r < 4; ++r) {
    quarter.push_back(real_bins(g, power_of_two(n / 4), strided(x, r, 4)));
  }
  stage.next(rows_of(4));
  const Bins outer = real_bins(g, power_of_two(4), real_parts(row(quarter, 0)));
  for (int l = 0; l <= 2; ++l) place(bins, n, l * n / 4, outer[at(l)]);
  place_middle(g, bins, n, real_parts(row(quarter, n / 8)));
  for (int k = 1; k < n / 8; ++k) {
    Bins column = row(quarter, k);
    stage.next(kTwiddles);
    for (int r = 1; r < 4; ++r) {
      column[at(r)] = rotated(column[at(r)], r * k, n, recipe.chosen<Twiddled>().eighth);
    }
    stage.next(rows_of(4));
    const Bins across = complex_bins(g, power_of_two(4), column);
    for (int l = 0; l < 4; ++l) place(bins, n, k + l * n / 4, across[at(l)]);
  }
  return bins;
}

Bins halves_bins(Graph& g, const Recipe& recipe, const Reals& x) {
  Stage stage(g, kDifferences);
  const int half = recipe.length / 2;
  Reals sums, differences;
  for (int i = 0; i < half; ++i) sums.push_back(g.add(x[at(i)], x[at(i + half)]));
  for (int i = 0; i < half; ++i) differences.push_back(g.subtract(x[at(i)], x[at(i + half)]));
  stage.next(kEvenBins);
  const Bins even = real_bins(g, block(recipe, 0), sums);
  stage.next(kOddBins);
  const Bins odd = odd_bins(g, block(recipe, 1), differences);
  Bins bins;
  for (int k = 0; k <= half; ++k) bins.push_back(k % 2 == 0 ? even[at(k / 2)] : odd[at(k / 2)]);
  return bins;
}

Bins coprime_bins(Graph& g, const Recipe& recipe, const Reals& x) {
  const int n = recipe.length;
  const int a = block(recipe, 0).length;
  const int b = block(recipe, 1).length;
  std::vector<Bins> columns;
  Stage stage(g, columns_of(a));
  for (int column = 0; column < b; ++column) {
    Reals part;
    for (int i = 0; i < a; ++i) part.push_back(x[at((b * i + a * column) % n)]);
    columns.push_back(real_bins(g, block(recipe, 0), part));
  }
  Bins bins = no_bins(n / 2 + 1);
  stage.next(rows_of(b));
  for (int k1 = 0; 2 * k1 <= a; ++k1) {
    const bool real = k1 == 0 || 2 * k1 == a;
    const Bins across = real ? real_bins(g, block(recipe, 1), real_parts(row(columns, k1)))
                             : complex_bins(g, block(recipe, 1), row(columns, k1));
    for (std::size_t k2 = 0; k2 < across.size(); ++k2) {
      place(bins, n, kernelgen::congruent(k1, a, static_cast<int>(k2), b), across[k2]);
    }
  }
  return bins;
}

/// Value q of a row of a Cooley-Tukey step multiplied by exp(-2 pi i q k / n).
Bins twiddled(Bins bins, int k, int n) {
  for (std::size_t q = 0; q < bins.size(); ++q) {
    bins[q] = rotated(bins[q], static_cast<int>(q) * k, n, EighthRoot::sum_first);
  }
  return bins;
}

/// Bins of a real transform under the names r k.
Bins renamed(const Bins& bins, int n, int r) {
  if (n < 1) throw std::logic_error("a block without values");
  Bins result = no_bins(n / 2 + 1);
  for (int k = 0; 2 * k <= n; ++k) {
    const int from = r * k % n;
    result[at(k)] = 2 * from <= n ? bins[at(from)] : conj(bins[at(n - from)]);
  }
  return result;
}

Bins permuted_bins(Graph& g, const Recipe& recipe, const Reals& x) {
  const int r = recipe.chosen<Multiplied>().multiplier;
  Reals permuted;
  for (int i = 0; i < recipe.length; ++i) permuted.push_back(x[at(r * i % recipe.length)]);
  return renamed(real_bins(g, block(recipe, 0), permuted), recipe.length, r);
}

/// Exponents and names of bins multiplied by r; r = 1 is the plain Cooley-Tukey step.
Bins cooley_tukey_bins(Graph& g, const Recipe& recipe, const Reals& x) {
  const int n = recipe.length;
  const int r = recipe.method == Method::relabelled ? recipe.chosen<Multiplied>().multiplier : 1;
  const int a = block(recipe, 0).length;
  const int b = block(recipe, 1).length;
  std::vector<Bins> columns;
  Stage stage(g, columns_of(a));
  for (int q = 0; q < b; ++q) {
    columns.push_back(renamed(real_bins(g, block(recipe, 0), strided(x, q, b)), a, r));
  }
  Bins bins = no_bins(n / 2 + 1);
  for (int k1 = 0; 2 * k1 <= a; ++k1) {
    Bins across;
    if (k1 == 0) {
      stage.next(rows_of(b));
      across = renamed(real_bins(g, block(recipe, 1), real_parts(row(columns, 0))), b, r);
    } else {
      stage.next(kTwiddles);
      const Bins turned = twiddled(row(columns, k1), r * k1, n);
      stage.next(rows_of(b));
      const Bins all = complex_bins(g, block(recipe, 1), turned);
      for (int k2 = 0; k2 < b; ++k2) across.push_back(all[at(r * k2 % b)]);
    }
    for (std::size_t k2 = 0; k2 < across.size(); ++k2) {
      place(bins, n, r * (k1 + a * static_cast<int>(k2)), across[k2]);
    }
  }
  return bins;
}

Bins complex_cooley_tukey(Graph& g, const Recipe& recipe, const Bins& x) {
  const int n = recipe.length;
  const int a = block(recipe, 0).length;
  const int b = block(recipe, 1).length;
  std::vector<Bins> columns;
  Stage stage(g, columns_of(a));
  for (int q = 0; q < b; ++q) {
    Bins part;
    for (int i = q; i < n; i += b) part.push_back(x[at(i)]);
    columns.push_back(complex_bins(g, block(recipe, 0), part));
  }
  Bins bins = no_bins(n);
  for (int k1 = 0; k1 < a; ++k1) {
    stage.next(kTwiddles);
    const Bins turned = twiddled(row(columns, k1), k1, n);
    stage.next(rows_of(b));
    const Bins across = complex_bins(g, block(recipe, 1), turned);
    for (int k2 = 0; k2 < b; ++k2) bins[at(k1 + a * k2)] = across[at(k2)];
  }
  return bins;
}

Bins complex_decimated(Graph& g, const Recipe& recipe, const Bins& x) {
  const int half = recipe.length / 2;
  Stage stage(g, kDifferences);
  Bins sums, differences;
  for (int i = 0; i < half; ++i) sums.push_back(x[at(i)] + x[at(i + half)]);
  for (int i = 0; i < half; ++i) {
    differences.push_back(
        rotated(x[at(i)] - x[at(i + half)], i, recipe.length, EighthRoot::sum_first));
  }
  stage.next(kEvenBins);
  const Bins even = complex_bins(g, block(recipe, 0), sums);
  stage.next(kOddBins);
  const Bins odd = complex_bins(g, block(recipe, 0), differences);
  Bins bins;
  for (int k = 0; k < recipe.length; ++k) {
    bins.push_back(k % 2 == 0 ? even[at(k / 2)] : odd[at(k / 2)]);
  }
  return bins;
}

/// Real and imaginary parts through one block each: bins A + i B and, mirrored, A* + i B*.
struct PartBins {
  Bins re;
  Bins im;
  Bin upper(int k) const { return re[at(k)] + turned(im[at(k)], Turn::quarter); }
  Bin lower(int k) const { return conj(re[at(k)]) + turned(conj(im[at(k)]), Turn::quarter); }
};

Reals parts_of(const Bins& x, Value Bin::*part) {
  Reals parts;
  for (const Bin& bin : x) parts.push_back(bin.*part);
  return parts;
}

Bins alternated_bins(Graph& g, const Recipe& recipe, const Reals& x) {
  const int n = recipe.length;
  Reals alternate;
  for (int q = 0; q < n; ++q) alternate.push_back(q % 2 == 0 ? x[at(q)] : -x[at(q)]);
  const Bins inner = real_bins(g, block(recipe, 0), alternate);
  Bins bins = no_bins((n + 1) / 2);
  for (std::size_t k = 0; k < inner.size(); ++k) {
    place_odd(bins, n, n + 2 * static_cast<int>(k), inner[k]);
  }
  return bins;
}

Bins twisted_bins(Graph& g, const Recipe& recipe, const Reals& x) {
  const int n = recipe.length;
  Bins z;
  Stage stage(g, kTwiddles);
  for (int q = 0; 2 * q < n; ++q) {
    z.push_back(
        rotated({&g, x[at(q)], -x[at(q + n / 2)]}, q, 2 * n, recipe.chosen<Twiddled>().eighth));
  }
  stage.next(columns_of(n / 2));
  const Bins inner = complex_bins(g, block(recipe, 0), z);
  Bins bins = no_bins(n / 2);
  for (std::size_t l = 0; l < inner.size(); ++l) {
    place_odd(bins, n, 1 + 4 * static_cast<int>(l), inner[l]);
  }
  return bins;
}

Bins coprime_odd_bins(Graph& g, const Recipe& recipe, const Reals& x) {
  const int n = recipe.length;
  const int q = block(recipe, 0).length;
  const int e = block(recipe, 1).length;
  std::vector<Bins> columns;
  Stage stage(g, columns_of(q));
  for (int n1 = 0; n1 < e; ++n1) {
    Reals part;
    for (int n2 = 0; n2 < q; ++n2) {
      const int place = (q * n1 + 2 * e * n2) % (2 * n);
      part.push_back(place < n ? x[at(place)] : -x[at(place - n)]);
    }
    columns.push_back(real_bins(g, block(recipe, 0), part));
  }
  Bins bins = no_bins((n + 1) / 2);
  stage.next(rows_of(e));
  for (int k2 = 0; 2 * k2 <= q; ++k2) {
    const Bins across = k2 == 0 ? odd_bins(g, block(recipe, 1), real_parts(row(columns, 0)))
                                : complex_odd_bins(g, block(recipe, 1), row(columns, k2));
    for (std::size_t i = 0; i < across.size(); ++i) {
      place_odd(bins, n, kernelgen::congruent(2 * static_cast<int>(i) + 1, 2 * e, k2, q),
                across[i]);
    }
  }
  return bins;
}

Bins classes_bins(Graph& g, const Recipe& recipe, const Reals& x) {
  const int n = recipe.length;
  const bool from_behind = recipe.chosen<Classes>().from_behind;
  const int m = block(recipe, 0).length;
  const int p = block(recipe, 1).length;
  std::vector<Bins> columns;
  Stage stage(g, columns_of(m));
  for (int q = 0; q < p; ++q) {
    Reals part = strided(x, q, p);
    if (from_behind && q == 1) {
      // x[-1] = -x[n-1], since half the circle is a change of sign.
      part.insert(part.begin(), -part.back());
      part.pop_back();
    }
    columns.push_back(odd_bins(g, block(recipe, 0), part));
  }
  const auto first_place = [&](int q) { return from_behind && q == 1 ? -1 : q; };
  Bins bins = no_bins((n + 1) / 2);
  for (int j = 1; j <= m; j += 2) {
    Bins column = row(columns, j / 2);
    if (j == m) {
      // exp(-2 pi i q m / 2n) is the root of odd bins across; at -1 it is minus that at 1.
      Reals parts = real_parts(column);
      for (int q = 0; q < p; ++q) {
        if (first_place(q) < 0) parts[at(q)] = -parts[at(q)];
      }
      stage.next(rows_of(p));
      const Bins across = odd_bins(g, block(recipe, 2), parts);
      for (std::size_t i = 0; i < across.size(); ++i) {
        place_odd(bins, n, (2 * static_cast<int>(i) + 1) * m, across[i]);
      }
      continue;
    }
    stage.next(kTwiddles);
    for (int q = 0; q < p; ++q) {
      column[at(q)] = rotated(column[at(q)], first_place(q) * j, 2 * n, EighthRoot::sum_first);
    }
    stage.next(rows_of(p));
    const Bins across = complex_bins(g, block(recipe, 1), column);
    for (int l = 0; l < p; ++l) place_odd(bins, n, j + 2 * m * l, across[at(l)]);
  }
  return bins;
}

}  // namespace

Bins real_bins(Graph& g, const Recipe& recipe, const Reals& x) {
  if (x.size() != at(recipe.length)) throw std::logic_error("a block of another length");
  switch (recipe.method) {
    case Method::single:
      return {{&g, x[0], {}}};
    case Method::direct:
      return direct_bins(g, recipe, x);
    case Method::power_of_two:
      return power_of_two_bins(g, recipe, x);
    case Method::halves:
      return halves_bins(g, recipe, x);
    case Method::coprime:
      return coprime_bins(g, recipe, x);
    case Method::cooley_tukey:
    case Method::relabelled:
      return cooley_tukey_bins(g, recipe, x);
    case Method::rader:
      return rader_bins(g, recipe, x);
    case Method::by_column:
      return real_bins(g, block(recipe, 0), x);
    case Method::permuted:
      return permuted_bins(g, recipe, x);
    default:
      throw std::logic_error("no block on real values");
  }
}

Bins complex_bins(Graph& g, const Recipe& recipe, const Bins& x) {
  switch (recipe.method) {
    case Method::cooley_tukey:
      return complex_cooley_tukey(g, recipe, x);
    case Method::decimated:
      return complex_decimated(g, recipe, x);
    case Method::by_column:
      return complex_bins(g, block(recipe, 1), x);
    case Method::relabelled:
      throw std::logic_error("a relabelled block is for real values");
    default:
      break;
  }
  const int n = recipe.length;
  const Bins re = real_bins(g, recipe, parts_of(x, &Bin::re));
  const PartBins parts{re, real_bins(g, recipe, parts_of(x, &Bin::im))};
  Bins bins = no_bins(n);
  for (int k = 0; 2 * k <= n; ++k) {
    bins[at(k)] = parts.upper(k);
    if (k != 0 && 2 * k != n) bins[at(n - k)] = parts.lower(k);
  }
  return bins;
}

Bins odd_bins(Graph& g, const Recipe& recipe, const Reals& x) {
  switch (recipe.method) {
    case Method::alternated:
      return alternated_bins(g, recipe, x);
    case Method::twisted:
      return twisted_bins(g, recipe, x);
    case Method::coprime_odd:
      return coprime_odd_bins(g, recipe, x);
    case Method::classes:
      return classes_bins(g, recipe, x);
    default:
      throw std::logic_error("no block of odd bins");
  }
}

Bins complex_odd_bins(Graph& g, const Recipe& recipe, const Bins& x) {
  const int n = recipe.length;
  const Bins re = odd_bins(g, recipe, parts_of(x, &Bin::re));
  const PartBins parts{re, odd_bins(g, recipe, parts_of(x, &Bin::im))};
  Bins bins = no_bins(n);
  for (int j = 1; j <= n; j += 2) {
    bins[at(j / 2)] = parts.upper(j / 2);
    if (j != n) bins[at((2 * n - j) / 2)] = parts.lower(j / 2);
  }
  return bins;
}

Reals present_parts(const Bins& bins) {
  Reals parts;
  for (const Bin& bin : bins) {
    parts.push_back(bin.re);
    if (!kernelgen::is_zero(bin.im)) parts.push_back(bin.im);
  }
  return parts;
}

Graph half_spectrum(const Recipe& recipe) {
  Graph graph(kernelgen::Field::real);
  Reals x;
  for (int i = 0; i < recipe.length; ++i) x.push_back(graph.input(i));
  graph.set_outputs(present_parts(real_bins(graph, recipe, x)));
  return graph;
}

}  // namespace haldgen::real_blocks
