// haldgen_accuracy: rounding errors of the kernels of the built library, measured against the
// definition of the transform in double-double arithmetic, as Markdown tables. Kernels, inputs
// and reference give the same bits everywhere, so the tables are the same on every machine.
#include <dlfcn.h>

#include <array>
#include <cstdint>
#include <cstdio>
#include <exception>
#include <iostream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "accuracy/measure.h"
#include "haldgen.h"
#include "registry/registry.h"

namespace haldgen::accuracy {
namespace {

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

/// None if there is no such function.
template <class Float>
Kernel<Float> kernel(std::string_view word, int length, names::Element element) {
  static void* const library = dlopen(HALDGEN_LIBRARY, RTLD_NOW | RTLD_LOCAL);
  if (library == nullptr) throw std::runtime_error(dlerror());
  const std::string name = "haldg" + std::string(word) + "_" + std::to_string(length) + "_" +
                           std::string(names::suffix(element));
  using Function = std::int32_t(const void*, void*, std::int32_t);
  auto* const function = reinterpret_cast<Function*>(dlsym(library, name.c_str()));
  if (function == nullptr) return {};
  return [function, name](const std::vector<Float>& src, std::vector<Float>& dst) {
    const auto status = function(src.data(), dst.data(), haldScaleNone);
    if (status != haldStatusOk) throw std::runtime_error(name + " refuses a valid call");
  };
}

void print(const Figures& f) {
  std::printf(" %.2f | %.2f | %.2f | %.2f | %.2f |", f.mean, f.worst_call, f.largest,
              f.mean_by_root_log, f.worst_by_root_log);
}

template <class Float>
void print_table(const Family& family, names::Element element) {
  constexpr int longest = 64;
  const bool both = !family.inverse_word.empty();
  std::printf("### %s\n\n", std::string(names::suffix(element)).c_str());
  std::puts(both ? "| N | forward: L2 | worst call | largest | L2/√ | worst/√ |"
                   " inverse: L2 | worst call | largest | L2/√ | worst/√ |\n"
                   "|--:|--:|--:|--:|--:|--:|--:|--:|--:|--:|--:|"
                 : "| N | L2 | worst call | largest | L2/√ | worst/√ |\n"
                   "|--:|--:|--:|--:|--:|--:|");
  Figures most[2];
  for (int length = 2; length <= longest; ++length) {
    if (!kernel<Float>(family.forward_word, length, element)) continue;
    std::printf("| %d |", length);
    for (const bool inverse : {false, true}) {
      if (inverse && !both) continue;
      const auto word = inverse ? family.inverse_word : family.forward_word;
      const Figures f = figures(kernel<Float>(word, length, element),
                                definition(family.name, length, inverse), length);
      most[inverse].raise_to(f);
      print(f);
    }
    std::puts("");
  }
  std::printf("| most |");
  print(most[0]);
  if (both) print(most[1]);
  std::puts("");
}

void run(std::string_view name) {
  for (const Family& family : kFamilies) {
    if (family.name != name) continue;
    print_table<float>(family, family.elements[0]);
    std::puts("");
    print_table<double>(family, family.elements[1]);
    if (std::fflush(stdout) != 0) throw std::runtime_error("standard output cannot be written");
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
