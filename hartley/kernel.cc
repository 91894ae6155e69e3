#include "hartley/kernel.h"

#include "kernelgen/count.h"
#include "kernelgen/emit.h"

namespace haldgen::hartley {
namespace {

using kernelgen::FloatType;
using kernelgen::Graph;
using kernelgen::Program;

std::string head_comment(int length, FloatType type, const Program& program) {
  const kernelgen::Tally t = kernelgen::tally(program);
  const Design& design = design_of(length);
  std::string text = "// Hartley transform of length " + std::to_string(length) + ", ";
  text += type == FloatType::f32 ? "32" : "64";
  text += "-bit elements. Generated; do not edit.\n//   algorithm: " + to_string(design.recipe);
  text += design.structure == real_blocks::Structure::paired ? ", paired\n"
                                                             : ", paired and transposed\n";
  return text + kernelgen::describe(t, type);
}

}  // namespace

Graph kernel_graph(int length) { return graph_of(design_of(length)); }

Program kernel_program(int length, FloatType type, kernelgen::Ordering ordering) {
  return kernelgen::scheduled(program_of(design_of(length), type), ordering);
}

std::string kernel_source(int length, FloatType type, kernelgen::Ordering ordering) {
  const Program program = kernel_program(length, type, ordering);
  const std::string element = kernelgen::type_name(type);
  std::string text = head_comment(length, type, program);
  text += "#include \"hartley/contract.h\"\n\n";
  text += "namespace haldgen::hartley {\nnamespace {\n\n";
  text += "struct Kernel {\n  using Float = " + element + ";\n";
  text += kernelgen::scale_members(length, kernelgen::Divides::both, type);
  text += "\n  HALDGEN_INLINE static void transform(const Float* src, Float* dst, Float scale) {\n";
  text += emit_body(program) + "  }\n};\n\n}  // namespace\n\n";
  text += "extern \"C\" int32_t haldgImpl_Hartley_" + std::to_string(length) + "_" +
          kernelgen::suffix(type) + "(const " + element + "* src, " + element +
          "* dst, int32_t flag) {\n  return run<Kernel>(src, dst, flag);\n}\n\n";
  text += "}  // namespace haldgen::hartley\n";
  return text;
}

}  // namespace haldgen::hartley
