// SPDX-License-Identifier: MIT
// The composed message of printing.
#include "print/texts.h"

#include "core/level_names.h"
#include "forms/texts.h"

namespace kestrel::texts {

std::string NumberText(std::string_view label, int number) {
  return std::string(label) + (label.empty() ? "" : "  ") + std::string(kNumber) + std::to_string(number);
}

std::string DocumentTitle(const PrintSettings& settings) {
  std::string title(kProductName);
  title += ' ';
  title += LevelName(settings.level_index + 1);
  title += ' ' + std::to_string(settings.first_number);
  if (LastNumber(settings) != settings.first_number) title += '-' + std::to_string(LastNumber(settings));
  return title;
}

std::string BadRange(const PrintSettings& settings) {
  return "a level ends at puzzle " + std::to_string(kPuzzlesPerLevel) + ": the first of " +
         std::to_string(PuzzlesPrinted(settings)) + " puzzles is from 1 to " +
         std::to_string(HighestFirstNumber(settings)) + ", not " + std::to_string(settings.first_number);
}

}  // namespace kestrel::texts
