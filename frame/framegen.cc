// Generator of the frame, run by the build: haldgen-framegen WHAT [FILE], and two commands with
// arguments of their own.
#include <algorithm>
#include <cstdio>
#include <fstream>
#include <iostream>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "frame/emit.h"
#include "registry/registry.h"

namespace {

namespace registry = haldgen::registry;

struct Output {
  std::string_view name;
  std::string (*emit)();
  std::string_view meaning;
};

constexpr Output outputs[] = {
    {"header", haldgen::frame::emit_header, "the public header"},
    {"tables", haldgen::frame::emit_tables, "what the C++ header looks up"},
    {"entries", haldgen::frame::emit_entries, "slots and forwarding entries, assembly"},
    {"entry_functions", haldgen::frame::emit_entry_functions, "entries without slots, C++"},
    {"exports", haldgen::frame::emit_exports, "linker version script"},
    {"linker_exports", haldgen::frame::emit_linker_exports, "options of a linker"},
    {"implementations", haldgen::frame::emit_implementations, "hidden declarations, C++"},
    {"public_names", haldgen::frame::emit_public_names, "public names of implementations"},
    {"linked_functions", [] { return haldgen::frame::emit_linked_functions(registry::exports()); },
     "names, addresses and arrays, C++"},
    {"batch_header", haldgen::frame::emit_batch_header, "the public header of batches"},
    {"batch_tables", haldgen::frame::emit_batch_tables, "what their C++ header looks up"},
    {"batch_exports", haldgen::frame::emit_batch_exports, "their linker version script"},
    {"batch_entries", haldgen::frame::emit_batch_entries, "their entries, C++"},
    {"linked_batches", haldgen::frame::emit_linked_batches, "their names and addresses, C++"},
    {"list", haldgen::frame::emit_list, "all names"},
    {"summary", haldgen::frame::emit_summary, "families and how many functions they have"},
};

int usage() {
  std::cerr << "usage: haldgen-framegen WHAT [FILE]\n"
               "       haldgen-framegen general_entries FAMILY TYPE FILE\n"
               "       haldgen-framegen linked_kernels FILE [FAMILY LENGTH TYPE]...\n"
               "Writes to FILE, or to standard output. WHAT is one of\n";
  for (const Output& output : outputs) {
    std::cerr << "  " << output.name << ": " << output.meaning << "\n";
  }
  return 2;
}

/// The functions of kernels, of any length: family, length and type of each.
std::vector<registry::Export> functions_of(std::span<char*> kernels) {
  std::vector<registry::Export> functions;
  for (std::size_t i = 0; i + 3 <= kernels.size(); i += 3) {
    const int length = std::stoi(kernels[i + 1]);
    for (const haldgen::names::Word& word : registry::family_named(kernels[i]).words) {
      for (const haldgen::names::Element element : word.elements) {
        if (size_in_name(word) && haldgen::names::suffix(element) == kernels[i + 2]) {
          functions.push_back({export_name(word, element, length), &word, element, length});
        }
      }
    }
  }
  std::ranges::sort(functions, {}, &registry::Export::name);
  return functions;
}

int write(const std::string& text, std::ostream& stream) {
  stream << text << std::flush;
  if (stream) return 0;
  std::cerr << "haldgen-framegen: cannot write the output\n";
  return 1;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc == 5 && std::string_view(argv[1]) == "general_entries") {
    std::ofstream file(argv[4], std::ios::binary);
    return write(haldgen::frame::emit_general_entries(registry::family_named(argv[2]), argv[3]),
                 file);
  }
  if (argc >= 3 && std::string_view(argv[1]) == "linked_kernels") {
    std::ofstream file(argv[2], std::ios::binary);
    const auto kernels = std::span(argv, static_cast<std::size_t>(argc)).subspan(3);
    return write(haldgen::frame::emit_linked_functions(functions_of(kernels)), file);
  }
  if (argc < 2 || argc > 3) return usage();
  for (const Output& output : outputs) {
    if (output.name != argv[1]) continue;
    const std::string text = output.emit();
    if (argc == 2) return write(text, std::cout);
    std::ofstream file(argv[2], std::ios::binary);
    return write(text, file);
  }
  return usage();
}
