#include "kernelgen/packed.h"

#include <algorithm>
#include <map>
#include <stdexcept>

#include "kernelgen/integers.h"
#include "kernelgen/stage.h"

namespace haldgen::kernelgen {
namespace {

/// What a statement does, apart from its operands and constants.
struct Shape {
  PackedKind kind;
  Turn turn = Turn::none;

  friend bool operator==(const Shape&, const Shape&) = default;
};

Shape shape_of(const Statement& s) {
  if (s.input) return {PackedKind::load};
  if (s.terms.empty()) return {PackedKind::zero};
  if (is_plain_copy(s)) return {PackedKind::rotate};
  if (s.terms.size() == 1) return {PackedKind::scale};
  const Term& first = s.terms[0];
  const Term& second = s.terms[1];
  if (s.terms.size() == 2) {
    if (first.turn == Turn::none && first.constant == kNoConstant &&
        second.constant == kNoConstant) {
      return {PackedKind::sum, second.turn};
    }
    if (first.constant != kNoConstant && second.constant != kNoConstant &&
        first.node == second.node && exchanges_parts(first.turn + second.turn)) {
      return {PackedKind::rotate};
    }
  }
  throw std::logic_error("a statement has no vector form");
}

WideComplex factor_of(const Graph& graph, const Statement& s) {
  WideComplex factor;
  for (const Term& t : s.terms) {
    const Wide magnitude = t.constant == kNoConstant ? Wide(1.0) : graph.constant(t.constant);
    factor = factor + turned(WideComplex{magnitude, {}}, t.turn);
  }
  return factor;
}

class Packer {
 public:
  /// `leftovers` says how far nodes without a column's partner are paired: not at all, where all
  /// operands stand side by side, or also where one does not.
  Packer(const Graph& graph, int halves, Access access, int leftovers)
      : graph_(graph), whole_pairs_(halves == 2 && access != Access::singles) {
    packed_.halves = halves;
    packed_.access = access;
    live_.assign(graph.nodes().size(), 0);
    users_.resize(graph.nodes().size());
    for (const int node : live_nodes(graph)) {
      live_[at(node)] = 1;
      if (const auto input = graph.node(node).input) {
        inputs_ = std::max(inputs_, *input + 1);
        input_nodes_.emplace(*input, node);
      }
      for (const Term& t : graph.node(node).terms) users_[at(t.node)].push_back(node);
    }
    partner_.resize(graph.nodes().size());
    if (halves == 2) {
      pair_fans(graph.columns()[0]);
      for (int missing = 0; missing < leftovers; ++missing) pair_leftovers(missing);
    }
  }

  PackedGraph run() {
    for (const int node : live_nodes(graph_)) place(node);
    store_outputs();
    return std::move(packed_);
  }

 private:
  /// What the halves of a vector hold: nodes, or elements. An idle one holds nothing.
  using Halves = std::array<std::optional<int>, 2>;

  /// Where a node lives.
  struct Seat {
    int vector = -1;
    int half = 0;
  };

  void pair_fans(const Column& column) {
    for (const auto& fan : column.fans) {
      for (std::size_t i = 0; i < fan.size(); i += 2) {
        const Column& first = graph_.columns()[at(fan[i])];
        if (i + 1 < fan.size()) {
          pair_columns(first, graph_.columns()[at(fan[i + 1])]);
        } else {
          pair_fans(first);
        }
      }
    }
  }

  void pair_columns(const Column& first, const Column& second) {
    const std::size_t calls = std::min(first.calls.size(), second.calls.size());
    for (std::size_t i = 0; i < calls; ++i) pair_nodes(first.calls[i].node, second.calls[i].node);
    const std::size_t fans = std::min(first.fans.size(), second.fans.size());
    for (std::size_t f = 0; f < fans; ++f) {
      const std::size_t count = std::min(first.fans[f].size(), second.fans[f].size());
      for (std::size_t i = 0; i < count; ++i) {
        pair_columns(graph_.columns()[at(first.fans[f][i])],
                     graph_.columns()[at(second.fans[f][i])]);
      }
    }
  }

  bool unpaired(int node) const {
    return node != kZeroNode && live_[at(node)] && partner_[at(node)].node == kZeroNode &&
           !graph_.node(node).terms.empty();
  }

  void pair_nodes(int a, int b) {
    if (a == b || !unpaired(a) || !unpaired(b)) return;
    if (shape_of(graph_.node(a)) != shape_of(graph_.node(b)) || entangled(a, b)) return;
    partner_[at(a)] = {b, 0};
    partner_[at(b)] = {a, 1};
  }

  /// Whether one vector of both nodes would need itself, by way of other vectors.
  bool entangled(int a, int b) const {
    std::vector<char> seen(graph_.nodes().size(), 0);
    std::vector<int> stack;
    const auto visit = [&](int node) {
      if (!seen[at(node)]) {
        seen[at(node)] = 1;
        stack.push_back(node);
      }
    };
    const auto visit_operands = [&](int node) {
      for (const Term& t : graph_.node(node).terms) visit(t.node);
    };
    visit_operands(a);
    visit_operands(b);
    while (!stack.empty()) {
      const int node = stack.back();
      stack.pop_back();
      if (node == a || node == b) return true;
      visit_operands(node);
      if (const int mate = partner_[at(node)].node; mate != kZeroNode) visit(mate);
    }
    return false;
  }

  /// The node that shares a vector with this one, and which half this one is: a paired node's
  /// partner, or the neighbour of an input.
  struct Neighbor {
    int node = kZeroNode;
    int half = 0;

    friend bool operator==(const Neighbor&, const Neighbor&) = default;
  };
  Neighbor neighbor(int node) const {
    if (const auto input = graph_.node(node).input) {
      const auto beside = input_nodes_.find(*input ^ 1);
      return beside == input_nodes_.end() ? Neighbor{} : Neighbor{beside->second, *input % 2};
    }
    return partner_[at(node)];
  }

  /// How many operands of a and b stand side by side in the given order.
  int joined_operands(int a, int b, int half_of_a) const {
    int joined = 0;
    for (std::size_t i = 0; i < graph_.node(a).terms.size(); ++i) {
      const Neighbor beside = neighbor(graph_.node(a).terms[i].node);
      joined +=
          beside == Neighbor{graph_.node(b).terms[i].node, half_of_a} && beside.node != kZeroNode
              ? 1
              : 0;
    }
    return joined;
  }

  /// Nodes outside of columns, and in a column without a partner: two of a shape share a vector if
  /// their operands do, all but `missing` of them.
  void pair_leftovers(int missing) {
    for (const int node : live_nodes(graph_)) {
      if (!unpaired(node)) continue;
      const int slots = shape_of(graph_.node(node)).kind == PackedKind::sum ? 2 : 1;
      if (slots > missing) pair_beside(node, slots - missing);
    }
  }

  /// Pairs a node with one of its shape of whose operands at least `wanted` stand beside its own.
  void pair_beside(int a, int wanted) {
    for (const Term& t : graph_.node(a).terms) {
      const Neighbor beside = neighbor(t.node);
      if (beside.node == kZeroNode) continue;
      for (const int b : users_[at(beside.node)]) {
        if (!unpaired(b) || shape_of(graph_.node(b)) != shape_of(graph_.node(a))) continue;
        if (joined_operands(a, b, beside.half) < wanted) continue;
        if (beside.half == 0) {
          pair_nodes(a, b);
        } else {
          pair_nodes(b, a);
        }
        if (!unpaired(a)) return;
      }
    }
  }

  int emit(PackedNode node) {
    node.stage = stage_;
    packed_.nodes.push_back(node);
    return static_cast<int>(packed_.nodes.size()) - 1;
  }

  void place(int node) {
    const Statement& statement = graph_.node(node);
    if (statement.input || seats_.contains(node)) return;
    const Neighbor mate = partner_[at(node)];
    if (mate.half == 1) return;  // placed with its first half
    if (mate.node == kZeroNode) {
      seats_[node] = {make({node, {}}), 0};
    } else {
      for (const Term& t : graph_.node(mate.node).terms) require(t.node);
      const int vector = make({node, mate.node});
      seats_[node] = {vector, 0};
      seats_[mate.node] = {vector, 1};
    }
  }

  /// Places an operand that comes later in the order of definition than its use's first half.
  void require(int node) {
    if (node == kZeroNode || graph_.node(node).input || seats_.contains(node)) return;
    const Neighbor mate = partner_[at(node)];
    const int first = mate.half == 1 ? mate.node : node;
    for (const Term& t : graph_.node(first).terms) require(t.node);
    place(first);
  }

  int make(const Halves& lanes) {
    const Statement& first = graph_.node(*lanes[0]);
    stage_ = first.stage;
    const Shape shape = shape_of(first);
    PackedNode node;
    node.kind = shape.kind;
    node.turn = shape.turn;
    for (std::size_t h = 0; h < 2; ++h) {
      node.written[h] = graph_.node(lanes[h] ? *lanes[h] : *lanes[0]).written;
    }
    const auto operand = [&](std::size_t term) {
      Halves nodes;
      for (std::size_t h = 0; h < 2; ++h) {
        if (lanes[h]) nodes[h] = graph_.node(*lanes[h]).terms[term].node;
      }
      return vector_of(nodes);
    };
    if (shape.kind == PackedKind::sum) {
      node.a = operand(0);
      node.b = operand(1);
    } else if (shape.kind != PackedKind::zero) {
      node.a = operand(0);
      for (std::size_t h = 0; h < 2; ++h) {
        node.factor[h] = factor_of(graph_, graph_.node(lanes[h].value_or(*lanes[0])));
      }
    }
    stage_ = first.stage;
    return emit(node);
  }

  /// The vector that holds these nodes in its halves.
  int vector_of(const Halves& nodes) {
    if (const auto found = vectors_.find(nodes); found != vectors_.end()) return found->second;
    const int vector = assemble(nodes);
    vectors_.emplace(nodes, vector);
    return vector;
  }

  int assemble(const Halves& nodes) {
    if (nodes[0] == kZeroNode && nodes[1].value_or(kZeroNode) == kZeroNode) return emit({});
    const std::optional<int> lower_input = graph_.node(*nodes[0]).input;
    const std::optional<int> upper_input = nodes[1] ? graph_.node(*nodes[1]).input : std::nullopt;
    if (lower_input && (!nodes[1] || upper_input)) {
      const bool neighbours = *lower_input % 2 == 0 && upper_input == *lower_input + 1;
      if (whole_pairs_ && upper_input && !neighbours) {
        const Seat lower = seat_of_input(*lower_input);  // in this order: calls evaluate in none
        const Seat upper = seat_of_input(*upper_input);
        return gather(lower, upper);
      }
      return load(*lower_input, upper_input);
    }
    const Seat first = seat_of(*nodes[0]);
    if (!nodes[1]) {
      if (first.half == 0) return first.vector;
      return gather(first, first);
    }
    const Seat second = seat_of(*nodes[1]);
    if (first.vector == second.vector && first.half == 0 && second.half == 1) return first.vector;
    return gather(first, second);
  }

  int load(int first, std::optional<int> second) {
    const auto [it, fresh] = loads_.try_emplace({first, second}, -1);
    if (fresh) {
      PackedNode node;
      node.kind = PackedKind::load;
      node.element = {first, second};
      it->second = emit(node);
    }
    return it->second;
  }

  /// An input element within the whole vector of its pair; the last of an odd number stands alone.
  Seat seat_of_input(int element) {
    const int even = element - element % 2;
    if (even + 1 >= inputs_) return {load(element, {}), 0};
    return {load(even, even + 1), element % 2};
  }

  int gather(Seat first, Seat second) {
    PackedNode node;
    node.kind = PackedKind::gather;
    node.a = first.vector;
    node.b = second.vector;
    node.half = {first.half, second.half};
    return emit(node);
  }

  Seat seat_of(int node) {
    if (node == kZeroNode || graph_.node(node).input) return {vector_of({node, {}}), 0};
    require(node);
    return seats_.at(node);
  }

  void store_outputs() {
    stage_ = kStores;
    const std::size_t count = graph_.outputs().size();
    std::vector<char> stored(count, 0);
    for (std::size_t k = 0; k < count; ++k) {
      if (stored[k]) continue;
      stored[k] = 1;
      const Value value = graph_.outputs()[k];
      const Seat seat = seat_of(value.node);
      if (whole_pairs_ && k % 2 == 0 && k + 1 < count && !stored[k + 1] &&
          graph_.outputs()[k + 1].turn == value.turn) {
        const Seat beside = seat_of(graph_.outputs()[k + 1].node);
        stored[k + 1] = 1;
        if (packed_.access == Access::pairs_and_lone &&
            (is_lone(value.node) || is_lone(graph_.outputs()[k + 1].node))) {
          store(seat, k, {});
          store(beside, k + 1, {});
          continue;
        }
        const bool joined = beside.vector == seat.vector && seat.half == 0 && beside.half == 1;
        store({joined ? seat.vector : gather(seat, beside), 0}, k, static_cast<int>(k) + 1);
        continue;
      }
      std::optional<int> other;
      if (packed_.halves == 2) other = output_beside(k, seat, stored);
      if (other) stored[at(*other)] = 1;
      store(seat, k, other);
    }
  }

  /// Whether the other half of a computed node's vector is idle.
  bool is_lone(int node) const { return partner_[at(node)].node == kZeroNode; }

  /// A later output in the other half of the same vector, turned the same way.
  std::optional<int> output_beside(std::size_t k, Seat seat, const std::vector<char>& stored) {
    for (std::size_t other = k + 1; other < stored.size(); ++other) {
      const Value candidate = graph_.outputs()[other];
      if (stored[other] || candidate.turn != graph_.outputs()[k].turn) continue;
      const Seat beside = seat_of(candidate.node);
      if (beside.vector == seat.vector && beside.half != seat.half) return static_cast<int>(other);
    }
    return std::nullopt;
  }

  void store(Seat seat, std::size_t element, std::optional<int> other) {
    PackedNode node;
    node.kind = PackedKind::store;
    node.turn = graph_.outputs()[element].turn;
    node.a = seat.vector;
    node.element[at(seat.half)] = static_cast<int>(element);
    node.element[at(1 - seat.half)] = other;
    emit(node);
  }

  const Graph& graph_;
  bool whole_pairs_;
  PackedGraph packed_;
  std::string stage_;
  int inputs_ = 0;  ///< elements that the source has for certain
  std::vector<char> live_;
  std::vector<std::vector<int>> users_;
  std::map<int, int> input_nodes_;
  std::vector<Neighbor> partner_;
  std::map<int, Seat> seats_;
  std::map<Halves, int> vectors_;
  std::map<Halves, int> loads_;
};

/// Vector instructions that the packed nodes come to, sign changes and exchanges aside.
int instructions(const PackedGraph& graph) {
  int total = 0;
  for (const PackedNode& node : graph.nodes) {
    switch (node.kind) {
      case PackedKind::zero:
        break;
      case PackedKind::load:  // filling the upper half from elsewhere is an instruction
        total += node.element[1] && *node.element[1] != *node.element[0] + 1 ? 1 : 0;
        break;
      case PackedKind::rotate:
        total += 3;
        break;
      case PackedKind::sum:
      case PackedKind::scale:
      case PackedKind::gather:
      case PackedKind::store:
        ++total;
        break;
    }
  }
  return total;
}

}  // namespace

bool is_whole(const PackedGraph& graph, const PackedNode& node) {
  if (graph.halves == 1) return true;
  const auto& [lower, upper] = node.element;
  return graph.access != Access::singles && lower && *lower % 2 == 0 && upper == *lower + 1;
}

int vector_operations(const PackedGraph& graph) {
  const auto accesses = [&](const PackedNode& node) {
    return is_whole(graph, node) ? 1 : (node.element[0] ? 1 : 0) + (node.element[1] ? 1 : 0);
  };
  int count = 0;
  for (const PackedNode& node : graph.nodes) {
    switch (node.kind) {
      case PackedKind::load:
        count += accesses(node);
        break;
      case PackedKind::store:
        count += 1 + accesses(node);  // and the scale
        break;
      case PackedKind::rotate:
        count += 4;  // two products, their sum, an exchange
        break;
      default:
        ++count;
    }
  }
  return count;
}

PackedGraph pack(const Graph& graph, int elements_per_vector, Access access) {
  PackedGraph best = Packer(graph, elements_per_vector, access, 0).run();
  if (elements_per_vector == 1) return best;
  for (const int leftovers : {1, 2}) {
    PackedGraph other = Packer(graph, elements_per_vector, access, leftovers).run();
    if (instructions(other) < instructions(best)) best = std::move(other);
  }
  return best;
}

}  // namespace haldgen::kernelgen
