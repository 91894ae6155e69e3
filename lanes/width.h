// The vectors that a build is made for.
#pragma once

namespace haldgen::lanes {

#if defined(__AVX512F__) && defined(__AVX512DQ__) && defined(__AVX512VL__)
inline constexpr int kVectorBytes = 64;
#elif defined(__AVX2__)
inline constexpr int kVectorBytes = 32;
#else
inline constexpr int kVectorBytes = 16;
#endif

}  // namespace haldgen::lanes
