// SPDX-License-Identifier: MIT
#include "players/best_time.h"

#include <cstdint>

namespace kestrel {

bool IsNewBestTime(const OpenPuzzle& puzzle, std::int32_t seconds) {
  const std::int32_t old =
      BestTime({.BestMinutes = puzzle.PuzzleBestMinutes, .BestSeconds = puzzle.PuzzleBestSeconds});
  return old == 0 || (old > 0 && seconds < old);
}

void EnterBestTime(SudokuRecord& record, OpenPuzzle& puzzle, std::int32_t seconds, int player) {
  puzzle.PuzzleBestMinutes = static_cast<std::int16_t>(seconds / 60);
  puzzle.PuzzleBestSeconds = static_cast<std::int16_t>(seconds % 60);
  puzzle.PuzzleBestPlayer = static_cast<std::int16_t>(player);
  record.BestMinutes = puzzle.PuzzleBestMinutes;
  record.BestSeconds = puzzle.PuzzleBestSeconds;
  record.BestPlayer = puzzle.PuzzleBestPlayer;
}

}  // namespace kestrel
