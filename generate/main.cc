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
#include "dft_real/kernel.h"
#include "generate/dct4.h"
#include "hartley/kernel.h"
#include "kernelgen/count.h"
#include "kernelgen/dot.h"

namespace {

namespace dft_complex = haldgen::dft_complex;
namespace dft_real = haldgen::dft_real;
namespace hartley = haldgen::hartley;
namespace kernelgen = haldgen::kernelgen;
using kernelgen::FloatType;

constexpr std::string_view kUsage =
    "usage: haldgen-generate counts\n"
    "       haldgen-generate recipe|counts|graph|code FAMILY LENGTH TYPE\n"
    "       haldgen-generate source FAMILY LENGTH TYPE FILE [ORDER:CAP:SEED]\n"
    "       haldgen-generate counts dct4\n"
    "       haldgen-generate counts|graph|code dct4 KERNEL 32f|64f\n"
    "       haldgen-generate source dct4 KERNEL 32f|64f FILE [ORDER:CAP]\n"
    "  counts   operation counts of all kernels, or of one, as a table\n"
    "  recipe   the factorisation of a kernel\n"
    "  graph    its statements for Graphviz\n"
    "  code     its C++ source, as source writes it to a file\n"
    "  FAMILY   complex (TYPE 32fc or 64fc), real-forward, real-inverse or hartley (TYPE 32f or\n"
    "           64f)\n"
    "  ORDER    program, bisection, pressure or critical; CAP a number of live values,\n"
    "           SEED a number that varies the choice of forms of vector kernels\n";

struct UsageError : std::runtime_error {
  using std::runtime_error::runtime_error;
};

/// ORDER, ORDER:CAP or ORDER:CAP:SEED.
struct Tuning {
  kernelgen::Ordering ordering;
  int seed = 0;
};

Tuning tuning(const std::string& text) {
  std::istringstream parts(text);
  std::string order, cap, seed;
  std::getline(parts, order, ':');
  std::getline(parts, cap, ':');
  std::getline(parts, seed);
  return {{kernelgen::order_named(order), cap.empty() ? 0 : std::stoi(cap)},
          seed.empty() ? 0 : std::stoi(seed)};
}

/// What one kernel executes beside its scale; conversions between 32 and 64 bits are no arithmetic
/// of the algorithm, but they take its place in a processor.
struct Work {
  int additions;
  int multiplications;
  int depth;
  int conversions;
};

/// The kernels of one family, as the commands see them.
struct Family {
  std::string_view name;
  std::vector<int> (*lengths)();
  std::string_view type_of(FloatType type) const {
    return type == FloatType::f32 ? type32 : type64;
  }
  std::string_view type32;
  std::string_view type64;
  std::string (*recipe)(int, FloatType);
  kernelgen::Graph (*graph)(int, FloatType);
  Work (*work)(int, FloatType);
  std::string (*source)(int, FloatType, const Tuning*);
};

constexpr Family kComplex{
    "complex",
    dft_complex::lengths,
    "32fc",
    "64fc",
    [](int n, FloatType type) { return to_string(dft_complex::design_of(n, type).recipe); },
    [](int n, FloatType type) { return graph_of(dft_complex::design_of(n, type)); },
    [](int n, FloatType type) {
      const auto c = kernelgen::count(graph_of(dft_complex::design_of(n, type)));
      return Work{c.additions, c.multiplications, c.depth, 0};
    },
    [](int n, FloatType type, const Tuning* tuning) {
      dft_complex::Tuning choice = dft_complex::tuning_of(n, type);
      if (tuning != nullptr) {
        choice = {tuning->seed, tuning->ordering, tuning->ordering};
      }
      return dft_complex::kernel_source(n, type, choice);
    },
};

/// Counts do not depend on the order of instructions; this one costs nothing to make.
constexpr kernelgen::Ordering kAnyOrder{kernelgen::Order::program, 0};

Work work_of(const kernelgen::Program& program) {
  const kernelgen::Tally t = kernelgen::tally(program);
  return {t.in32.additions + t.in64.additions + t.in32.negations + t.in64.negations,
          t.in32.products + t.in64.products, t.depth, t.widenings + t.narrowings};
}

template <dft_real::Direction Direction>
constexpr Family real_family(std::string_view name) {
  return {
      name,
      dft_real::lengths,
      "32f",
      "64f",
      [](int n, FloatType) { return to_string(dft_real::design_of(n, Direction).recipe); },
      [](int n, FloatType) { return dft_real::kernel_graph(n, Direction); },
      [](int n, FloatType type) {
        return work_of(dft_real::kernel_program(n, Direction, type, kAnyOrder));
      },
      [](int n, FloatType type, const Tuning* tuning) {
        const kernelgen::Ordering choice =
            tuning != nullptr ? tuning->ordering : dft_real::tuning_of(n, Direction, type);
        return dft_real::kernel_source(n, Direction, type, choice);
      },
  };
}

constexpr Family kHartley{
    "hartley",
    hartley::lengths,
    "32f",
    "64f",
    [](int n, FloatType) {
      const haldgen::real_blocks::Design& design = hartley::design_of(n);
      const bool paired = design.structure == haldgen::real_blocks::Structure::paired;
      return to_string(design.recipe) + (paired ? "" : ", transposed");
    },
    [](int n, FloatType) { return hartley::kernel_graph(n); },
    [](int n, FloatType type) { return work_of(hartley::kernel_program(n, type, kAnyOrder)); },
    [](int n, FloatType type, const Tuning* tuning) {
      const kernelgen::Ordering choice =
          tuning != nullptr ? tuning->ordering : hartley::tuning_of(n, type);
      return hartley::kernel_source(n, type, choice);
    },
};

constexpr Family kFamilies[] = {
    kComplex,
    real_family<dft_real::Direction::forward>("real-forward"),
    real_family<dft_real::Direction::inverse>("real-inverse"),
    kHartley,
};

const Family& family_named(std::string_view name) {
  for (const Family& family : kFamilies) {
    if (family.name == name) return family;
  }
  throw UsageError("unknown family");
}

FloatType float_type(const Family& family, std::string_view text) {
  for (const FloatType type : {FloatType::f32, FloatType::f64}) {
    if (family.type_of(type) == text) return type;
  }
  throw UsageError("unknown element type");
}

void print_counts_head() { std::cout << "family\tlength\ttype\tadd\tmul\tdepth\tconvert\n"; }

void print_counts(const Family& family, int length, FloatType type) {
  const Work w = family.work(length, type);
  std::cout << family.name << '\t' << length << '\t' << family.type_of(type) << '\t' << w.additions
            << '\t' << w.multiplications << '\t' << w.depth << '\t' << w.conversions << '\n';
}

void print_all_counts() {
  print_counts_head();
  for (const Family& family : kFamilies) {
    for (const int length : family.lengths()) {
      for (const FloatType type : {FloatType::f32, FloatType::f64}) {
        print_counts(family, length, type);
      }
    }
  }
  haldgen::generate::print_dct4_transforms();
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
  if (args.size() < 4) throw UsageError("arguments");
  const std::string& command = args[0];
  const Family& family = family_named(args[1]);
  const int length = std::stoi(args[2]);
  const FloatType type = float_type(family, args[3]);
  if (command == "source" && args.size() == 5) {
    return write_file(args[4], family.source(length, type, nullptr));
  }
  if (command == "source" && args.size() == 6) {
    const Tuning choice = tuning(args[5]);
    return write_file(args[4], family.source(length, type, &choice));
  }
  if (args.size() != 4) throw UsageError("arguments");
  if (command == "counts") {
    print_counts_head();
    print_counts(family, length, type);
  } else if (command == "recipe") {
    std::cout << family.recipe(length, type) << '\n';
  } else if (command == "graph") {
    std::cout << kernelgen::to_dot(family.graph(length, type));
  } else if (command == "code") {
    std::cout << family.source(length, type, nullptr);
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
