// What the fuzz programs share: the input as a sequence of choices, arrays between guard pages,
// the transforms of the library's table, and the end of a program that found something.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>
#include <string_view>
#include <vector>

#include "bits/calls.h"
#include "names/arrays.h"
#include "tests/contract/memory.h"

namespace haldgen::fuzz {

using Bytes = std::span<const std::uint8_t>;

/// Says what is wrong and ends the program, for the fuzzer to keep the input.
[[noreturn]] void fail(std::string_view name, std::string_view what);
inline void expect(bool good, std::string_view name, std::string_view what = {}) {
  if (!good) fail(name, what);
}

/// Reads an input from its start. Where it is at its end it gives zeros.
class Choices {
 public:
  explicit Choices(Bytes input) : rest_(input) {}
  template <class Integer>
  Integer take() {
    Integer value = 0;
    const std::size_t count = rest_.size() < sizeof value ? rest_.size() : sizeof value;
    std::memcpy(&value, rest_.data(), count);
    rest_ = rest_.subspan(count);
    return value;
  }
  unsigned below(unsigned bound) { return take<std::uint16_t>() % bound; }
  bool chance(unsigned in) { return take<std::uint8_t>() % in == 0; }
  bool empty() const { return rest_.empty(); }
  Bytes rest() const { return rest_; }

 private:
  Bytes rest_;
};

/// A flag, mostly one of the four.
std::int32_t take_flag(Choices& choices);
bool valid(std::int32_t flag);

/// An array of so many bytes somewhere in pages that end at inaccessible ones, against the first or
/// the last of them or up to 63 bytes off, in multiples of `step`; all other bytes are known ones.
/// One array of a kind at a time.
class Place {
 public:
  Place(std::size_t kind, std::size_t bytes, Choices& choices, std::size_t step);
  std::byte* data() const { return data_; }
  /// Fails if a byte besides those of the array was written.
  void expect_untouched(std::string_view name) const;
  /// Fails if any byte was written since fill().
  void expect_unwritten(std::string_view name) const;
  static constexpr std::byte kKnown{0xA5};

 private:
  std::span<std::byte> around_;
  std::byte* data_;
  std::size_t bytes_;
};

/// Fills an array by what is left of an input, over and over, whatever floats that makes.
void fill(std::span<std::byte> array, Bytes pattern);

/// Equality of bits, but that a NaN is like any other.
template <class Float>
bool same(const void* a, const void* b, std::size_t count) {
  if (std::memcmp(a, b, count * sizeof(Float)) == 0) return true;
  for (std::size_t i = 0; i < count; ++i) {
    Float x, y;
    std::memcpy(&x, static_cast<const std::byte*>(a) + i * sizeof x, sizeof x);
    std::memcpy(&y, static_cast<const std::byte*>(b) + i * sizeof y, sizeof y);
    if (std::memcmp(&x, &y, sizeof x) != 0 && (x == x || y == y)) return false;
  }
  return true;
}

/// A function of the table that takes a scaling flag, called with addresses.
struct Function {
  const registry::Export* entry;
  std::size_t float_bytes;
  bool narrow;   ///< 32-bit floats
  bool general;  ///< takes a size
  bool real;     ///< arrays of real elements, which may lie at any address
  std::int32_t call(const void* src, void* dst, std::int32_t size, std::int32_t flag,
                    std::uint8_t* buffer) const;
};
const std::vector<Function>& functions();

/// The transform of a function's word and type at a size.
const Function& fixed(const Function& function, int size);

/// Bytes of the work area of an order, as the query has it; 0 for other transforms.
std::size_t work_bytes(const Function& function, int size);

}  // namespace haldgen::fuzz
