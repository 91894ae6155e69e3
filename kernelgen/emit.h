// Prints a program as the body of a function, in C++ or in C.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "kernelgen/constant_names.h"
#include "kernelgen/count.h"
#include "kernelgen/program.h"

namespace haldgen::kernelgen {

/// What is printed: C++ for the library, on the vocabulary of lanes/; or C that is C++ as well,
/// with the same words as functions without a namespace. There, vector memory is told by a
/// parameter `aligned`, and the function of an address is a table: Subscripts{"", "at"} makes
/// `at[5]` of 5.
enum class Language { cpp, c };

/// Statements of a function body over `src`, `dst` (pointers to floats) and `scale`, one per
/// instruction; programs over slots call `io` instead. Vector programs speak the vocabulary of
/// lanes/vectors.h and touch memory through a type `Access`; scalar programs are plain expressions,
/// on vectors of type V and the vocabulary of lanes/wide.h if they are lanewise.
///
/// Scalar programs may reach source or destination through a function of the address, such as
/// `Format::at`: the name of that function, or nothing.
struct Subscripts {
  std::string source;
  std::string destination;
};
/// Constants are printed by these names, others as literals.
std::string emit_body(const Program& program, const Subscripts& subscripts = {},
                      const std::vector<NamedConstant>& constants = {},
                      Language language = Language::cpp);

/// Definitions of the constants, a line each, behind `before`: an indentation, perhaps "static ".
std::string emit_constants(const std::vector<NamedConstant>& constants, const std::string& before,
                           Language language = Language::cpp);

/// Whether memory is touched in a way that an aligned and an unaligned path do differently.
bool has_whole_vector_access(const Program& program);

/// The type of a program's vectors, where `Float` is its float type.
std::string vector_name(const Program& program);

/// "float" or "double".
std::string type_name(FloatType type);

/// Suffix of the names of functions on real arrays: "32f" or "64f".
std::string suffix(FloatType type);

/// What a scalar program executes, as the head comment of its source says it.
std::string describe(const Tally& tally, FloatType type);

/// Which of the flags for the two directions divides by the length.
enum class Divides { forward, inverse, both };

struct ScaleFactors {
  std::string by_n;
  std::string by_root;
};
/// Literals of 1/N and 1/sqrt(N), as single transforms and batches have them.
ScaleFactors scale_factors(int points, FloatType type);

/// The members of a kernel's struct that hold the factors of its scaling flags.
std::string scale_members(int length, Divides divides, FloatType type);

/// Literals of the factors by flag: FwdByN, InvByN, BySqrtN.
std::array<std::string, 3> factors_by_flag(int length, Divides divides, FloatType type);

/// The shortest decimal literal that reads back as the same number.
std::string literal(double value, FloatType type);

}  // namespace haldgen::kernelgen
