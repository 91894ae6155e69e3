// What the machine itself needs: the floor under every figure of the tables.
#pragma once

#include "bench/core/contestant.h"
#include "registry/registry.h"

namespace haldgen::bench {

/// A function with the arguments of a kernel that returns at once, called like a kernel.
Contestant null_call_contestant();

/// Additions of 128-bit vectors in enough independent chains to fill every adder. One call of the
/// contestant makes `vector_adds_per_call` of them.
Contestant vector_add_contestant(names::Element element);

inline constexpr int vector_adds_per_call = 14 * 16;

/// Widenings and narrowings in turns, in as many chains.
Contestant convert_contestant();

inline constexpr int conversions_per_call = 2 * vector_adds_per_call;

/// A copy of `bytes` bytes from source to destination.
Contestant copy_contestant(std::size_t bytes);

/// Floats in one vector: 2 of 64 bits, 4 of 32 bits.
int lanes(names::Element element);

}  // namespace haldgen::bench
