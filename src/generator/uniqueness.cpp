// SPDX-License-Identifier: MIT
#include "generator/uniqueness.h"

#include <array>
#include <cstdint>

#include "generator/board_tables.h"
#include "generator/deviation.h"
#include "generator/plain_generator.h"

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
  // With clashing givens a unit need not have every digit, which singles take for granted.
  if (Clash(givens)) return PlainGenerator::HasUniqueSolution(givens, yield);
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
