// SPDX-License-Identifier: MIT
// Puzzles as text in the formats that other programs read. Used by all commands that write puzzles.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "formats/puzzle.h"

namespace kestrel {

enum class PuzzleFormat { kLine, kGrid, kSdk, kSs, kOpenSudoku, kCandidates, kJson, kCsv };

// The formats' names, in the order of the enumeration.
inline constexpr std::array<std::string_view, 8> kPuzzleFormats{"line",       "grid",       "sdk",  "ss",
                                                                "opensudoku", "candidates", "json", "csv"};

// What stands before the first puzzle and behind the last; may be empty.
std::string PuzzlesHeader(PuzzleFormat format);
std::string PuzzlesFooter(PuzzleFormat format);

// One puzzle, with the end of its last line. All formats write the givens; candidates writes the state, or without one
// the candidates that the givens leave.
std::string PuzzleText(PuzzleFormat format, const Puzzle& puzzle);

}  // namespace kestrel
