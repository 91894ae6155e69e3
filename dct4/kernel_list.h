// The generated kernels, each for both element types: a part of the transform and its size, a
// length or a radix. The sizes of a part are powers of two in ascending order, since the classes of
// a plan count them. The build reads this list too.
#pragma once

// clang-format off
#define HALDGEN_DCT4_FIXED(KERNEL) \
  KERNEL(fixed, 2) KERNEL(fixed, 4) KERNEL(fixed, 8) KERNEL(fixed, 16) KERNEL(fixed, 32)

#define HALDGEN_DCT4_FOLD(KERNEL) \
  KERNEL(fold, 2) KERNEL(fold, 4) KERNEL(fold, 8) KERNEL(fold, 16) KERNEL(fold, 32) KERNEL(fold, 64)

#define HALDGEN_DCT4_RECOMBINE(KERNEL) \
  KERNEL(recombine, 1) KERNEL(recombine, 2) KERNEL(recombine, 4) \
  KERNEL(recombine, 8) KERNEL(recombine, 16) KERNEL(recombine, 32)

#define HALDGEN_DCT4_INNER_RECOMBINE(KERNEL) \
  KERNEL(inner_recombine, 2) KERNEL(inner_recombine, 4) KERNEL(inner_recombine, 8) \
  KERNEL(inner_recombine, 16) KERNEL(inner_recombine, 32)
// clang-format on

#define HALDGEN_DCT4_KERNELS(KERNEL) \
  HALDGEN_DCT4_FIXED(KERNEL)         \
  HALDGEN_DCT4_FOLD(KERNEL)          \
  HALDGEN_DCT4_RECOMBINE(KERNEL)     \
  HALDGEN_DCT4_INNER_RECOMBINE(KERNEL)
