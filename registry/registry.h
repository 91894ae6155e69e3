// All families of the library, and all functions that follow from them. Header, entries, slots,
// export list, kernels, tests, documents and benchmarks take their lists from here.
#pragma once

#include <string>
#include <vector>

#include "family/family.h"
#include "names/names.h"

namespace haldgen::registry {

/// In the order in which the public header presents them.
const std::vector<family::Family>& families();

/// By name; throws std::out_of_range.
const family::Family& family_named(const std::string& name);

/// The words of all families, and that of the version record.
const std::vector<names::Word>& words();

/// One exported function.
struct Export {
  std::string name;
  const names::Word* word;
  names::Element element;
  int size;  ///< length or order in the name; 0 if none
};

/// All functions in ascending byte order of their names: function k of the library has slot k.
const std::vector<Export>& exports();

}  // namespace haldgen::registry
