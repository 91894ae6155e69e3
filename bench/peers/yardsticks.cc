// What the machine itself needs: the floor under every figure.
#include <cstdint>
#include <cstring>

#include "bench/peers/peers.h"

namespace haldgen::bench {
namespace {

using Kernel = std::int32_t (*)(const void* src, void* dst, std::int32_t flag);

std::int32_t null_kernel(const void* /*src*/, void* /*dst*/, std::int32_t /*flag*/) { return 0; }

// Volatile: the compiler cannot know what it calls, as with a loaded kernel.
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

constexpr double chain_instructions = 14 * 16;

}  // namespace

std::vector<Contestant> yardsticks(const Problem& problem) {
  std::vector<Contestant> all;
  const auto add = [&all](const char* name, double instructions, Slice slice) {
    all.push_back({name, Role::calibration, std::move(slice), instructions});
  };
  const bool samples = problem.transform == Transform::real ||
                       problem.transform == Transform::inverse_real ||
                       problem.transform == Transform::hartley;
  if (samples) {  // kernels of which convert between 32 and 64 bits
    add("convert", 2 * chain_instructions, [](const Walk&, std::int64_t calls) {
      HALDGEN_CHAINS("cvtss2sd %%xmm15, %%xmm\\n\n\tcvtsd2ss", calls);
    });
  }
  if (problem.transform == Transform::wht) {
    all.push_back(
        contestant_of("memcpy", Role::calibration,
                      [bytes = problem.source_bytes()](const std::byte* src, std::byte* dst) {
                        std::memcpy(dst, src, bytes);
                      }));
  }
  all.push_back(contestant_of("null_call", Role::calibration,
                              [kernel = Kernel{null_kernel_address}](
                                  const std::byte* src, std::byte* dst) { kernel(src, dst, 0); }));
  add("vector_add", chain_instructions,
      [is_float = problem.is_float()](const Walk&, std::int64_t calls) {
        if (is_float) {
          HALDGEN_CHAINS("addps", calls);
        } else {
          HALDGEN_CHAINS("addpd", calls);
        }
      });
  return all;
}

}  // namespace haldgen::bench
