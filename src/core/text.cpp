// SPDX-License-Identifier: MIT
// Numbers, grids and names as text.
#include "core/text.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>

namespace kestrel {

namespace {

constexpr std::string_view kBlanks = " \t";

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

std::string_view WithoutBlanks(std::string_view text) {
  const std::size_t first = text.find_first_not_of(kBlanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

// from_chars takes a minus sign but no plus sign.
std::string_view WithoutPlus(std::string_view text) {
  if (text.size() > 1 && text[0] == '+' && text[1] != '-') text.remove_prefix(1);
  return text;
}

bool FitsInt16(double number) {
  return number >= INT16_MIN && number <= INT16_MAX;
}

// Not std::nearbyint: the answer must not hang on the thread's rounding mode.
double RoundHalfToEven(double number) {
  const double below = std::floor(number);
  const double rest = number - below;
  if (rest != 0.5) return rest < 0.5 ? below : below + 1;
  return std::fmod(below, 2) == 0 ? below : below + 1;
}

}  // namespace

std::string TwoDigits(std::int64_t value) {
  const std::string text = std::to_string(value + 100);
  return text.size() <= 2 ? text : text.substr(text.size() - 2);
}

std::string GridText(const DigitGrid& grid) {
  std::string text(kCells, '?');
  char* next = text.data();
  for (const std::uint8_t digit : grid) *next++ = digit <= 9 ? static_cast<char>('0' + digit) : '?';
  return text;
}

std::optional<int> WholeNumber(std::string_view text) {
  text = WithoutPlus(WithoutBlanks(text));
  return ParseNumber<std::int16_t>(text);
}

int LeadingNumber(std::string_view text) {
  text = WithoutPlus(WithoutBlanks(text));
  // Words that from_chars would take for numbers ("inf", "nan") are none here.
  const std::size_t digits = text.starts_with('-') ? 1 : 0;
  if (text.size() <= digits || !(IsDigit(text[digits]) || text[digits] == '.')) return 0;
  double number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc()) return 0;
  number = RoundHalfToEven(number);
  return FitsInt16(number) ? static_cast<int>(number) : 0;
}

std::size_t CharacterBytes(std::string_view text) {
  const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
  const unsigned lead = byte(0);
  if (lead < 0x80) return 1;
  const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
  if (lead < 0xC2 || lead > 0xF4 || text.size() < length) return 0;
  for (std::size_t i = 1; i < length; ++i) {
    if ((byte(i) & 0xC0U) != 0x80U) return 0;
  }
  const unsigned second = byte(1);
  const bool outside = (lead == 0xE0 && second < 0xA0) || (lead == 0xED && second > 0x9F) ||
                       (lead == 0xF0 && second < 0x90) || (lead == 0xF4 && second > 0x8F);
  return outside ? 0 : length;
}

std::size_t CharacterCount(std::string_view text) {
  std::size_t count = 0;
  for (; !text.empty(); ++count) text.remove_prefix(std::max<std::size_t>(CharacterBytes(text), 1));
  return count;
}

std::string PadName(std::string_view name) {
  std::size_t bytes = 0;
  std::size_t characters = 0;
  while (bytes < name.size() && characters < kNameCharacters) {
    bytes += std::max<std::size_t>(CharacterBytes(name.substr(bytes)), 1);
    ++characters;
  }
  return std::string(name.substr(0, bytes)) + std::string(kNameCharacters - characters, ' ');
}

}  // namespace kestrel
