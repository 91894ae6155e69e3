#include "family/tuning.h"

#include <algorithm>
#include <iterator>
#include <sstream>

namespace haldgen::family {
namespace {

using kernelgen::Order;

/// What a flavour has instead; nothing where it takes the program of the baseline.
struct Wider {
  Order order = Order::program;
  int cap = 0;
  kernelgen::Pairs pairs = {0, 0};
};

/// How scalar kernels of 32-bit elements widen values.
enum class Widening { in_registers, through_memory };

struct Row {
  std::string_view name;
  Order order;
  int cap;
  int seed;
  Wider v3 = {};
  Wider v4 = {};
  Widening widening = Widening::in_registers;
};

constexpr auto program = Order::program;
constexpr auto bisection = Order::bisection;
constexpr auto pressure = Order::pressure;
constexpr auto critical = Order::critical;
constexpr auto memory = Widening::through_memory;

// Sorted by name.
constexpr Row kRows[] = {
#include "family/tuning.inc"
};
static_assert(std::ranges::is_sorted(kRows, {}, &Row::name));

}  // namespace

Choice parse_choice(const std::string& text) {
  std::istringstream parts(text);
  std::string order, cap, detail, destination;
  std::getline(parts, order, ':');
  std::getline(parts, cap, ':');
  std::getline(parts, detail, 'x');
  std::getline(parts, destination);
  Choice choice{{kernelgen::order_named(order), cap.empty() ? 0 : std::stoi(cap)}};
  if (!destination.empty()) {
    choice.pairs = {std::stoi(detail), std::stoi(destination)};
  } else if (detail == "memory") {
    choice.through_memory = true;
  } else if (!detail.empty()) {
    choice.seed = std::stoi(detail);
  }
  return choice;
}

Choice Tuning::of(std::string_view exported_name) const {
  const Row* const row = std::ranges::lower_bound(kRows, exported_name, {}, &Row::name);
  const bool known = row != std::end(kRows) && row->name == exported_name;
  if (everywhere_) {
    Choice choice = *everywhere_;
    if (choice.pairs && known) choice.seed = row->seed;
    return choice;
  }
  if (!known) return {};
  Choice choice{{row->order, row->cap}, row->seed};
  choice.through_memory = row->widening == Widening::through_memory;
  const Wider& wider = vector_bits_ == 512 ? row->v4 : row->v3;
  if (vector_bits_ > 128 && wider.pairs.source != 0) {
    choice.ordering = {wider.order, wider.cap};
    choice.pairs = wider.pairs;
  }
  return choice;
}

}  // namespace haldgen::family
