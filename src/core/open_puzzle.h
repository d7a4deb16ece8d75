// SPDX-License-Identifier: MIT
// The open puzzle and the player's board. Owned by the game; read by the hint engine, changed by completion.
#pragma once

#include <array>
#include <cstdint>

#include "core/grid.h"

namespace kestrel {

struct OpenPuzzle {
  DigitGrid GivenDigits{};
  DigitGrid SolutionDigits{};
  DigitGrid CurrentDigits{};                       // the board: givens and what the player filled in
  std::array<CandidateMask, kCells> PencilMask{};  // bit d-1 set exactly while the mark d is shown
  std::int16_t PuzzleLevel = 0;                    // as the record says; 0: no puzzle
  std::int16_t PuzzleNumber = 0;
  std::int16_t PuzzleBestPlayer = 0;
  std::int16_t PuzzleBestMinutes = 0;
  std::int16_t PuzzleBestSeconds = 0;

  // At these levels the marks are candidates; below they are just a keypad.
  [[nodiscard]] bool MarksAreCandidates() const { return PuzzleLevel >= 3; }

  friend bool operator==(const OpenPuzzle&, const OpenPuzzle&) = default;
};

}  // namespace kestrel
