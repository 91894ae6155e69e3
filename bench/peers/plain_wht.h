// The Walsh-Hadamard transform written down plainly, level by level: what a compiler makes of it.
#pragma once

namespace haldgen::bench {

template <class Float>
using PlainWht = void (*)(const Float* src, Float* dst, int order, Float scale);

/// One function for all orders.
template <class Float>
PlainWht<Float> plain_wht();

/// A function compiled for this order: every bound of a loop is a constant, and the arrays are
/// promised not to overlap.
template <class Float>
PlainWht<Float> fixed_plain_wht(int order);

}  // namespace haldgen::bench
