// SPDX-License-Identifier: MIT
#include "ui/memory/transcript.h"

#include <array>
#include <charconv>

namespace kestrel {

std::string JsonString(std::string_view text) {
  constexpr std::string_view kHex = "0123456789abcdef";
  std::string json = "\"";
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    if (c == '"' || c == '\\') {
      json += '\\';
      json += c;
    } else if (c == '\n') {
      json += "\\n";
    } else if (byte < 0x20) {
      json += "\\u00";
      json += kHex[byte >> 4U];
      json += kHex[byte & 15U];
    } else {
      json += c;
    }
  }
  return json + '"';
}

std::string TruthValue(bool value) {
  return value ? "true" : "false";
}

std::string Points(double points) {
  std::array<char, 32> text{};
  const auto end = std::to_chars(text.data(), text.data() + text.size(), points).ptr;
  return {text.data(), end};
}

}  // namespace kestrel
