// Finds the live functions in the library and describes their arrays.
#include "tests/contract/transform.h"

#include <dlfcn.h>

#include <cstddef>
#include <stdexcept>
#include <type_traits>

#include "frame/arrays.h"

namespace haldgen::test {
namespace {

using frame::Element;
using frame::Export;
using frame::Signature;

// The float type that arrays of an element type consist of.
template <class Array>
struct FloatOf {
  using Type = Array;
};
template <>
struct FloatOf<Cplx32> {
  using Type = float;
};
template <>
struct FloatOf<Cplx64> {
  using Type = double;
};

void* library() {
  static void* const handle = dlopen(HALDGEN_LIBRARY, RTLD_NOW | RTLD_LOCAL);
  if (handle == nullptr) throw std::runtime_error(dlerror());
  return handle;
}

template <class Function>
Function* resolve(const std::string& name) {
  auto* function = reinterpret_cast<Function*>(dlsym(library(), name.c_str()));
  if (function == nullptr) throw std::runtime_error("the library has no " + name);
  return function;
}

template <class Float, class Array>
void add_fixed(const Export& entry, Live<Float>& all) {
  auto* function = resolve<std::int32_t(const Array*, Array*, std::int32_t)>(entry.name);
  const frame::Arrays arrays = frame::arrays(*entry.family, entry.size);
  all.fixed.push_back(
      {entry.name, entry.family, entry.element, entry.size, arrays.points, arrays.src_floats,
       arrays.dst_floats, [function](const Float* src, Float* dst, std::int32_t flag) {
         return function(reinterpret_cast<const Array*>(src), reinterpret_cast<Array*>(dst), flag);
       }});
}

template <class Float, class Call>
void add_general_call(const Export& entry, const Call& call, Live<Float>& all) {
  all.general.push_back({entry.name, entry.family, call});
  for (int size = entry.family->sizes.first; size <= entry.family->sizes.last; ++size) {
    if (!entry.family->live.contains(size)) continue;
    const frame::Arrays arrays = frame::arrays(*entry.family, size);
    all.through_general.push_back({entry.name + " at " + std::to_string(size), entry.family,
                                   entry.element, size, arrays.points, arrays.src_floats,
                                   arrays.dst_floats,
                                   [call, size](const Float* src, Float* dst, std::int32_t flag) {
                                     return call(src, dst, size, flag);
                                   }});
  }
}

// A work area of the calling thread, 16-byte aligned, for any order.
std::uint8_t* work_area() {
  thread_local std::vector<std::max_align_t> area((std::size_t{1} << 17) /
                                                  sizeof(std::max_align_t));
  return reinterpret_cast<std::uint8_t*>(area.data());
}

// A buffered transform is called with a work area by its own name, and without one through its
// general entry.
template <class Float, class Array>
void add_general(const Export& entry, Live<Float>& all) {
  auto* function =
      resolve<std::int32_t(const Array*, Array*, std::int32_t, std::int32_t)>(entry.name);
  const auto call = [function](const Float* src, Float* dst, std::int32_t size, std::int32_t flag) {
    return function(reinterpret_cast<const Array*>(src), reinterpret_cast<Array*>(dst), size, flag);
  };
  add_general_call(entry, call, all);
}

template <class Float>
void add_buffered_general(const Export& entry, Live<Float>& all) {
  auto* function =
      resolve<std::int32_t(const Float*, Float*, std::int32_t, std::int32_t, std::uint8_t*)>(
          entry.name);
  const auto call = [function](const Float* src, Float* dst, std::int32_t size, std::int32_t flag) {
    return function(src, dst, size, flag, nullptr);
  };
  add_general_call(entry, call, all);
}

template <class Float>
void add_buffered_fixed(const Export& entry, Live<Float>& all) {
  auto* function =
      resolve<std::int32_t(const Float*, Float*, std::int32_t, std::uint8_t*)>(entry.name);
  const frame::Arrays arrays = frame::arrays(*entry.family, entry.size);
  all.fixed.push_back({entry.name, entry.family, entry.element, entry.size, arrays.points,
                       arrays.src_floats, arrays.dst_floats,
                       [function](const Float* src, Float* dst, std::int32_t flag) {
                         return function(src, dst, flag, work_area());
                       }});
}

template <class Array, class Float = typename FloatOf<Array>::Type>
void add(const Export& entry, Live<Float>& all) {
  switch (entry.family->signature) {
    case Signature::transform:
      return add_fixed<Float, Array>(entry, all);
    case Signature::sized_transform:
      return add_general<Float, Array>(entry, all);
    case Signature::buffered_transform:
      if constexpr (std::is_same_v<Array, Float>) return add_buffered_fixed<Float>(entry, all);
      break;
    case Signature::sized_buffered_transform:
      if constexpr (std::is_same_v<Array, Float>) return add_buffered_general<Float>(entry, all);
      break;
    default:
      break;
  }
  throw std::logic_error("no way to call " + entry.name);
}

template <class Float, class Real, class Complex>
Live<Float> find(Element real, Element complex) {
  Live<Float> all;
  for (const Export& entry : frame::live_exports()) {
    if (entry.family->scaling == frame::Scaling::none) continue;
    if (entry.element == real) add<Real>(entry, all);
    if (entry.element == complex) add<Complex>(entry, all);
  }
  return all;
}

}  // namespace

template <>
const Live<float>& live() {
  static const auto all = find<float, float, Cplx32>(Element::f32, Element::c32);
  return all;
}

template <>
const Live<double>& live() {
  static const auto all = find<double, double, Cplx64>(Element::f64, Element::c64);
  return all;
}

}  // namespace haldgen::test
