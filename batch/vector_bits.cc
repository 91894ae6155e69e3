#include <cstdint>

#include "batch/width.h"
#include "haldbatch.h"

std::int32_t haldbGetVectorBits() { return 8 * haldgen::batch::kVectorBytes; }
