// The complex DFT as a family: both directions of a length and type share a source.
#include "family/family.h"
#include "family/batch.h"

#include <stdexcept>

#include "dft_complex/recipes.h"
#include "dft_complex/text.h"
#include "kernelgen/count.h"
#include "kernelgen/unpack.h"

namespace haldgen::dft_complex {
namespace {

using family::FloatType;
using kernelgen::Divides;
using kernelgen::Program;
using names::Element;
using names::Layout;
using names::Scaling;

constexpr auto kName = "complex";
constexpr auto kForward = "DFTFwd_CToC";
constexpr auto kInverse = "DFTInv_CToC";

std::string algorithm(int length, FloatType type) {
  return to_string(design_of(length, type).recipe);
}

kernelgen::Graph graph(int length, FloatType type) { return graph_of(design_of(length, type)); }

family::Work work(int length, FloatType type) {
  const kernelgen::Counts counts = count(graph(length, type));
  return {counts.additions, counts.multiplications, counts.depth, 0};
}

family::Transforms transforms(int length, FloatType type, const family::Tuning& tuning) {
  const Element element = family::complex_element(type);
  const std::string forward = names::export_name(kForward, element, length);
  const std::string inverse = names::export_name(kInverse, element, length);
  const family::Choice there = tuning.of(forward);
  const family::Choice back = tuning.of(inverse);
  if (there.seed != back.seed) throw std::logic_error("two seeds for the forms of " + forward);
  const Programs programs =
      programs_of(design_of(length, type), type, there.seed, {there.pairs, back.pairs});
  const family::Work counts = work(length, type);

  family::Transforms result;
  result.length = length;
  result.type = type;
  result.element = element;
  result.title = "Complex DFT of length " + std::to_string(length);
  result.algorithm = algorithm(length, type);
  result.operations = "//   " + std::to_string(counts.additions) + " additions, " +
                      std::to_string(counts.multiplications) + " multiplications, depth " +
                      std::to_string(counts.depth) + ", and the scale\n";
  result.command = "complex " + std::to_string(length) + " " + std::string(names::suffix(element));
  result.includes = {"family/contract.h"};
  if (there.pairs || back.pairs) result.includes.emplace_back("lanes/paired.h");
  result.scope = "dft_complex";
  family::Transform transform{"Forward", length, Divides::forward, element};
  const Recipe& recipe = design_of(length, type).recipe;
  if (recipe.method == Method::bluestein) transform.convolution = recipe.first.front().length;
  result.bodies.push_back({transform, scheduled(programs.forward, there.ordering), there});
  transform.name = "Inverse";
  transform.divides = Divides::inverse;
  result.bodies.push_back({transform, scheduled(programs.inverse, back.ordering), back});
  result.functions = {{kForward, 0, {}, {}}, {kInverse, 1, {}, {}}};
  return result;
}

/// The program of one lane.
Program in_lanes(const Program& program) {
  return program.lanes == 1 ? program : kernelgen::unpacked(program);
}

family::Source batch(int length, FloatType type, const family::Tuning& tuning) {
  const Element element = family::complex_element(type);
  const family::Choice there = tuning.of(names::export_name(kForward, element, length));
  const family::Choice back = tuning.of(names::export_name(kInverse, element, length));
  const family::Choice choice = tuning.of(family::batch_symbol(kName, element, length));
  const Design& design = design_of(length, type);
  const Programs programs = programs_of(design, type, there.seed);
  const Program forward = in_lanes(programs.forward);
  const Program inverse = in_lanes(programs.inverse);
  const bool exchanged = same_results(parts_exchanged(forward), inverse);
  const bool light = family::is_light(forward, length);
  const bool in_blocks = light && family::is_of_blocks(programs.forward);

  family::LaneBody body{"Forward", length, element};
  if (design.recipe.method == Method::bluestein) {
    body.convolution = design.recipe.first.front().length;
  }
  family::Source source = family::batch_source(kName, length, element);
  source.algorithm = algorithm(length, type);
  source.kernels = {lane_kernel(body, scheduled(forward, choice.ordering), choice)};
  if (!exchanged) {
    body.name = "Inverse";
    source.kernels.push_back(lane_kernel(body, scheduled(inverse, choice.ordering), choice));
  }
  if (in_blocks) {
    body.name = "ForwardBlocks";
    source.kernels.push_back(
        block_kernel(body, scheduled(programs.forward, there.ordering), there));
    body.name = "InverseBlocks";
    source.kernels.push_back(block_kernel(body, scheduled(programs.inverse, back.ordering), back));
  }
  const auto kernels = [&](const std::string& lanes, const std::string& blocks) {
    if (in_blocks) return "rows_and_columns<" + lanes + ", " + blocks + ">()";
    return (light ? "tile_and_columns<" : "tile_only<") + lanes + ">()";
  };
  source.functions = {family::complex_batch(
      kName, length, element, kernels("Forward, false", "ForwardBlocks"),
      kernels(exchanged ? "Forward, true" : "Inverse, false", "InverseBlocks"))};
  return source;
}

}  // namespace

family::Family complex(const names::Sizes& lengths) {
  family::Family result{
      kName,
      "complex DFT, forward and inverse",
      lengths,
      {},
      family::Generated{
          algorithm, graph, work, family::source_from<transforms>, {}, batch, transforms}};
  add_transform(result, kForward, names::kComplex,
                {Scaling::forward, Layout::complex, Layout::complex}, text("Forward", "-"));
  add_transform(result, kInverse, names::kComplex,
                {Scaling::inverse, Layout::complex, Layout::complex}, text("Inverse", "+"));
  return result;
}

}  // namespace haldgen::dft_complex
