// SPDX-License-Identifier: MIT
// The hint engine: checks the player's board, then finds the simplest technique that makes progress on the
// player's own pencil marks. Used by the "Hint" button.
#pragma once

#include <cstdint>
#include <optional>

#include "core/open_puzzle.h"
#include "core/technique.h"
#include "core/yield.h"

namespace kestrel {

// What FindHint answers, as one number:
//   0          nothing to say: the board is full, or no technique makes progress
//   1..22      the technique of this step makes progress
//   23..103    cell (code - 23) holds a digit that is not its solution
//   104..184   cell (code - 104) is empty, and its pencil mark for the solution digit is not shown
//   185        the board is sound, but puzzles of this level get no hints
using HintCode = std::int16_t;
inline constexpr HintCode kNoHint = 0;
inline constexpr HintCode kFirstWrongDigit = kTechniques + 1;
inline constexpr HintCode kFirstErasedMark = kFirstWrongDigit + kCells;
inline constexpr HintCode kNoHintsAtThisLevel = kFirstErasedMark + kCells;

// The first mistake in cell order counts. The technique is looked for on a state of the engine's own: board
// and marks are only read, and both as they are at the call. Asks `yield` once, before the search; nothing is
// returned when it says stop.
std::optional<HintCode> FindHint(const OpenPuzzle& puzzle, Yield& yield);

}  // namespace kestrel
