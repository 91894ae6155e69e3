// Records at load whether the processor has what the kernels are made for.
#include "frame/load_step.h"

#include "haldcore.h"

// A note for a debugger: nothing in the library reads it, so that no result can depend on the
// processor. Volatile, since the compiler must not drop a store that nobody reads.
extern "C" {
[[gnu::visibility("hidden")]] volatile std::int32_t haldgen_processor_support = 0;
}

namespace haldgen::frame {

std::int32_t processor_support(std::uint64_t features) {
#if defined(__x86_64__) || defined(__i386__)
  constexpr std::uint32_t needed = haldCpuSse3 | haldCpuSsse3;
#else
  constexpr std::uint32_t needed = 0;  // every processor of the machine has what it takes
#endif
  return (static_cast<std::uint32_t>(features) & needed) == needed ? 1 : 0;
}

namespace {

[[gnu::constructor]] void load_step() {
  haldgen_processor_support = processor_support(haldGetEnabledCpuFeatures());
}

}  // namespace
}  // namespace haldgen::frame
