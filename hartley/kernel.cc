#include "hartley/kernel.h"

#include "kernelgen/count.h"
#include "kernelgen/emit.h"
#include "kernelgen/fold.h"
#include "kernelgen/lower.h"
#include "kernelgen/orient.h"
#include "kernelgen/precision.h"
#include "kernelgen/transpose.h"
#include "real_blocks/expand.h"

namespace haldgen::hartley {
namespace {

using kernelgen::FloatType;
using kernelgen::Graph;
using kernelgen::Program;
using kernelgen::Value;

/// Which outputs of a half spectrum are imaginary parts.
std::vector<bool> imaginary_parts(int length) {
  std::vector<bool> parts(static_cast<std::size_t>(length), false);
  for (std::size_t i = 2; i < parts.size(); i += 2) parts[i] = true;
  return parts;
}

/// Differences and sums of the parts of each bin in place of the parts.
void pair_outputs(Graph& graph, int length) {
  const std::vector<Value> parts(graph.outputs().begin(), graph.outputs().end());
  std::vector<Value> outputs(static_cast<std::size_t>(length));
  const auto output = [&](int k) -> Value& { return outputs[static_cast<std::size_t>(k)]; };
  std::size_t next = 0;
  for (int k = 0; 2 * k <= length; ++k) {
    const Value re = parts[next++];
    output(k) = re;
    if (k == 0 || 2 * k == length) continue;
    const Value im = parts[next++];
    output(k) = graph.subtract(re, im);
    output(length - k) = graph.add(re, im);
  }
  graph.set_outputs(std::move(outputs));
}

Graph transposed(const Graph& graph, int length) {
  Graph result(kernelgen::Field::real);
  std::vector<Value> fed;
  for (int k = 0; k < length; ++k) fed.push_back(result.input(k));
  result.set_outputs(kernelgen::transpose_statements_into(result, graph, fed, length));
  return result;
}

std::string head_comment(int length, FloatType type, const Program& program) {
  const kernelgen::Tally t = kernelgen::tally(program);
  const Design& design = design_of(length);
  std::string text = "// Hartley transform of length " + std::to_string(length) + ", ";
  text += type == FloatType::f32 ? "32" : "64";
  text += "-bit elements. Generated; do not edit.\n//   algorithm: " + to_string(design.recipe);
  text += design.structure == Structure::paired ? ", paired\n" : ", paired and transposed\n";
  return text + kernelgen::describe(t, type);
}

}  // namespace

Graph kernel_graph(int length) {
  const Design& design = design_of(length);
  Graph graph = kernelgen::fold_products(half_spectrum(design.recipe), design.fold);
  // Sine sums as they enter H[k]: the imaginary part of a bin is minus that.
  graph = kernelgen::turn_differences(graph, imaginary_parts(length));
  pair_outputs(graph, length);
  if (design.structure == Structure::transposed) {
    graph = kernelgen::fold_products(transposed(graph, length), kernelgen::Into::all);
  }
  const std::vector<bool> none(static_cast<std::size_t>(length), false);
  return kernelgen::order_terms(kernelgen::orient_outputs(graph, none));
}

Program kernel_program(int length, FloatType type, kernelgen::Ordering ordering) {
  Graph graph = kernel_graph(length);
  kernelgen::widen_products(graph);
  kernelgen::widen_sums(graph, design_of(length).wide_sums);
  return kernelgen::scheduled(
      kernelgen::lower_real(graph, {.type = type, .scaled = kernelgen::Scaled::kept}), ordering);
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
