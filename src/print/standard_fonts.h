// SPDX-License-Identifier: MIT
// The fonts that every PDF reader has, with their metrics. Used by the PDF writer.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "forms/control.h"

namespace kestrel {

inline constexpr int kStandardFonts = 6;  // Helvetica, Times and Courier, each with its bold cut

inline constexpr char kFirstCharacter = ' ';
inline constexpr char kLastCharacter = '~';

// The character itself where the fonts' tables have it, otherwise a question mark.
constexpr char Printable(char c) {
  return c >= kFirstCharacter && c <= kLastCharacter ? c : '?';
}

// All metrics are in thousandths of the font's size.
struct StandardFont {
  std::string_view name;
  int ascent;
  int descent;
  std::span<const std::int16_t> widths;  // from kFirstCharacter to kLastCharacter
};

// Which of the fonts, 0..kStandardFonts - 1, stands in for a font: Times for "Times New Roman", Courier for
// "Courier New", Helvetica for "Arial" and all others.
int StandardFontIndex(const Font& font);

const StandardFont& StandardFontAt(int index);

// How wide a text is, in thousandths of the font's size.
std::int64_t TextWidth(const StandardFont& font, std::string_view text);

}  // namespace kestrel
