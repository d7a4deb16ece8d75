// SPDX-License-Identifier: MIT
#include "ui/memory/json_string.h"

#include <cstddef>

#include "core/text.h"

namespace kestrel {

std::string JsonString(std::string_view text) {
  constexpr std::string_view kHex = "0123456789abcdef";
  std::string json = "\"";
  while (!text.empty()) {
    const std::size_t length = CharacterBytes(text);
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
