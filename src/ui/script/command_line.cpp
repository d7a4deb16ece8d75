// SPDX-License-Identifier: MIT
#include "ui/script/command_line.h"

#include <algorithm>
#include <array>
#include <cstdint>

#include "ui/script/parsing.h"
#include "ui/script/texts.h"

namespace kestrel {

namespace {

bool SetSwitch(ScriptCommand& command, std::string_view name) {
  if (name == "--no-sound") {
    command.options.sound = false;
  } else if (name == "--no-printer") {
    command.options.printer = false;
  } else if (name == "--no-browser") {
    command.options.browser = false;
  } else if (name == "--help") {
    command.help = true;
  } else if (name == "--version") {
    command.version = true;
  } else {
    return false;
  }
  return true;
}

bool TakesValue(std::string_view name) {
  constexpr std::array<std::string_view, 5> kNames = {"--program", "--home", "--settings", "--time",
                                                      "--seed"};
  return std::ranges::find(kNames, name) != kNames.end();
}

// False when `value` makes no sense.
bool SetValue(ScriptOptions& options, std::string_view name, std::string_view value) {
  if (name == "--program") options.program = value;
  if (name == "--home") options.home = value;
  if (name == "--settings") options.settings = value;
  if (name == "--time") {
    const auto time = ParseTime(value);
    if (!time) return false;
    options.time = *time;
  }
  if (name == "--seed") {
    const auto seed = ParseNumber<std::uint64_t>(value);
    if (!seed) return false;
    options.seed = *seed;
  }
  return !value.empty();
}

// Folders are used with a separator of their own behind them.
void DropSlashes(std::string& folder) {
  while (folder.size() > 1 && folder.ends_with('/')) folder.pop_back();
}

}  // namespace

std::optional<ScriptCommand> ParseScriptArguments(std::span<const char* const> arguments,
                                                  std::string_view program, std::string& error) {
  ScriptCommand command;
  command.options.program = program;
  const auto fail = [&error](std::string_view reason, std::string_view what) {
    error = std::string(reason) + std::string(what);
    return std::nullopt;
  };
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const std::string_view argument = arguments[i];
    if (SetSwitch(command, argument)) continue;
    if (TakesValue(argument)) {
      if (++i == arguments.size()) return fail(texts::kNeedsValue, argument);
      if (!SetValue(command.options, argument, arguments[i])) return fail(texts::kBadValue, argument);
    } else if (argument.starts_with("-") && argument != "-") {
      return fail(texts::kNoOption, argument);
    } else if (!command.script.empty()) {
      return fail(texts::kOneScript, argument);
    } else {
      command.script = argument;
    }
  }
  if (command.help || command.version) return command;
  if (command.options.home.empty()) return fail(texts::kHomeMissing, "");
  DropSlashes(command.options.home);
  DropSlashes(command.options.program);
  if (command.options.settings.empty()) command.options.settings = command.options.home + "/settings.ini";
  return command;
}

std::string_view ScriptHelp() {
  return texts::kScriptHelp;
}

}  // namespace kestrel
