#include "dct4/kernel.h"

#include <stdexcept>
#include <vector>

#include "dct4/kernel_list.h"
#include "dct4/size.h"
#include "kernelgen/lower.h"
#include "kernelgen/orient.h"

namespace haldgen::dct4 {
namespace {

using kernelgen::FloatType;
using kernelgen::Graph;
using kernelgen::Program;
using kernelgen::Target;

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
  Graph graph = kernel_graph(kernel);
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

int radix_of(int length) {
  const int radix = pick_radix(length / 2);
  if (radix == 0) throw std::invalid_argument("no radix divides this length");
  return radix;
}

kernelgen::Counts fold_counts(int length) {
  if (fold_class(length) != kPlannedFoldClass) return count(fold_graph(length));
  const int radix = radix_of(length);
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

}  // namespace

std::span<const Kernel> kernels() { return kKernels; }

std::string name(const Kernel& kernel) {
  return std::string(word(kernel.part)) + "_" + std::to_string(kernel.size);
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
  Target target{.type = kernel.type, .scaled = kernelgen::Scaled::nothing};
  if (kernel.part != Part::fixed) {
    target.lanes = lanes(kernel.type);
    target.memory = kernelgen::Memory::slots;
  }
  target.transposed = kernel.part == Part::recombine;
  int entries = 0;
  for (const kernelgen::WideComplex& w : stand_in_rotations(kernel)) {
    target.table[graph.intern(w.re)] = entries++;
    target.table[graph.intern(w.im)] = entries++;
  }
  if (static_cast<int>(target.table.size()) != entries) {
    throw std::logic_error("two entries of a table are taken for one");
  }
  return scheduled(lower_real(graph, target), ordering);
}

kernelgen::Counts transform_counts(int length) {
  if (size_class(length) != kPlannedClass) return count(fixed_graph(length));
  const int radix = radix_of(length);
  const int fold_length = length / radix;
  return then(times(radix, fold_counts(fold_length)),
              times(fold_length / 2, count(recombine_graph(radix, length, 0))));
}

}  // namespace haldgen::dct4
