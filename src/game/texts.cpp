// SPDX-License-Identifier: MIT
// The composed texts of the main window.
#include "game/texts.h"

#include <cstdint>

#include "core/text.h"

namespace kestrel::texts {

std::string DamagedStock(std::string_view stock, std::string_view older) {
  return "Your file of sudokus '" + std::string(stock) +
         "' is damaged. You can play what is left of it. An older copy, which was good, exists too: '" +
         std::string(older) +
         "'. The command 'kestrel-sudoku-cli stock repair' takes what is damaged from the copy and keeps all "
         "other "
         "sudokus and best times.";
}

std::string OlderStock(std::string_view path) {
  return "An older copy of your puzzles and best times exists: '" + std::string(path) +
         "'. To go on with it, put it in the place of 'sudstock.kpz'. A stock that can be read but is "
         "damaged is made "
         "whole by 'kestrel-sudoku-cli stock repair', which uses this copy too.";
}

std::string WrongDigit(std::string_view cell_name) {
  return "The solution of cell " + std::string(cell_name) + " is incorrect!";
}

std::string ErasedMark(std::string_view cell_name) {
  return "The pencilmark of cell " + std::string(cell_name) + " to solve this cell is incorrectly erased!";
}

std::string HelpOn(std::string_view technique) {
  return "Show help on " + std::string(technique);
}

std::string Caption(bool named, std::string_view player) {
  if (!named) return "Kestrel Sudoku - Free Play (no player selected)";
  return "Kestrel Sudoku - " + std::string(player) + " is playing";
}

std::string LevelPanel(std::string_view level_name) {
  return "Level: " + std::string(level_name);
}

std::string NumberPanel(int number) {
  return "Number: " + std::to_string(number);
}

std::string Time(std::int64_t minutes, std::int64_t seconds) {
  return TwoDigits(minutes) + ":" + TwoDigits(seconds);
}

std::string BestTimePanel(int minutes, int seconds, std::string_view player) {
  return "Best Time: " + Time(minutes, seconds) + " by " + std::string(player);
}

std::string LevelBestPanel(std::string_view time) {
  return "Level Best Time: " + std::string(time);
}

std::string LevelAveragePanel(std::string_view time) {
  return "Level Average Time: " + std::string(time);
}

}  // namespace kestrel::texts
