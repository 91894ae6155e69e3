// Texts that the build compiles and links into the library.
#include <sstream>

#include "frame/emit.h"
#include "frame/families.h"

namespace haldgen::frame {
namespace {

constexpr std::string_view generated_notice = "Written by haldgen-framegen from frame/families.cc.";

// Whether every size that a general entry accepts has its function.
bool complete(const Family& general) {
  for (int size = general.sizes.first; size <= general.sizes.last; ++size) {
    if (!general.live.contains(size)) return false;
  }
  return true;
}

Signature fixed_signature(const Family& general) {
  return general.signature == Signature::sized_transform ? Signature::transform
                                                         : Signature::buffered_transform;
}

std::string joined_names(const std::vector<Parameter>& list) {
  std::string text;
  for (const Parameter& parameter : list) text += (text.empty() ? "" : ", ") + parameter.name;
  return text;
}

// The table is complete in the finished library; until then a size without a function has null.
void emit_general_entry(std::ostream& out, const Export& entry) {
  const Family& family = *entry.family;
  const Signature fixed = fixed_signature(family);
  const std::string size = parameters(family.signature, entry.element)[2].name;
  const std::string table = entry.name + "_by_size";

  out << "\nnamespace {\n"
      << declaration(fixed, entry.element, "(*const " + table + "[])") << " = {\n";
  for (int n = family.sizes.first; n <= family.sizes.last; ++n) {
    const bool built = family.live.contains(n);
    out << "    " << (built ? implementation_symbol(family, entry.element, n) : "nullptr") << ",\n";
  }
  out << "};\n}  // namespace\n\n"
      << declaration(family.signature, entry.element, implementation_symbol(entry)) << " {\n"
      << "  const std::uint32_t index = static_cast<std::uint32_t>(" << size << ") - "
      << family.sizes.first << "u;\n"
      << "  if (index >= std::size(" << table << ")) return haldStatusSizeError;\n";
  if (!complete(family)) {
    out << "  if (" << table << "[index] == nullptr) return haldStatusSizeError;\n";
  }
  out << "  return " << table << "[index](" << joined_names(parameters(fixed, entry.element))
      << ");\n}\n";
}

}  // namespace

std::string emit_entries() {
  const std::vector<Export> functions = live_exports();
  std::ostringstream out;
  out << "/* " << generated_notice << " */\n\n"
      << "/* The table of entry slots: one code pointer per exported function, in byte order of\n"
      << "   the names. It is writable data, but nobody writes it. */\n"
      << "  .data\n  .balign 64\n  .type haldgen_entry_slots, @object\n"
      << "haldgen_entry_slots:\n";
  for (const Export& function : functions) {
    const std::string symbol = implementation_symbol(function);
    out << "  .hidden " << symbol << "\n  .quad " << symbol << "\n";
  }
  out << "  .size haldgen_entry_slots, . - haldgen_entry_slots\n\n"
      << "/* The forwarding entries. */\n  .text\n";
  for (std::size_t k = 0; k < functions.size(); ++k) {
    const std::string& name = functions[k].name;
    out << "\n  .balign 8\n  .globl " << name << "\n  .type " << name << ", @function\n"
        << name << ":\n  .cfi_startproc\n"
        << "  jmp *haldgen_entry_slots+" << 8 * k << "(%rip)\n"
        << "  .cfi_endproc\n  .size " << name << ", . - " << name << "\n";
  }
  out << "\n  .section .note.GNU-stack, \"\", @progbits\n";
  return out.str();
}

std::string emit_exports() {
  std::string text = "# " + std::string(generated_notice) + "\n{\n  global:\n";
  for (const Export& function : live_exports()) text += "    " + function.name + ";\n";
  return text + "  local:\n    *;\n};\n";
}

std::string emit_implementations() {
  std::ostringstream out;
  out << "// " << generated_notice << "\n"
      << "// The implementations behind the exported functions, hidden inside the library.\n"
      << "#pragma once\n\n#include \"haldgen.h\"\n\n"
      << "#pragma GCC visibility push(hidden)\nextern \"C\" {\n\n";
  for (const Export& function : live_exports()) {
    out << declaration(function.family->signature, function.element,
                       implementation_symbol(function))
        << ";\n";
  }
  out << "\n}\n#pragma GCC visibility pop\n";
  return out.str();
}

std::string emit_general_entries() {
  std::ostringstream out;
  out << "// " << generated_notice << "\n"
      << "// General entries: the size, tested first and alone, selects the implementation.\n"
      << "#include <cstdint>\n#include <iterator>\n\n#include \"implementations.h\"\n";
  for (const Export& function : live_exports()) {
    if (is_general(*function.family)) emit_general_entry(out, function);
  }
  return out.str();
}

std::string emit_linked_functions() {
  std::ostringstream out;
  out << "// " << generated_notice << "\n"
      << "#include \"frame/linked_functions.h\"\n\n#include \"haldgen.h\"\n\n"
      << "namespace haldgen::frame {\n\n"
      << "std::span<const LinkedFunction> linked_functions() {\n"
      << "  static const LinkedFunction all[] = {\n";
  for (const Export& function : live_exports()) {
    out << "      {\"" << function.name << "\", reinterpret_cast<void (*)()>(" << function.name
        << ")},\n";
  }
  out << "  };\n  return all;\n}\n\n}  // namespace haldgen::frame\n";
  return out.str();
}

std::string emit_list() {
  std::string text;
  for (const Export& function : exports()) {
    text += function.name + (function.live ? " live\n" : " not built yet\n");
  }
  return text;
}

}  // namespace haldgen::frame
