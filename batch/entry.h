// What every entry does: the tests of its arguments in their order, the look-up, the transforms.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

#include "haldbatch.h"
#include "lanes/scalar.h"

namespace haldgen::batch {

/// One side of a batch: elements of so many floats, `step` from one to the next, `dist` from one
/// transform to the next.
template <class Float>
struct Array {
  Float* first;
  std::ptrdiff_t step;
  std::ptrdiff_t dist;
  int floats;
};

/// What there is for one size.
template <class Float>
struct Transform {
  std::int32_t (*single)(const Float* src, Float* dst, std::int32_t flag) = nullptr;
  int src_floats = 0;
  int dst_floats = 0;
};

inline constexpr std::size_t kMostFloats = 8192;

template <class Element, class Float>
std::int32_t call(std::int32_t (*function)(const Element*, Element*, std::int32_t),
                  const Float* src, Float* dst, std::int32_t flag) {
  return function(reinterpret_cast<const Element*>(src), reinterpret_cast<Element*>(dst), flag);
}
template <class Float>
std::int32_t call(std::int32_t (*function)(const Float*, Float*, std::int32_t, std::uint8_t*),
                  const Float* src, Float* dst, std::int32_t flag) {
  alignas(64) std::uint8_t buffer[2 * kMostFloats * sizeof(Float)];
  return function(src, dst, flag, buffer);
}

/// A function for one transform, on floats and without a work area of the caller's.
template <auto kFunction, class Float>
std::int32_t single(const Float* src, Float* dst, std::int32_t flag) {
  return call(kFunction, src, dst, flag);
}

template <class Float>
void gather(Float* to, const Array<const Float>& from, std::ptrdiff_t transform, int floats) {
  for (int i = 0; i < floats; ++i) {
    to[i] = scalar::load(from.first +
                         from.floats * (i / from.floats * from.step + transform * from.dist) +
                         i % from.floats);
  }
}
template <class Float>
void scatter(const Array<Float>& to, const Float* from, std::ptrdiff_t transform, int floats) {
  for (int i = 0; i < floats; ++i) {
    scalar::store(
        to.first + to.floats * (i / to.floats * to.step + transform * to.dist) + i % to.floats,
        from[i]);
  }
}

template <class Float>
std::int32_t run(std::span<const Transform<Float>> by_size, std::ptrdiff_t index,
                 const Array<const Float>& src, const Array<Float>& dst, std::ptrdiff_t count,
                 std::int32_t flag) {
  if (index < 0 || index >= static_cast<std::ptrdiff_t>(by_size.size())) return haldStatusSizeError;
  const Transform<Float>& transform = by_size[static_cast<std::size_t>(index)];
  if (transform.single == nullptr) return haldStatusSizeError;
  if (count < 0) return haldStatusBadArgument;
  if (src.first == nullptr || dst.first == nullptr) return haldStatusNullPointer;
  if (flag != haldScaleFwdByN && flag != haldScaleInvByN && flag != haldScaleBySqrtN &&
      flag != haldScaleNone) {
    return haldStatusFlagError;
  }
  alignas(64) Float from[kMostFloats];
  alignas(64) Float to[kMostFloats];
  for (std::ptrdiff_t t = 0; t < count; ++t) {
    gather(from, src, t, transform.src_floats);
    transform.single(from, to, flag);
    scatter(dst, to, t, transform.dst_floats);
  }
  return haldStatusOk;
}

}  // namespace haldgen::batch
