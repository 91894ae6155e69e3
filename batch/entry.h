// What every entry does: the tests of its arguments in their order, and the look-up.
#pragma once

#include <cstdint>

#include "batch/run.h"
#include "haldbatch.h"

namespace haldgen::batch {

template <class Element, class Float>
std::int32_t call_single(std::int32_t (*function)(const Element*, Element*, std::int32_t),
                         const Float* src, Float* dst, std::int32_t flag) {
  return function(reinterpret_cast<const Element*>(src), reinterpret_cast<Element*>(dst), flag);
}
/// Transforms that would need a work area are no singles of batches.
template <class Float>
std::int32_t call_single(std::int32_t (*function)(const Float*, Float*, std::int32_t,
                                                  std::uint8_t*),
                         const Float* src, Float* dst, std::int32_t flag) {
  return function(src, dst, flag, nullptr);
}

/// A function for one transform, as one on floats.
template <auto kFunction, class Float>
std::int32_t single(const Float* src, Float* dst, std::int32_t flag) {
  return call_single(kFunction, src, dst, flag);
}

/// Which flags divide by the number of points.
enum class Divides { forward, inverse, both };

/// The arrays of a call in their elements, of so many floats.
template <class Float>
struct Elements {
  Float* first;
  std::ptrdiff_t step;
  std::ptrdiff_t dist;
  int floats;
};

/// Of one transform the distance says nothing.
template <class Float>
Array<Float> counted_in_floats(const Elements<Float>& a, std::ptrdiff_t count) {
  return {a.first, a.step * a.floats, count == 1 ? 0 : a.dist * a.floats, a.floats};
}

/// run(transform, call) if all arguments are good.
template <class Float, class Kernel, std::size_t kSizes, class Run>
std::int32_t checked(const Transform<Float, Kernel> (&by_size)[kSizes], std::ptrdiff_t index,
                     const Elements<const Float>& src, const Elements<Float>& dst,
                     std::ptrdiff_t count, std::int32_t flag, Divides divides, const Run& run) {
  if (index < 0 || index >= static_cast<std::ptrdiff_t>(kSizes)) return haldStatusSizeError;
  const Transform<Float, Kernel>& transform = by_size[index];
  if (transform.src_floats == 0) return haldStatusSizeError;
  if (count < 0) return haldStatusBadArgument;
  if (src.first == nullptr || dst.first == nullptr) return haldStatusNullPointer;
  Float scale = 1;
  switch (flag) {
    case haldScaleFwdByN:
      if (divides != Divides::inverse) scale = transform.by_n;
      break;
    case haldScaleInvByN:
      if (divides != Divides::forward) scale = transform.by_n;
      break;
    case haldScaleBySqrtN:
      scale = transform.by_root;
      break;
    case haldScaleNone:
      break;
    default:
      return haldStatusFlagError;
  }
  if (count == 0) return haldStatusOk;
  run(transform, Call<Float>{counted_in_floats(src, count), counted_in_floats(dst, count), count,
                             flag, scale});
  return haldStatusOk;
}

}  // namespace haldgen::batch
