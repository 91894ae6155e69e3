// Texts of the library of batches: one function for each general entry that the library of single
// transforms has.
#include <set>
#include <sstream>
#include <stdexcept>

#include "family/batch.h"
#include "frame/emit.h"
#include "frame/text.h"
#include "names/arrays.h"
#include "registry/registry.h"

namespace haldgen::frame {
namespace {

using family::FloatType;
using names::Element;
using names::Layout;
using names::Word;
using registry::Export;

constexpr std::string_view prologue = R"(/**
 * @file haldbatch.h
 * Many small transforms in one call: count transforms of one length, strided on both sides, with
 * the bits of as many calls of the functions in haldgen.h.
 *
 * The library is made for vectors of 128, 256 and 512 bits; the dynamic loader takes the build for
 * the best that the processor has. All of them give the same bits: those of the single transform,
 * for each of the transforms, wherever it lies and however many there are besides. What a NaN holds
 * besides being one is not promised.
 *
 * What holds for every function below:
 * - Steps and distances. Element n of transform t is src[n * srcStep + t * srcDist], and its result
 *   k goes to dst[k * dstStep + t * dstDist], where n and k count the elements of one transform as
 *   its single function has them in its arrays. An element is what src and dst point to: a complex
 *   number, a float; of an array in CCS format one bin, that is two floats, so bin k of transform t
 *   is dst[k * dstStep + t * dstDist]. Of arrays in Pack and Perm format it is one float.
 *   Steps and distances may have any value, negative ones included, and those of src may be zero.
 *   Different elements of dst must not overlap.
 *       step 1, distance N      rows: transforms one behind the other
 *       step M, distance 1      columns: M transforms side by side, or columns of a matrix
 * - dst may be the same array as src if neighbouring elements lie as many bytes apart in src as in
 *   dst, and neighbouring transforms, too. So samples that become a half spectrum in CCS format in
 *   place need rows with room for the bins. The arrays must not overlap in any other way.
 * - Nothing but the elements named is read or written, not even between them.
 * - Complex arrays need the alignment of their floats (4 bytes for Cplx32, 8 bytes for Cplx64).
 *   Real arrays, and with them those in Pack, Perm and CCS format, take any address at all.
 * - There is no planning, no hidden state, no thread and no lock. Nothing is allocated: what is no
 *   row and no column passes through the stack, of which a call takes up to 64 KiB. Any number of
 *   threads may call at once: a batch may be split into calls with smaller counts in any way, and
 *   its bits stay the same.
 * - A failure is only returned as a status, and then dst is not written. With more than one reason,
 *   the status is the first of
 *       haldStatusSizeError      length, or order, is none that the single functions have
 *       haldStatusBadArgument    count is negative
 *       haldStatusNullPointer    src or dst is null
 *       haldStatusFlagError      flag is none of the four values
 *   With a count of 0, which is haldStatusOk if nothing else is wrong, nothing is read or written.
 *
 * This file is written by haldgen-framegen; do not edit it.
 */
#ifndef HALDBATCH_H
#define HALDBATCH_H

#include <stddef.h>
#include <stdint.h>

#include "haldgen.h"

/* clang-format off */

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Bits of the vectors of the build that has been loaded: 128, 256 or 512.
 */
int32_t haldbGetVectorBits(void) HALDGEN_NOTHROW;
)";

constexpr std::string_view epilogue = R"(
#ifdef __cplusplus
}
#endif

#endif /* HALDBATCH_H */
)";

constexpr auto kVectorBits = "haldbGetVectorBits";

std::vector<Export> batches() {
  std::vector<Export> all;
  for (const Word& word : registry::words()) {
    if (!is_general(word)) continue;
    for (const Element element : word.elements) {
      const std::string single = export_name(word, element, 0);
      all.push_back({"haldb" + single.substr(5), &word, element, 0});
    }
  }
  return all;
}

int floats_of(Element element) {
  return element == Element::c32 || element == Element::c64 ? 2 : 1;
}

std::string float_name(Element element) {
  return element == Element::f32 || element == Element::c32 ? "float" : "double";
}

std::string size_name(const Word& word) { return names::has_order(word) ? "order" : "length"; }

std::string declaration(const Export& batch, const std::string& line) {
  const names::Usage& usage = batch.word->usage;
  const std::string src(c_type(element_of(usage.src, batch.element)));
  const std::string dst(c_type(element_of(usage.dst, batch.element)));
  return "int32_t " + batch.name + "(const " + src +
         "* src, ptrdiff_t srcStep, ptrdiff_t srcDist," + line + dst +
         "* dst, ptrdiff_t dstStep, ptrdiff_t dstDist," + line + "int32_t " +
         size_name(*batch.word) + ", ptrdiff_t count, int32_t flag)";
}

std::string elements_of(Layout layout) {
  switch (layout) {
    case Layout::none:
      break;
    case Layout::real:
    case Layout::pack:
    case Layout::perm:
      return "N floats of the type";
    case Layout::complex:
      return "N complex numbers";
    case Layout::ccs:
      return "N/2 + 1 bins, rounded down";
  }
  throw std::logic_error("no arrays of a batch");
}

std::string definition(const Word& word) {
  const std::string& text = word.text.definition;
  const std::string formula = text.substr(0, text.find("@param"));
  if (!has_order(word)) return formula;
  return formula +
         "There is no work area: orders from 8 on are two passes, between which values rest in "
         "dst.\n\n";
}

std::string title(const Word& word) { return transform_title(word) + ", batch"; }

void emit_functions(std::ostream& out, const Word& word) {
  out << "\n/**\n * @name " << title(word) << "\n *\n";
  const std::string src = "@param src      of the first transform: the first of " +
                          elements_of(word.usage.src) + "; only read.\n";
  const std::string dst =
      "@param dst      of the first transform: the first of " + elements_of(word.usage.dst) + ".\n";
  const std::string size =
      names::has_order(word)
          ? "@param order    N is two to its power: " + std::to_string(word.sizes.first()) +
                " to " + std::to_string(word.sizes.last()) + ".\n"
          : "@param length   N: " + names::to_string(word.sizes) + ".\n";
  emit_comment(
      out,
      {definition(word), src,
       "@param srcStep  from an element of a transform to its next, in elements of src.\n"
       "@param srcDist  from an element of a transform to that of the next transform, likewise.\n",
       dst,
       "@param dstStep  as srcStep, in elements of dst.\n@param dstDist  as srcDist, likewise.\n",
       size, "@param count    number of transforms, 0 or more.\n", scaling_text(word.usage.scaling),
       "@return haldStatusSizeError, haldStatusBadArgument, haldStatusNullPointer or\n"
       "        haldStatusFlagError, in this order, as the head of this file says; else\n"
       "        haldStatusOk.\n"});
  out << " * @{\n */\n";
  for (const Export& batch : batches()) {
    if (batch.word != &word) continue;
    const std::string line = "\n" + std::string(batch.name.size() + 9, ' ');
    emit_prototype(out, summary(title(word), batch.element, word.usage.scaling),
                   declaration(batch, line));
  }
  out << "/** @} */\n";
}

/// The family that has the word; its name is part of those of its kernels.
const family::Family& family_of(const Word& word) {
  for (const family::Family& family : registry::families()) {
    for (const Word& member : family.words) {
      if (member.word == word.word && member.signature == word.signature) return family;
    }
  }
  throw std::logic_error("a word of no family: " + word.word);
}

std::string format_name(Layout layout) {
  switch (layout) {
    case Layout::ccs:
      return "Format::ccs";
    case Layout::pack:
      return "Format::pack";
    case Layout::perm:
      return "Format::perm";
    default:
      return "Format::real";
  }
}

std::string divides_name(names::Scaling scaling) {
  switch (scaling) {
    case names::Scaling::forward:
      return "Divides::forward";
    case names::Scaling::inverse:
      return "Divides::inverse";
    default:
      return "Divides::both";
  }
}

bool is_complex(const Word& word) { return word.usage.src == Layout::complex; }

/// The kernels of a size; none where all sizes share theirs.
std::string kernel_of(const Export& batch, int size) {
  if (has_order(*batch.word)) return "";
  return family::batch_symbol(family_of(*batch.word).name, batch.element, size);
}

void emit_kernel_declarations(std::ostream& out) {
  std::set<std::string> declared;
  out << "\nnamespace haldgen::batch {\n";
  for (const Export& batch : batches()) {
    for (const int n : batch.word->sizes) {
      const std::string kernel = kernel_of(batch, n);
      if (kernel.empty() || !declared.insert(kernel).second) continue;
      const std::string type = "<" + float_name(batch.element) + "> ";
      out << "extern " << (is_complex(*batch.word) ? "const ComplexPair" : "const RealKernel")
          << type << kernel << ";\n";
    }
  }
  out << "}  // namespace haldgen::batch\n";
}

void emit_entry(std::ostream& out, const Export& batch) {
  const Word& word = *batch.word;
  const std::string type = float_name(batch.element);
  const FloatType float_type = type == "float" ? FloatType::f32 : FloatType::f64;
  const std::string table = batch.name + "_by_size";
  out << "\nnamespace {\nconstexpr " << (is_complex(word) ? "Complex" : "Real") << "Transform<"
      << type << "> " << table << "[] = {\n";
  for (int n = word.sizes.first(); n <= word.sizes.last(); ++n) {
    if (!word.sizes.contains(n)) {
      out << "    {},\n";
      continue;
    }
    const std::string single = names::export_name(word.word, batch.element, n);
    const names::Arrays arrays = names::arrays(word, n);
    const std::string kernel = kernel_of(batch, n);
    const kernelgen::ScaleFactors scales = kernelgen::scale_factors(arrays.points, float_type);
    out << "    {single<" << single << ">, "
        << (!kernel.empty() ? "&" + kernel : "wht_kernel<" + type + ">(" + std::to_string(n) + ")")
        << ", " << arrays.src_floats << ", " << arrays.dst_floats << ", " << scales.by_n << ", "
        << scales.by_root << "},\n";
  }
  const auto array = [&](const std::string& name, Layout layout, const std::string& cast) {
    const int floats = floats_of(element_of(layout, batch.element));
    return "{reinterpret_cast<" + cast + "*>(" + name + "), " + name + "Step, " + name + "Dist, " +
           std::to_string(floats) + "}";
  };
  const std::string size = size_name(word);
  out << "};\n}  // namespace\n\n"
      << "HALDGEN_NOTHROW " << declaration(batch, "\n    ") << " {\n  return checked(" << table << ", " << size
      << " - std::ptrdiff_t{" << word.sizes.first() << "},\n      Elements<const " << type << ">"
      << array("src", word.usage.src, "const " + type) << ",\n      Elements<" << type << ">"
      << array("dst", word.usage.dst, type) << ",\n      count, flag, "
      << divides_name(word.usage.scaling)
      << ", [&](const auto& transform, const auto& call) {\n        ";
  if (is_complex(word)) {
    const bool forward = word.usage.scaling == names::Scaling::forward;
    out << "run_complex(transform, call, Direction::" << (forward ? "forward" : "inverse")
        << ");\n";
  } else if (has_order(word)) {
    out << "run_wht(order, transform, call);\n";
  } else {
    out << "run_real(transform, call, " << format_name(word.usage.src) << ", "
        << format_name(word.usage.dst) << ");\n";
  }
  out << "      });\n}\n";
}

}  // namespace

std::string emit_batch_header() {
  std::ostringstream out;
  out << prologue;
  for (const Word& word : registry::words()) {
    if (is_general(word)) emit_functions(out, word);
  }
  out << epilogue;
  return out.str();
}

std::string emit_batch_tables() {
  std::ostringstream out;
  out << "// The functions of haldbatch.h by their single functions in haldgen_tables.hpp.\n"
         "// This file is written by haldgen-framegen; do not edit it.\n// clang-format off\n"
         "#ifndef HALDBATCH_TABLES_HPP\n#define HALDBATCH_TABLES_HPP\n\n"
         "#include <haldbatch.h>\n#include <haldgen_tables.hpp>\n\n"
         "namespace haldgen::detail {\n\n"
         "template <class Transform>\ninline constexpr auto batch_function = nullptr;\n";
  for (const Export& batch : batches()) {
    out << "template <>\ninline constexpr auto batch_function<" << batch.word->word << "<"
        << float_name(batch.element) << ">> = &" << batch.name << ";\n";
  }
  out << "\n}  // namespace haldgen::detail\n\n#endif\n";
  return out.str();
}

std::string emit_batch_exports() {
  std::string text =
      "# Written by haldgen-framegen.\n{\n  global:\n    " + std::string(kVectorBits) + ";\n";
  for (const Export& batch : batches()) text += "    " + batch.name + ";\n";
  return text + "  local:\n    *;\n};\n";
}

std::string emit_linked_batches() {
  std::ostringstream out;
  out << "// Written by haldgen-framegen.\n"
      << "#include \"frame/linked_functions.h\"\n\n#include \"haldbatch.h\"\n\n"
      << "namespace haldgen::frame {\n\n"
      << "std::span<const LinkedBatch> linked_batches() {\n"
      << "  static const LinkedBatch all[] = {\n";
  const auto row = [&](const std::string& name) {
    out << "      {\"" << name << "\", reinterpret_cast<void (*)()>(" << name << ")},\n";
  };
  row(kVectorBits);
  for (const Export& batch : batches()) row(batch.name);
  out << "  };\n  return all;\n}\n\n}  // namespace haldgen::frame\n";
  return out.str();
}

std::string emit_batch_entries() {
  std::ostringstream out;
  out << "// Written by haldgen-framegen.\n"
      << "// The entries of batches: a look-up of the kernels of a length.\n"
      << "#include \"haldbatch.h\"\n\n#include \"batch/entry.h\"\n\n"
      << "using namespace haldgen::batch;\n";
  emit_kernel_declarations(out);
  for (const Export& batch : batches()) emit_entry(out, batch);
  return out.str();
}

}  // namespace haldgen::frame
