// The statement graph: what every kernel is before it is code.
//
// A node is an input or a statement, an ordered sum of terms. A term is an operand, optionally
// multiplied by a real constant, and turned by a power of i. In a real graph the only turns are
// none and half (plus and minus). In a complex graph a node stands for a whole complex value, so
// one statement is two real ones, and the other turns are exchanges of the parts with a change of
// sign. Turns cost nothing: they travel with references (`Value`) until an instruction absorbs
// them.
//
// The order of terms is part of the statement. Nothing here re-associates.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "kernelgen/wide.h"

namespace haldgen::kernelgen {

/// A reference to a node, times a power of i. Node 0 is the number zero.
struct Value {
  int node = 0;
  Turn turn = Turn::none;

  friend bool operator==(Value, Value) = default;
};

constexpr int kZeroNode = 0;

inline bool is_zero(Value v) { return v.node == kZeroNode; }
inline Value turned(Value v, Turn turn) { return {v.node, v.turn + turn}; }
inline Value operator-(Value v) { return turned(v, Turn::half); }

/// Index into the constants of a graph; 0 means "no constant".
using ConstantId = int;
constexpr ConstantId kNoConstant = 0;

struct Constant {
  Wide value;      ///< what it stands for
  double literal;  ///< what 64-bit code multiplies by: its nearest double, or a product of literals
};

struct Term {
  Turn turn = Turn::none;
  ConstantId constant = kNoConstant;
  int node = 0;

  // The check takes the 0 of a rewritten a < b for a null pointer.
  friend auto operator<=>(const Term&, const Term&) = default;  // NOLINT(modernize-use-nullptr)
};

inline bool is_minus(const Term& t) { return t.turn == Turn::half; }

enum class Field { real, complex };

/// Where a statement is computed: in the element's own type, or in 64 bits and then narrowed once.
enum class Precision { element, wide };

/// An input, or an ordered sum of terms. A sum of none is a zero that is data. A sum of one term
/// without a constant is at most a turn, yet it is executed: it keeps a lane busy beside one that
/// multiplies, and counts for no operation.
struct Statement {
  std::vector<Term> terms;
  std::optional<int> input = {};  ///< its index
  /// Whoever made the statement lets its constants take up another, see `fold_products`.
  bool foldable = false;
  Precision precision = Precision::element;
  /// The power of i with which a sum is written down: where its terms cancel, the sign of the zero
  /// is that of i^written times this statement. See `written_turned`.
  Turn written = Turn::none;
  /// Where the node stood when its block was written: the order in which a transposed statement
  /// takes its terms, so that a block transposed twice reads as it did before.
  int rank = 0;
  /// The step of the algorithm that it was first written for; only comments say it.
  std::string stage = {};
};

inline bool is_plain_copy(const Statement& s) {
  return s.terms.size() == 1 && s.terms[0].constant == kNoConstant;
}

/// One column of a fan of equal blocks. Nodes are recorded per column in the order of their calls,
/// so that columns can be laid side by side in the lanes of a vector.
struct Column {
  int parent = -1;
  int index = 0;  ///< which column of its fan
  int count = 1;  ///< columns of its fan
  std::vector<Value> calls;
  std::vector<std::vector<int>> fans;  ///< columns of each fan opened inside
};

class Graph {
 public:
  explicit Graph(Field field);

  Field field() const { return field_; }

  /// The value of input number `index`; each input is one node.
  Value input(int index);

  /// A zero that is carried through the arithmetic like data: nothing is pruned behind it.
  Value carried_zero();

  Value add(Value a, Value b);
  Value subtract(Value a, Value b) { return add(a, -b); }
  /// a + 0, executed: the addition that a vector instruction makes in a lane that holds zero.
  Value add_zero(Value a);
  /// A product that is kept `apart` is shared only with others that are.
  Value multiply(Wide constant, Value a, bool apart = false);
  /// w * a as one statement of two products. Powers of i are free unless `keep_trivial`, which
  /// makes statements of them, plain copies. The products belong to the statement: none is shared
  /// with another.
  Value twiddle(WideComplex w, Value a, bool keep_trivial = false);
  /// The general statement. Terms of zero operands vanish.
  Value statement(std::vector<Term> terms);

  /// While folding, a constant times a product by a constant becomes one product.
  void set_folding(bool folding) { folding_ = folding; }
  bool folding() const { return folding_; }

  void set_outputs(std::vector<Value> outputs) { outputs_ = std::move(outputs); }
  std::span<const Value> outputs() const { return outputs_; }
  /// Values that are computed although no output needs them.
  void keep(Value v) { kept_.push_back(v); }
  std::span<const Value> kept() const { return kept_; }

  std::span<const Statement> nodes() const { return nodes_; }
  const Statement& node(int index) const { return nodes_[static_cast<std::size_t>(index)]; }
  Statement& node(int index) { return nodes_[static_cast<std::size_t>(index)]; }
  Wide constant(ConstantId id) const { return constants_[static_cast<std::size_t>(id)].value; }
  double literal(ConstantId id) const { return constants_[static_cast<std::size_t>(id)].literal; }
  /// One id per mathematical value and literal: values that agree to 24 digits are the same.
  ConstantId intern(Wide magnitude) { return intern({magnitude, to_double(magnitude)}); }
  ConstantId intern(Constant constant);
  /// The id in this graph of a constant of another one.
  ConstantId intern(const Graph& other, ConstantId id);

  /// What new statements are written for, see `Stage`.
  const std::string& stage() const { return stage_; }
  void set_stage(std::string stage) { stage_ = std::move(stage); }

  /// Opens column `index` of a fan of `count` equal blocks; closed by leave_column.
  void enter_column(int index, int count);
  void leave_column();
  /// Whether the open column, or one around it, has a partner that fills the other half of a
  /// two-element vector.
  bool inside_pair() const;
  std::span<const Column> columns() const { return columns_; }

 private:
  Value record(Value v);
  Value intern_statement(std::vector<Term> terms, bool apart = false);

  Field field_;
  bool folding_ = false;
  std::string stage_;
  std::vector<Statement> nodes_;
  std::vector<Constant> constants_;
  std::multimap<double, ConstantId> constant_index_;
  std::map<std::pair<std::vector<Term>, bool>, Value> index_;  ///< node and its key's turn
  std::map<int, int> inputs_;
  std::vector<Value> outputs_;
  std::vector<Value> kept_;
  std::vector<Column> columns_;
  int column_ = 0;
};

/// The nodes that outputs and kept values need, in order of definition.
std::vector<int> live_nodes(const Graph& graph);

}  // namespace haldgen::kernelgen
