#include "kernelgen/packed.h"

#include <algorithm>
#include <map>
#include <stdexcept>

namespace haldgen::kernelgen {
namespace {

std::size_t at(int i) { return static_cast<std::size_t>(i); }

/// What a statement does, apart from its operands and constants.
struct Shape {
  PackedKind kind;
  int turn = 0;

  friend bool operator==(const Shape&, const Shape&) = default;
};

Shape shape_of(const Statement& s) {
  if (s.input >= 0) return {PackedKind::load};
  if (s.carried_zero) return {PackedKind::zero};
  if (s.filler) return {PackedKind::rotate};
  if (s.terms.size() == 1) return {PackedKind::scale};
  const Term& first = s.terms[0];
  const Term& second = s.terms[1];
  if (s.terms.size() == 2) {
    if (first.turn == 0 && first.constant == kNoConstant && second.constant == kNoConstant) {
      return {PackedKind::sum, second.turn};
    }
    if (first.constant != kNoConstant && second.constant != kNoConstant &&
        first.node == second.node && (first.turn + second.turn) % 2 == 1) {
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
  Packer(const Graph& graph, int halves, Access access)
      : graph_(graph), whole_pairs_(halves == 2 && access == Access::pairs) {
    packed_.halves = halves;
    packed_.access = access;
    live_.assign(graph.nodes().size(), 0);
    for (const int node : live_nodes(graph)) {
      live_[at(node)] = 1;
      inputs_ = std::max(inputs_, graph.node(node).input + 1);
    }
    partner_.assign(graph.nodes().size(), 0);
    if (halves == 2) pair_fans(graph.columns()[0]);
  }

  PackedGraph run() {
    for (const int node : live_nodes(graph_)) place(node);
    store_outputs();
    return std::move(packed_);
  }

 private:
  /// Where a node lives.
  struct Seat {
    int vector = -1;
    int half = 0;

    friend auto operator<=>(const Seat&, const Seat&) = default;
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

  void pair_nodes(int a, int b) {
    const auto free = [&](int node) {
      return node != kZeroNode && live_[at(node)] && partner_[at(node)] == 0 &&
             !graph_.node(node).terms.empty();
    };
    if (a == b || !free(a) || !free(b)) return;
    if (shape_of(graph_.node(a)) != shape_of(graph_.node(b))) return;
    if (depends(a, b) || depends(b, a)) return;
    partner_[at(a)] = b;
    partner_[at(b)] = -a;  // second half
  }

  /// Whether `node` needs `other`; only nodes in between are looked at.
  bool depends(int node, int other) const {
    if (node == other) return true;
    if (node < other) return false;
    for (const Term& t : graph_.node(node).terms) {
      if (depends(t.node, other)) return true;
    }
    return false;
  }

  int emit(PackedNode node) {
    packed_.nodes.push_back(node);
    return static_cast<int>(packed_.nodes.size()) - 1;
  }

  void place(int node) {
    const Statement& statement = graph_.node(node);
    if (statement.input >= 0 || seats_.count(node) != 0) return;
    const int mate = partner_[at(node)];
    if (mate < 0) return;  // placed with its first half
    if (mate == 0) {
      const std::array<int, 2> lanes{node, -1};
      seats_[node] = {make(lanes), 0};
    } else {
      for (const Term& t : graph_.node(mate).terms) require(t.node);
      const std::array<int, 2> lanes{node, mate};
      const int vector = make(lanes);
      seats_[node] = {vector, 0};
      seats_[mate] = {vector, 1};
    }
  }

  /// Places an operand that comes later in the order of definition than its use's first half.
  void require(int node) {
    if (node == kZeroNode || graph_.node(node).input >= 0 || seats_.count(node) != 0) return;
    const int mate = partner_[at(node)];
    const int first = mate < 0 ? -mate : node;
    for (const Term& t : graph_.node(first).terms) require(t.node);
    place(first);
  }

  int make(const std::array<int, 2>& lanes) {
    const Statement& first = graph_.node(lanes[0]);
    const Shape shape = shape_of(first);
    PackedNode node;
    node.kind = shape.kind;
    node.turn = shape.turn;
    const auto operand = [&](std::size_t term) {
      std::array<int, 2> nodes{-1, -1};
      for (std::size_t h = 0; h < 2; ++h) {
        if (lanes[h] >= 0) nodes[h] = graph_.node(lanes[h]).terms[term].node;
      }
      return vector_of(nodes);
    };
    if (shape.kind == PackedKind::sum) {
      node.a = operand(0);
      node.b = operand(1);
    } else if (shape.kind != PackedKind::zero) {
      node.a = operand(0);
      for (std::size_t h = 0; h < 2; ++h) {
        node.factor[h] = factor_of(graph_, graph_.node(lanes[h] >= 0 ? lanes[h] : lanes[0]));
      }
    }
    return emit(node);
  }

  /// The vector that holds these nodes in its halves.
  int vector_of(const std::array<int, 2>& nodes) {
    if (const auto found = vectors_.find(nodes); found != vectors_.end()) return found->second;
    const int vector = assemble(nodes);
    vectors_.emplace(nodes, vector);
    return vector;
  }

  int assemble(const std::array<int, 2>& nodes) {
    const auto input = [&](int node) { return node < 0 ? -1 : graph_.node(node).input; };
    if (nodes[0] == kZeroNode && nodes[1] <= kZeroNode) return emit({});
    const bool loads = input(nodes[0]) >= 0 && (nodes[1] < 0 || input(nodes[1]) >= 0);
    if (loads) {
      const int first = input(nodes[0]);
      const int second = input(nodes[1]);
      if (whole_pairs_ && second >= 0 && !(first % 2 == 0 && second == first + 1)) {
        return gather(seat_of_input(first), seat_of_input(second));
      }
      return load(first, second);
    }
    const Seat first = seat_of(nodes[0]);
    if (nodes[1] < 0) {
      if (first.half == 0) return first.vector;
      return gather(first, first);
    }
    const Seat second = seat_of(nodes[1]);
    if (first.vector == second.vector && first.half == 0 && second.half == 1) return first.vector;
    return gather(first, second);
  }

  int load(int first, int second) {
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
    if (even + 1 >= inputs_) return {load(element, -1), 0};
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
    if (node == kZeroNode || graph_.node(node).input >= 0) return {vector_of({node, -1}), 0};
    require(node);
    return seats_.at(node);
  }

  void store_outputs() {
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
        const bool joined = beside.vector == seat.vector && seat.half == 0 && beside.half == 1;
        stored[k + 1] = 1;
        store({joined ? seat.vector : gather(seat, beside), 0}, k, static_cast<int>(k) + 1);
        continue;
      }
      int other = -1;
      if (packed_.halves == 2) other = output_beside(k, seat, stored);
      if (other >= 0) stored[at(other)] = 1;
      store(seat, k, other);
    }
  }

  /// A later output in the other half of the same vector, turned the same way.
  int output_beside(std::size_t k, Seat seat, const std::vector<char>& stored) {
    for (std::size_t other = k + 1; other < stored.size(); ++other) {
      const Value candidate = graph_.outputs()[other];
      if (stored[other] || candidate.turn != graph_.outputs()[k].turn) continue;
      const Seat beside = seat_of(candidate.node);
      if (beside.vector == seat.vector && beside.half != seat.half) return static_cast<int>(other);
    }
    return -1;
  }

  void store(Seat seat, std::size_t element, int other) {
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
  int inputs_ = 0;  ///< elements that the source has for certain
  std::vector<char> live_;
  std::vector<int> partner_;  ///< 0: none; positive: the second half; negative: minus the first
  std::map<int, Seat> seats_;
  std::map<std::array<int, 2>, int> vectors_;
  std::map<std::array<int, 2>, int> loads_;
};

}  // namespace

PackedGraph pack(const Graph& graph, int elements_per_vector, Access access) {
  return Packer(graph, elements_per_vector, access).run();
}

}  // namespace haldgen::kernelgen
