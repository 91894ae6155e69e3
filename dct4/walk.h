// The order in which the recombination of radix r meets the terms j = 0..r-1. The rotation table of
// a plan is laid out in it, and the generated kernels read the table from front to back.
#pragma once

namespace haldgen::dct4 {

/// Index j at position s. Terms that the first step adds stand together: j and r-1-j for the
/// radix-2 recombinations, four at a distance of r/2 or mirrored for the radix-4 one of r = 32,
/// there in the order in which its second step takes them.
constexpr int walk_index(int radix, int position) {
  if (radix < 32) return position % 2 == 0 ? position / 2 : radix - 1 - position / 2;
  const int v = 4 * (position / 4 % 4) + position / 16;
  constexpr int kOffset[4] = {0, 31, 16, 15};
  return position % 2 == 0 ? kOffset[position % 4] + v : kOffset[position % 4] - v;
}

}  // namespace haldgen::dct4
