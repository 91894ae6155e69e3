// haldgen_accuracy: rounding errors of the complex kernels of the built library, measured against
// the definition of the transform in double-double arithmetic, as Markdown tables. Kernels, inputs
// and reference give the same bits everywhere, so the tables are the same on every machine.
#include <dlfcn.h>

#include <algorithm>
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
#include <vector>

#include "frame/families.h"
#include "haldgen.h"
#include "kernelgen/wide.h"

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

template <class Float, class Complex>
Kernel<Float> kernel(const frame::Export& entry) {
  using Function = std::int32_t(const Complex*, Complex*, std::int32_t);
  auto* const function = reinterpret_cast<Function*>(dlsym(library(), entry.name.c_str()));
  if (function == nullptr) throw std::runtime_error("the library has no " + entry.name);
  return [function, name = entry.name](const std::vector<Float>& src, std::vector<Float>& dst) {
    const auto status = function(reinterpret_cast<const Complex*>(src.data()),
                                 reinterpret_cast<Complex*>(dst.data()), haldScaleNone);
    if (status != haldStatusOk) throw std::runtime_error(name + " refuses a valid call");
  };
}

template <class Float, class Complex>
std::map<int, Pair<Float>> complex_kernels(frame::Element element) {
  std::map<int, Pair<Float>> pairs;
  for (const frame::Export& entry : frame::live_exports()) {
    if (entry.element != element || entry.size == 0) continue;
    if (entry.family->word == "DFTFwd_CToC") {
      pairs[entry.size].forward = kernel<Float, Complex>(entry);
    } else if (entry.family->word == "DFTInv_CToC") {
      pairs[entry.size].inverse = kernel<Float, Complex>(entry);
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

/// The forward transform as it is defined.
std::vector<WideComplex> definition(const std::vector<WideComplex>& x,
                                    const std::vector<WideComplex>& roots) {
  std::vector<WideComplex> y(x.size());
  for (std::size_t k = 0; k < x.size(); ++k) {
    for (std::size_t n = 0; n < x.size(); ++n) y[k] = y[k] + roots[n * k % x.size()] * x[n];
  }
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
  void add_call(const std::vector<Float>& computed, const std::vector<WideComplex>& expected) {
    double sum = 0, norm = 0, most = 0;
    for (std::size_t k = 0; k < expected.size(); ++k) {
      const Wide re = Wide(double{computed[2 * k]}) - expected[k].re;
      const Wide im = Wide(double{computed[2 * k + 1]}) - expected[k].im;
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

struct PairErrors {
  Errors forward;
  Errors inverse;
};

template <class Float>
PairErrors measure(int length, const Pair<Float>& pair) {
  std::vector<WideComplex> roots;
  for (int k = 0; k < length; ++k) roots.push_back(kernelgen::root(length, k));
  Random random(static_cast<std::uint64_t>(length));
  std::vector<Float> src(2 * static_cast<std::size_t>(length));
  std::vector<Float> dst(src.size());
  PairErrors errors;
  for (int call = 0; call < kInputs; ++call) {
    for (Float& value : src) value = random.uniform<Float>();
    std::vector<WideComplex> x;
    for (std::size_t n = 0; n < src.size(); n += 2) {
      x.push_back({double{src[n]}, double{src[n + 1]}});
    }
    std::vector<WideComplex> y = definition(x, roots);
    if (pair.forward) {
      pair.forward(src, dst);
      errors.forward.add_call(dst, y);
    }
    if (pair.inverse) {
      // The inverse transform is the forward one with its outputs 1..N-1 reversed.
      std::reverse(y.begin() + 1, y.end());
      pair.inverse(src, dst);
      errors.inverse.add_call(dst, y);
    }
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
std::string cells(bool built, const Errors& errors, int length, Figures& most) {
  if (!built) return " | | | | |";
  const Figures f = figures<Float>(errors, length);
  most.raise_to(f);
  return cells(f);
}

template <class Float, class Complex>
void print_table(std::string_view title, frame::Element element) {
  constexpr std::string_view kColumns = "L2 | worst call | largest | L2/√ | worst/√ |";
  constexpr std::string_view kRule = "--:|--:|--:|--:|--:|";
  std::cout << "### " << title << "\n\n| N | forward: " << kColumns << " inverse: " << kColumns
            << "\n|--:|" << kRule << kRule << '\n';
  Figures most_forward, most_inverse;
  for (const auto& [length, pair] : complex_kernels<Float, Complex>(element)) {
    const PairErrors errors = measure(length, pair);
    std::cout << "| " << length << " |"
              << cells<Float>(static_cast<bool>(pair.forward), errors.forward, length, most_forward)
              << cells<Float>(static_cast<bool>(pair.inverse), errors.inverse, length, most_inverse)
              << '\n';
  }
  std::cout << "| most |" << cells(most_forward) << cells(most_inverse) << '\n';
}

void run() {
  print_table<float, Cplx32>("32fc", frame::Element::c32);
  std::cout << '\n';
  print_table<double, Cplx64>("64fc", frame::Element::c64);
  if (!std::cout.flush()) throw std::runtime_error("standard output cannot be written");
}

}  // namespace
}  // namespace haldgen::accuracy

int main(int argc, char** /*argv*/) {
  if (argc != 1) {
    std::cerr << "usage: haldgen_accuracy\nPrints the tables of docs/accuracy.md.\n";
    return 2;
  }
  try {
    haldgen::accuracy::run();
    return 0;
  } catch (const std::exception& failure) {
    std::cerr << "haldgen_accuracy: " << failure.what() << '\n';
    return 1;
  }
}
