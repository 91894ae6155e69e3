// One transform, called on every input, flag and placement.
#pragma once

#include <haldgen.h>

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <cstring>
#include <functional>
#include <limits>
#include <memory>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "bits/calls.h"
#include "bits/inputs.h"
#include "bits/sums.h"

namespace haldgen::bits {

inline constexpr std::array<std::int32_t, 4> flags = {haldScaleFwdByN, haldScaleInvByN,
                                                      haldScaleBySqrtN, haldScaleNone};

/// Bytes; arrays are placed a number of floats past a multiple of it, and work buffers at one.
inline constexpr std::size_t alignment = 16;

template <class Float>
Pattern<Float> pattern(Float value) {
  return std::bit_cast<Pattern<Float>>(std::isnan(value) ? std::numeric_limits<Float>::quiet_NaN()
                                                         : value);
}

/// FNV-1a over the bytes of numbers, from the lowest up.
class Checksum {
 public:
  template <class Unsigned>
  void add_number(Unsigned number) {
    for (std::size_t byte = 0; byte < sizeof(Unsigned); ++byte, number >>= 8U) {
      sum_ = (sum_ ^ (number & 0xFFU)) * 0x100000001B3U;
    }
  }
  void add_status(std::int32_t status) { add_number(static_cast<std::uint32_t>(status)); }
  template <class Float>
  void add(std::span<const Float> values) {
    for (const Float value : values) add_number(pattern(value));
  }
  std::uint64_t value() const { return sum_; }

 private:
  std::uint64_t sum_ = 0xCBF29CE484222325U;
};

template <class Float>
bool same(std::span<const Float> a, std::span<const Float> b) {
  if (std::memcmp(a.data(), b.data(), a.size_bytes()) == 0) return true;
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](Float x, Float y) { return pattern(x) == pattern(y); });
}

/// Memory for `count` values, from any offset below `alignment` bytes on.
template <class Value>
class Room {
 public:
  explicit Room(std::size_t count) : values_(count + 2 * alignment / sizeof(Value)) {
    void* start = values_.data();
    std::size_t space = values_.size() * sizeof(Value);
    start_ = static_cast<Value*>(std::align(alignment, 1, start, space));
  }
  Room(const Room&) = delete;
  Room& operator=(const Room&) = delete;

  /// `offset` values past a multiple of the alignment.
  Value* at(std::size_t offset) { return start_ + offset; }

 private:
  std::vector<Value> values_;
  Value* start_;
};

/// Where the arrays of a call lie, in floats past a multiple of 16 bytes.
struct Placement {
  bool in_place;
  std::size_t src, dst;
};

/// All of them, apart and whole vectors first.
template <class Float>
std::vector<Placement> placements() {
  constexpr std::size_t offsets = alignment / sizeof(Float);
  std::vector<Placement> all = {{false, 0, 0}};
  for (std::size_t k = 1; k < offsets; ++k) {
    all.push_back({false, k, 0});
    all.push_back({false, 0, k});
    all.push_back({false, k, k});
  }
  for (std::size_t k = 0; k < offsets; ++k) all.push_back({true, k, k});
  return all;
}

template <class Float>
std::string text(const Placement& placement) {
  const auto bytes = [](std::size_t floats) { return std::to_string(floats * sizeof(Float)); };
  if (placement.in_place) return "in place, " + bytes(placement.src) + " bytes past a vector";
  return "src " + bytes(placement.src) + ", dst " + bytes(placement.dst) + " bytes past a vector";
}

template <class ArrayElement>
using Call = std::function<std::int32_t(const ArrayElement* src, ArrayElement* dst)>;

/// One of several ways to the same result.
template <class ArrayElement>
struct Way {
  std::string text;
  Call<ArrayElement> call;
};

/// Ways by flag: the results of all flags count, those of the ways must be the same.
template <class ArrayElement>
using Ways = std::vector<std::vector<Way<ArrayElement>>>;

/// What the arrays of a transform hold.
struct Arrays {
  int points;
  std::size_t src_floats, dst_floats;
  std::vector<std::size_t> src_gaps = {};  ///< positions that are never read
};

/// The arrays of one transform and the calls on them.
template <class ArrayElement>
class Taker {
 public:
  using Float = typename FloatOf<ArrayElement>::Type;

  Taker(Arrays arrays, const Ways<ArrayElement>& ways)
      : arrays_(std::move(arrays)),
        ways_(ways),
        src_(arrays_.src_floats),
        dst_(std::max(arrays_.src_floats, arrays_.dst_floats)) {}

  Finding take() {
    std::uint64_t seed = 0;
    for (const InputSet& set : input_sets<Float>(arrays_.points)) {
      input_ = numbers<Float>(set, seed, arrays_.src_floats);
      for (const std::size_t gap : arrays_.src_gaps) {
        input_[gap] = std::numeric_limits<Float>::quiet_NaN();
      }
      // Every input meets every flag, and every placement under one of the flags in turn. Without
      // flags, one input in so many meets every placement.
      for (std::size_t k = 0; k < ways_.size(); ++k) {
        const bool everywhere = seed % flags.size() == k;
        const std::string fault =
            take(ways_[k], std::span(placements_).first(everywhere ? placements_.size() : 1));
        if (!fault.empty()) return {0, fault};
      }
      ++seed;
    }
    return {checksum_.value(), {}};
  }

 private:
  std::string take(const std::vector<Way<ArrayElement>>& equal_ways,
                   std::span<const Placement> places) {
    std::vector<Float> first;
    for (const auto& way : equal_ways) {
      for (const Placement& placement : places) {
        const std::int32_t status = run(way, placement);
        if (status != haldStatusOk) {
          return way.text + text<Float>(placement) + ": status " + std::to_string(status);
        }
        const std::span<const Float> result(dst_.at(placement.dst), arrays_.dst_floats);
        if (first.empty()) {
          first.assign(result.begin(), result.end());
          checksum_.add<Float>(first);
        } else if (!same<Float>(first, result)) {
          return way.text + text<Float>(placement) + ": other bits than " + equal_ways[0].text +
                 text<Float>(places[0]);
        }
      }
    }
    return {};
  }

  std::int32_t run(const Way<ArrayElement>& way, const Placement& placement) {
    Float* const dst = dst_.at(placement.dst);
    Float* const src = placement.in_place ? dst : src_.at(placement.src);
    // A place that is not written has another value in place than apart.
    if (!placement.in_place) std::fill_n(dst, arrays_.dst_floats, Float{0.75});
    std::copy(input_.begin(), input_.end(), src);
    return way.call(reinterpret_cast<const ArrayElement*>(src),
                    reinterpret_cast<ArrayElement*>(dst));
  }

  Arrays arrays_;
  const Ways<ArrayElement>& ways_;
  Room<Float> src_, dst_;
  std::vector<Placement> placements_ = placements<Float>();
  std::vector<Float> input_;
  Checksum checksum_;
};

}  // namespace haldgen::bits
