// What the library does when it is loaded.
#pragma once

#include <cstdint>

namespace haldgen::frame {

/// 1 if the low 32 bits of a mask of processor features hold all features that the kernels are made
/// for, else 0. On x86 processors these are SSE3 and SSSE3; on other machines there are none.
std::int32_t processor_support(std::uint64_t features);

}  // namespace haldgen::frame
