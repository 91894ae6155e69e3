#include "family/tuning.h"

#include <algorithm>
#include <iterator>
#include <sstream>

namespace haldgen::family {
namespace {

using kernelgen::Order;

struct Row {
  std::string_view name;
  Order order;
  int cap;
  int seed;
};

constexpr auto program = Order::program;
constexpr auto bisection = Order::bisection;
constexpr auto pressure = Order::pressure;
constexpr auto critical = Order::critical;

// Sorted by name.
constexpr Row kRows[] = {
#include "family/tuning.inc"
};
static_assert(std::ranges::is_sorted(kRows, {}, &Row::name));

}  // namespace

Choice parse_choice(const std::string& text) {
  std::istringstream parts(text);
  std::string order, cap, seed;
  std::getline(parts, order, ':');
  std::getline(parts, cap, ':');
  std::getline(parts, seed);
  return {{kernelgen::order_named(order), cap.empty() ? 0 : std::stoi(cap)},
          seed.empty() ? 0 : std::stoi(seed)};
}

Choice Tuning::of(std::string_view exported_name) const {
  if (everywhere_) return *everywhere_;
  const Row* const row = std::ranges::lower_bound(kRows, exported_name, {}, &Row::name);
  if (row == std::end(kRows) || row->name != exported_name) return {};
  return {{row->order, row->cap}, row->seed};
}

}  // namespace haldgen::family
