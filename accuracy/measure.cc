#include "accuracy/measure.h"

#include <cmath>
#include <cstdint>
#include <limits>
#include <map>
#include <utility>

namespace haldgen::accuracy {
namespace {

using kernelgen::Wide;
using kernelgen::WideComplex;

/// splitmix64 (G. L. Steele, D. Lea, C. H. Flood, OOPSLA 2014), so that the sequence is the same
/// with every standard library.
class Random {
 public:
  explicit Random(std::uint64_t seed) : state_(seed) {}

  /// Uniform in [-1, 1], with all the bits that a float of its magnitude has: on a grid, the first
  /// sums would be exact.
  template <class Float>
  Float uniform() {
    return static_cast<Float>(static_cast<std::int64_t>(next())) * static_cast<Float>(0x1p-63);
  }

 private:
  std::uint64_t next() {
    std::uint64_t z = state_ += 0x9E3779B97F4A7C15U;
    z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9U;
    z = (z ^ (z >> 27)) * 0x94D049BB133111EBU;
    return z ^ (z >> 31);
  }

  std::uint64_t state_;
};

/// Those of this order, going clockwise or, for an inverse transform, the other way.
const Elements& roots_of_unity(std::size_t size, bool inverse) {
  static std::map<std::pair<std::size_t, bool>, Elements> known;
  Elements& roots = known[{size, inverse}];
  for (std::size_t k = roots.size(); k < size; ++k) {
    const auto power = static_cast<std::int64_t>(k);
    roots.push_back(kernelgen::root(static_cast<std::int64_t>(size), inverse ? -power : power));
  }
  return roots;
}

/// sum over n of x[n] * root^(+-k n) for k below `bins`.
Elements dft(const Elements& x, bool inverse, std::size_t bins) {
  const std::size_t size = x.size();
  const Elements& roots = roots_of_unity(size, inverse);
  const bool real =
      std::all_of(x.begin(), x.end(), [](WideComplex v) { return v.im == Wide(0.0); });
  Elements y(bins);
  for (std::size_t k = 0; k < bins; ++k) {
    for (std::size_t n = 0; n < size; ++n) {
      const WideComplex& root = roots[n * k % size];
      y[k] = y[k] + (real ? x[n].re * root : root * x[n]);
    }
  }
  return y;
}

/// All bins from those of 0 to half the length, of real samples; the imaginary parts of the real
/// ones do not count.
Elements whole_spectrum(const Elements& half, std::size_t length) {
  Elements bins(length);
  for (std::size_t k = 0; k < half.size(); ++k) {
    const bool real = k == 0 || 2 * k == length;
    bins[k] = real ? WideComplex{half[k].re, 0.0} : half[k];
    if (!real) bins[length - k] = conj(half[k]);
  }
  return bins;
}

/// Real and imaginary parts of the inverse transform of real samples, added.
Elements hartley(const Elements& x) {
  Elements y = dft(x, true, x.size());
  for (WideComplex& v : y) v = {v.re + v.im, 0.0};
  return y;
}

double square(WideComplex a) { return a.re.hi * a.re.hi + a.im.hi * a.im.hi; }

/// Errors over a set of calls, squared; relative to the Euclidean norm of the exact result, the
/// largest error of an element to the root mean square of the exact elements of its call.
struct Errors {
  double difference = 0;
  double exact = 0;
  double worst_call = 0;
  double largest = 0;

  template <class Float>
  void add_call(const std::vector<Float>& computed, std::size_t parts, const Elements& expected) {
    double sum = 0, norm = 0, most = 0;
    for (std::size_t k = 0; k < expected.size(); ++k) {
      const Wide re = Wide(double{computed[parts * k]}) - expected[k].re;
      const Wide im = parts == 1 ? Wide(0.0) : Wide(double{computed[2 * k + 1]}) - expected[k].im;
      const double error = square({re, im});
      sum += error;
      norm += square(expected[k]);
      most = std::max(most, error);
    }
    difference += sum;
    exact += norm;
    worst_call = std::max(worst_call, sum / norm);
    largest = std::max(largest, most * static_cast<double>(expected.size()) / norm);
  }
};

template <class Float>
Figures figures_of(const Errors& errors, int length) {
  constexpr double epsilon = std::numeric_limits<Float>::epsilon();
  const double root_log = std::sqrt(std::log2(static_cast<double>(length)));
  Figures f;
  f.mean = std::sqrt(errors.difference / errors.exact) / epsilon;
  f.worst_call = std::sqrt(errors.worst_call) / epsilon;
  f.largest = std::sqrt(errors.largest) / epsilon;
  f.mean_by_root_log = f.mean / root_log;
  f.worst_by_root_log = f.worst_call / root_log;
  return f;
}

template <class Float>
Errors measure(const Kernel<Float>& kernel, const Definition& definition, int length) {
  Random random(static_cast<std::uint64_t>(length));
  std::vector<Float> src(definition.source_floats);
  std::vector<Float> dst(definition.result_floats);
  Errors errors;
  for (int call = 0; call < kInputs; ++call) {
    for (Float& value : src) value = random.uniform<Float>();
    Elements x;
    for (std::size_t i = 0; i < src.size(); i += definition.source_parts) {
      x.push_back({double{src[i]}, definition.source_parts == 1 ? 0.0 : double{src[i + 1]}});
    }
    kernel(src, dst);
    errors.add_call(dst, definition.result_parts, definition.transform(x));
  }
  return errors;
}

}  // namespace

Definition definition(std::string_view family, int length, bool inverse) {
  const auto n = static_cast<std::size_t>(length);
  if (family == "complex") {
    return {2 * n, 2, 2 * n, 2, [=](const Elements& x) { return dft(x, inverse, n); }};
  }
  if (family == "hartley") return {n, 1, n, 1, hartley};
  const std::size_t bins = n / 2 + 1;
  if (!inverse) return {n, 1, 2 * bins, 2, [=](const Elements& x) { return dft(x, false, bins); }};
  return {2 * bins, 2, n, 1, [=](const Elements& y) { return dft(whole_spectrum(y, n), true, n); }};
}

template <class Float>
Figures figures(const Kernel<Float>& kernel, const Definition& definition, int length) {
  return figures_of<Float>(measure(kernel, definition, length), length);
}

template Figures figures(const Kernel<float>&, const Definition&, int);
template Figures figures(const Kernel<double>&, const Definition&, int);

}  // namespace haldgen::accuracy
