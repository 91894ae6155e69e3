#include "dft_real/kernel.h"

#include "dft_real/packing.h"
#include "kernelgen/count.h"
#include "kernelgen/emit.h"
#include "kernelgen/fold.h"
#include "kernelgen/lower.h"
#include "kernelgen/orient.h"
#include "kernelgen/precision.h"
#include "kernelgen/transpose.h"
#include "real_blocks/expand.h"

namespace haldgen::dft_real {
namespace {

using kernelgen::FloatType;
using kernelgen::Graph;
using kernelgen::Into;
using kernelgen::Program;
using kernelgen::Value;

Graph forward_graph(int length) {
  const Design& design = design_of(length, Direction::forward);
  const Graph graph = kernelgen::fold_products(half_spectrum(design.recipe), Into::all);
  std::vector<bool> negated(static_cast<std::size_t>(length), false);
  // Value 2k of the half spectrum is the imaginary part of bin k.
  for (const int bin : design.negated) negated[2 * static_cast<std::size_t>(bin)] = true;
  return kernelgen::order_terms(kernelgen::orient_outputs(graph, negated));
}

// x[n] takes each bin but those at 0 and N/2 twice, as itself and as its conjugate: the transpose
// of the forward graph, fed with doubled values.
Graph inverse_graph(int length) {
  const Design& design = design_of(length, Direction::inverse);
  const Graph forward =
      kernelgen::fold_products(half_spectrum(design.recipe), design.fold_before_transposing);
  Graph backward(kernelgen::Field::real);
  std::vector<Value> fed;
  for (int i = 0; i < length; ++i) {
    const bool single = i == 0 || (length % 2 == 0 && i == length - 1);
    const Value value = backward.input(i);
    fed.push_back(single ? value : backward.multiply(2.0, value));
  }
  backward.set_outputs(kernelgen::transpose_statements_into(backward, forward, fed, length));
  const Graph folded = kernelgen::fold_products(backward, Into::all);
  const std::vector<bool> none(static_cast<std::size_t>(length), false);
  return kernelgen::order_terms(kernelgen::orient_outputs(folded, none));
}

/// Whether a load and a store meet in any format when the kernel works in place.
kernelgen::Overlap overlap_of(int length, Direction direction) {
  return [=](int load, int store) {
    const int sample = direction == Direction::forward ? load : store;
    const int value = direction == Direction::forward ? store : load;
    for (const Packing packing : kPackings) {
      if (position(packing, length, value) == sample) return true;
    }
    return false;
  };
}

std::string packing_word(Packing packing) {
  switch (packing) {
    case Packing::ccs:
      return "CCS";
    case Packing::pack:
      return "Pack";
    case Packing::perm:
      return "Perm";
  }
  return "";
}

std::string packing_name(Packing packing) {
  switch (packing) {
    case Packing::ccs:
      return "ccs";
    case Packing::pack:
      return "pack";
    case Packing::perm:
      return "perm";
  }
  return "";
}

std::string symbol(int length, Direction direction, FloatType type, Packing packing) {
  const std::string word = direction == Direction::forward
                               ? "DFTFwd_RTo" + packing_word(packing)
                               : "DFTInv_" + packing_word(packing) + "ToR";
  return "haldgImpl_" + word + "_" + std::to_string(length) + "_" + kernelgen::suffix(type);
}

std::string head_comment(int length, Direction direction, FloatType type, const Program& program) {
  const kernelgen::Tally t = kernelgen::tally(program);
  std::string text = direction == Direction::forward ? "// Forward" : "// Inverse";
  text += " real DFT of length " + std::to_string(length) + ", ";
  text += type == FloatType::f32 ? "32" : "64";
  text += "-bit elements. Generated; do not edit.\n//   algorithm: ";
  text += to_string(design_of(length, direction).recipe);
  text += direction == Direction::forward ? "\n" : ", transposed\n";
  return text + kernelgen::describe(t, type);
}

std::string entry(int length, Direction direction, FloatType type, Packing packing) {
  const std::string declaration =
      "extern \"C\" int32_t " + symbol(length, direction, type, packing) + "(const " +
      kernelgen::type_name(type) + "* src, " + kernelgen::type_name(type) + "* dst, int32_t flag)";
  return declaration + " {\n  return run<Kernel, Format<Packing::" + packing_name(packing) + ", " +
         std::to_string(length) + ">>(src, dst, flag);\n}\n";
}

}  // namespace

Graph kernel_graph(int length, Direction direction) {
  return direction == Direction::forward ? forward_graph(length) : inverse_graph(length);
}

Program kernel_program(int length, Direction direction, FloatType type,
                       kernelgen::Ordering ordering) {
  Graph graph = kernel_graph(length, direction);
  kernelgen::widen_products(graph);
  kernelgen::widen_sums(graph, {design_of(length, direction).wide_additions});
  return kernelgen::scheduled(kernelgen::lower_real(graph, {type}), ordering,
                              overlap_of(length, direction));
}

std::string kernel_source(int length, Direction direction, FloatType type,
                          kernelgen::Ordering ordering) {
  const bool forward = direction == Direction::forward;
  const Program program = kernel_program(length, direction, type, ordering);
  std::string text = head_comment(length, direction, type, program);
  text += "#include \"dft_real/contract.h\"\n\n";
  text += "namespace haldgen::dft_real {\nnamespace {\n\n";
  text += "struct Kernel {\n  using Float = " + kernelgen::type_name(type) + ";\n";
  text += kernelgen::scale_members(
      length, forward ? kernelgen::Divides::forward : kernelgen::Divides::inverse, type);
  text += "\n  template <class Format>\n";
  text += "  HALDGEN_INLINE static void transform(const Float* src, Float* dst, Float scale) {\n";
  text += forward ? emit_body(program, {"", "Format::at"}) + "    Format::clear(dst);\n"
                  : emit_body(program, {"Format::at", ""});
  text += "  }\n};\n\n}  // namespace\n\n";
  for (const Packing packing : kPackings) text += entry(length, direction, type, packing) + "\n";
  text += "}  // namespace haldgen::dft_real\n";
  return text;
}

}  // namespace haldgen::dft_real
