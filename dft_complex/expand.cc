// From a recipe to its graph.
#include <algorithm>
#include <map>
#include <optional>
#include <stdexcept>

#include "dft_complex/blocks.h"
#include "dft_complex/recipe.h"
#include "kernelgen/integers.h"
#include "kernelgen/stage.h"
#include "kernelgen/transpose.h"

namespace haldgen::dft_complex {
namespace {

using kernelgen::at;
using kernelgen::columns_of;
using kernelgen::Field;
using kernelgen::Graph;
using kernelgen::kDifferences;
using kernelgen::kEvenBins;
using kernelgen::kOddBins;
using kernelgen::kProducts;
using kernelgen::kSpectrum;
using kernelgen::kTwiddles;
using kernelgen::modulo;
using kernelgen::Parts;
using kernelgen::rows_of;
using kernelgen::Stage;
using kernelgen::Turn;
using kernelgen::Value;
using kernelgen::Whole;
using kernelgen::WideComplex;

constexpr auto kBack = "from the spectrum";
constexpr auto kChirp = "products by the chirp";

/// Sets folding of constants for a region and restores it.
class Folding {
 public:
  Folding(Graph& graph, bool folding) : graph_(graph), before_(graph.folding()) {
    graph.set_folding(folding);
  }
  ~Folding() { graph_.set_folding(before_); }
  Folding(const Folding&) = delete;
  Folding& operator=(const Folding&) = delete;

 private:
  Graph& graph_;
  bool before_;
};

/// Rader's index permutation of p - 1 places.
struct RaderOrder {
  explicit RaderOrder(int p) : length(p - 1) {
    const int g = kernelgen::primitive_root(p);
    for (int k = 0; k < length; ++k) read.push_back(kernelgen::power(g, k, p));
    for (int l = 0; l < length; ++l) {
      write.push_back(kernelgen::power(g, modulo(-l, length), p));
    }
  }
  int length;
  std::vector<int> read;   ///< place k holds x[g^k]
  std::vector<int> write;  ///< the value at place l is X[g^-l]
};

/// C[m] = (1/L) sum_j W_p^(g^-j) W_L^(jm), the factor 1/L of the way back folded in.
std::vector<WideComplex> rader_constants(int p, const RaderOrder& order) {
  const int length = order.length;
  std::vector<WideComplex> kernel, roots;
  for (int j = 0; j < length; ++j) kernel.push_back(kernelgen::root(p, order.write[at(j)]));
  for (int j = 0; j < length; ++j) roots.push_back(kernelgen::root(length, j));
  std::vector<WideComplex> c;
  for (int m = 0; m < length; ++m) {
    WideComplex sum;
    for (int j = 0; j < length; ++j) sum = sum + kernel[at(j)] * roots[at(j * m % length)];
    c.push_back((Wide(1.0) / Wide(length)) * sum);
  }
  return c;
}

/// The values that a formal real transform runs on: a whole element is one (both its lanes run the
/// same real graph), formal parts are two.
std::vector<Value> lanes(const Whole& v) { return {v.value}; }
std::vector<Value> lanes(const Parts& v) { return {v.re, v.im}; }
Whole from_lanes(Graph& graph, const Whole& /*like*/, const std::vector<Value>& lane) {
  return {&graph, lane[0]};
}
Parts from_lanes(Graph& graph, const Parts& /*like*/, const std::vector<Value>& lane) {
  return {&graph, lane[0], lane[1]};
}
/// i times a value given by its lanes.
std::vector<Value> quarter_turned(const std::vector<Value>& lane) {
  if (lane.size() == 1) return {turned(lane[0], Turn::quarter)};
  return {-lane[1], lane[0]};
}

template <class E>
class Expander {
 public:
  Expander(Graph& graph, bool paired, Direction direction = {})
      : graph_(graph), paired_(paired), direction_(direction) {}

  Elements<E> run(const Recipe& r, const Elements<E>& x) {
    switch (r.method) {
      case Method::butterfly:
        return butterfly_block(r.length, x);
      case Method::five_folded:
        return dft5_folded(x, direction_);
      case Method::direct:
        return dft_direct(x, direction_);
      case Method::split_eight:
        return dft8(x, direction_);
      case Method::shared_sixteen:
        return dft16_shared(x, direction_, r.chosen<SharedSixteen>().eighths_joined);
      case Method::coprime:
        return coprime_steps(r, x);
      case Method::cooley_tukey:
        return cooley_tukey_steps(r, x);
      default:
        return directed(Expander(graph_, paired_).forward_only(r, x));
    }
  }

 private:
  /// Methods written for the forward direction: the inverse transform is the forward one with its
  /// outputs 1..n-1 reversed.
  Elements<E> directed(Elements<E> y) const {
    if (direction_.exponent > 0) std::reverse(y.begin() + 1, y.end());
    return y;
  }

  Elements<E> forward_only(const Recipe& r, const Elements<E>& x) {
    switch (r.method) {
      case Method::rader:
        return rader_steps(r, x);
      case Method::joined_rader:
        return joined_rader_steps(r, x);
      case Method::four_odd:
        return four_odd_steps(r, x);
      case Method::halves:
        return halves_steps(r, x);
      case Method::bluestein:
        return bluestein_steps(r, x);
      default:
        throw std::logic_error("an odd half stands outside of halves");
    }
  }

  Elements<E> inverse(const Recipe& r, const Elements<E>& x) {
    return Expander(graph_, paired_, Direction{+1}).run(r, x);
  }

  Elements<E> butterfly_block(int length, const Elements<E>& x) const {
    switch (length) {
      case 2:
        return dft2(x);
      case 3:
        return dft3(x, direction_);
      case 4:
        return dft4(x, direction_);
      case 5:
        return dft5(x, direction_);
      default:
        throw std::logic_error("no such butterfly");
    }
  }

  static const Recipe& column(const Columns& columns, int index) {
    return columns.size() == 1 ? columns.front() : columns[at(index)];
  }

  /// n = (S a + R b) mod N on the way in, the Chinese remainder theorem on the way out.
  Elements<E> coprime_steps(const Recipe& r, const Elements<E>& x) {
    const int first = r.first.front().length;
    const int second = r.second.front().length;
    const int n = first * second;
    std::vector<Elements<E>> middle;
    Stage stage(graph_, columns_of(first));
    for (int b = 0; b < second; ++b) {
      graph_.enter_column(b, second);
      Elements<E> in;
      for (int a = 0; a < first; ++a) in.push_back(x[at((second * a + first * b) % n)]);
      middle.push_back(run(column(r.first, b), in));
      graph_.leave_column();
    }
    Elements<E> y(x);
    stage.next(rows_of(second));
    for (int k1 = 0; k1 < first; ++k1) {
      graph_.enter_column(k1, first);
      Elements<E> in;
      for (int b = 0; b < second; ++b) in.push_back(middle[at(b)][at(k1)]);
      const Elements<E> out = run(column(r.second, k1), in);
      for (int k = k1; k < n; k += first) y[at(k)] = out[at(k % second)];
      graph_.leave_column();
    }
    return y;
  }

  kernelgen::EighthRoot eighth_style(const CooleyTukey& c, int place, int bin) const {
    for (const auto& exception : c.eighths_sum_first) {
      if (exception == std::pair(place, bin)) return kernelgen::EighthRoot::sum_first;
    }
    return c.eighth;
  }

  /// n = s + S r on the way in, twiddles W_N^(r s), k = r + R t on the way out.
  Elements<E> cooley_tukey_steps(const Recipe& r, const Elements<E>& x) {
    const int first = r.first.front().length;
    const int second = r.second.front().length;
    const int n = first * second;
    const auto& c = r.chosen<CooleyTukey>();
    std::vector<int> places = c.places;
    if (places.empty()) {
      for (int s = 0; s < second; ++s) places.push_back(s);
    }
    std::vector<int> bins = c.bins;
    if (bins.empty()) {
      for (int k = 0; k < first; ++k) bins.push_back(k);
    }
    const bool fill = paired_ && !graph_.inside_pair();
    std::vector<Elements<E>> middle;
    Stage stage(graph_, columns_of(first));
    for (int s = 0; s < second; ++s) {
      stage.next(columns_of(first));
      graph_.enter_column(s, second);
      Elements<E> in;
      for (int a = 0; a < first; ++a) in.push_back(x[at(modulo(places[at(s)] + second * a, n))]);
      Elements<E> out = run(column(r.first, modulo(places[at(s)], second)), in);
      stage.next(kTwiddles);
      if (!c.late_twiddles) {
        for (int k = 0; k < first; ++k) {
          E& v = out[at(modulo(bins[at(k)], first))];
          v = rotated(r, v, places, s, bins, k, fill);
        }
      }
      middle.push_back(out);
      graph_.leave_column();
    }
    Elements<E> y(x);
    for (int k = 0; k < first; ++k) {
      graph_.enter_column(k, first);
      const int bin = bins[at(k)];
      Elements<E> in(at(second), zero_like(x[0]));
      stage.next(kTwiddles);
      for (int s = 0; s < second; ++s) {
        const E& v = middle[at(s)][at(modulo(bin, first))];
        in[at(modulo(places[at(s)], second))] =
            c.late_twiddles ? rotated(r, v, places, s, bins, k, fill) : v;
      }
      stage.next(rows_of(second));
      const Elements<E> out = run(column(r.second, modulo(bin, first)), in);
      for (int t = 0; t < second; ++t) y[at(modulo(bin + first * t, n))] = out[at(t)];
      graph_.leave_column();
    }
    return y;
  }

  /// The value of class `s` and bin `k` times its twiddle. In vectors of two elements the twiddle
  /// works on the value and on its neighbour in the next column: where only one of the two needs a
  /// multiplication, or they turn differently, the trivial one rides along.
  E rotated(const Recipe& r, const E& v, const std::vector<int>& places, int s,
            const std::vector<int>& bins, int k, bool fill) {
    const int n = r.length;
    const auto& c = r.chosen<CooleyTukey>();
    const auto power_of_i = [&](int i, int j) -> std::optional<Turn> {
      const int exponent = modulo(4 * places[at(i)] * bins[at(j)], 4 * n);
      if (exponent % n != 0) return std::nullopt;
      return kernelgen::quarters(exponent / n);
    };
    bool ride = false;
    if (fill) {
      int s_beside = s, k_beside = k;
      (c.late_twiddles ? k_beside : s_beside) ^= 1;
      const bool there =
          s_beside < static_cast<int>(places.size()) && k_beside < static_cast<int>(bins.size());
      ride = there && power_of_i(s, k) != power_of_i(s_beside, k_beside);
    }
    const int place = places[at(s)];
    const int bin = bins[at(k)];
    const bool unfolded = c.first_apart && modulo(place, r.second.front().length) == 0;
    const Folding region(graph_, graph_.folding() && !unfolded);
    const int exponent = modulo(-direction_.exponent * place * bin, n);
    if (ride && 4 * exponent % n == 0) return full_product(kernelgen::root(n, exponent), v, true);
    return twiddle(v, n, exponent, eighth_style(c, place, bin));
  }

  Elements<E> rader_steps(const Recipe& r, const Elements<E>& x) {
    const auto& choices = r.chosen<Rader>();
    const RaderOrder order(r.length);
    const std::vector<WideComplex> c = rader_constants(r.length, order);
    const int length = order.length;
    const int half = length / 2;
    Elements<E> a;
    for (const int k : order.read) a.push_back(x[at(k)]);
    Stage stage(graph_, kSpectrum);
    const Elements<E> spectrum = run(r.first.front(), a);
    stage.next(kProducts);
    Elements<E> y(x);
    y[0] = x[0] + spectrum[0];
    Elements<E> p;
    for (int m = 0; m < length; ++m) {
      E v = full_product(c[at(m)], spectrum[at(m)]);
      if (choices.zero_lanes == 6 && (m == 0 || m == half)) v = add_zero(v);
      p.push_back(v);
    }
    p[0] = x[0] + p[0];
    if (choices.zero_lanes != 0) {
      const int mate = choices.mate == 0 ? half : choices.mate;
      p[at(mate)] = add_zero(p[at(mate)]);
    }
    stage.next(kBack);
    const Elements<E> back = inverse(r.second.front(), p);
    for (int l = 0; l < length; ++l) y[at(order.write[at(l)])] = back[at(l)];
    return y;
  }

  /// Bins 0..L/2 of the transform of real data by the block: one real number at 0 and L/2, a real
  /// and an imaginary part between.
  static std::vector<Parts> real_bins(Graph& graph, const Recipe& block,
                                      const std::vector<Value>& data) {
    Elements<Parts> x;
    for (const Value v : data) x.push_back({&graph, v, {}});
    Elements<Parts> bins = Expander<Parts>(graph, false).run(block, x);
    bins.resize(data.size() / 2 + 1, bins.front());
    return bins;
  }

  /// Each lane runs a real transform there and the transpose of one back. The constants of the bins
  /// m and L - m act on the pair together: C'[m] = C[m] for even m, C[m] / i for odd m, doubled
  /// between the ends; an odd bin's factor i is an exchange of the lanes.
  Elements<E> joined_rader_steps(const Recipe& r, const Elements<E>& x) {
    const auto& choices = r.chosen<JoinedRader>();
    const RaderOrder order(r.length);
    const std::vector<WideComplex> c = rader_constants(r.length, order);
    const int half = order.length / 2;
    const std::size_t lane_count = lanes(x[0]).size();

    std::vector<std::vector<Value>> q(at(2 * half + 2));  // real and imaginary part of each bin
    std::vector<Value> y0(lane_count);
    Stage stage(graph_, kSpectrum);
    {
      const Folding region(graph_, choices.fold_there);
      std::vector<std::vector<Parts>> bins;
      for (std::size_t lane = 0; lane < lane_count; ++lane) {
        std::vector<Value> a;
        for (const int k : order.read) a.push_back(lanes(x[at(k)])[lane]);
        bins.push_back(real_bins(graph_, r.first.front(), a));
      }
      stage.next(kProducts);
      for (std::size_t lane = 0; lane < lane_count; ++lane) {
        y0[lane] = graph_.add(lanes(x[0])[lane], bins[lane][0].re);
      }
      for (std::size_t lane = 0; lane < lane_count; ++lane) {
        for (int m = 0; m <= half; ++m) {
          const bool end = m == 0 || m == half;
          WideComplex factor = m % 2 == 0 ? c[at(m)] : turned(c[at(m)], Turn::three_quarters);
          if (!end) factor = Wide(2.0) * factor;
          Parts bin = bins[lane][at(m)];
          if (end) bin.im = {};
          Parts v = product(factor, bin, false);
          if (choices.zero_lanes != 0 && end) v = add_zero(v);
          if (choices.zero_lanes != 0 && m == half) v = add_zero(v);
          q[at(2 * m)].push_back(v.re);
          q[at(2 * m + 1)].push_back(v.im);
        }
      }
    }
    const Folding region(graph_, false);
    for (int m = 1; m <= half; m += 2) {
      q[at(2 * m)] = quarter_turned(q[at(2 * m)]);
      q[at(2 * m + 1)] = quarter_turned(q[at(2 * m + 1)]);
    }
    stage.next(kBack);
    const Graph back = transposable(r.second.front(), choices.fold_back);
    std::vector<std::vector<Value>> result(at(order.length));
    for (std::size_t lane = 0; lane < lane_count; ++lane) {
      std::vector<Value> fed{graph_.add(lanes(x[0])[lane], q[0][lane])};
      for (int m = 1; m < half; ++m) {
        fed.push_back(q[at(2 * m)][lane]);
        fed.push_back(q[at(2 * m + 1)][lane]);
      }
      fed.push_back(q[at(2 * half)][lane]);
      const auto y = kernelgen::transpose_into(graph_, back, fed, order.length);
      for (int l = 0; l < order.length; ++l) result[at(l)].push_back(y[at(l)]);
    }
    Elements<E> y(x);
    y[0] = from_lanes(graph_, x[0], y0);
    for (int l = 0; l < order.length; ++l) {
      y[at(order.write[at(l)])] = from_lanes(graph_, x[0], result[at(l)]);
    }
    return y;
  }

  /// The real graph of `real_bins`, of which the way back is the transpose.
  static Graph transposable(const Recipe& block, bool folded) {
    Graph graph(Field::real);
    graph.set_folding(folded);
    std::vector<Value> data;
    for (int k = 0; k < block.length; ++k) data.push_back(graph.input(k));
    const auto bins = real_bins(graph, block, data);
    std::vector<Value> outputs{bins.front().re};
    for (std::size_t m = 1; m + 1 < bins.size(); ++m) {
      outputs.push_back(bins[m].re);
      outputs.push_back(bins[m].im);
    }
    outputs.push_back(bins.back().re);
    graph.set_outputs(outputs);
    return graph;
  }

  struct SumsAndDifferences {
    Elements<E> sums;
    Elements<E> differences;
  };
  static SumsAndDifferences at_half_distance(const Elements<E>& x) {
    SumsAndDifferences result;
    const std::size_t half = x.size() / 2;
    for (std::size_t n = 0; n < half; ++n) result.sums.push_back(x[n] + x[n + half]);
    for (std::size_t n = 0; n < half; ++n) result.differences.push_back(x[n] - x[n + half]);
    return result;
  }

  /// Odd bins M + 2k of a length 4M: the transforms B, D of the even and odd places of the
  /// differences, alternately signed, meet as B[k] -+ i W_2M^k D[k].
  Elements<E> four_odd_steps(const Recipe& r, const Elements<E>& x) {
    const Recipe& block = r.first.front();
    const int m = block.length;
    Stage stage(graph_, kDifferences);
    const auto [sums, differences] = at_half_distance(x);
    stage.next(kEvenBins);
    const Elements<E> even = run(coprime(dft_complex::butterfly(2), block), sums);
    Elements<E> y(x);
    for (int k = 0; k < 2 * m; ++k) y[at(2 * k)] = even[at(k)];
    stage.next(kOddBins);
    Elements<E> in_b, in_d;
    for (int l = 0; l < m; ++l) {
      in_b.push_back(turned(differences[at(2 * l)], kernelgen::quarters(2 * l)));
      in_d.push_back(turned(differences[at(2 * l + 1)], kernelgen::quarters(2 * l)));
    }
    const Elements<E> b = run(block, in_b);
    const Elements<E> d = run(block, in_d);
    for (const int k : symmetric(m)) {
      const E rotated = twiddle(d[at(modulo(k, m))], 2 * m, k, EighthRoot::sum_first);
      const E w = turned(rotated, Turn::three_quarters);
      const int bin = modulo(m + 2 * k, 4 * m);
      y[at(bin)] = b[at(modulo(k, m))] + w;
      y[at((bin + 2 * m) % (4 * m))] = b[at(modulo(k, m))] - w;
    }
    return y;
  }

  Elements<E> halves_steps(const Recipe& r, const Elements<E>& x) {
    Stage stage(graph_, kDifferences);
    const auto [sums, differences] = at_half_distance(x);
    stage.next(kEvenBins);
    const Elements<E> even = run(r.first.front(), sums);
    Elements<E> y(x);
    for (std::size_t k = 0; k < even.size(); ++k) y[2 * k] = even[k];
    stage.next(kOddBins);
    for (const auto& [bin, value] : odd_half(r.second.front(), differences)) y[at(bin)] = value;
    return y;
  }

  /// The odd bins of the transform of (d, -d) / 2, which is what the differences lead to.
  std::map<int, E> odd_half(const Recipe& r, const Elements<E>& d) {
    const Recipe& block = r.first.front();
    std::map<int, E> y;
    if (r.method == Method::odd_of_block) {
      Elements<E> padded(d);
      padded.resize(at(block.length), zero_like(d[0]));
      const Elements<E> all = run(block, padded);
      for (int k = 1; k < block.length; k += 2) y.emplace(k, all[at(k)]);
      return y;
    }
    if (r.method != Method::twisted) throw std::logic_error("not an odd half");
    const int m = block.length;
    const int length = 4 * m;
    Elements<E> plus, minus;
    for (int n = 0; n < m; ++n) {
      const E v = d[at(n)] + turned(d[at(n + m)], Turn::three_quarters);
      plus.push_back(twiddle(v, length, n, EighthRoot::sum_first));
    }
    const Elements<E> p = run(block, plus);
    for (int n = 0; n < m; ++n) {
      const E v = d[at(n)] - turned(d[at(n + m)], Turn::three_quarters);
      minus.push_back(twiddle(v, length, -n, EighthRoot::sum_first));
    }
    const Elements<E> q = run(block, minus);
    for (int k = 0; k < m; ++k) {
      y.emplace(modulo(4 * k + 1, length), p[at(k)]);
      y.emplace(modulo(4 * k - 1, length), q[at(k)]);
    }
    return y;
  }

  /// X[k] = c[k] sum_n (x[n] c[n]) conj(c[k - n]) with the chirp c[n] = exp(-pi i n^2 / p); the
  /// convolution runs over a length M >= 2p - 1. Places past p are zeros: those below `carried` go
  /// through the block as values, the others prune it.
  Elements<E> bluestein_steps(const Recipe& r, const Elements<E>& x) {
    const auto& choices = r.chosen<Bluestein>();
    const int p = r.length;
    const int m = r.first.front().length;
    std::vector<WideComplex> chirp;
    for (int n = 0; n < p; ++n)
      chirp.push_back(kernelgen::root(std::int64_t{2} * p, n * n % (2 * p)));
    std::vector<WideComplex> wrapped(at(m));
    for (int n = 0; n < p; ++n) {
      wrapped[at(n)] = conj(chirp[at(n)]);
      wrapped[at(modulo(-n, m))] = wrapped[at(n)];
    }
    Stage stage(graph_, kChirp);
    Elements<E> u{x[0]};
    for (int n = 1; n < p; ++n) u.push_back(full_product(chirp[at(n)], x[at(n)]));
    for (int n = p; n < choices.carried; ++n) u.push_back(carried_zero(x[0]));
    u.resize(at(m), zero_like(x[0]));
    stage.next(kSpectrum);
    const Elements<E> spectrum = run(r.first.front(), u);
    stage.next(kProducts);
    Elements<E> convolved;
    for (int k = 0; k < m; ++k) {
      WideComplex sum;
      for (int n = 0; n < m; ++n) {
        sum = sum + wrapped[at(n)] * kernelgen::root(m, n * k % m);
      }
      E v = full_product((Wide(1.0) / Wide(m)) * sum, spectrum[at(k)]);
      if (k == 0 && choices.zero_lanes != 0) v = add_zero(v);
      convolved.push_back(v);
    }
    stage.next(kBack);
    const Elements<E> v = inverse(r.second.front(), convolved);
    stage.next(kChirp);
    Elements<E> y{v[0]};
    for (int k = 1; k < p; ++k) y.push_back(full_product(chirp[at(k)], v[at(k)]));
    for (int k = p; k < choices.computed; ++k) {
      for (const Value lane : lanes(v[at(k)])) graph_.keep(lane);
    }
    return y;
  }

  Graph& graph_;
  bool paired_;
  Direction direction_;
};

}  // namespace

Graph expand(const Recipe& recipe, bool paired) {
  Graph graph(Field::complex);
  Elements<Whole> x;
  for (int n = 0; n < recipe.length; ++n) x.push_back({&graph, graph.input(n)});
  const Elements<Whole> y = Expander<Whole>(graph, paired).run(recipe, x);
  std::vector<Value> outputs;
  for (const Whole& v : y) outputs.push_back(v.value);
  graph.set_outputs(outputs);
  return graph;
}

}  // namespace haldgen::dft_complex
