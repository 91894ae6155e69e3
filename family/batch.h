// Source files of the kernels of batches, one transform in each lane of a vector.
#pragma once

#include <optional>
#include <string>

#include "family/source.h"
#include "family/tuning.h"
#include "names/names.h"

namespace haldgen::family {

/// What the kernels of a size are called in the code, and their tuning: "real_forward_8_32f".
std::string batch_symbol(const std::string& family, names::Element element, int size);

/// A source with everything but kernels and functions.
Source batch_source(const std::string& family, int size, names::Element element);

/// The body that runs a scheduled scalar program in each lane. Of complex elements both parts are
/// stored at once.
struct LaneBody {
  std::string name;
  int length = 0;
  names::Element element = names::Element::none;
  std::optional<int> convolution = {};  ///< as in Transform
  bool stores_bins = false;             ///< its results are a half spectrum
};
Kernel lane_kernel(const LaneBody& body, kernelgen::Program program, const Choice& choice);

/// The body that runs a scheduled packed program in each block of 128 bits.
Kernel block_kernel(const LaneBody& body, kernelgen::Program program, const Choice& choice);

/// Whether the code of a body is short for its length: such kernels have more than one, for rows
/// and columns in both directions, and the others one for all.
bool is_light(const kernelgen::Program& lanes, int length);

/// Whether a program is packed and mostly moves whole blocks; halves of blocks take longer than
/// lanes.
bool is_of_blocks(const kernelgen::Program& packed);

/// Definition of the kernel of a real transform with the body "Body"; `sides` say what it has at
/// src and at dst.
std::string real_batch(const std::string& family, int size, names::Element element,
                       const kernelgen::Program& lanes, const std::string& sides);

/// Definition of the kernels of both directions of a complex transform, made by these expressions.
std::string complex_batch(const std::string& family, int size, names::Element element,
                          const std::string& forward, const std::string& inverse);

}  // namespace haldgen::family
