// SPDX-License-Identifier: MIT
#include "game/status_bar.h"

#include <algorithm>
#include <cstdint>

#include "core/level_names.h"
#include "forms/texts.h"
#include "game/texts.h"

namespace kestrel {

namespace {

// Rounded down also below 0, which only times from a foreign stock file can be.
std::int32_t WholeParts(std::int32_t sum, std::int32_t part) {
  return sum / part - (sum % part < 0 ? 1 : 0);
}

std::string TimeOfSeconds(std::int32_t seconds) {
  return texts::Time(WholeParts(seconds, 60), seconds % 60);
}

}  // namespace

LevelTimes TimesOfLevel(const StockTable& stock, int level) {
  std::int32_t best = 0;
  std::int32_t sum = 0;
  std::int32_t count = 0;
  for (int number = 1; number <= kPuzzlesPerLevel; ++number) {
    const SudokuRecord& record = stock(level, number);
    if (record.BestMinutes <= 0 && record.BestSeconds <= 0) continue;
    const std::int32_t seconds = BestTime(record);
    best = count == 0 ? seconds : std::min(best, seconds);
    sum += seconds;
    ++count;
  }
  return {best, count == 0 ? 0 : WholeParts(sum, count)};
}

void ShowStatus(MainWindow& main, const OpenPuzzle& puzzle, const StockTable& stock, const Players& players,
                int level) {
  auto& panels = main.StatusBar;
  panels(1).caption = texts::LevelPanel(LevelName(level));
  panels(2).caption = texts::NumberPanel(puzzle.PuzzleNumber);
  ShowBestTime(main, puzzle, players);
  if (puzzle.PuzzleBestMinutes <= 0 && puzzle.PuzzleBestSeconds <= 0) panels(3).caption = texts::kNoBestTime;
  ShowLevelTimes(main, stock, level);
}

void ShowBestTime(MainWindow& main, const OpenPuzzle& puzzle, const Players& players) {
  main.StatusBar(3).caption = texts::BestTimePanel(puzzle.PuzzleBestMinutes, puzzle.PuzzleBestSeconds,
                                                   players.Name(puzzle.PuzzleBestPlayer));
}

void ShowLevelTimes(MainWindow& main, const StockTable& stock, int level) {
  const LevelTimes times = TimesOfLevel(stock, level);
  main.StatusBar(4).caption = texts::LevelBestPanel(TimeOfSeconds(times.best));
  main.StatusBar(5).caption = texts::LevelAveragePanel(TimeOfSeconds(times.average));
}

}  // namespace kestrel
