// Prints a program as the body of a C++ function.
#pragma once

#include <string>

#include "kernelgen/program.h"

namespace haldgen::kernelgen {

/// Statements of a function body over `src`, `dst` (pointers to floats) and `scale`, one per
/// instruction; programs over slots call `io` instead. Vector programs speak the vocabulary of
/// lanes.h and touch memory through a type `Access`; scalar programs are plain expressions.
std::string emit_body(const Program& program);

/// Whether memory is touched in a way that an aligned and an unaligned path do differently.
bool has_whole_vector_access(const Program& program);

/// The shortest decimal literal that reads back as the same number.
std::string literal(double value, FloatType type);

}  // namespace haldgen::kernelgen
