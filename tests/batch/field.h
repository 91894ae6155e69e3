// Arrays of batches in memory whose every byte is accounted for.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <memory>
#include <string>
#include <vector>

#include "tests/contract/memory.h"

namespace haldgen::test {

/// How the elements of a batch lie: element n of transform t at n step + t dist, in elements.
struct Layout {
  std::string name;
  std::ptrdiff_t step, dist;
};

/// All kinds of layouts for so many elements in each of so many transforms, those that sources
/// alone may have at the end.
std::vector<Layout> layouts(std::size_t elements, std::size_t count);
inline constexpr std::size_t kLayoutsOfSources = 2;

/// Where in its pages a batch lies: against the first or the last byte, or that many bytes off.
struct Spot {
  bool at_end;
  std::size_t shift;
};

/// One array of a batch between inaccessible pages.
template <class Float>
class Field {
 public:
  /// `width` floats in an element.
  Field(const Layout& layout, std::size_t elements, std::size_t width, std::size_t count, Spot spot)
      : layout_(layout),
        elements_(elements),
        width_(width),
        count_(count),
        pages_(std::make_shared<GuardedPages>(span(spot))) {
    const auto room = static_cast<std::ptrdiff_t>(pages_->bytes().size());
    const std::ptrdiff_t last = (highest() + 1) * element_bytes();
    const std::ptrdiff_t lowest_byte = lowest() * element_bytes();
    const auto shift = static_cast<std::ptrdiff_t>(spot.shift);
    first_ = pages_->bytes().data() + (spot.at_end ? room - shift - last : shift - lowest_byte);
    std::memset(pages_->bytes().data(), kUnused, pages_->bytes().size());
  }

  /// Other elements in the memory of a field, from its first element on.
  Field(const Field& memory, const Layout& layout, std::size_t elements, std::size_t width)
      : layout_(layout),
        elements_(elements),
        width_(width),
        count_(memory.count_),
        pages_(memory.pages_),
        first_(memory.first_) {}

  Float* first() const { return reinterpret_cast<Float*>(first_); }
  void allow(GuardedPages::Access access) const { pages_->allow(access); }

  /// The values of transform t, in the order of the single call's array.
  void write(std::size_t t, const std::vector<Float>& values) const {
    for (std::size_t n = 0; n < elements_; ++n) {
      std::memcpy(at(n, t), values.data() + n * width_, width_ * sizeof(Float));
    }
  }
  std::vector<Float> read(std::size_t t) const {
    std::vector<Float> values(elements_ * width_);
    for (std::size_t n = 0; n < elements_; ++n) {
      std::memcpy(values.data() + n * width_, at(n, t), width_ * sizeof(Float));
    }
    return values;
  }

  /// Whether all bytes that belong to no element are as they were. Ends what the elements hold.
  bool untouched_between() const {
    for (std::size_t t = 0; t < count_; ++t) {
      for (std::size_t n = 0; n < elements_; ++n) {
        std::memset(at(n, t), kUnused, width_ * sizeof(Float));
      }
    }
    for (const std::byte byte : pages_->bytes()) {
      if (byte != std::byte{kUnused}) return false;
    }
    return true;
  }

 private:
  static constexpr unsigned char kUnused = 0xA5;

  std::ptrdiff_t element_bytes() const {
    return static_cast<std::ptrdiff_t>(width_ * sizeof(Float));
  }
  std::ptrdiff_t end(std::ptrdiff_t stride, std::size_t number) const {
    return stride * (static_cast<std::ptrdiff_t>(number) - 1);
  }
  std::ptrdiff_t lowest() const {
    return std::min<std::ptrdiff_t>(end(layout_.step, elements_), 0) +
           std::min<std::ptrdiff_t>(end(layout_.dist, count_), 0);
  }
  std::ptrdiff_t highest() const {
    return std::max<std::ptrdiff_t>(end(layout_.step, elements_), 0) +
           std::max<std::ptrdiff_t>(end(layout_.dist, count_), 0);
  }
  std::size_t span(Spot spot) const {
    return static_cast<std::size_t>((highest() - lowest() + 1) * element_bytes()) + spot.shift;
  }
  std::byte* at(std::size_t n, std::size_t t) const {
    return first_ + (static_cast<std::ptrdiff_t>(n) * layout_.step +
                     static_cast<std::ptrdiff_t>(t) * layout_.dist) *
                        element_bytes();
  }

  Layout layout_;
  std::size_t elements_, width_, count_;
  std::shared_ptr<GuardedPages> pages_;
  std::byte* first_;
};

}  // namespace haldgen::test
