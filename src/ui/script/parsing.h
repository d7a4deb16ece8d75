// SPDX-License-Identifier: MIT
// Taking script lines and command line values apart.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/text.h"
#include "forms/control.h"

namespace kestrel {

// The first word of a line, and what follows the one blank after it, as it stands.
struct CommandLine {
  std::string_view word;
  std::string_view rest;
};
CommandLine SplitCommand(std::string_view line);

// The words of a text, any number of blanks between them.
std::vector<std::string_view> Words(std::string_view text);

// "HH:MM:SS" as the second of the day.
std::optional<int> ParseTime(std::string_view text);

// "NAME(K)" as name and index, "NAME" as name alone; nothing when it is neither.
struct IndexedName {
  std::string_view name;
  std::optional<int> index;
};
std::optional<IndexedName> ParseIndexedName(std::string_view text);

}  // namespace kestrel
