// The order of a program's instructions. Any order that respects the operands gives the same bits;
// the orders differ in how many values are live at once, and in how soon long chains are begun.
#pragma once

#include <functional>
#include <string_view>
#include <vector>

#include "kernelgen/program.h"

namespace haldgen::kernelgen {

enum class Order {
  program,    ///< as lowered
  bisection,  ///< recursive halving from inputs and outputs (M. Frigo, PLDI 1999)
  pressure,   ///< list schedule: bisection order, but few live values come first when many are live
  critical,   ///< list schedule: longest remaining chain first, under a cap of live values
};

Order order_named(std::string_view name);
std::string_view name_of(Order order);

/// An order and the number of live values that list schedules keep to where they can.
struct Ordering {
  Order order = Order::bisection;
  int cap = 0;
};

/// Whether a load from one address and a store to another touch the same place when a kernel works
/// in place. By default they do when the addresses are equal.
using Overlap = std::function<bool(int load, int store)>;

Program scheduled(const Program& program, Ordering ordering,
                  const Overlap& overlap = std::equal_to<>());

}  // namespace haldgen::kernelgen
