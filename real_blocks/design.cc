#include "real_blocks/design.h"

#include <stdexcept>
#include <string>
#include <utility>

#include "kernelgen/count.h"
#include "kernelgen/lower.h"
#include "kernelgen/orient.h"
#include "kernelgen/stage.h"
#include "kernelgen/transpose.h"
#include "real_blocks/expand.h"
#include "real_blocks/statements.h"

namespace haldgen::real_blocks {
namespace {

using kernelgen::FloatType;
using kernelgen::Into;

/// Marks of the outputs of a half spectrum, where part 2k is the imaginary part of bin k.
using Marks = std::vector<bool>;

Marks imaginary_parts(int length, const std::vector<int>& bins) {
  Marks marks(at(length), false);
  for (const int bin : bins) {
    if (bin < 1 || 2 * bin >= length) {
      throw std::logic_error("bin " + std::to_string(bin) + " has no imaginary part to negate");
    }
    marks[at(2 * bin)] = true;
  }
  return marks;
}

Marks all_imaginary_parts(int length) {
  std::vector<int> bins;
  for (int k = 1; 2 * k < length; ++k) bins.push_back(k);
  return imaginary_parts(length, bins);
}

/// Differences and sums of the parts of each bin in place of the parts.
void pair_outputs(Graph& graph, int length) {
  const kernelgen::Stage stage(graph, "pairs of parts");
  const Reals parts(graph.outputs().begin(), graph.outputs().end());
  Reals outputs(at(length));
  std::size_t next = 0;
  for (int k = 0; 2 * k <= length; ++k) {
    const Value re = parts[next++];
    outputs[at(k)] = re;
    if (k == 0 || 2 * k == length) continue;
    const Value im = parts[next++];
    outputs[at(k)] = graph.subtract(re, im);
    outputs[at(length - k)] = graph.add(re, im);
  }
  graph.set_outputs(std::move(outputs));
}

Graph paired(const Graph& spectrum, int length) {
  // Sine sums as they enter H[k]: the imaginary part of a bin is minus that.
  Graph graph = kernelgen::turn_differences(spectrum, all_imaginary_parts(length));
  pair_outputs(graph, length);
  return graph;
}

Graph transposed(const Graph& graph, int length) {
  Graph result(kernelgen::Field::real);
  Reals fed;
  for (int k = 0; k < length; ++k) fed.push_back(result.input(k));
  result.set_outputs(kernelgen::transpose_statements_into(result, graph, fed, length));
  return kernelgen::fold_products(result, Into::all);
}

/// x[n] takes each bin but those at 0 and N/2 twice, as itself and as its conjugate: the transpose
/// of the forward graph, fed with doubled values.
Graph transposed_from_bins(const Graph& spectrum, int length) {
  Graph result(kernelgen::Field::real);
  kernelgen::Stage stage(result, "doubled bins");
  Reals fed;
  for (int i = 0; i < length; ++i) {
    const bool single = i == 0 || (length % 2 == 0 && i == length - 1);
    const Value value = result.input(i);
    fed.push_back(single ? value : result.multiply(2.0, value));
  }
  stage.next("");
  result.set_outputs(kernelgen::transpose_statements_into(result, spectrum, fed, length));
  return kernelgen::fold_products(result, Into::all);
}

Graph structured(const Graph& spectrum, Structure structure, int length) {
  switch (structure) {
    case Structure::spectrum:
      return spectrum;
    case Structure::samples:
      return transposed_from_bins(spectrum, length);
    case Structure::paired:
      return paired(spectrum, length);
    case Structure::paired_transposed:
      return transposed(paired(spectrum, length), length);
  }
  throw std::logic_error("no such structure");
}

/// The outputs with the signs that the design says.
Graph oriented(const Graph& graph, const Design& design) {
  const int length = design.recipe.length;
  const bool has_bins = design.structure == Structure::spectrum;
  if (has_bins && !design.negated) return graph;
  if (!has_bins && design.negated) {
    throw std::logic_error("only a forward real DFT has imaginary parts to negate");
  }
  const Marks negated = imaginary_parts(length, design.negated.value_or(std::vector<int>{}));
  try {
    return kernelgen::orient_outputs(graph, negated, design.turned);
  } catch (const kernelgen::UnreachableSign& error) {
    if (!has_bins) throw;
    const std::string bin = std::to_string((error.output + 1) / 2);
    throw std::logic_error("real DFT of length " + std::to_string(length) + ", bin " + bin + ": " +
                           error.what() + "; change `negated` there or leave it out");
  }
}

}  // namespace

Design turned(Design design, std::vector<kernelgen::Way> differences) {
  design.turned = std::move(differences);
  return design;
}

Graph graph_of(const Design& design) {
  const int length = design.recipe.length;
  const Graph spectrum = kernelgen::fold_products(half_spectrum(design.recipe), design.fold);
  const Graph graph = structured(spectrum, design.structure, length);
  return kernelgen::order_terms(oriented(graph, design));
}

int operations_of(const Design& design) {
  const kernelgen::Counts counts = count(graph_of(design));
  return counts.additions + counts.multiplications;
}

kernelgen::Program program_of(const Design& design, FloatType type) {
  Graph graph = graph_of(design);
  kernelgen::widen_products(graph);
  kernelgen::widen_sums(graph, design.wide_sums);
  const bool of_bins =
      design.structure == Structure::spectrum || design.structure == Structure::samples;
  return kernelgen::lower_real(
      graph,
      {.type = type, .scaled = of_bins ? kernelgen::Scaled::result : kernelgen::Scaled::kept});
}

}  // namespace haldgen::real_blocks
