// SPDX-License-Identifier: MIT
// Puzzles for tests: read from text, made from a seed, solved by brute force. Shares no code with the
// product's solver and generator beyond the grid tables.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "core/grid.h"
#include "core/random_source.h"

namespace kestrel::testing {

// The first 81 characters as a grid: '1'..'9' a digit, anything else an empty cell.
DigitGrid GridFromText(std::string_view text);
// 81 characters, '.' for an empty cell.
std::string TextFromGrid(const DigitGrid& grid);

// Counts solutions by backtracking, up to `limit`; stores the first in `solution` if that is not null. Givens
// that contradict each other have none.
int CountSolutions(const DigitGrid& givens, int limit, DigitGrid* solution = nullptr);

// The same for givens that may contradict each other: how many ways there are to fill the empty cells without a
// clash that was not there before.
int CountFillings(const DigitGrid& givens, int limit);

// A random complete grid.
DigitGrid MakeTestGrid(RandomSource& random);

// A puzzle with one solution, symmetric under a half-turn, from which no pair of cells can be taken.
DigitGrid MakeTestPuzzle(RandomSource& random);

}  // namespace kestrel::testing
