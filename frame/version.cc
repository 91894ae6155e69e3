// The version record.
#include "implementations.h"
#include "lanes/width.h"
#include "names/flavour.h"

#define HALDGEN_REVISION 41664

#define HALDGEN_TEXT_OF(number) #number
#define HALDGEN_TEXT(number) HALDGEN_TEXT_OF(number)

namespace {

constexpr haldgen::names::Flavour this_flavour() {
  for (const auto& flavour : haldgen::names::flavours) {
    if (flavour.vector_bits == 8 * haldgen::lanes::kVectorBytes) return flavour;
  }
  return haldgen::names::flavours[0];
}
constexpr haldgen::names::Flavour flavour = this_flavour();

constexpr LibraryVersion version = {
    HALDGEN_VERSION_MAJOR,
    HALDGEN_VERSION_MINOR,
    HALDGEN_VERSION_UPDATE,
    HALDGEN_REVISION,
    {flavour.tag[0], flavour.tag[1], flavour.tag[2], flavour.tag[3]},
    flavour.name,
    HALDGEN_TEXT(HALDGEN_VERSION_MAJOR) "." HALDGEN_TEXT(HALDGEN_VERSION_MINOR) "." HALDGEN_TEXT(
        HALDGEN_VERSION_UPDATE) " (r" HALDGEN_TEXT(HALDGEN_REVISION) ")",
    "Jan 15 2014",
};

}  // namespace

extern "C" const LibraryVersion* haldgImpl_GetLibVersion() { return &version; }
