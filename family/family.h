// What a family of transforms is: its names, and for generated kernels the way from a size to them.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "family/source.h"
#include "family/tuning.h"
#include "kernelgen/graph.h"
#include "names/names.h"

namespace haldgen::family {

/// What one kernel executes beside its scale; conversions between 32 and 64 bits are no arithmetic
/// of the algorithm, but they take its place in a processor.
struct Work {
  int additions = 0;
  int multiplications = 0;
  int depth = 0;
  int conversions = 0;
};

/// Kernels that the build generates, by number and float type of the elements. The number is a size
/// of the family, or an index into `kernels`.
struct Generated {
  std::string (*algorithm)(int size, FloatType type);
  /// The graph that is counted and valued.
  kernelgen::Graph (*graph)(int size, FloatType type);
  Work (*work)(int size, FloatType type);
  /// The source file of all kernels of the size and type.
  Source (*source)(int size, FloatType type, const Tuning& tuning);
  std::vector<std::string> kernels = {};  ///< names, where kernels are no whole transforms
  /// The source file of the kernels of batches.
  Source (*batch)(int size, FloatType type, const Tuning& tuning) = nullptr;
  /// What `source` is made of, where kernels are whole transforms: of the library's lengths, and of
  /// those behind them for which there is a rule.
  Transforms (*transforms)(int size, FloatType type, const Tuning& tuning) = nullptr;
};

/// Transforms that are planned at run time, made of several kernels each.
struct Planned {
  std::vector<int> lengths;  ///< some that are listed with the counts
  Work (*work)(int length);
  std::string (*constants)();  ///< a source file of constants that the planner is compiled with
};

struct Family {
  std::string name;   ///< as commands and files call it, such as "real-forward"
  std::string title;  ///< as tables of documents call it
  names::Sizes sizes;
  std::vector<names::Word> words;
  std::optional<Generated> generated = {};
  std::optional<Planned> planned = {};
};

/// Adds the functions of one word, and their general entries, at the family's lengths.
void add_transform(Family& family, const std::string& word,
                   const std::vector<names::Element>& elements, const names::Usage& usage,
                   const names::TransformText& text);

/// The source of the transforms that a function gives.
template <Transforms (*kTransforms)(int size, FloatType type, const Tuning& tuning)>
Source source_from(int size, FloatType type, const Tuning& tuning) {
  return source_of(kTransforms(size, type, tuning));
}

/// Work of a scalar program.
Work work_of(const kernelgen::Program& program);

}  // namespace haldgen::family
