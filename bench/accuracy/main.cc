// haldgen_accuracy: rounding errors of the kernels of the built library, measured against the
// definition of the transform in double-double arithmetic, as Markdown tables. Kernels, inputs
// and reference give the same bits everywhere, so the tables are the same on every machine.
#include <dlfcn.h>

#include <array>
#include <cstdint>
#include <cstdio>
#include <exception>
#include <iostream>
#include <map>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "accuracy/measure.h"
#include "haldgen.h"
#include "registry/registry.h"

namespace haldgen::accuracy {
namespace {

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
  const Figures f = figures(kernel, definition(family, length, inverse), length);
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
