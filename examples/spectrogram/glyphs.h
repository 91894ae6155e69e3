// The few letters that the axes of the picture need, five by seven dots each.
#pragma once

#include <array>
#include <cstdint>

namespace haldgen::demo {

inline constexpr int kGlyphWidth = 5;
inline constexpr int kGlyphHeight = 7;

/// Rows from the top; in each, the bit of value 16 is the leftmost dot.
using Glyph = std::array<std::uint8_t, kGlyphHeight>;

/// Blank for a character that has no glyph.
constexpr Glyph glyph_of(char c) {
  switch (c) {
    case '0':
      return {0b01110, 0b10001, 0b10001, 0b10001, 0b10001, 0b10001, 0b01110};
    case '1':
      return {0b00100, 0b01100, 0b00100, 0b00100, 0b00100, 0b00100, 0b01110};
    case '2':
      return {0b01110, 0b10001, 0b00001, 0b00110, 0b01000, 0b10000, 0b11111};
    case '3':
      return {0b11110, 0b00001, 0b00001, 0b01110, 0b00001, 0b00001, 0b11110};
    case '4':
      return {0b00010, 0b00110, 0b01010, 0b10010, 0b11111, 0b00010, 0b00010};
    case '5':
      return {0b11111, 0b10000, 0b11110, 0b00001, 0b00001, 0b10001, 0b01110};
    case '6':
      return {0b00110, 0b01000, 0b10000, 0b11110, 0b10001, 0b10001, 0b01110};
    case '7':
      return {0b11111, 0b00001, 0b00010, 0b00010, 0b00100, 0b00100, 0b00100};
    case '8':
      return {0b01110, 0b10001, 0b10001, 0b01110, 0b10001, 0b10001, 0b01110};
    case '9':
      return {0b01110, 0b10001, 0b10001, 0b01111, 0b00001, 0b00010, 0b01100};
    case '.':
      return {0b00000, 0b00000, 0b00000, 0b00000, 0b00000, 0b01100, 0b01100};
    case '-':
      return {0b00000, 0b00000, 0b00000, 0b01110, 0b00000, 0b00000, 0b00000};
    case '+':
      return {0b00000, 0b00100, 0b00100, 0b11111, 0b00100, 0b00100, 0b00000};
    case 'e':
      return {0b00000, 0b00000, 0b01110, 0b10001, 0b11111, 0b10000, 0b01110};
    case 'k':
      return {0b10000, 0b10000, 0b10010, 0b10100, 0b11000, 0b10100, 0b10010};
    case 'H':
      return {0b10001, 0b10001, 0b10001, 0b11111, 0b10001, 0b10001, 0b10001};
    case 'z':
      return {0b00000, 0b00000, 0b11111, 0b00010, 0b00100, 0b01000, 0b11111};
    case 's':
      return {0b00000, 0b00000, 0b01111, 0b10000, 0b01110, 0b00001, 0b11110};
    case 'm':
      return {0b00000, 0b00000, 0b11010, 0b10101, 0b10101, 0b10101, 0b10101};
    case 'i':
      return {0b00100, 0b00000, 0b01100, 0b00100, 0b00100, 0b00100, 0b01110};
    case 'n':
      return {0b00000, 0b00000, 0b10110, 0b11001, 0b10001, 0b10001, 0b10001};
    case 'd':
      return {0b00001, 0b00001, 0b01101, 0b10011, 0b10001, 0b10011, 0b01101};
    case 'B':
      return {0b11110, 0b10001, 0b10001, 0b11110, 0b10001, 0b10001, 0b11110};
    default:
      return {};
  }
}

}  // namespace haldgen::demo
