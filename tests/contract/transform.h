// The live transforms as callable objects, all alike: floats in, floats out, a flag. What differs
// from family to family is described here and in reference.h, and nowhere else in the tests.
#pragma once

#include <gtest/gtest.h>
#include <haldgen.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <functional>
#include <random>
#include <stdexcept>
#include <string>
#include <vector>

#include "frame/families.h"
#include "tests/contract/memory.h"

namespace haldgen::test {

/// One way to call one kernel: by its own name, or through a general entry with a size.
template <class FloatType>
struct Transform {
  using Float = FloatType;

  std::string name;  ///< as failures print it
  const frame::Family* family;
  frame::Element element;
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
  const frame::Family* family;
  std::function<std::int32_t(const Float* src, Float* dst, std::int32_t size, std::int32_t flag)>
      call;
};

/// The live transforms on 32-bit or 64-bit floats. A live function that takes a scaling flag and is
/// not described in transform.cc makes this throw.
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
    if (other.family->word == word && other.size == transform.size &&
        other.element == transform.element) {
      return &other;
    }
  }
  return nullptr;
}

inline constexpr std::array<std::int32_t, 4> flags = {haldScaleFwdByN, haldScaleInvByN,
                                                      haldScaleBySqrtN, haldScaleNone};

/// `count` floats, each uniform in [-1, 1).
template <class Float>
std::vector<Float> random_floats(std::size_t count, unsigned seed) {
  std::mt19937 random(seed);
  std::uniform_real_distribution<Float> uniform(-1, 1);
  std::vector<Float> floats(count);
  for (Float& value : floats) value = uniform(random);
  return floats;
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

/// Whether the floats are the same bit for bit: -0 differs from 0, a NaN equals itself.
template <class Float>
bool same_bits(const Float* a, const Float* b, std::size_t count) {
  return std::memcmp(a, b, count * sizeof(Float)) == 0;
}
template <class Float>
bool same_bits(const std::vector<Float>& a, const std::vector<Float>& b) {
  return a.size() == b.size() && same_bits(a.data(), b.data(), a.size());
}

}  // namespace haldgen::test
