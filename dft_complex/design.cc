#include "dft_complex/design.h"

#include <stdexcept>

#include "kernelgen/lower.h"
#include "kernelgen/parts.h"
#include "kernelgen/precision.h"
#include "kernelgen/unpack.h"

namespace haldgen::dft_complex {
namespace {

using kernelgen::FloatType;
using kernelgen::Graph;
using kernelgen::Program;

/// Sweeps of the choice of forms; more find next to nothing better.
constexpr int kFormSweeps = 150;

Program reversed(Program program, int length) {
  for (auto& in : program.code) {
    if (!kernelgen::is_store(in.op)) continue;
    if (in.op == kernelgen::Op::store) throw std::logic_error("neighbours cannot be reversed");
    for (int& address : in.address) address = 2 * ((length - address / 2) % length);
  }
  return program;
}

Programs scalar_programs(const Design& design, FloatType type) {
  if (design.inverse != Inverse::mirror) {
    throw std::logic_error("a scalar kernel has its mirror as its inverse");
  }
  Graph parts = kernelgen::gather_statements(kernelgen::split_parts(graph_of(design)));
  if (design.products == Products::wide) kernelgen::widen_products(parts);
  const Program forward = kernelgen::lower_real(parts, {type});
  return {forward, kernelgen::parts_exchanged(forward)};
}

Programs packed_programs(const Design& design, FloatType type, int seed, const PairsOf& pairs) {
  if (design.products != Products::narrow) {
    throw std::logic_error("a packed kernel has narrow products");
  }
  const bool in_pairs = type == FloatType::f32;
  const auto packed =
      kernelgen::pack(expand(design.recipe, in_pairs), in_pairs ? 2 : 1, design.access);
  const auto forms = kernelgen::choose_forms(packed, kFormSweeps, seed, design.signs);
  const auto paired = [&](const kernelgen::Pairs& distances, bool mirrored) {
    return lower_paired(packed, pair(packed, distances), forms, type, mirrored);
  };
  Programs programs;
  programs.forward =
      pairs.forward ? paired(*pairs.forward, false) : kernelgen::lower_packed(packed, forms, type);
  if (design.inverse == Inverse::reversal) {
    programs.inverse = reversed(programs.forward, design.recipe.length);
  } else if (pairs.inverse) {
    programs.inverse = paired(*pairs.inverse, true);
  } else {
    const auto mirrored = kernelgen::choose_mirrored_forms(packed, forms, kFormSweeps, seed);
    programs.inverse = kernelgen::lower_packed(packed, mirrored, type);
  }
  return programs;
}

/// A scalar kernel in vectors, in the signs that it has.
Design in_vectors(Design design) {
  design.execution = Execution::packed;
  design.access = kernelgen::Access::pairs;
  design.signs = kernelgen::Signs::as_written;
  return design;
}

}  // namespace

Graph graph_of(const Design& design) { return expand(design.recipe, false); }

Programs programs_of(const Design& design, FloatType type, int seed, const PairsOf& pairs) {
  if (design.execution == Execution::packed) return packed_programs(design, type, seed, pairs);
  Programs programs = scalar_programs(design, type);
  if (!pairs.forward && !pairs.inverse) return programs;
  const Programs wider = packed_programs(in_vectors(design), type, seed, pairs);
  if (pairs.forward) programs.forward = wider.forward;
  if (pairs.inverse) programs.inverse = wider.inverse;
  return programs;
}

}  // namespace haldgen::dft_complex
