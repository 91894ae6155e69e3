// What the arrays of a transform hold, by word and size.
#pragma once

#include <cstddef>
#include <vector>

#include "names/names.h"

namespace haldgen::names {

struct Arrays {
  int points;              ///< the N of the definition and of the scales
  std::size_t src_floats;  ///< floats in src, the parts of complex elements counted one by one
  std::size_t dst_floats;  ///< the same of dst, all of which are written
  std::vector<std::size_t> src_gaps;  ///< positions in src that hold no value and are never read
};

/// Arrays of a transform of this length or order; throws for words without a scaling flag.
Arrays arrays(const Word& word, int size);

}  // namespace haldgen::names
