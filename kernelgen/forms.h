// How each packed value is held. A power of i on an edge is no operation if the vector that feeds
// it is held with its parts exchanged or negated; a form says which. The choice of forms decides
// how many exchanges and sign changes remain, and nothing else: every form of a value has the same
// bits up to the sign of an exact zero.
#pragma once

#include <vector>

#include "kernelgen/packed.h"

namespace haldgen::kernelgen {

/// Lane j of an element holds its part j ^ exchanged, negated if bit j of `negated` is set.
struct Form {
  int exchanged = 0;
  int negated = 0;

  // The check takes the 0 of a rewritten a < b for a null pointer.
  friend auto operator<=>(const Form&, const Form&) = default;  // NOLINT(modernize-use-nullptr)
};

/// How an instruction makes a value in its form: the operand order and signs of a sum. For a gather
/// the number of the lowering says whose lanes it exchanges (bit 0: a, bit 1: b), for a store which
/// lanes it takes negated (bit mask): there the scale is negated instead, which costs nothing more
/// than one scale vector for each mask in use.
enum class Lowering {
  plus,           ///< a + b
  minus,          ///< a - b, b held negated
  reversed,       ///< b - a, a held negated
  alternating,    ///< addsub(a, b): lane 0 of b held negated
  alternating_b,  ///< addsub(b, a): lane 0 of a held negated
};

struct Choice {
  Form form;
  Lowering lowering = Lowering::plus;
};

/// The forms in which a node's choice demands its operands.
struct Demand {
  Form a;
  Form b;
};
Demand demand_of(const PackedNode& node, const Choice& choice);

/// The form with parts exchanged, as one exchange instruction makes it.
Form exchanged(Form form);

struct FormCost {
  int exchanges = 0;
  int sign_changes = 0;  ///< of values, and of the scale
};
FormCost cost_of(const PackedGraph& graph, const std::vector<Choice>& choices);

/// Which signs the parts of a sum may be held in.
enum class Signs {
  free,        ///< whatever costs least
  as_written,  ///< those of its statement, which settles the signs of exact zeros too
};

/// One choice per node, by annealing with a fixed sequence of random numbers: the same graph gives
/// the same choices on every machine. `sweeps` bounds the work; another `seed` may find another
/// choice of like cost.
std::vector<Choice> choose_forms(const PackedGraph& graph, int sweeps, int seed = 0,
                                 Signs signs = Signs::free);

/// The choices of the mirrored kernel, which reads and writes elements with their parts exchanged.
/// Each sum keeps the signs that `forward` gave its parts, so that the two kernels agree in every
/// bit, the signs of zeros included; the order of the parts is chosen anew.
std::vector<Choice> choose_mirrored_forms(const PackedGraph& graph,
                                          const std::vector<Choice>& forward, int sweeps,
                                          int seed = 0);

}  // namespace haldgen::kernelgen
