// The DCT-IV as a family. Its lengths are arguments; its kernels are parts of plans.
#include "family/family.h"

#include <stdexcept>

#include "dct4/kernel.h"
#include "dct4/steps.h"
#include "dct4/text.h"

namespace haldgen::dct4 {
namespace {

using family::FloatType;

const Kernel& kernel_of(int index, FloatType type) {
  for (const Kernel& kernel : kernels()) {
    if (kernel.type == type && index-- == 0) return kernel;
  }
  throw std::out_of_range("no such part of a DCT-IV");
}

std::string algorithm(int index, FloatType type) {
  const Kernel& kernel = kernel_of(index, type);
  const std::string size = std::to_string(kernel.size);
  switch (kernel.part) {
    case Part::fixed:
      return "DCT-IV of length " + size;
    case Part::fold:
      return "fold of length " + size;
    case Part::recombine:
      return "rotation and recombination of radix " + size;
    case Part::inner_recombine:
      return "step of radix " + size + " from folds to a longer fold";
  }
  throw std::logic_error("unknown part");
}

kernelgen::Graph graph(int index, FloatType type) { return kernel_graph(kernel_of(index, type)); }

family::Work work_of(const kernelgen::Counts& counts) {
  return {counts.additions, counts.multiplications, counts.depth, 0};
}

family::Work work(int index, FloatType type) { return work_of(count(graph(index, type))); }

family::Work transform_work(int length) { return work_of(transform_counts(length)); }

/// "FoldRun", "run_fold": the pass that runs the body of a kernel.
struct Pass {
  std::string run;
  std::string function;
};
Pass pass_of(Part part) {
  switch (part) {
    case Part::fold:
      return {"FoldRun", "run_fold"};
    case Part::recombine:
      return {"RecombineRun", "run_recombine"};
    case Part::inner_recombine:
      return {"InnerRecombineRun", "run_inner_recombine"};
    case Part::fixed:
      break;
  }
  throw std::logic_error("no pass");
}

/// Flavours run the same programs in each block of wider vectors, where there are groups enough.
family::Source source(int index, FloatType type, const family::Tuning& tuning) {
  const bool flavoured = tuning.vector_bits() > 128;
  const Kernel& kernel = kernel_of(index, type);
  const std::string element(names::suffix(family::real_element(type)));
  const family::Choice choice = tuning.of("haldgDCT4_" + element + "/" + name(kernel));
  kernelgen::Program program = kernel_program(kernel, choice.ordering);
  program.blockwise = flavoured && kernel.part != Part::fixed;
  const std::string float_name = kernelgen::type_name(type);
  const family::Work counts = work(index, type);

  family::Source source;
  source.title = "Part of the DCT-IV: " + algorithm(index, type);
  source.type = type;
  source.operations = "//   " + std::to_string(counts.additions) + " additions, " +
                      std::to_string(counts.multiplications) + " multiplications, depth " +
                      std::to_string(counts.depth) +
                      (kernel.part == Part::fixed ? "\n" : " in each lane\n");
  source.command = "dct4 " + name(kernel) + " " + element;
  source.includes = {"dct4/passes.h"};
  source.scope = "dct4";
  const std::string remark = family::ordered_by(choice, false);
  // Angles of a fixed length are multiples of 2 pi over 8 of it.
  const auto constants = named_constants(program, kernelgen::ConstantNames({8 * kernel.size}));
  if (kernel.part == Part::fixed) {
    source.functions = {"// " + remark + "\nvoid " + name(kernel) + "(const " + float_name +
                        "* src, " + float_name + "* dst) {\n" + emit_constants(constants, "    ") +
                        emit_body(program, {}, constants) + "}\n"};
    return source;
  }
  const Pass pass = pass_of(kernel.part);
  source.kernels = {
      {"Body", remark,
       "  using Float = " + float_name + ";\n" +
           (flavoured ? "" : "  using V = " + kernelgen::vector_name(program) + ";\n") +
           "  static constexpr int kSize = " + std::to_string(kernel.size) + ";\n" +
           emit_constants(constants, "  static "),
       std::string("template <class ") + (flavoured ? "V, class Io" : "Io") +
           ">\n  static inline void run(const Io& io)",
       emit_body(program, {}, constants)}};
  source.functions = {"void " + name(kernel) + "(const " + pass.run + "<" + float_name +
                      ">& run) {\n  " + pass.function + "<Body>(run);\n}\n"};
  return source;
}

std::vector<std::string> kernel_names() {
  std::vector<std::string> all;
  for (const Kernel& kernel : kernels()) {
    if (kernel.type == FloatType::f64) all.push_back(name(kernel));
  }
  return all;
}

std::vector<int> powers_of_two() {
  std::vector<int> lengths;
  for (int length = 2; length <= 1 << 16; length *= 2) lengths.push_back(length);
  return lengths;
}

}  // namespace

family::Family dct4(const names::Sizes& /*lengths*/) {
  using names::Signature;
  family::Family result{"dct4",
                        "DCT-IV of power-of-two lengths",
                        {},
                        {},
                        family::Generated{algorithm, graph, work, source, kernel_names()},
                        family::Planned{powers_of_two(), transform_work, angle_steps}};
  result.words = {
      {"DCT4GetSize", Signature::length_query, names::kReal, {}, {}, kSizeText},
      {"DCT4Init", Signature::plan_init, names::kReal, {}, {}, kInitText},
      {"DCT4InitAlloc", Signature::plan_init_alloc, names::kReal, {}, {}, kInitAllocText},
      {"DCT4Free", Signature::plan_free, names::kReal, {}, {}, kFreeText},
      {"DCT4", Signature::planned_transform, names::kReal, {}, {}, kTransformText},
  };
  return result;
}

}  // namespace haldgen::dct4
