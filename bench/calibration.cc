// What the machine itself needs.
#include "bench/calibration.h"

#include <cstdint>
#include <cstring>

#include "bench/core/report.h"

namespace haldgen::bench {
namespace {

using Kernel = std::int32_t (*)(const void* src, void* dst, std::int32_t flag);

std::int32_t null_kernel(const void* /*src*/, void* /*dst*/, std::int32_t /*flag*/) { return 0; }

// Read anew for each slice: the compiler cannot know what it calls, as with a loaded kernel.
volatile Kernel null_kernel_address = null_kernel;

// Assembly, because an optimiser would merge the additions. Fourteen chains are written side by
// side, so that an addition waits for the one fourteen places before it and not for its neighbour.
#define HALDGEN_CHAINS(instruction, calls)                                                    \
  asm volatile(                                                                               \
      ".irp n, 0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 15\n\t"                          \
      "xorps %%xmm\\n, %%xmm\\n\n\t"                                                          \
      ".endr\n\t"                                                                             \
      "1:\n\t"                                                                                \
      ".rept 16\n\t"                                                                          \
      ".irp n, 0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13\n\t" instruction                  \
      " %%xmm15, %%xmm\\n\n\t"                                                                \
      ".endr\n\t"                                                                             \
      ".endr\n\t"                                                                             \
      "decq %0\n\t"                                                                           \
      "jnz 1b"                                                                                \
      : "+r"(calls)                                                                           \
      :                                                                                       \
      : "cc", "xmm0", "xmm1", "xmm2", "xmm3", "xmm4", "xmm5", "xmm6", "xmm7", "xmm8", "xmm9", \
        "xmm10", "xmm11", "xmm12", "xmm13", "xmm15")

}  // namespace

int lanes(names::Element element) {
  return element == names::Element::c32 || element == names::Element::f32 ? 4 : 2;
}

Contestant copy_contestant(std::size_t bytes) {
  return {copy_name, Role::calibration, [bytes](const Walk& walk, std::int64_t calls) {
            walk_calls(walk, calls, [bytes](const std::byte* src, std::byte* dst) {
              std::memcpy(dst, src, bytes);
            });
          }};
}

Contestant null_call_contestant() {
  return {null_call_name, Role::calibration, [](const Walk& walk, std::int64_t calls) {
            walk_calls(walk, calls,
                       [kernel = null_kernel_address](const std::byte* src, std::byte* dst) {
                         kernel(src, dst, 0);
                       });
          }};
}

Contestant vector_add_contestant(names::Element element) {
  const bool is_float = lanes(element) == 4;
  return {vector_add_name, Role::calibration, [is_float](const Walk&, std::int64_t calls) {
            if (is_float) {
              HALDGEN_CHAINS("addps", calls);
            } else {
              HALDGEN_CHAINS("addpd", calls);
            }
          }};
}

Contestant convert_contestant() {
  return {convert_name, Role::calibration, [](const Walk&, std::int64_t calls) {
            HALDGEN_CHAINS("cvtss2sd %%xmm15, %%xmm\\n\n\tcvtsd2ss", calls);
          }};
}

}  // namespace haldgen::bench
