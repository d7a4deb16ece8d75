// SPDX-License-Identifier: MIT
#include "ui/script/parsing.h"

namespace kestrel {

CommandLine SplitCommand(std::string_view line) {
  const std::size_t blank = line.find(' ');
  if (blank == std::string_view::npos) return {line, {}};
  return {line.substr(0, blank), line.substr(blank + 1)};
}

std::vector<std::string_view> Words(std::string_view text) {
  std::vector<std::string_view> words;
  for (;;) {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return words;
    text.remove_prefix(first);
    words.push_back(text.substr(0, text.find(' ')));
    text.remove_prefix(words.back().size());
  }
}

std::optional<int> ParseTime(std::string_view text) {
  if (text.size() != 8 || text[2] != ':' || text[5] != ':') return std::nullopt;
  const auto hours = ParseNumber<unsigned>(text.substr(0, 2));
  const auto minutes = ParseNumber<unsigned>(text.substr(3, 2));
  const auto seconds = ParseNumber<unsigned>(text.substr(6, 2));
  if (!hours || !minutes || !seconds || *hours > 23 || *minutes > 59 || *seconds > 59) return std::nullopt;
  return static_cast<int>(*hours * 3600 + *minutes * 60 + *seconds);
}

std::optional<IndexedName> ParseIndexedName(std::string_view text) {
  const std::size_t open = text.find('(');
  if (open == std::string_view::npos) return IndexedName{text, std::nullopt};
  if (!text.ends_with(')')) return std::nullopt;
  const auto index = ParseNumber<int>(text.substr(open + 1, text.size() - open - 2));
  if (!index) return std::nullopt;
  return IndexedName{text.substr(0, open), index};
}

}  // namespace kestrel
