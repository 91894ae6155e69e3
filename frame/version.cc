// The version record.
#include "implementations.h"

#define HALDGEN_REVISION 41664
#define HALDGEN_TAG "v8"

#define HALDGEN_TEXT_OF(number) #number
#define HALDGEN_TEXT(number) HALDGEN_TEXT_OF(number)

namespace {

constexpr LibraryVersion version = {
    HALDGEN_VERSION_MAJOR,
    HALDGEN_VERSION_MINOR,
    HALDGEN_VERSION_UPDATE,
    HALDGEN_REVISION,
    HALDGEN_TAG,
    "haldGEN SSSE3 (" HALDGEN_TAG ")",
    HALDGEN_TEXT(HALDGEN_VERSION_MAJOR) "." HALDGEN_TEXT(HALDGEN_VERSION_MINOR) "." HALDGEN_TEXT(
        HALDGEN_VERSION_UPDATE) " (r" HALDGEN_TEXT(HALDGEN_REVISION) ")",
    "Jan 15 2014",
};

}  // namespace

extern "C" const LibraryVersion* haldgImpl_GetLibVersion() { return &version; }
