// haldgen-generate: writes the source of a kernel, or shows its recipe, counts, graph or code.
#include <algorithm>
#include <exception>
#include <fstream>
#include <iostream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "generate/catalogue.h"
#include "generate/kernels.h"
#include "generate/single.h"
#include "kernelgen/dot.h"
#include "registry/registry.h"

namespace {

using haldgen::family::Family;
using haldgen::family::FloatType;
using haldgen::family::Tuning;
using haldgen::family::Work;
using haldgen::generate::kernel_name;
using haldgen::generate::kernels_of;
using haldgen::generate::kTypes;
using haldgen::generate::suffix;
using haldgen::names::Flavour;

constexpr std::string_view kUsage =
    "usage: haldgen-generate list\n"
    "       haldgen-generate catalogue\n"
    "       haldgen-generate counts [FAMILY]\n"
    "       haldgen-generate recipe|counts|graph|code FAMILY KERNEL TYPE\n"
    "       haldgen-generate source|batch FAMILY KERNEL TYPE FILE [TUNING]\n"
    "       haldgen-generate source|code ... --flavour TAG\n"
    "       haldgen-generate constants FAMILY FILE\n"
    "       haldgen-generate single FAMILY LENGTH TYPE [TUNING] [-o FILE]\n"
    "       haldgen-generate single-header [FAMILY LENGTH TYPE]... [-o FILE]\n"
    "       haldgen-generate --help|--version\n"
    "  list     the families with their kernels and element types\n"
    "  catalogue  counts, recipe and graph of everything, a JSON object a line\n"
    "  counts   operation counts of all transforms, of a family's kernels or of one, as a table\n"
    "  recipe   the factorisation of a kernel\n"
    "  graph    its statements for Graphviz\n"
    "  code     its C++ source, as source writes it to a file\n"
    "  batch    the source of its batches\n"
    "  constants  a source file of constants for the planner of a family\n"
    "  single   a kernel to go: its source in C, which is C++ as well, for a file that stands "
    "alone\n"
    "  single-header  the declarations of such kernels\n"
    "  TAG      v3 or v4, a flavour: its vectors and its column of the table\n"
    "  KERNEL   a length, or the name of a part of planned transforms\n"
    "  TYPE     32f or 64f; of complex elements 32fc or 64fc\n"
    "  TUNING   ORDER:CAP:SEED, or ORDER:CAP:memory, or ORDER:CAP:SOURCExDESTINATION,\n"
    "           instead of the table's\n"
    "  ORDER    program, bisection, pressure or critical; CAP a number of live values,\n"
    "           SEED a number that varies the choice of forms of vector kernels,\n"
    "           memory for scalar kernels that widen values by way of it,\n"
    "           SOURCE and DESTINATION distances of elements that share a wider vector\n";

struct UsageError : std::runtime_error {
  using std::runtime_error::runtime_error;
};

const Family& generated_family(const std::string& name) {
  for (const Family& family : haldgen::registry::families()) {
    if (family.name == name && family.generated) return family;
  }
  throw UsageError("no family of generated kernels: " + name);
}

int kernel_named(const Family& family, const std::string& name) {
  for (const auto& numbers : {kernels_of(family), haldgen::generate::single_lengths(family)}) {
    for (const int number : numbers) {
      if (kernel_name(family, number) == name) return number;
    }
  }
  throw UsageError("no kernel of the family " + family.name + ": " + name);
}

FloatType type_named(const Family& family, const std::string& name) {
  for (const FloatType type : kTypes) {
    if (suffix(family, type) == name) return type;
  }
  throw UsageError("no element type of the family " + family.name + ": " + name);
}

void print_list() {
  for (const Family& family : haldgen::registry::families()) {
    if (!family.generated) continue;
    for (const int number : kernels_of(family)) {
      for (const FloatType type : kTypes) {
        std::cout << family.name << '\t' << kernel_name(family, number) << '\t'
                  << suffix(family, type) << '\n';
      }
    }
  }
}

void print_counts_head() { std::cout << "family\tlength\ttype\tadd\tmul\tdepth\tconvert\n"; }

void print_counts(const Family& family, const std::string& kernel, FloatType type,
                  const Work& work) {
  std::cout << family.name << '\t' << kernel << '\t' << suffix(family, type) << '\t'
            << work.additions << '\t' << work.multiplications << '\t' << work.depth << '\t'
            << work.conversions << '\n';
}

void print_family_counts(const Family& family) {
  for (const int number : kernels_of(family)) {
    for (const FloatType type : kTypes) {
      print_counts(family, kernel_name(family, number), type, family.generated->work(number, type));
    }
  }
}

void print_all_counts() {
  for (const Family& family : haldgen::registry::families()) {
    if (family.planned) {
      for (const int length : family.planned->lengths) {
        for (const FloatType type : kTypes) {
          print_counts(family, std::to_string(length), type, family.planned->work(length));
        }
      }
    } else if (family.generated) {
      print_family_counts(family);
    }
  }
}

void write_file(const std::string& path, const std::string& text) {
  std::ofstream file(path, std::ios::binary);
  file << text;
  if (!file.flush()) throw std::runtime_error("cannot write " + path);
}

haldgen::generate::Single single_named(const std::string& family_name, const std::string& length,
                                       const std::string& type) {
  const Family& family = generated_family(family_name);
  const std::vector<int> lengths = haldgen::generate::single_lengths(family);
  for (const int n : lengths) {
    if (std::to_string(n) == length) return {&family, n, type_named(family, type)};
  }
  if (lengths.empty()) throw UsageError("no kernels to go in the family " + family_name);
  throw UsageError("no kernel to go of " + length + " points, but of " +
                   std::to_string(lengths.front()) + " to " + std::to_string(lengths.back()));
}

/// `single` and `single-header`.
void run_single(std::vector<std::string> args) {
  std::string path;
  if (args.size() >= 2 && args[args.size() - 2] == "-o") {
    path = args.back();
    args.resize(args.size() - 2);
  }
  const bool header = args[0] == "single-header";
  Tuning tuning;
  if (!header && args.size() == 5) {
    const haldgen::family::Choice choice = haldgen::family::parse_choice(args.back());
    if (choice.pairs) throw UsageError("kernels to go have vectors of one width");
    tuning.choose_everywhere(choice);
    args.pop_back();
  }
  if (args.size() % 3 != 1 || (!header && args.size() != 4)) throw UsageError("arguments");
  std::vector<haldgen::generate::Single> kernels;
  for (std::size_t i = 1; i < args.size(); i += 3) {
    kernels.push_back(single_named(args[i], args[i + 1], args[i + 2]));
    kernels.back().tuning = tuning;
  }
  const std::string text = header ? haldgen::generate::single_header(kernels)
                                  : haldgen::generate::single_file(kernels.front());
  if (!path.empty()) return write_file(path, text);
  if (!(std::cout << text << std::flush)) throw std::runtime_error("cannot write the output");
}

/// Takes an option and its value from the arguments; null if it is not there.
const Flavour* take_flavour(std::vector<std::string>& args) {
  const auto option = std::find(args.begin(), args.end(), "--flavour");
  if (option == args.end()) return nullptr;
  if (option + 1 == args.end()) throw UsageError("no flavour");
  const Flavour* const flavour = haldgen::names::flavour_of(*(option + 1));
  if (flavour == nullptr) throw UsageError("no flavour: " + *(option + 1));
  if (args[0] != "source" && args[0] != "code") throw UsageError("flavours have sources only");
  args.erase(option, option + 2);
  return flavour;
}

void run(std::vector<std::string> args) {
  if (args.empty()) throw UsageError("no command");
  if (args.size() == 1 && args[0] == "--help") {
    std::cout << kUsage;
    return;
  }
  if (args.size() == 1 && args[0] == "--version") {
    std::cout << "haldgen-generate " HALDGEN_SINGLE_VERSION "\n";
    return;
  }
  const Flavour* const flavour = take_flavour(args);
  const std::string& command = args[0];
  if (command == "list" && args.size() == 1) return print_list();
  if (command == "catalogue" && args.size() == 1) {
    return haldgen::generate::write_catalogue(std::cout);
  }
  if (command == "counts" && args.size() <= 2) {
    print_counts_head();
    return args.size() == 1 ? print_all_counts() : print_family_counts(generated_family(args[1]));
  }
  if (command == "single" || command == "single-header") return run_single(args);
  if (command == "constants" && args.size() == 3) {
    const Family& family = generated_family(args[1]);
    if (!family.planned) throw UsageError("nothing is planned in the family " + family.name);
    return write_file(args[2], family.planned->constants());
  }
  if (args.size() < 4) throw UsageError("arguments");
  const Family& family = generated_family(args[1]);
  const int number = kernel_named(family, args[2]);
  const FloatType type = type_named(family, args[3]);
  const bool batch = command == "batch";
  Tuning tuning = flavour == nullptr ? Tuning() : Tuning(*flavour);
  if ((command == "source" || batch) && (args.size() == 5 || args.size() == 6)) {
    if (args.size() == 6) tuning.choose_everywhere(haldgen::family::parse_choice(args[5]));
    if (batch && family.generated->batch == nullptr) throw UsageError("a family without batches");
    const auto source = batch ? family.generated->batch : family.generated->source;
    return write_file(args[4], print(source(number, type, tuning)));
  }
  if (args.size() != 4) throw UsageError("arguments");
  if (command == "counts") {
    print_counts_head();
    print_counts(family, args[2], type, family.generated->work(number, type));
  } else if (command == "recipe") {
    std::cout << family.generated->algorithm(number, type) << '\n';
  } else if (command == "graph") {
    std::cout << haldgen::kernelgen::to_dot(family.generated->graph(number, type));
  } else if (command == "code") {
    std::cout << print(family.generated->source(number, type, tuning));
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
