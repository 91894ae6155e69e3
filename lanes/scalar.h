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

/// The value, unknown to the compiler: a multiplication by it stays one.
template <class Float>
inline Float opaque(Float value) {
  __asm__("" : "+x"(value));
  return value;
}

}  // namespace haldgen::scalar
