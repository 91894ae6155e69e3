// The vocabulary of generated scalar code, which is plain expressions but for this.
#pragma once

namespace haldgen::scalar {

/// The value, unknown to the compiler: a multiplication by it stays one.
template <class Float>
inline Float opaque(Float value) {
  __asm__("" : "+x"(value));
  return value;
}

}  // namespace haldgen::scalar
