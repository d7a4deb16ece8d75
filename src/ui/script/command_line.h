// SPDX-License-Identifier: MIT
// The options of the script program.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "host/arguments.h"

namespace kestrel {

struct ScriptOptions {
  std::string program;   // folder, in the host's form
  std::string home;      // folder, in the host's form
  std::string settings;  // file, in the host's form
  int time = 12 * 3600;  // second of the day
  std::uint64_t seed = 1;
  bool sound = true;
  bool printer = true;
  bool browser = true;
};

// What the arguments ask for.
struct ScriptCommand {
  ScriptOptions options;
  std::string script;  // file; empty: standard input
  bool help = false;
  bool version = false;
};

// Takes the words (without the program's name) apart. On bad usage `error` says why. `program` is the
// folder of the program where they do not name one.
std::optional<ScriptCommand> ParseScriptArguments(std::span<const std::string> words,
                                                  std::string_view program, std::string& error);

extern const CommandSpec kScriptSpec;

}  // namespace kestrel
