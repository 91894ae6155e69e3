#include <cstdint>

#include "haldbatch.h"
#include "lanes/width.h"

HALDGEN_NOTHROW std::int32_t haldbGetVectorBits() { return 8 * haldgen::lanes::kVectorBytes; }
