// The flavours of the library, and the words by which version records and commands tell them apart.
#pragma once

#include <string_view>

namespace haldgen::names {

struct Flavour {
  int vector_bits;
  char tag[4];       ///< the processor class, for which flavours have the level of x86-64
  const char* name;  ///< of the library, with its instruction set and tag
};

#define HALDGEN_FLAVOUR(bits, instructions, tag) \
  { bits, tag, "haldGEN " instructions " (" tag ")" }
/// The first is the baseline, which is the only one on other machines.
inline constexpr Flavour flavours[] = {
    HALDGEN_FLAVOUR(128, "SSSE3", "v8"),
    HALDGEN_FLAVOUR(256, "AVX2", "v3"),
    HALDGEN_FLAVOUR(512, "AVX-512", "v4"),
};
#undef HALDGEN_FLAVOUR

/// The flavour of this tag; null if there is none.
constexpr const Flavour* flavour_of(std::string_view tag) {
  for (const Flavour& flavour : flavours) {
    if (flavour.tag == tag) return &flavour;
  }
  return nullptr;
}

}  // namespace haldgen::names
