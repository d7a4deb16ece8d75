// SPDX-License-Identifier: MIT
// The options of the game. Used by its start, before anything of Qt is there.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "host/arguments.h"

namespace kestrel {

inline constexpr int kExitUsage = 2;

struct GameOptions {
  std::string program;   // folder, in the host's form
  std::string home;      // folder for the user's data; empty: the user's own
  std::string settings;  // file; empty: the user's own
  std::optional<double> scale;
  std::string screenshot;  // file; empty: a game that somebody plays
  bool help = false;
  bool version = false;
};

// Takes the words (without the program's name) apart. On bad usage `error` says why.
std::optional<GameOptions> ParseGameArguments(std::span<const std::string> words, std::string& error);

extern const CommandSpec kGameSpec;

// A scale as the option and the setting spell it; nothing for all but "0.75", "1", "1.25", "1.5" and
// "2".
std::optional<double> ParseScale(std::string_view text);

}  // namespace kestrel
