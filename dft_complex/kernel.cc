#include "dft_complex/kernel.h"

#include <algorithm>
#include <array>
#include <stdexcept>

#include "kernelgen/emit.h"
#include "kernelgen/lower.h"
#include "kernelgen/precision.h"

namespace haldgen::dft_complex {
namespace {

using kernelgen::FloatType;
using kernelgen::Graph;
using kernelgen::Program;

/// Sweeps of the choice of forms; more find next to nothing better.
constexpr int kFormSweeps = 150;

FloatType float_type(ElementType type) {
  return type == ElementType::c32 ? FloatType::f32 : FloatType::f64;
}

/// 32-bit elements fill a vector by two, and the smallest lengths are scalar.
bool is_scalar(int length, ElementType type) { return type == ElementType::c32 && length <= 5; }

/// Lengths 3 and 5 of 32-bit elements form their products in 64 bits.
bool has_wide_products(int length, ElementType type) {
  return type == ElementType::c32 && (length == 3 || length == 5);
}

/// The inverse kernel is the mirror of the forward one, real and imaginary parts exchanged at the
/// loads and stores, except at these lengths of 32-bit elements: there it is the forward kernel
/// with its outputs 1..n-1 reversed.
bool is_reversed(int length, ElementType type) {
  return type == ElementType::c32 && (length == 19 || length == 23 || length == 37 || length == 61);
}

void reverse_outputs(Program& program, int length) {
  for (auto& in : program.code) {
    if (!kernelgen::is_store(in.op)) continue;
    if (in.op == kernelgen::Op::store) throw std::logic_error("neighbours cannot be reversed");
    for (int& address : in.address) address = 2 * ((length - address / 2) % length);
  }
}

Program scalar_program(int length, ElementType type, bool mirrored) {
  Graph parts =
      kernelgen::gather_statements(kernelgen::split_parts(expand(recipe_of(length, type), false)));
  if (has_wide_products(length, type)) kernelgen::widen_products(parts);
  Program program = kernelgen::lower_scalar(parts, float_type(type));
  if (mirrored) {
    for (auto& in : program.code) {
      if (kernelgen::is_load(in.op) || kernelgen::is_store(in.op)) in.address[0] ^= 1;
    }
  }
  return program;
}

Programs scalar_programs(int length, ElementType type) {
  return {scalar_program(length, type, false), scalar_program(length, type, true)};
}

Programs vector_programs(int length, ElementType type, int seed) {
  const bool pairs = type == ElementType::c32;
  const auto packed =
      kernelgen::pack(expand(recipe_of(length, type), pairs), pairs ? 2 : 1, access_of(length));
  const auto forms = kernelgen::choose_forms(packed, kFormSweeps, seed);
  Programs programs;
  programs.forward = kernelgen::lower_packed(packed, forms, float_type(type));
  if (is_reversed(length, type)) {
    programs.inverse = programs.forward;
    reverse_outputs(programs.inverse, length);
  } else {
    const auto mirrored = kernelgen::choose_mirrored_forms(packed, forms, kFormSweeps, seed);
    programs.inverse = kernelgen::lower_packed(packed, mirrored, float_type(type));
  }
  return programs;
}

std::string head_comment(int length, ElementType type) {
  const kernelgen::Counts counts = kernelgen::count(kernel_graph(length, type));
  return "// Complex DFT of length " + std::to_string(length) + ", " +
         (type == ElementType::c32 ? "32" : "64") + "-bit elements. Generated; do not edit.\n" +
         "//   algorithm: " + to_string(recipe_of(length, type)) + "\n" + "//   " +
         std::to_string(counts.additions) + " additions, " +
         std::to_string(counts.multiplications) + " multiplications, depth " +
         std::to_string(counts.depth) + ", and the scale\n";
}

std::string kernel_type(int length, ElementType type, bool inverse, const Program& program) {
  const bool f32 = type == ElementType::c32;
  const std::string name = inverse ? "Inverse" : "Forward";
  std::string text = "struct " + name + " {\n";
  text += std::string("  using Float = ") + (f32 ? "float" : "double") + ";\n";
  text += std::string("  using Element = ") + (f32 ? "Cplx32" : "Cplx64") + ";\n";
  if (program.lanes > 1) {
    text += "  using V = lanes::Vector<Float, " + std::to_string(program.lanes) + ">;\n";
  }
  text += std::string("  static constexpr bool kPathsDiffer = ") +
          (kernelgen::has_whole_vector_access(program) ? "true" : "false") + ";\n";
  text += kernelgen::scale_members(
      length, inverse ? kernelgen::Divides::inverse : kernelgen::Divides::forward,
      float_type(type));
  text += "\n";
  text += "  template <class Access>\n";
  text += "  HALDGEN_INLINE static void transform(const Float* src, Float* dst, Float scale) {\n";
  text += emit_body(program);
  text += "  }\n};\n";
  return text;
}

std::string entry(int length, ElementType type, bool inverse) {
  const std::string element = type == ElementType::c32 ? "Cplx32" : "Cplx64";
  return "extern \"C\" int32_t haldgImpl_DFT" + std::string(inverse ? "Inv" : "Fwd") + "_CToC_" +
         std::to_string(length) + "_" + suffix(type) + "(const " + element + "* src, " + element +
         "* dst, int32_t flag) {\n  return run<" + (inverse ? "Inverse" : "Forward") +
         ">(src, dst, flag);\n}\n";
}

}  // namespace

kernelgen::Access access_of(int length) {
  constexpr std::array kPairs{8,  9,  16, 24, 25, 27, 32, 40, 45, 47,
                              48, 49, 50, 54, 56, 59, 60, 62, 64};
  if (length == 18 || length == 46) return kernelgen::Access::pairs_and_lone;
  const bool pairs = std::find(kPairs.begin(), kPairs.end(), length) != kPairs.end();
  return pairs ? kernelgen::Access::pairs : kernelgen::Access::singles;
}

std::string suffix(ElementType type) { return type == ElementType::c32 ? "32fc" : "64fc"; }

Graph kernel_graph(int length, ElementType type) { return expand(recipe_of(length, type), false); }

Programs kernel_programs(int length, ElementType type, const Tuning& tuning) {
  Programs programs = is_scalar(length, type) ? scalar_programs(length, type)
                                              : vector_programs(length, type, tuning.seed);
  programs.forward = kernelgen::scheduled(programs.forward, tuning.forward);
  programs.inverse = kernelgen::scheduled(programs.inverse, tuning.inverse);
  return programs;
}

std::string kernel_source(int length, ElementType type, const Tuning& tuning) {
  const Programs programs = kernel_programs(length, type, tuning);
  std::string text = head_comment(length, type);
  text += "#include \"dft_complex/contract.h\"\n\n";
  text += "namespace haldgen::dft_complex {\nnamespace {\n\n";
  text += kernel_type(length, type, false, programs.forward) + "\n";
  text += kernel_type(length, type, true, programs.inverse) + "\n";
  text += "}  // namespace\n\n";
  text += entry(length, type, false) + "\n";
  text += entry(length, type, true) + "\n";
  text += "}  // namespace haldgen::dft_complex\n";
  return text;
}

}  // namespace haldgen::dft_complex
