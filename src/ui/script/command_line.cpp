// SPDX-License-Identifier: MIT
#include "ui/script/command_line.h"

#include <array>
#include <cstdint>

#include "ui/script/parsing.h"
#include "ui/script/texts.h"

namespace kestrel {

namespace {

constexpr std::array<OptionSpec, 9> kScriptOptions{{
    {"home", "DIR", "the user's local application data folder (required)"},
    {"program", "DIR", "the program folder: first stock, sounds, previews"},
    {"settings", "FILE", "where the settings are kept (settings.ini in --home)"},
    {"time", "HH:MM:SS", "the time of day at the start (12:00:00)"},
    {"seed", "N", "what the random numbers start from (1)"},
    {"no-sound", "", "there is no sound device"},
    {"no-printer", "", "the printer cannot be reached"},
    {"no-browser", "", "no program is associated with HTML files"},
    {"version", "", "show the version and end"},
}};

// Folders are used with a separator of their own behind them.
void DropSlashes(std::string& folder) {
  while (folder.size() > 1 && folder.ends_with('/')) folder.pop_back();
}

}  // namespace

const CommandSpec kScriptSpec{"",
                              "[FILE]",
                              1,
                              "Plays the game by the lines of FILE and prints what happens",
                              "Without FILE, or where FILE is -, standard input is read.",
                              kScriptOptions,
                              "--home games my.script\n"
                              "--home games --seed 7 --time 23:59:50 my.script"};

std::optional<ScriptCommand> ParseScriptArguments(std::span<const std::string> words,
                                                  std::string_view program, std::string& error) {
  Arguments arguments(kScriptSpec, words);
  ScriptCommand command;
  ScriptOptions& options = command.options;
  command.help = arguments.HelpWanted();
  command.version = arguments.Has("version");
  options.program = arguments.Text("program", program);
  options.home = arguments.Text("home", "");
  options.seed = arguments.Number("seed", options.seed, 0, UINT64_MAX);
  options.sound = !arguments.Has("no-sound");
  options.printer = !arguments.Has("no-printer");
  options.browser = !arguments.Has("no-browser");
  if (arguments.Has("time")) {
    const auto time = ParseTime(arguments.Text("time", ""));
    if (!time) arguments.FailValue("time", "HH:MM:SS");
    options.time = time.value_or(0);
  }
  if (!command.help && !command.version && options.home.empty()) {
    arguments.Fail(std::string(texts::kHomeMissing));
  }
  error = arguments.Error();
  if (!error.empty()) return std::nullopt;
  DropSlashes(options.home);
  DropSlashes(options.program);
  options.settings = arguments.Text("settings", options.home + "/settings.ini");
  if (!arguments.Operands().empty()) command.script = arguments.Operands()[0];
  return command;
}

}  // namespace kestrel
