#include "kernelgen/graph.h"

namespace haldgen::kernelgen {

Graph::Graph(Field field) : field_(field) {
  nodes_.emplace_back();             // the zero
  constants_.push_back({1.0, 1.0});  // the absent constant
  columns_.emplace_back();           // the kernel itself
}

ConstantId Graph::intern(Constant constant) {
  const double leading = constant.value.hi;
  const double tolerance = 1e-15 * leading;
  for (auto it = constant_index_.lower_bound(leading - tolerance);
       it != constant_index_.end() && it->first <= leading + tolerance; ++it) {
    const Constant& other = constants_[static_cast<std::size_t>(it->second)];
    const bool same_value = is_negligible((other.value - constant.value) / other.value);
    if (same_value && other.literal == constant.literal) return it->second;
  }
  const auto id = static_cast<ConstantId>(constants_.size());
  constants_.push_back(constant);
  constant_index_.emplace(leading, id);  // several may share their leading digits
  return id;
}

ConstantId Graph::intern(const Graph& other, ConstantId id) {
  return id == kNoConstant ? kNoConstant : intern({other.constant(id), other.literal(id)});
}

Value Graph::record(Value v) {
  columns_[static_cast<std::size_t>(column_)].calls.push_back(v);
  return v;
}

Value Graph::intern_statement(std::vector<Term> terms, bool apart) {
  // Equal up to a turn, and for a plain sum of two up to the order of its terms, is equal: the key
  // is the statement with its first term unturned, nodes of a pair ascending.
  Statement statement;
  statement.terms = terms;
  const bool plain_pair = terms.size() == 2 && terms[0].constant == kNoConstant &&
                          terms[1].constant == kNoConstant && terms[1].node != kZeroNode;
  if (plain_pair && terms[1].node < terms[0].node) std::swap(terms[0], terms[1]);
  const Turn turn = terms.front().turn;
  for (Term& t : terms) t.turn = t.turn - turn;
  const auto [it, fresh] =
      index_.try_emplace({std::move(terms), apart}, Value{static_cast<int>(nodes_.size()), turn});
  if (fresh) {
    statement.rank = static_cast<int>(nodes_.size());
    statement.stage = stage_;
    nodes_.push_back(std::move(statement));
  }
  return {it->second.node, turn - it->second.turn};
}

Value Graph::input(int index) {
  const auto [it, fresh] = inputs_.try_emplace(index, static_cast<int>(nodes_.size()));
  if (fresh) {
    Statement load;
    load.input = index;
    load.rank = static_cast<int>(nodes_.size());
    nodes_.push_back(load);
  }
  return {it->second};
}

Value Graph::carried_zero() {
  nodes_.emplace_back();
  return {static_cast<int>(nodes_.size()) - 1};
}

Value Graph::statement(std::vector<Term> terms) {
  std::erase_if(terms, [](const Term& t) { return t.node == kZeroNode; });
  if (terms.empty()) return record({});
  if (terms.size() == 1 && terms[0].constant == kNoConstant) {
    return record({terms[0].node, terms[0].turn});
  }
  // The turn of a complex statement moves outward, so that equal sums meet. A real statement keeps
  // the signs it was written with, unless all are minus.
  Turn outer = terms[0].turn;
  if (field_ == Field::real) {
    for (const Term& t : terms) {
      if (!is_minus(t)) outer = Turn::none;
    }
  }
  for (Term& t : terms) t.turn = t.turn - outer;

  return record(turned(intern_statement(std::move(terms)), outer));
}

Value Graph::add(Value a, Value b) {
  if (!is_zero(a) && a.node == b.node) {
    if (a.turn == b.turn) return multiply(2.0, a);
    if (a.turn - b.turn == Turn::half) return record({});
  }
  return statement({{a.turn, kNoConstant, a.node}, {b.turn, kNoConstant, b.node}});
}

Value Graph::add_zero(Value a) {
  if (is_zero(a)) return record({});
  const Value sum =
      intern_statement({{Turn::none, kNoConstant, a.node}, {Turn::none, kNoConstant, kZeroNode}});
  return record(turned(sum, a.turn));
}

Value Graph::multiply(Wide constant, Value a, bool apart) {
  if (is_zero(a) || is_negligible(constant)) return record({});
  if (constant.hi < 0) return multiply(-constant, -a, apart);
  if (folding_) {
    const Statement& inner = node(a.node);
    if (inner.terms.size() == 1 && inner.terms[0].constant != kNoConstant) {
      const Term product = inner.terms[0];
      const Wide folded = constant * this->constant(product.constant);
      return multiply(folded, {product.node, product.turn + a.turn}, apart);
    }
  }
  if (is_negligible(constant - 1.0)) return record(a);
  const Value product = intern_statement({{Turn::none, intern(constant), a.node}}, apart);
  return record(turned(product, a.turn));
}

Value Graph::twiddle(WideComplex w, Value a, bool keep_trivial) {
  if (is_zero(a)) return record({});
  const bool real = is_negligible(w.im);
  const bool imaginary = is_negligible(w.re);
  if (real || imaginary) {
    const Wide part = real ? w.re : w.im;
    const Value along = real ? a : turned(a, Turn::quarter);
    if (!keep_trivial) return multiply(part, along);
    const Value signed_along = part.hi < 0 ? -along : along;
    return record(intern_statement({{signed_along.turn, kNoConstant, along.node}}));
  }
  // The sign stays inside: however a twiddle is signed, its value is unturned, so that twiddles in
  // the lanes of one vector meet the same additions.
  const auto product = [this](Wide part, Value operand) {
    if (part.hi < 0) operand = -operand;
    return Term{operand.turn, intern(abs(part)), operand.node};
  };
  return record(intern_statement({product(w.re, a), product(w.im, turned(a, Turn::quarter))}));
}

void Graph::enter_column(int index, int count) {
  auto& parent = columns_[static_cast<std::size_t>(column_)];
  if (index == 0) parent.fans.emplace_back();
  const int id = static_cast<int>(columns_.size());
  parent.fans.back().push_back(id);
  Column column;
  column.parent = column_;
  column.index = index;
  column.count = count;
  columns_.push_back(std::move(column));
  column_ = id;
}

void Graph::leave_column() { column_ = columns_[static_cast<std::size_t>(column_)].parent; }

bool Graph::inside_pair() const {
  for (int id = column_; id > 0; id = columns_[static_cast<std::size_t>(id)].parent) {
    const Column& column = columns_[static_cast<std::size_t>(id)];
    if ((column.index ^ 1) < column.count) return true;
  }
  return false;
}

std::vector<int> live_nodes(const Graph& graph) {
  std::vector<char> live(graph.nodes().size(), 0);
  std::vector<int> stack;
  const auto visit = [&](int node) {
    if (node == kZeroNode || live[static_cast<std::size_t>(node)]) return;
    live[static_cast<std::size_t>(node)] = 1;
    stack.push_back(node);
  };
  for (const Value v : graph.outputs()) visit(v.node);
  for (const Value v : graph.kept()) visit(v.node);
  while (!stack.empty()) {
    const int node = stack.back();
    stack.pop_back();
    for (const Term& t : graph.node(node).terms) visit(t.node);
  }
  std::vector<int> order;
  for (std::size_t i = 1; i < live.size(); ++i) {
    if (live[i]) order.push_back(static_cast<int>(i));
  }
  return order;
}

}  // namespace haldgen::kernelgen
