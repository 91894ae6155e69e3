// Tables of the C++ header: the functions of each transform and element type, by length.
#include <sstream>
#include <stdexcept>

#include "frame/emit.h"
#include "frame/text.h"
#include "names/arrays.h"
#include "registry/registry.h"

namespace haldgen::frame {
namespace {

using names::Element;
using names::Layout;
using names::Word;

constexpr std::string_view prologue =
    R"(// The functions of haldgen.h by transform, element type and length: what haldgen.hpp looks up.
// This file is written by haldgen-framegen; do not edit it.
// clang-format off
#ifndef HALDGEN_TABLES_HPP
#define HALDGEN_TABLES_HPP

#include <haldgen.h>

#include <bit>
#include <complex>
#include <cstddef>
#include <cstdint>

namespace haldgen::detail {

// For each transform: its elements in src and dst and how many of them there are for n points, the
// size of n points as a general function takes it, whether there is one, the functions from the
// first size on. Not all compilers, with all options, know that a function is not null.
)";

std::string cpp_type(Element element) {
  switch (element) {
    case Element::f32:
      return "float";
    case Element::f64:
      return "double";
    case Element::c32:
      return "std::complex<float>";
    case Element::c64:
      return "std::complex<double>";
    case Element::none:
      break;
  }
  throw std::logic_error("no array element type");
}

std::string elements_in(Layout layout) { return layout == Layout::ccs ? "n / 2 + 1" : "n"; }

std::string point_list(const Word& word) {
  return (has_order(word) ? "2 to the power of " : "") + to_string(word.sizes);
}

/// A condition on size: "(size >= 2 && size <= 64) || (size >= 72 && size <= 72)".
std::string is_one_of(const names::Sizes& sizes) {
  std::string text;
  for (auto first = sizes.begin(); first != sizes.end();) {
    auto last = first;
    while (last + 1 != sizes.end() && *(last + 1) == *last + 1) ++last;
    text += (text.empty() ? "" : " || ") + ("(size >= " + std::to_string(*first)) +
            " && size <= " + std::to_string(*last) + ")";
    first = last + 1;
  }
  return text;
}

/// What does not depend on the element type.
void emit_lengths(std::ostream& out, const Word& word) {
  const std::string size =
      has_order(word) ? "std::has_single_bit(n) ? std::size_t(std::countr_zero(n)) : 0" : "n";
  const auto function = [&](const std::string& name, const std::string& value) {
    out << "  static constexpr std::size_t " << name << "(std::size_t n) noexcept {\n    return "
        << value << ";\n  }\n";
  };
  out << "\nstruct " << word.word << "_lengths {\n"
      << "  static constexpr const char* title = \"" << transform_title(word) << "\";\n"
      << "  static constexpr const char* lengths = \"" << point_list(word) << "\";\n"
      << "  template <bool kIsThere>\n  static consteval void check_length() noexcept {\n"
      << "    static_assert(kIsThere,\n                  \"haldgen: no transform of this length. "
         "\"\n                  \""
      << transform_title(word) << ": " << point_list(word) << " points\");\n  }\n";
  out << "  static constexpr std::size_t first = " << word.sizes.first() << ";\n";
  function("size_of", size);
  out << "  static constexpr bool has(std::size_t n) noexcept {\n"
      << "    const std::size_t size = size_of(n);\n    return " << is_one_of(word.sizes)
      << ";\n  }\n";
  function("src_size", elements_in(word.usage.src));
  function("dst_size", elements_in(word.usage.dst));
  out << "};\n\ntemplate <class T>\nstruct " << word.word << ";\n";
}

Element part_of(Element element) {
  if (element == Element::c32) return Element::f32;
  return element == Element::c64 ? Element::f64 : element;
}

void emit_table(std::ostream& out, const Word& word, Element element) {
  out << "\ntemplate <>\nstruct " << word.word << "<" << cpp_type(part_of(element))
      << "> : " << word.word << "_lengths {\n"
      << "  using Src = " << cpp_type(element_of(word.usage.src, element)) << ";\n"
      << "  using Dst = " << cpp_type(element_of(word.usage.dst, element)) << ";\n"
      << "  using Function = " << declaration(word.signature, element, "(*)") << ";\n"
      << "  static constexpr Function functions[] = {\n";
  std::string work;
  for (int n = word.sizes.first(); n <= word.sizes.last(); ++n) {
    const bool has = word.sizes.contains(n);
    out << "      " << (has ? "&" + export_name(word, element, n) : "nullptr") << ",\n";
    if (word.work_bytes != nullptr) {
      work += "      " + std::to_string(has ? word.work_bytes(element, n) : 0) + ",\n";
    }
  }
  out << "  };\n";
  if (!work.empty()) {
    out << "  static constexpr std::size_t work_bytes[] = {\n" << work << "  };\n";
  }
  out << "};\n";
}

/// A function that takes its length, or a state, at run time.
void emit_single(std::ostream& out, const Word& word) {
  out << "\ntemplate <class T>\ninline constexpr auto " << word.word << " = nullptr;\n";
  for (const Element element : word.elements) {
    out << "template <>\ninline constexpr auto " << word.word << "<" << cpp_type(part_of(element))
        << "> = &" << export_name(word, element, 0) << ";\n";
  }
}

}  // namespace

std::string emit_tables() {
  std::ostringstream out;
  out << prologue;
  for (const Word& word : registry::words()) {
    if (size_in_name(word)) {
      emit_lengths(out, word);
      for (const Element element : word.elements) emit_table(out, word, element);
    } else if (!is_general(word) && word.signature != names::Signature::version) {
      emit_single(out, word);
    }
  }
  out << "\n}  // namespace haldgen::detail\n\n#endif\n";
  return out.str();
}

}  // namespace haldgen::frame
