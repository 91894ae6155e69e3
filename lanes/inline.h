// Kernels are one body each, however long: compilers would leave the longest ones as calls.
#pragma once

#define HALDGEN_INLINE [[gnu::always_inline]] inline
/// Behind the parameters of a lambda expression.
#define HALDGEN_INLINE_BODY __attribute__((always_inline))
