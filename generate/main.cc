// haldgen-generate: writes the source of a kernel, or shows its recipe, counts, graph or code.
#include <exception>
#include <fstream>
#include <iostream>
#include <sstream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "dft_complex/kernel.h"
#include "generate/dct4.h"
#include "kernelgen/dot.h"

namespace {

using haldgen::dft_complex::ElementType;
using haldgen::dft_complex::Tuning;
namespace dft_complex = haldgen::dft_complex;
namespace kernelgen = haldgen::kernelgen;

constexpr std::string_view kUsage =
    "usage: haldgen-generate counts\n"
    "       haldgen-generate recipe|counts|graph|code complex LENGTH 32fc|64fc\n"
    "       haldgen-generate source complex LENGTH 32fc|64fc FILE [ORDER:CAP:SEED]\n"
    "       haldgen-generate counts dct4\n"
    "       haldgen-generate counts|graph|code dct4 KERNEL 32f|64f\n"
    "       haldgen-generate source dct4 KERNEL 32f|64f FILE [ORDER:CAP]\n"
    "  counts   operation counts of all kernels, or of one, as a table\n"
    "  recipe   the factorisation of a kernel\n"
    "  graph    its statements for Graphviz\n"
    "  code     its C++ source, as source writes it to a file\n"
    "  ORDER    program, bisection, pressure or critical; CAP a number of live values,\n"
    "           SEED a number that varies the choice of forms\n";

struct UsageError : std::runtime_error {
  using std::runtime_error::runtime_error;
};

ElementType element_type(std::string_view text) {
  if (text == "32fc") return ElementType::c32;
  if (text == "64fc") return ElementType::c64;
  throw UsageError("unknown element type");
}

/// ORDER, ORDER:CAP or ORDER:CAP:SEED, for both directions.
Tuning tuning(const std::string& text) {
  std::istringstream parts(text);
  std::string order, cap, seed;
  std::getline(parts, order, ':');
  std::getline(parts, cap, ':');
  std::getline(parts, seed);
  const dft_complex::Ordering ordering{kernelgen::order_named(order),
                                       cap.empty() ? 0 : std::stoi(cap)};
  return {seed.empty() ? 0 : std::stoi(seed), ordering, ordering};
}

void print_counts_head() { std::cout << "family\tlength\ttype\tadd\tmul\tdepth\n"; }

void print_counts(int length, ElementType type) {
  const kernelgen::Counts c = kernelgen::count(dft_complex::kernel_graph(length, type));
  std::cout << "complex\t" << length << '\t' << dft_complex::suffix(type) << '\t' << c.additions
            << '\t' << c.multiplications << '\t' << c.depth << '\n';
}

void print_all_counts() {
  print_counts_head();
  for (int length = dft_complex::kFirstLength; length <= dft_complex::kLastLength; ++length) {
    for (const ElementType type : {ElementType::c32, ElementType::c64}) print_counts(length, type);
  }
}

void write_file(const std::string& path, const std::string& text) {
  std::ofstream file(path, std::ios::binary);
  file << text;
  if (!file.flush()) throw std::runtime_error("cannot write " + path);
}

void run(const std::vector<std::string>& args) {
  if (args.size() == 1 && args[0] == "counts") return print_all_counts();
  if (args.size() >= 2 && args[1] == "dct4") {
    if (haldgen::generate::run_dct4(args, write_file)) return;
    throw UsageError("arguments");
  }
  if (args.size() < 4 || args[1] != "complex") throw UsageError("arguments");
  const std::string& command = args[0];
  const int length = std::stoi(args[2]);
  const ElementType type = element_type(args[3]);
  if (command == "source" && (args.size() == 5 || args.size() == 6)) {
    const Tuning choice = args.size() == 6 ? tuning(args[5]) : dft_complex::tuning_of(length, type);
    return write_file(args[4], dft_complex::kernel_source(length, type, choice));
  }
  if (args.size() != 4) throw UsageError("arguments");
  if (command == "counts") {
    print_counts_head();
    print_counts(length, type);
  } else if (command == "recipe") {
    std::cout << to_string(dft_complex::recipe_of(length, type)) << '\n';
  } else if (command == "graph") {
    std::cout << kernelgen::to_dot(dft_complex::kernel_graph(length, type));
  } else if (command == "code") {
    std::cout << dft_complex::kernel_source(length, type, dft_complex::tuning_of(length, type));
  } else {
    throw UsageError("unknown command");
  }
}

}  // namespace

int main(int argc, char** argv) {
  try {
    run({argv + 1, argv + argc});
    return 0;
  } catch (const UsageError& error) {
    std::cerr << "haldgen-generate: " << error.what() << '\n' << kUsage;
  } catch (const std::exception& error) {
    std::cerr << "haldgen-generate: " << error.what() << '\n';
  }
  return 1;
}
