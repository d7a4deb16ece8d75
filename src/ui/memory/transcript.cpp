// SPDX-License-Identifier: MIT
#include "ui/memory/transcript.h"

#include <array>
#include <charconv>

namespace kestrel {

std::string TruthValue(bool value) {
  return value ? "true" : "false";
}

std::string Points(double points) {
  std::array<char, 32> text{};
  const auto end = std::to_chars(text.data(), text.data() + text.size(), points).ptr;
  return {text.data(), end};
}

}  // namespace kestrel
