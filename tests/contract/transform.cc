// Finds the live functions and describes their arrays.
#include "tests/contract/transform.h"

#include "bits/calls.h"
#include "bits/linked.h"
#include "names/arrays.h"

namespace haldgen::test {
namespace {

using names::Element;
using registry::Export;

/// The linked functions.
std::vector<Export> linked_exports() {
  std::vector<Export> all;
  for (const frame::LinkedFunction& f : frame::linked_functions()) {
    for (const names::Word& word : registry::words()) {
      if (word.word == f.word && word.signature == f.signature) {
        all.push_back({std::string(f.name), &word, f.element, f.size});
      }
    }
  }
  return all;
}

// A work area of the calling thread, 16-byte aligned, for any order.
std::uint8_t* work_area() {
  thread_local std::vector<std::max_align_t> area((std::size_t{1} << 17) /
                                                  sizeof(std::max_align_t));
  return reinterpret_cast<std::uint8_t*>(area.data());
}

// A buffered transform is called with a work area by its own name, and without one through its
// general entry.
template <class Array>
auto call_of(const Export& entry, int size) {
  using Float = typename bits::FloatOf<Array>::Type;
  const bits::Address address = bits::linked()(entry.name);
  if (address == nullptr) throw std::runtime_error("the library has no " + entry.name);
  const bool general = is_general(*entry.word);
  return [general, call = bits::flagged_call<Array>(address, entry.word->signature, size)](
             const Float* src, Float* dst, std::int32_t flag) {
    return call(reinterpret_cast<const Array*>(src), reinterpret_cast<Array*>(dst), flag,
                general ? nullptr : work_area());
  };
}

template <class Array, class Float>
void add(const Export& entry, Live<Float>& all) {
  const auto transform = [&entry](int size, const std::string& name) {
    const names::Arrays arrays = names::arrays(*entry.word, size);
    return Transform<Float>{
        name,          entry.word,        entry.element,     size,
        arrays.points, arrays.src_floats, arrays.dst_floats, call_of<Array>(entry, size)};
  };
  if (!is_general(*entry.word)) {
    all.fixed.push_back(transform(entry.size, entry.name));
    return;
  }
  all.general.push_back(
      {entry.name, entry.word,
       [&entry](const Float* src, Float* dst, std::int32_t size, std::int32_t flag) {
         return call_of<Array>(entry, size)(src, dst, flag);
       }});
  for (const int size : entry.word->sizes) {
    all.through_general.push_back(transform(size, entry.name + " at " + std::to_string(size)));
  }
}

template <class Float, class Real, class Complex>
Live<Float> find(Element real, Element complex) {
  static const std::vector<Export> exports = linked_exports();
  Live<Float> all;
  for (const Export& entry : exports) {
    if (entry.word->usage.scaling == names::Scaling::none) continue;
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
