// haldgen_accuracy: rounding errors of the kernels of the built library, measured against the
// definition of the transform in double-double arithmetic, as Markdown tables. Kernels, inputs
// and reference give the same bits everywhere, so the tables are the same on every machine.
#include <dlfcn.h>

#include <cstdint>
#include <cstdio>
#include <exception>
#include <iostream>
#include <stdexcept>
#include <string>
#include <vector>

#include "accuracy/measure.h"
#include "haldgen.h"

namespace haldgen::accuracy {
namespace {

struct Family {
  std::string name;
  std::vector<std::string> words;  ///< of the transform and of its inverse, if there is one
  std::string suffix;              ///< of exported names behind 32f or 64f
};

/// None if there is no such function.
template <class Float>
Kernel<Float> kernel(const std::string& word, int length, const std::string& type) {
  static void* const library = dlopen(HALDGEN_LIBRARY, RTLD_NOW | RTLD_LOCAL);
  if (library == nullptr) throw std::runtime_error(dlerror());
  const std::string name = "haldg" + word + "_" + std::to_string(length) + "_" + type;
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
void print_table(const Family& family, const std::string& type) {
  std::printf("### %s\n\n", type.c_str());
  std::puts(family.words.size() == 2 ? "| N | forward: L2 | worst call | largest | L2/√ | worst/√ |"
                                       " inverse: L2 | worst call | largest | L2/√ | worst/√ |\n"
                                       "|--:|--:|--:|--:|--:|--:|--:|--:|--:|--:|--:|"
                                     : "| N | L2 | worst call | largest | L2/√ | worst/√ |\n"
                                       "|--:|--:|--:|--:|--:|--:|");
  std::vector<Figures> most(family.words.size());
  for (int length = 2; length <= 64; ++length) {
    if (!kernel<Float>(family.words[0], length, type)) continue;
    std::printf("| %d |", length);
    for (std::size_t i = 0; i < most.size(); ++i) {
      const Figures f = figures(kernel<Float>(family.words[i], length, type),
                                definition(family.name, length, i == 1), length);
      most[i].raise_to(f);
      print(f);
    }
    std::puts("");
  }
  std::printf("| most |");
  for (const Figures& f : most) print(f);
  std::puts("");
}

void run(const std::string& name) {
  const std::vector<Family> families = {{"complex", {"DFTFwd_CToC", "DFTInv_CToC"}, "c"},
                                        {"hartley", {"Hartley"}, ""},
                                        {"real", {"DFTFwd_RToCCS", "DFTInv_CCSToR"}, ""}};
  for (const Family& family : families) {
    if (family.name != name) continue;
    print_table<float>(family, "32f" + family.suffix);
    std::puts("");
    print_table<double>(family, "64f" + family.suffix);
    if (std::fflush(stdout) != 0) throw std::runtime_error("standard output cannot be written");
    return;
  }
  throw std::runtime_error("prints the tables of complex, real or hartley");
}

}  // namespace
}  // namespace haldgen::accuracy

int main(int argc, char** argv) {
  try {
    haldgen::accuracy::run(argc == 2 ? argv[1] : "");
    return 0;
  } catch (const std::exception& failure) {
    std::cerr << "haldgen_accuracy: " << failure.what() << '\n';
    return 1;
  }
}
