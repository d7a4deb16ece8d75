// SPDX-License-Identifier: MIT
#include "ui/memory/json_string.h"

#include <cstddef>

namespace kestrel {
namespace {

// The length of the UTF-8 character at the start of `text` (not empty), or 0 when there is none: stray or
// missing continuation bytes, overlong forms, surrogates, codes above U+10FFFF.
std::size_t CharacterLength(std::string_view text) {
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

}  // namespace

std::string JsonString(std::string_view text) {
  constexpr std::string_view kHex = "0123456789abcdef";
  std::string json = "\"";
  while (!text.empty()) {
    const std::size_t length = CharacterLength(text);
    const char c = text.front();
    if (length == 0) {
      json += "\\ufffd";
    } else if (c == '"' || c == '\\') {
      json += {'\\', c};
    } else if (c == '\n') {
      json += "\\n";
    } else if (static_cast<unsigned char>(c) < 0x20 || c == 0x7F) {
      json += {'\\', 'u', '0', '0', kHex[static_cast<unsigned char>(c) / 16U], kHex[c % 16]};
    } else {
      json += text.substr(0, length);
    }
    text.remove_prefix(length == 0 ? 1 : length);
  }
  return json + '"';
}

}  // namespace kestrel
