// SPDX-License-Identifier: MIT
// Numbers, grids and names as text. Used by the status texts, the settings, the players and the commands.
#pragma once

#include <charconv>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "core/grid.h"

namespace kestrel {

// The last two characters of the decimal text of value + 100: 7 gives "07", 123 gives "23". Negative values
// follow the same rule (-5 gives "95", -95 gives "5").
std::string TwoDigits(std::int64_t value);

// The grid as 81 characters: '0' for an empty cell, '?' for a byte above 9.
std::string GridText(const DigitGrid& grid);

// A whole number with nothing around it; nothing for any other text and for numbers that do not fit.
template <class Number>
std::optional<Number> ParseNumber(std::string_view text) {
  Number number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
  return number;
}

// The whole number that a setting holds, blanks around it allowed; nothing for any other text and for numbers
// that do not fit into 16 bits.
std::optional<int> WholeNumber(std::string_view text);

// The number a user typed: the leading numeric part of the text after blanks ("12abc" gives 12, "7.5e1" gives
// 75), rounded to the nearest whole number, a half to the even neighbour. 0 when there is none or when it
// does not fit into 16 bits.
int LeadingNumber(std::string_view text);

// A stored player name has this many characters (not bytes: one character may take up to four in UTF-8).
inline constexpr std::size_t kNameCharacters = 16;

// How many bytes the UTF-8 character at the start of `text` (not empty) has, 1..4; 0 when there is none: stray or
// missing continuation bytes, overlong forms, surrogates, codes above U+10FFFF.
std::size_t CharacterBytes(std::string_view text);

// How many characters UTF-8 text has; a byte that belongs to no character counts as one.
std::size_t CharacterCount(std::string_view text);

// The name with exactly kNameCharacters characters: blanks added on the right, or cut, never inside a
// character.
std::string PadName(std::string_view name);

}  // namespace kestrel
