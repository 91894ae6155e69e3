// The Hartley transform as a family.
#include "family/family.h"
#include "family/batch.h"

#include "hartley/recipes.h"

namespace haldgen::hartley {
namespace {

using family::FloatType;
using names::Element;
using names::Layout;

constexpr auto kName = "hartley";
constexpr auto kWord = "Hartley";

const names::TransformText kText{
    "Hartley transform",
    "    H[k] = s * sum over n of x[n] * (cos(2*pi*k*n/N) + sin(2*pi*k*n/N)),   k, n = 0..N-1\n",
    "",
    "(R. V. L. Hartley, Proc. IRE 30 (1942)). Applied twice, it gives N times the input for s = "
    "1.\n",
    R"(@param src     N real elements x[0..N-1]; only read.
@param dst     N real elements H[0..N-1].)"};

std::string algorithm(int length, FloatType /*type*/) {
  const Design& design = design_of(length);
  const bool paired = design.structure == real_blocks::Structure::paired;
  return to_string(design.recipe) + (paired ? "" : ", transposed");
}

kernelgen::Graph graph(int length, FloatType /*type*/) { return graph_of(design_of(length)); }

family::Work work(int length, FloatType type) {
  return family::work_of(program_of(design_of(length), type));
}

family::Transforms transforms(int length, FloatType type, const family::Tuning& tuning) {
  const Element element = family::real_element(type);
  const family::Choice choice = tuning.of(names::export_name(kWord, element, length));
  const kernelgen::Program scalar = program_of(design_of(length), type);

  family::Transforms result;
  result.length = length;
  result.type = type;
  result.element = element;
  result.title = "Hartley transform of length " + std::to_string(length);
  result.algorithm = algorithm(length, type);
  result.operations = kernelgen::describe(kernelgen::tally(scalar), type);
  result.command = "hartley " + std::to_string(length) + " " + std::string(names::suffix(element));
  result.includes = {"family/contract.h"};
  if (choice.pairs) result.includes.push_back("lanes/beside.h");
  result.scope = "hartley";
  result.bodies = {
      {{"Kernel", length, kernelgen::Divides::both, element}, tuned(scalar, choice), choice}};
  result.functions = {{kWord, 0, {}, {}}};
  return result;
}

family::Source batch(int length, FloatType type, const family::Tuning& tuning) {
  const Element element = family::real_element(type);
  const family::Choice choice = tuning.of(family::batch_symbol(kName, element, length));
  family::Source source = family::batch_source(kName, length, element);
  source.algorithm = algorithm(length, type);
  const kernelgen::Program program =
      scheduled(program_of(design_of(length), type), choice.ordering);
  source.kernels = {lane_kernel({"Body", length, element}, program, choice)};
  source.functions = {
      family::real_batch(kName, length, element, program, "Side::plain, Side::plain")};
  return source;
}

}  // namespace

family::Family hartley(const names::Sizes& lengths) {
  family::Family result{
      kName,
      "Hartley transform",
      lengths,
      {},
      family::Generated{
          algorithm, graph, work, family::source_from<transforms>, {}, batch, transforms}};
  add_transform(result, kWord, names::kReal,
                {names::Scaling::directionless, Layout::real, Layout::real}, kText);
  return result;
}

}  // namespace haldgen::hartley
