// SPDX-License-Identifier: MIT
#include "generator/uniqueness.h"

#include <array>
#include <cstdint>
#include <optional>

#include "generator/board_tables.h"
#include "generator/deviation.h"

namespace kestrel {

namespace {

// Any full grid serves to find a first solution; it need not be near the puzzle.
constexpr DigitGrid kPatternGrid = [] {
  DigitGrid grid{};
  for (int cell = 0; cell < kCells; ++cell) {
    const int row = CellRow[cell];
    grid[cell] = static_cast<std::uint8_t>((row % 3 * 3 + row / 3 + CellCol[cell]) % 9 + 1);
  }
  return grid;
}();

bool Clash(const DigitGrid& givens) {
  std::array<CandidateMask, 27> units{};
  for (int cell = 0; cell < kCells; ++cell) {
    if (givens[cell] == 0) continue;
    const CandidateMask digit = DigitBit(givens[cell]);
    for (CandidateMask* unit :
         {&units[CellRow[cell]], &units[9 + CellCol[cell]], &units[18 + CellBox[cell]]}) {
      if ((*unit & digit) != 0) return true;
      *unit |= digit;
    }
  }
  return false;
}

// The digits that neither the row nor the column nor the box of a cell has.
CandidateMask FreeDigits(const DigitGrid& grid, int cell) {
  CandidateMask taken = 0;
  for (int i = 0; i < kUnitSize; ++i) {
    for (const int seen : {RowCell[CellRow[cell]][i], RowCell[i][CellCol[cell]], BoxCell[CellBox[cell]][i]}) {
      if (grid[seen] != 0) taken |= DigitBit(grid[seen]);
    }
  }
  return static_cast<CandidateMask>(kAllDigits & ~taken);
}

// In how many ways the empty cells can be filled, two standing for more; nothing when it was stopped. Tries
// all digits, always in a cell with the fewest. As it was found, the grid is left.
std::optional<int> CountFillings(DigitGrid& grid, Yield& yield) {
  if (!yield.KeepGoing()) return std::nullopt;
  int open = -1;
  CandidateMask free = 0;
  for (int cell = 0; cell < kCells; ++cell) {
    if (grid[cell] != 0) continue;
    const CandidateMask digits = FreeDigits(grid, cell);
    if (open >= 0 && BitCount[digits] >= BitCount[free]) continue;
    open = cell;
    free = digits;
  }
  if (open < 0) return 1;
  int count = 0;
  for (int digit = 1; digit <= 9 && count < 2; ++digit) {
    if (!HasDigit(free, digit)) continue;
    grid[open] = static_cast<std::uint8_t>(digit);
    const std::optional<int> more = CountFillings(grid, yield);
    if (!more) return std::nullopt;
    count += *more;
  }
  grid[open] = 0;
  return count < 2 ? count : 2;
}

// Singles take for granted that a unit can have every digit, which givens that clash rule out.
Uniqueness FindUniquenessAmongClashes(DigitGrid grid, Yield& yield) {
  const std::optional<int> count = CountFillings(grid, yield);
  if (!count) return Uniqueness::Stopped;
  return *count == 2 ? Uniqueness::Several : Uniqueness::Unique;
}

// Whether a grid other than `solution` has the givens: it differs from it in some cell, so one cell after the
// other is asked, with all before it known to be as they are.
Uniqueness LookForAnother(const DigitGrid& solution, const DigitGrid& givens, Yield& yield) {
  const ReferenceGrid reference(solution);
  Alternatives known(reference);
  BitBoard given;
  for (int cell = 0; cell < kCells; ++cell) {
    if (givens[cell] != 0) given |= kBoards.cell[cell];
  }
  known.Give(reference, given, kBoards.all);
  DeviationSearch search(reference, yield);
  while (known.Undecided().Any()) {
    const int cell = known.Undecided().First();
    Deviation otherwise(known, cell);
    const DeviationSearch::Result result = search.Run(otherwise);
    if (result == DeviationSearch::Result::Stopped) return Uniqueness::Stopped;
    if (result == DeviationSearch::Result::Found) return Uniqueness::Several;
    known.Give(reference, kBoards.cell[cell], kBoards.all);
  }
  return Uniqueness::Unique;
}

}  // namespace

Uniqueness FindUniqueness(const DigitGrid& givens, Yield& yield) {
  if (Clash(givens)) return FindUniquenessAmongClashes(givens, yield);
  if (!yield.KeepGoing()) return Uniqueness::Stopped;
  const ReferenceGrid pattern(kPatternGrid);
  Deviation first(pattern, givens);
  DeviationSearch search(pattern, yield);
  const DeviationSearch::Result result = search.Run(first);
  if (result == DeviationSearch::Result::Stopped) return Uniqueness::Stopped;
  if (result == DeviationSearch::Result::Nothing) return Uniqueness::Unique;
  return LookForAnother(search.Solution(givens), givens, yield);
}

}  // namespace kestrel
