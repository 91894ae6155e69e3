// Generator of the frame, run by the build: haldgen-framegen WHAT [FILE], or for the general
// entries haldgen-framegen general_entries FAMILY TYPE FILE.
#include <cstdio>
#include <fstream>
#include <iostream>
#include <string>
#include <string_view>

#include "frame/emit.h"
#include "registry/registry.h"

namespace {

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
    {"linked_functions", haldgen::frame::emit_linked_functions, "names, addresses and arrays, C++"},
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
               "Writes to FILE, or to standard output. WHAT is one of\n";
  for (const Output& output : outputs) {
    std::cerr << "  " << output.name << ": " << output.meaning << "\n";
  }
  return 2;
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
    return write(
        haldgen::frame::emit_general_entries(haldgen::registry::family_named(argv[2]), argv[3]),
        file);
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
