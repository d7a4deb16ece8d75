// SPDX-License-Identifier: MIT
// Whether a time is a new best time, and its entry into the record. Used by completion.
#pragma once

#include <cstdint>

#include "core/open_puzzle.h"
#include "core/stock_table.h"

namespace kestrel {

// True when the puzzle has no best time yet or `seconds` is below it; an equal time is none, and no time
// beats a negative one (which only a foreign stock file can have).
[[nodiscard]] bool IsNewBestTime(const OpenPuzzle& puzzle, std::int32_t seconds);

// Enters time and player into the puzzle's record and into the open puzzle.
void EnterBestTime(SudokuRecord& record, OpenPuzzle& puzzle, std::int32_t seconds, int player);

}  // namespace kestrel
