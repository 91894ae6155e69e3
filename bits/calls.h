// Exported functions that take a scaling flag, called alike, whether or not they take a size and a
// work buffer.
#pragma once

#include <haldgen.h>

#include <cstdint>
#include <functional>

#include "bits/sums.h"
#include "names/signature.h"

namespace haldgen::bits {

/// The type of the floats that an array consists of.
template <class ArrayElement>
struct FloatOf {
  using Type = ArrayElement;
};
template <>
struct FloatOf<Cplx32> {
  using Type = float;
};
template <>
struct FloatOf<Cplx64> {
  using Type = double;
};

template <class ArrayElement>
using FlaggedCall = std::function<std::int32_t(const ArrayElement* src, ArrayElement* dst,
                                               std::int32_t flag, std::uint8_t* buffer)>;

/// The function at an address, with this signature. A general entry is called with the size.
template <class T>
FlaggedCall<T> flagged_call(Address address, names::Signature signature, std::int32_t size) {
  using Int = std::int32_t;
  using Byte = std::uint8_t;
  switch (signature) {
    case names::Signature::transform:
      return [f = reinterpret_cast<Int (*)(const T*, T*, Int)>(address)](
                 const T* src, T* dst, Int flag, Byte*) { return f(src, dst, flag); };
    case names::Signature::sized_transform:
      return [f = reinterpret_cast<Int (*)(const T*, T*, Int, Int)>(address), size](
                 const T* src, T* dst, Int flag, Byte*) { return f(src, dst, size, flag); };
    case names::Signature::buffered_transform:
      return reinterpret_cast<Int (*)(const T*, T*, Int, Byte*)>(address);
    default:
      return [f = reinterpret_cast<Int (*)(const T*, T*, Int, Int, Byte*)>(address), size](
                 const T* src, T* dst, Int flag, Byte* buffer) {
        return f(src, dst, size, flag, buffer);
      };
  }
}

}  // namespace haldgen::bits
