#include "dft_complex/kernel.h"

#include "kernelgen/count.h"
#include "kernelgen/emit.h"

namespace haldgen::dft_complex {
namespace {

using kernelgen::FloatType;
using kernelgen::Program;

std::string head_comment(int length, FloatType type) {
  const Design& design = design_of(length, type);
  const kernelgen::Counts counts = kernelgen::count(graph_of(design));
  return "// Complex DFT of length " + std::to_string(length) + ", " +
         (type == FloatType::f32 ? "32" : "64") + "-bit elements. Generated; do not edit.\n" +
         "//   algorithm: " + to_string(design.recipe) + "\n" + "//   " +
         std::to_string(counts.additions) + " additions, " +
         std::to_string(counts.multiplications) + " multiplications, depth " +
         std::to_string(counts.depth) + ", and the scale\n";
}

std::string kernel_type(int length, FloatType type, bool inverse, const Program& program) {
  const bool f32 = type == FloatType::f32;
  const std::string name = inverse ? "Inverse" : "Forward";
  std::string text = "struct " + name + " {\n";
  text += std::string("  using Float = ") + (f32 ? "float" : "double") + ";\n";
  text += std::string("  using Element = ") + (f32 ? "Cplx32" : "Cplx64") + ";\n";
  if (program.lanes > 1) text += std::string("  using V = ") + (f32 ? "__m128" : "__m128d") + ";\n";
  text += std::string("  static constexpr bool kPathsDiffer = ") +
          (kernelgen::has_whole_vector_access(program) ? "true" : "false") + ";\n";
  text += kernelgen::scale_members(
      length, inverse ? kernelgen::Divides::inverse : kernelgen::Divides::forward, type);
  text += "\n";
  text += "  template <class Access>\n";
  text += "  HALDGEN_INLINE static void transform(const Float* src, Float* dst, Float scale) {\n";
  text += emit_body(program);
  text += "  }\n};\n";
  return text;
}

std::string entry(int length, FloatType type, bool inverse) {
  const std::string element = type == FloatType::f32 ? "Cplx32" : "Cplx64";
  return "extern \"C\" int32_t haldgImpl_DFT" + std::string(inverse ? "Inv" : "Fwd") + "_CToC_" +
         std::to_string(length) + "_" + complex_suffix(type) + "(const " + element + "* src, " +
         element + "* dst, int32_t flag) {\n  return run<" + (inverse ? "Inverse" : "Forward") +
         ">(src, dst, flag);\n}\n";
}

}  // namespace

std::string complex_suffix(FloatType type) { return type == FloatType::f32 ? "32fc" : "64fc"; }

Programs kernel_programs(int length, FloatType type, const Tuning& tuning) {
  Programs programs = programs_of(design_of(length, type), type, tuning.seed);
  programs.forward = kernelgen::scheduled(programs.forward, tuning.forward);
  programs.inverse = kernelgen::scheduled(programs.inverse, tuning.inverse);
  return programs;
}

std::string kernel_source(int length, FloatType type, const Tuning& tuning) {
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
