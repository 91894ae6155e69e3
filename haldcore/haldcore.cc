// Memory and processor features.
#include "haldcore.h"

#if defined(__x86_64__) || defined(__i386__)
#include <cpuid.h>
#endif

#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace haldgen::haldcore {
namespace {

#if defined(__x86_64__) || defined(__i386__)

struct Registers {
  unsigned eax = 0, ebx = 0, ecx = 0, edx = 0;
};

// Answers zeros for a leaf that the processor does not have.
Registers cpuid(unsigned leaf) {
  Registers r;
  __get_cpuid_count(leaf, 0, &r.eax, &r.ebx, &r.ecx, &r.edx);
  return r;
}

// Whether the operating system saves the 256-bit registers (XCR0 bits 1 and 2).
bool saves_avx_state(const Registers& features) {
  if ((features.ecx & bit_OSXSAVE) == 0) return false;
  unsigned low;
  unsigned high;
  __asm__("xgetbv" : "=a"(low), "=d"(high) : "c"(0));
  return (low & 6) == 6;
}

std::uint64_t enabled_features() {
  const Registers basic = cpuid(1);
  const Registers extended = cpuid(7);
  std::uint64_t mask = 0;
  const auto add = [&mask](bool enabled, std::uint64_t feature) { mask |= enabled ? feature : 0; };
  add(basic.edx & bit_SSE, haldCpuSse);
  add(basic.edx & bit_SSE2, haldCpuSse2);
  add(basic.ecx & bit_SSE3, haldCpuSse3);
  add(basic.ecx & bit_SSSE3, haldCpuSsse3);
  add(basic.ecx & bit_SSE4_1, haldCpuSse41);
  add(basic.ecx & bit_SSE4_2, haldCpuSse42);
  if (saves_avx_state(basic)) {
    add(basic.ecx & bit_AVX, haldCpuAvx);
    add(extended.ebx & bit_AVX2, haldCpuAvx2);
    add(basic.ecx & bit_FMA, haldCpuFma);
  }
  return mask;
}

#else

std::uint64_t enabled_features() { return 0; }

#endif

}  // namespace
}  // namespace haldgen::haldcore

extern "C" {

void* haldMalloc(int32_t size) {
  if (size <= 0) return nullptr;
  constexpr std::size_t alignment = haldMallocAlignment;
  // aligned_alloc wants a multiple of the alignment.
  const std::size_t rounded = (static_cast<std::size_t>(size) + alignment - 1) & ~(alignment - 1);
  return std::aligned_alloc(alignment, rounded);
}

void haldFree(void* memory) { std::free(memory); }

uint64_t haldGetEnabledCpuFeatures(void) { return haldgen::haldcore::enabled_features(); }

}  // extern "C"
