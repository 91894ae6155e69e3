#include "dct4/kernel.h"

#include <stdexcept>
#include <vector>

#include "dct4/kernel_list.h"
#include "dct4/size.h"
#include "kernelgen/emit.h"
#include "kernelgen/lower.h"
#include "kernelgen/orient.h"

namespace haldgen::dct4 {
namespace {

using kernelgen::FloatType;
using kernelgen::Graph;
using kernelgen::LaneInputs;
using kernelgen::Program;

/// Lengths whose rotations stand for those of any block: none of their angles is one that a
/// recombination has inside, so each of their constants is an entry of the table.
int stand_in_length(const Kernel& kernel) {
  return (kernel.part == Part::recombine ? 64 : 32) * kernel.size;
}

std::vector<kernelgen::WideComplex> stand_in_rotations(const Kernel& kernel) {
  switch (kernel.part) {
    case Part::recombine:
      return block_rotations(kernel.size, stand_in_length(kernel), 0);
    case Part::inner_recombine:
      return inner_block_rotations(kernel.size, stand_in_length(kernel), 0);
    default:
      return {};
  }
}

/// The graph without outputs that carry a minus. The fold of two values only names them, the second
/// with a minus that nothing can absorb.
Graph oriented(const Kernel& kernel) {
  const Graph graph = kernel_graph(kernel);
  if (kernel.part == Part::fold && kernel.size == 2) return graph;
  return kernelgen::orient_outputs(graph, std::vector<bool>(graph.outputs().size(), false));
}

int lanes(FloatType type) { return type == FloatType::f32 ? 4 : 2; }

#define HALDGEN_DCT4_ROW_32F(part, size) {Part::part, size, FloatType::f32},
#define HALDGEN_DCT4_ROW_64F(part, size) {Part::part, size, FloatType::f64},
constexpr Kernel kKernels[] = {HALDGEN_DCT4_KERNELS(HALDGEN_DCT4_ROW_32F)
                                   HALDGEN_DCT4_KERNELS(HALDGEN_DCT4_ROW_64F)};
#undef HALDGEN_DCT4_ROW_32F
#undef HALDGEN_DCT4_ROW_64F

kernelgen::Counts times(int count, const kernelgen::Counts& c) {
  return {count * c.additions, count * c.multiplications, c.depth};
}

kernelgen::Counts then(const kernelgen::Counts& a, const kernelgen::Counts& b) {
  return {a.additions + b.additions, a.multiplications + b.multiplications, a.depth + b.depth};
}

kernelgen::Counts fold_counts(int length) {
  if (fold_class(length) != kPlannedFoldClass) return count(fold_graph(length));
  const int radix = pick_radix(length / 2);
  const int sub_length = length / radix;
  return then(times(radix, fold_counts(sub_length)),
              times(sub_length / 2, count(inner_recombine_graph(radix, length, 0))));
}

std::string_view word(Part part) {
  switch (part) {
    case Part::fixed:
      return "fixed";
    case Part::fold:
      return "fold";
    case Part::recombine:
      return "recombine";
    case Part::inner_recombine:
      return "inner_recombine";
  }
  throw std::logic_error("unknown part");
}

std::string title(const Kernel& kernel) {
  const std::string size = std::to_string(kernel.size);
  switch (kernel.part) {
    case Part::fixed:
      return "DCT-IV of length " + size;
    case Part::fold:
      return "Fold of length " + size;
    case Part::recombine:
      return "Rotation and recombination of radix " + size;
    case Part::inner_recombine:
      return "Step of radix " + size + " from folds to a longer fold";
  }
  throw std::logic_error("unknown part");
}

std::string head_comment(const Kernel& kernel) {
  const kernelgen::Counts counts = kernelgen::count(kernel_graph(kernel));
  return "// " + title(kernel) + ", " + (kernel.type == FloatType::f32 ? "32" : "64") +
         "-bit elements. Generated; do not edit.\n//   " + std::to_string(counts.additions) +
         " additions, " + std::to_string(counts.multiplications) + " multiplications, depth " +
         std::to_string(counts.depth) + (kernel.part == Part::fixed ? "" : " in each lane") + "\n";
}

std::string fixed_function(const Kernel& kernel, const Program& program) {
  const std::string type = kernel.type == FloatType::f32 ? "float" : "double";
  return "void " + name(kernel) + "(const " + type + "* src, " + type + "* dst) {\n" +
         emit_body(program) + "}\n";
}

/// The body as a template over the accessor of its slots, and the pass that runs it.
std::string pass_function(const Kernel& kernel, const Program& program) {
  const std::string type = kernel.type == FloatType::f32 ? "float" : "double";
  const std::string pass = kernel.part == Part::fold        ? "Fold"
                           : kernel.part == Part::recombine ? "Recombine"
                                                            : "InnerRecombine";
  return "namespace {\n\nstruct Body {\n  using Float = " + type +
         ";\n  using V = lanes::Vector<Float, " + std::to_string(program.lanes) +
         ">;\n  static constexpr int kSize = " + std::to_string(kernel.size) +
         ";\n\n  template <class Io>\n  static inline void run(const Io& io) {\n" +
         emit_body(program) + "  }\n};\n\n}  // namespace\n\nvoid " + name(kernel) + "(const " +
         pass + "Run<" + type + ">& run) {\n  run_" + std::string(word(kernel.part)) +
         "<Body>(run);\n}\n";
}

}  // namespace

std::span<const Kernel> kernels() { return kKernels; }

std::string name(const Kernel& kernel) {
  return std::string(word(kernel.part)) + "_" + std::to_string(kernel.size);
}

kernelgen::Ordering ordering_of(const Kernel& kernel) {
  using kernelgen::Order;
  struct Row {
    Part part;
    int size;
    kernelgen::Ordering ordering;
  };
  // Measured with both element types. Kernels that are not listed do best by bisection.
  static constexpr Row kRows[] = {
      {Part::fixed, 8, {Order::pressure, 16}},
      {Part::fixed, 16, {Order::critical, 16}},
      {Part::fold, 16, {Order::critical, 24}},
      {Part::recombine, 8, {Order::critical, 12}},
      {Part::recombine, 16, {Order::pressure, 18}},
      {Part::recombine, 32, {Order::pressure, 18}},
      {Part::inner_recombine, 8, {Order::critical, 12}},
      {Part::inner_recombine, 16, {Order::critical, 14}},
      {Part::inner_recombine, 32, {Order::critical, 14}},
  };
  for (const Row& row : kRows) {
    if (row.part == kernel.part && row.size == kernel.size) return row.ordering;
  }
  return {};
}

Graph kernel_graph(const Kernel& kernel) {
  switch (kernel.part) {
    case Part::fixed:
      return fixed_graph(kernel.size);
    case Part::fold:
      return fold_graph(kernel.size);
    case Part::recombine:
      return recombine_graph(kernel.size, stand_in_length(kernel), 0);
    case Part::inner_recombine:
      return inner_recombine_graph(kernel.size, stand_in_length(kernel), 0);
  }
  throw std::logic_error("unknown part");
}

Program kernel_program(const Kernel& kernel, kernelgen::Ordering ordering) {
  Graph graph = oriented(kernel);
  LaneInputs inputs;
  inputs.lanes = kernel.part == Part::fixed ? 1 : lanes(kernel.type);
  inputs.transposed = kernel.part == Part::recombine;
  int entries = 0;
  for (const kernelgen::WideComplex& w : stand_in_rotations(kernel)) {
    inputs.table[graph.intern(w.re)] = entries++;
    inputs.table[graph.intern(w.im)] = entries++;
  }
  if (static_cast<int>(inputs.table.size()) != entries) {
    throw std::logic_error("two entries of a table are taken for one");
  }
  return scheduled(lower_lanes(graph, kernel.type, inputs), ordering);
}

kernelgen::Counts transform_counts(int length) {
  if (size_class(length) != kPlannedClass) return count(fixed_graph(length));
  const int radix = pick_radix(length / 2);
  const int fold_length = length / radix;
  return then(times(radix, fold_counts(fold_length)),
              times(fold_length / 2, count(recombine_graph(radix, length, 0))));
}

std::string kernel_source(const Kernel& kernel, kernelgen::Ordering ordering) {
  const Program program = kernel_program(kernel, ordering);
  return head_comment(kernel) + "#include \"dct4/passes.h\"\n\nnamespace haldgen::dct4 {\n" +
         (kernel.part == Part::fixed ? "\n" + fixed_function(kernel, program)
                                     : pass_function(kernel, program)) +
         "\n}  // namespace haldgen::dct4\n";
}

}  // namespace haldgen::dct4
