// SPDX-License-Identifier: MIT
// Hidden single and naked single: the techniques that place a digit.
#include <bit>

#include "solver/combinations.h"
#include "solver/describe.h"
#include "solver/techniques.h"

namespace kestrel {
namespace {

// The lowest digit with one place in the unit, in a cell that has other candidates as well; 0 if none. A cell
// without others is left to the naked single.
int HiddenSingle(const SolverState& state, int unit, int& cell) {
  for (CandidateMask rest = state.LoneDigits(unit); rest != 0; rest &= rest - 1) {
    const int digit = LowestDigit(rest);
    cell = kUnitTables.cell[unit][std::countr_zero(state.Places(digit, unit))];
    if (state.CellMask(cell) != DigitBit(digit)) return digit;
  }
  return 0;
}

void DescribeSingle(Finding& finding, int digit, int cell) {
  finding.digits = DigitBit(digit);
  AddCell(finding, cell, DigitBit(digit));
  finding.placed_cell = cell;
  finding.placed_digit = digit;
}

}  // namespace

bool FindHiddenSingle(SolverState& state, const SolverInput& input) {
  // Scan order: boxes, rows, columns; in a unit the lowest digit. Units where no digit has newly come down to
  // one place need no look: what was passed over there before is passed over still.
  UnitMask& lone_units = state.LoneUnits();
  for (const UnitMask group : {kAllUnits & ~kRowAndColumnUnits, kRowAndColumnUnits}) {
    for (UnitMask rest = lone_units & group; rest != 0; rest &= rest - 1) {
      const int unit = std::countr_zero(rest);
      int cell = 0;
      const int digit = HiddenSingle(state, unit, cell);
      if (digit == 0) {
        lone_units &= ~LowestBit(rest);
        continue;
      }
      state.PlaceValue(digit, cell);
      if (input.finding != nullptr) {
        DescribeSingle(*input.finding, digit, cell);
        input.finding->units = {NamedUnit(unit)};
        input.finding->form = unit >= kFirstBox ? 1 : unit < kFirstColumn ? 2 : 3;
      }
      return true;
    }
  }
  return false;
}

bool FindNakedSingle(SolverState& state, const SolverInput& input) {
  const CellSet singles = state.CellsByCandidates().one;
  if (singles.Empty()) return false;
  const int cell = singles.First();
  const int digit = LowestDigit(state.CellMask(cell));
  state.PlaceValue(digit, cell);
  if (input.finding != nullptr) DescribeSingle(*input.finding, digit, cell);
  return true;
}

}  // namespace kestrel
