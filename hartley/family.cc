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

family::Source source(int length, FloatType type, const family::Tuning& tuning) {
  const Element element = family::real_element(type);
  const std::string exported = names::export_name(kWord, element, length);
  const family::Choice choice = tuning.of(exported);
  const kernelgen::Program program =
      scheduled(program_of(design_of(length), type), choice.ordering);

  family::Source source;
  source.title = "Hartley transform of length " + std::to_string(length);
  source.type = type;
  source.algorithm = algorithm(length, type);
  source.operations = kernelgen::describe(kernelgen::tally(program), type);
  source.command = "hartley " + std::to_string(length) + " " + std::string(names::suffix(element));
  source.includes = {"family/contract.h"};
  source.scope = "hartley";
  source.kernels = {
      transform_kernel({"Kernel", length, kernelgen::Divides::both, element}, program, choice)};
  source.functions = {family::transform_function(exported, element, "Kernel")};
  return source;
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
  family::Family result{kName,
                        "Hartley transform",
                        lengths,
                        {},
                        family::Generated{algorithm, graph, work, source, {}, batch}};
  add_transform(result, kWord, names::kReal,
                {names::Scaling::directionless, Layout::real, Layout::real}, kText);
  return result;
}

}  // namespace haldgen::hartley
