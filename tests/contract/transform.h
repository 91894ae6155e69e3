// The live transforms as callable objects, all alike: floats in, floats out, a flag.
#pragma once

#include <gtest/gtest.h>
#include <haldgen.h>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

#include "registry/registry.h"
#include "tests/built/floats.h"
#include "tests/contract/memory.h"

namespace haldgen::test {

/// One way to call one kernel: by its own name, or through a general entry with a size.
template <class FloatType>
struct Transform {
  using Float = FloatType;

  std::string name;  ///< as failures print it
  const names::Word* word;
  names::Element element;
  int size;                ///< length or order
  int points;              ///< the N of the scales 1/N and 1/sqrt(N)
  std::size_t src_floats;  ///< floats that are read
  std::size_t dst_floats;  ///< floats that are written
  std::function<std::int32_t(const Float* src, Float* dst, std::int32_t flag)> call;
};

/// A general entry, to be called with any size.
template <class FloatType>
struct GeneralEntry {
  using Float = FloatType;

  std::string name;
  const names::Word* word;
  std::function<std::int32_t(const Float* src, Float* dst, std::int32_t size, std::int32_t flag)>
      call;
};

/// The live transforms on 32-bit or 64-bit floats.
template <class Float>
struct Live {
  std::vector<Transform<Float>> fixed;            ///< by their own names
  std::vector<Transform<Float>> through_general;  ///< every live size of every general entry
  std::vector<GeneralEntry<Float>> general;
};

template <class Float>
const Live<Float>& live();

/// Visits every transform that has a name of its own; there must be some. An exception is a failure
/// and ends the visit of that transform only.
template <class Visitor>
void for_each_fixed(Visitor&& visit) {
  const auto visit_all = [&](const auto& transforms) {
    EXPECT_FALSE(transforms.empty());
    for (const auto& transform : transforms) {
      try {
        visit(transform);
      } catch (const std::exception& error) {
        ADD_FAILURE() << error.what();
      }
    }
  };
  visit_all(live<float>().fixed);
  visit_all(live<double>().fixed);
}

/// The fixed-size transform of the same size and element type in the family of another word;
/// nullptr if that is not live.
template <class Float>
const Transform<Float>* sibling(const Transform<Float>& transform, std::string_view word) {
  for (const auto& other : live<Float>().fixed) {
    if (other.word->word == word && other.size == transform.size &&
        other.element == transform.element) {
      return &other;
    }
  }
  return nullptr;
}

/// The result of one call on arrays of its own; a fault or another status than haldStatusOk throws.
template <class Float>
std::vector<Float> result(const Transform<Float>& transform, const std::vector<Float>& src,
                          std::int32_t flag = haldScaleNone) {
  // A kernel that writes beside its array shall not take the heap of the tests with it.
  constexpr std::size_t margin = 8;
  std::vector<Float> dst(transform.dst_floats + 2 * margin);
  volatile std::int32_t status = 1;
  if (faults([&] { status = transform.call(src.data(), dst.data() + margin, flag); })) {
    throw std::runtime_error(transform.name + " faults");
  }
  if (status != haldStatusOk) throw std::runtime_error(transform.name + " refuses a valid call");
  return {dst.begin() + margin, dst.end() - margin};
}

}  // namespace haldgen::test
