// haldgen_accuracy: rounding errors of the kernels of the built library, measured against the
// definition of the transform in double-double arithmetic, as Markdown tables. Kernels, inputs
// and reference give the same bits everywhere, so the tables are the same on every machine.
#include <dlfcn.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <exception>
#include <functional>
#include <iostream>
#include <limits>
#include <map>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "haldgen.h"
#include "kernelgen/wide.h"
#include "registry/registry.h"

namespace haldgen::accuracy {
namespace {

using kernelgen::Wide;
using kernelgen::WideComplex;

constexpr int kInputs = 200;

template <class Float>
using Kernel = std::function<void(const std::vector<Float>& src, std::vector<Float>& dst)>;

/// Forward and inverse kernel of one length; empty if not built.
template <class Float>
struct Pair {
  Kernel<Float> forward;
  Kernel<Float> inverse;
};

void* library() {
  static void* const handle = dlopen(HALDGEN_LIBRARY, RTLD_NOW | RTLD_LOCAL);
  if (handle == nullptr) throw std::runtime_error(dlerror());
  return handle;
}

/// The families that are measured: the words of a transform and of its inverse, and how the
/// tables of their element types are headed.
struct Family {
  std::string_view name;
  std::string_view forward_word;
  std::string_view inverse_word;  ///< empty for none
  std::array<names::Element, 2> elements;
};

constexpr Family kFamilies[] = {
    {"complex", "DFTFwd_CToC", "DFTInv_CToC", {names::Element::c32, names::Element::c64}},
    {"hartley", "Hartley", "", {names::Element::f32, names::Element::f64}},
    {"real", "DFTFwd_RToCCS", "DFTInv_CCSToR", {names::Element::f32, names::Element::f64}},
};

template <class Float>
Kernel<Float> kernel(const registry::Export& entry) {
  using Function = std::int32_t(const void*, void*, std::int32_t);
  auto* const function = reinterpret_cast<Function*>(dlsym(library(), entry.name.c_str()));
  if (function == nullptr) throw std::runtime_error("the library has no " + entry.name);
  return [function, name = entry.name](const std::vector<Float>& src, std::vector<Float>& dst) {
    const auto status = function(src.data(), dst.data(), haldScaleNone);
    if (status != haldStatusOk) throw std::runtime_error(name + " refuses a valid call");
  };
}

template <class Float>
std::map<int, Pair<Float>> kernels(const Family& family, names::Element element) {
  std::map<int, Pair<Float>> pairs;
  for (const registry::Export& entry : registry::exports()) {
    if (entry.element != element || entry.size == 0) continue;
    if (entry.word->word == family.forward_word) {
      pairs[entry.size].forward = kernel<Float>(entry);
    } else if (entry.word->word == family.inverse_word) {
      pairs[entry.size].inverse = kernel<Float>(entry);
    }
  }
  return pairs;
}

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

using Elements = std::vector<WideComplex>;

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

/// How the floats of a family are elements, and what its transforms are.
struct Definition {
  std::size_t source_floats;
  std::size_t source_parts;  ///< floats of an element
  std::size_t result_floats;
  std::size_t result_parts;
  std::function<Elements(const Elements&)> transform;
};

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

/// The figures of one kernel in units of epsilon.
struct Figures {
  double mean = 0;
  double worst_call = 0;
  double largest = 0;
  double mean_by_root_log = 0;  ///< over epsilon sqrt(log2 N)
  double worst_by_root_log = 0;

  void raise_to(const Figures& other) {
    mean = std::max(mean, other.mean);
    worst_call = std::max(worst_call, other.worst_call);
    largest = std::max(largest, other.largest);
    mean_by_root_log = std::max(mean_by_root_log, other.mean_by_root_log);
    worst_by_root_log = std::max(worst_by_root_log, other.worst_by_root_log);
  }
};

template <class Float>
Figures figures(const Errors& errors, int length) {
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

std::string cells(const Figures& f) {
  char text[80];
  std::snprintf(text, sizeof text, " %.2f | %.2f | %.2f | %.2f | %.2f |", f.mean, f.worst_call,
                f.largest, f.mean_by_root_log, f.worst_by_root_log);
  return text;
}

template <class Float>
std::string cells(const Kernel<Float>& kernel, std::string_view family, int length, bool inverse,
                  Figures& most) {
  if (!kernel) return " | | | | |";
  const Errors errors = measure(kernel, definition(family, length, inverse), length);
  const Figures f = figures<Float>(errors, length);
  most.raise_to(f);
  return cells(f);
}

template <class Float>
void print_table(const Family& family, names::Element element) {
  constexpr std::string_view kColumns = "L2 | worst call | largest | L2/√ | worst/√ |";
  constexpr std::string_view kRule = "--:|--:|--:|--:|--:|";
  const bool both = !family.inverse_word.empty();
  std::cout << "### " << names::suffix(element) << "\n\n| N |" << (both ? " forward: " : " ")
            << kColumns;
  if (both) std::cout << " inverse: " << kColumns;
  std::cout << "\n|--:|" << kRule << (both ? kRule : "") << '\n';
  Figures most_forward, most_inverse;
  for (const auto& [length, pair] : kernels<Float>(family, element)) {
    const std::string forward = cells(pair.forward, family.name, length, false, most_forward);
    std::cout << "| " << length << " |" << forward;
    if (both) std::cout << cells(pair.inverse, family.name, length, true, most_inverse);
    std::cout << '\n';
  }
  std::cout << "| most |" << cells(most_forward) << (both ? cells(most_inverse) : "") << '\n';
}

void run(std::string_view name) {
  for (const Family& family : kFamilies) {
    if (family.name != name) continue;
    print_table<float>(family, family.elements[0]);
    std::cout << '\n';
    print_table<double>(family, family.elements[1]);
    if (!std::cout.flush()) throw std::runtime_error("standard output cannot be written");
    return;
  }
  throw std::runtime_error("no such family");
}

}  // namespace
}  // namespace haldgen::accuracy

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr
        << "usage: haldgen_accuracy complex|real|hartley\nPrints the tables of docs/accuracy.md.\n";
    return 2;
  }
  try {
    haldgen::accuracy::run(argv[1]);
    return 0;
  } catch (const std::exception& failure) {
    std::cerr << "haldgen_accuracy: " << failure.what() << '\n';
    return 1;
  }
}
