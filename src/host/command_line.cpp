// SPDX-License-Identifier: MIT
#include "host/command_line.h"

#include <array>
#include <utility>

namespace kestrel {

namespace {

constexpr std::array<std::pair<std::string_view, double>, 5> kScales = {
    {{"0.75", 0.75}, {"1", 1}, {"1.25", 1.25}, {"1.5", 1.5}, {"2", 2}}};

constexpr std::array<OptionSpec, 6> kGameOptions{{
    {"scale", "0.75|1|1.25|1.5|2",
     "size of everything, times the desktop's own scale;\nremembered, and changed in the View menu"},
    {"screenshot", "FILE",
     "open the next puzzle off screen, save its picture, and end;\nthe settings stay as they are"},
    {"home", "DIR", "keep puzzles and, unless --settings is given, settings\n(settings.ini) in this folder"},
    {"settings", "FILE", "keep the settings in this file"},
    {"program", "DIR", "take stock, sounds, previews and help pages from here"},
    {"version", "", "show the version and end"},
}};

}  // namespace

std::optional<double> ParseScale(std::string_view text) {
  for (const auto& [name, value] : kScales) {
    if (text == name) return value;
  }
  return std::nullopt;
}

const CommandSpec kGameSpec{
    "",
    "",
    0,
    "Sudoku with a logic solver that rates, hints and teaches",
    "Exit status: 0 the game ended as asked, 1 the puzzles could not be read, 2 bad usage,\n"
    "no display, or output that could not be written.",
    kGameOptions,
    "--scale 1.5\n"
    "--home games --screenshot next.png"};

std::optional<GameOptions> ParseGameArguments(std::span<const std::string> words, std::string& error) {
  Arguments arguments(kGameSpec, words);
  GameOptions options;
  options.program = arguments.Text("program", "");
  options.home = arguments.Text("home", "");
  options.settings = arguments.Text("settings", "");
  options.screenshot = arguments.Text("screenshot", "");
  options.help = arguments.HelpWanted();
  options.version = arguments.Has("version");
  if (arguments.Has("scale")) {
    options.scale = ParseScale(arguments.Text("scale", ""));
    if (!options.scale) arguments.FailValue("scale", "0.75, 1, 1.25, 1.5 or 2");
  }
  error = arguments.Error();
  if (!error.empty()) return std::nullopt;
  return options;
}

}  // namespace kestrel
