// The vocabulary of generated scalar code, which is plain expressions but for these.
#pragma once

namespace haldgen::scalar {

/// Floats at any address, be it no multiple of their size.
template <class Float>
inline Float load(const Float* from) {
  Float value;
  __builtin_memcpy(&value, from, sizeof value);
  return value;
}
template <class Float>
inline void store(Float* to, Float value) {
  __builtin_memcpy(to, &value, sizeof value);
}

// The letter by which a machine's compilers know the registers of floats.
#if defined(__x86_64__) || defined(__i386__)
#define HALDGEN_FLOAT_REGISTER "+x"
#elif defined(__aarch64__)
#define HALDGEN_FLOAT_REGISTER "+w"
#else
#define HALDGEN_FLOAT_REGISTER "+r"
#endif

/// The value, unknown to the compiler: a multiplication by it stays one.
template <class Float>
inline Float opaque(Float value) {
  __asm__("" : HALDGEN_FLOAT_REGISTER(value));
  return value;
}

/// The value in 64 bits. On x86 by way of memory: there a conversion from a register is two
/// operations, one of them a shuffle, and one from memory is a load and one.
inline double widened_through_memory(float value) {
#if defined(__x86_64__) || defined(__i386__)
  __asm__("" : "+m"(value));
#endif
  return value;
}

#undef HALDGEN_FLOAT_REGISTER

}  // namespace haldgen::scalar
