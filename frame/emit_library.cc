// Texts that the build compiles and links into the library.
#include <algorithm>
#include <sstream>

#include "frame/emit.h"
#include "names/arrays.h"
#include "registry/registry.h"

namespace haldgen::frame {
namespace {

using names::implementation_symbol;
using names::Parameter;
using names::Signature;
using names::Word;
using registry::Export;

constexpr std::string_view generated_notice = "Written by haldgen-framegen.";

Signature fixed_signature(const Word& general) {
  return general.signature == Signature::sized_transform ? Signature::transform
                                                         : Signature::buffered_transform;
}

std::string joined_names(const std::vector<Parameter>& list) {
  std::string text;
  for (const Parameter& parameter : list) text += (text.empty() ? "" : ", ") + parameter.name;
  return text;
}

// A size between two that there are has null.
void emit_general_entry(std::ostream& out, const Export& entry) {
  const Word& word = *entry.word;
  const Signature fixed = fixed_signature(word);
  const std::string size = parameters(word.signature, entry.element)[2].name;
  const std::string table = entry.name + "_by_size";
  const int first = word.sizes.first();
  bool holes = false;

  out << "\nnamespace {\n"
      << declaration(fixed, entry.element, "(*const " + table + "[])") << " = {\n";
  for (int n = first; n <= word.sizes.last(); ++n) {
    const bool has = word.sizes.contains(n);
    holes = holes || !has;
    out << "    "
        << (has ? implementation_symbol(names::export_name(word.word, entry.element, n))
                : "nullptr")
        << ",\n";
  }
  out << "};\n}  // namespace\n\n"
      << declaration(word.signature, entry.element, implementation_symbol(entry.name)) << " {\n"
      << "  const std::uint32_t index = static_cast<std::uint32_t>(" << size << ") - " << first
      << "u;\n"
      << "  if (index >= std::size(" << table << ")) return haldStatusSizeError;\n";
  if (holes) out << "  if (" << table << "[index] == nullptr) return haldStatusSizeError;\n";
  out << "  return " << table << "[index](" << joined_names(parameters(fixed, entry.element))
      << ");\n}\n";
}

}  // namespace

// What the table and the entries are made of on each machine. A 32-bit x86 processor knows its own
// place only by a call; its relocations are relative to it, so that pages are shared.
constexpr std::string_view entry_macros = R"(#if defined(__x86_64__)
#define POINTER .quad
#define POINTER_SIZE 8
#define LEAVE(slot) jmp *haldgen_entry_slots+POINTER_SIZE*slot(%rip)
#elif defined(__i386__)
#define POINTER .long
#define POINTER_SIZE 4
#define LEAVE(slot) call haldgen_place; 1: jmp *haldgen_entry_slots+POINTER_SIZE*slot-1b(%eax)
#elif defined(__aarch64__)
#define POINTER .xword
#define POINTER_SIZE 8
#define LEAVE(slot) \
  adrp x16, haldgen_entry_slots+POINTER_SIZE*slot; \
  ldr x16, [x16, :lo12:haldgen_entry_slots+POINTER_SIZE*slot]; \
  br x16
#endif

)";

std::string emit_entries() {
  const std::vector<Export>& functions = registry::exports();
  std::ostringstream out;
  out << "/* " << generated_notice << " */\n\n"
      << entry_macros
      << "/* The table of entry slots: one code pointer per exported function, in byte order of\n"
      << "   the names. It is writable data, but nobody writes it. */\n"
      << "  .data\n  .balign 64\n  .type haldgen_entry_slots, %object\n"
      << "haldgen_entry_slots:\n";
  for (const Export& function : functions) {
    const std::string symbol = implementation_symbol(function.name);
    out << "  .hidden " << symbol << "\n  POINTER " << symbol << "\n";
  }
  out << "  .size haldgen_entry_slots, . - haldgen_entry_slots\n\n"
      << "/* The forwarding entries. */\n  .text\n"
      << "#if defined(__i386__)\n  .balign 16\n  .type haldgen_place, %function\n"
      << "haldgen_place:\n  .cfi_startproc\n  movl (%esp), %eax\n  ret\n"
      << "  .cfi_endproc\n  .size haldgen_place, . - haldgen_place\n#endif\n";
  for (std::size_t k = 0; k < functions.size(); ++k) {
    const std::string& name = functions[k].name;
    out << "\n  .balign 8\n  .globl " << name << "\n  .type " << name << ", %function\n"
        << name << ":\n  .cfi_startproc\n"
        << "  LEAVE(" << k << ")\n"
        << "  .cfi_endproc\n  .size " << name << ", . - " << name << "\n";
  }
  out << "\n  .section .note.GNU-stack, \"\", %progbits\n";
  return out.str();
}

std::string emit_entry_functions() {
  std::ostringstream out;
  out << "// " << generated_notice << "\n"
      << "// The entries of a machine without code pointers in memory: functions that call.\n"
      << "#include \"implementations.h\"\n\nextern \"C\" {\n\n";
  for (const Export& function : registry::exports()) {
    const Signature signature = function.word->signature;
    out << "HALDGEN_NOTHROW " << declaration(signature, function.element, function.name)
        << " {\n  return " << implementation_symbol(function.name) << "("
        << joined_names(parameters(signature, function.element)) << ");\n}\n";
  }
  out << "\n}\n";
  return out.str();
}

std::string emit_exports() {
  std::string text = "# " + std::string(generated_notice) + "\n{\n  global:\n";
  for (const Export& function : registry::exports()) text += "    " + function.name + ";\n";
  return text + "  local:\n    *;\n};\n";
}

std::string emit_linker_exports() {
  std::string text;
  for (const Export& function : registry::exports()) text += "--export=" + function.name + "\n";
  return text;
}

std::string emit_implementations() {
  std::ostringstream out;
  out << "// " << generated_notice << "\n"
      << "// The implementations behind the exported functions, hidden inside the library.\n"
      << "#pragma once\n\n#include \"haldgen.h\"\n\n"
      << "#pragma GCC visibility push(hidden)\nextern \"C\" {\n\n";
  for (const Export& function : registry::exports()) {
    out << declaration(function.word->signature, function.element,
                       implementation_symbol(function.name))
        << ";\n";
  }
  out << "\n}\n#pragma GCC visibility pop\n";
  return out.str();
}

std::string emit_general_entries(const family::Family& family, std::string_view type) {
  std::ostringstream out;
  out << "// " << generated_notice << "\n"
      << "// General entries: the size, tested first and alone, selects the implementation.\n"
      << "#include <cstdint>\n#include <iterator>\n\n#include \"implementations.h\"\n";
  for (const Export& function : registry::exports()) {
    const bool here = names::suffix(function.element) == type &&
                      std::ranges::any_of(family.words, [&](const Word& word) {
                        return word.word == function.word->word;
                      });
    if (here && is_general(*function.word)) emit_general_entry(out, function);
  }
  return out.str();
}

std::string emit_public_names() {
  std::string text;
  for (const Export& function : registry::exports()) {
    text += implementation_symbol(function.name) + " " + function.name + "\n";
  }
  return text;
}

std::string emit_linked_functions(const std::vector<Export>& functions) {
  std::ostringstream out;
  out << "// " << generated_notice << "\n"
      << "#include \"frame/linked_functions.h\"\n\n#include \"haldgen.h\"\n\n"
      << "extern \"C\" {\n";
  for (const Export& function : functions) {
    out << "HALDGEN_NOTHROW "
        << declaration(function.word->signature, function.element, function.name) << ";\n";
  }
  out << "}\n\n"
      << "namespace haldgen::frame {\n\n"
      << "std::span<const LinkedFunction> linked_functions() {\n"
      << "  static const LinkedFunction all[] = {\n";
  for (const Export& function : functions) {
    const Word& word = *function.word;
    out << "      {\"" << function.name << "\", reinterpret_cast<void (*)()>(" << function.name
        << "), \"" << word.word << "\", names::Signature{" << static_cast<int>(word.signature)
        << "}, names::Element{" << static_cast<int>(function.element) << "}, " << function.size;
    const names::Arrays arrays =
        size_in_name(word) ? names::arrays(word, function.size) : names::Arrays{};
    out << ", " << arrays.points << ", " << arrays.src_floats << ", " << arrays.dst_floats << ", {";
    for (const std::size_t gap : arrays.src_gaps) out << gap << ", ";
    out << "}},\n";
  }
  out << "  };\n  return all;\n}\n\n}  // namespace haldgen::frame\n";
  return out.str();
}

std::string emit_list() {
  std::string text;
  for (const Export& function : registry::exports()) {
    text += function.name + "\n";
  }
  return text;
}

std::string emit_summary() {
  std::ostringstream out;
  out << "| family | sizes | functions |\n|---|---|--:|\n";
  for (const family::Family& family : registry::families()) {
    const auto functions = std::ranges::count_if(registry::exports(), [&](const Export& e) {
      return std::ranges::any_of(family.words,
                                 [&](const Word& word) { return word.word == e.word->word; });
    });
    out << "| " << family.title << " | " << to_string(family.sizes) << " | " << functions << " |\n";
  }
  out << "| version record | | 1 |\n| **all** | | **" << registry::exports().size() << "** |\n";
  return out.str();
}

}  // namespace haldgen::frame
