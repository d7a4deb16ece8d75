// SPDX-License-Identifier: MIT
#include "host/command_line.h"

#include <array>
#include <utility>

namespace kestrel {

namespace {

constexpr std::array<std::pair<std::string_view, double>, 4> kScales = {
    {{"1", 1}, {"1.25", 1.25}, {"1.5", 1.5}, {"2", 2}}};

// Stores the value of an option; false when it is none of those that take one, or the value makes no sense.
bool Store(GameOptions& options, std::string_view name, std::string_view value, std::string& error) {
  if (value.empty()) {
    error = std::string(name) + " needs a value";
    return false;
  }
  if (name == "--program") {
    options.program = value;
  } else if (name == "--home") {
    options.home = value;
  } else if (name == "--settings") {
    options.settings = value;
  } else if (name == "--screenshot") {
    options.screenshot = value;
  } else {
    options.scale = ParseScale(value);
    if (!options.scale) error = "--scale takes 1, 1.25, 1.5 or 2, not " + std::string(value);
    return options.scale.has_value();
  }
  return true;
}

bool TakesValue(std::string_view name) {
  return name == "--program" || name == "--home" || name == "--settings" || name == "--screenshot" ||
         name == "--scale";
}

}  // namespace

std::optional<double> ParseScale(std::string_view text) {
  for (const auto& [name, value] : kScales) {
    if (text == name) return value;
  }
  return std::nullopt;
}

double FittingScale(double wanted, double room) {
  double fitting = 1;
  for (const auto& [name, value] : kScales) {
    if (value <= wanted && value <= room) fitting = value;
  }
  return fitting;
}

std::optional<GameOptions> ParseGameArguments(std::span<const char* const> arguments, std::string& error) {
  GameOptions options;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const std::string_view argument = arguments[i];
    const std::size_t equals = argument.starts_with("--") ? argument.find('=') : std::string_view::npos;
    const std::string_view name = argument.substr(0, equals);
    if (name == "--help" || name == "-h") {
      options.help = true;
    } else if (name == "--version") {
      options.version = true;
    } else if (TakesValue(name)) {
      std::string_view value;
      if (equals != std::string_view::npos) {
        value = argument.substr(equals + 1);
      } else if (i + 1 < arguments.size()) {
        value = arguments[++i];
      }
      if (!Store(options, name, value, error)) return std::nullopt;
    } else {
      error = "unknown argument " + std::string(argument) + "; --help lists the options";
      return std::nullopt;
    }
  }
  return options;
}

std::string_view GameHelp() {
  return R"(Usage: kestrel-sudoku [OPTION]...
Sudoku with a logic solver that rates, hints and teaches.

  --scale 1|1.25|1.5|2  size of everything, times the desktop's own scale; remembered
  --screenshot FILE     open the next puzzle off screen, save its picture, and end;
                        the settings stay as they are
  --home DIR            keep puzzles and, unless --settings is given, settings (settings.ini) here
  --settings FILE       keep the settings in this file
  --program DIR         take stock, sounds, previews and help pages from here
  --help                show this text
  --version             show the version

Exit status: 0 the game ended as asked, 1 the puzzles could not be read, 2 bad usage, no display,
or a picture that could not be written.
)";
}

}  // namespace kestrel
