// Whether the processor at hand runs what was built for vectors of so many bits.
#pragma once

namespace haldgen::lanes {

inline bool processor_has(int vector_bits) {
#if defined(__x86_64__) || defined(__i386__)
  __builtin_cpu_init();
  const bool v3 = __builtin_cpu_supports("avx2") && __builtin_cpu_supports("fma") &&
                  __builtin_cpu_supports("bmi") && __builtin_cpu_supports("bmi2");
  if (vector_bits == 256) return v3;
  if (vector_bits == 512) {
    return v3 && __builtin_cpu_supports("avx512f") && __builtin_cpu_supports("avx512bw") &&
           __builtin_cpu_supports("avx512cd") && __builtin_cpu_supports("avx512dq") &&
           __builtin_cpu_supports("avx512vl");
  }
#endif
  return vector_bits == 128;
}

}  // namespace haldgen::lanes
