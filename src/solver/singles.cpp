// SPDX-License-Identifier: MIT
// Hidden single and naked single: the techniques that place a digit.
#include <bit>

#include "solver/describe.h"
#include "solver/techniques.h"

namespace kestrel {
namespace {

// The digits with exactly one place in the unit, in a cell that has other candidates as well.
CandidateMask HiddenSingles(const SolverState& state, int unit) {
  unsigned once = 0;
  unsigned twice = 0;
  unsigned naked = 0;  // candidates of cells that have no other; such a cell is left to the naked single
  for (const int cell : kUnitTables.cell[unit]) {
    const unsigned mask = state.CellMask(cell);
    twice |= once & mask;
    once |= mask;
    if ((mask & (mask - 1)) == 0) naked |= mask;
  }
  return static_cast<CandidateMask>(once & ~twice & ~naked);
}

void DescribeSingle(Finding& finding, int digit, int cell) {
  finding.digits = DigitBit(digit);
  AddCell(finding, cell, DigitBit(digit));
  finding.placed_cell = cell;
  finding.placed_digit = digit;
}

}  // namespace

bool FindHiddenSingle(SolverState& state, const SolverInput& input) {
  // Boxes first, then rows, then columns.
  UnitMask& to_scan = state.UnitsToScan(UnitScan::HiddenSingle);
  for (const UnitMask group : {kAllUnits & ~kRowAndColumnUnits, kRowAndColumnUnits}) {
    for (UnitMask rest = to_scan & group; rest != 0; rest &= rest - 1) {
      const int unit = std::countr_zero(rest);
      const CandidateMask hidden = HiddenSingles(state, unit);
      if (hidden != 0) {
        const int digit = LowestDigit(hidden);
        const int cell = kUnitTables.cell[unit][std::countr_zero(state.Places(digit, unit))];
        state.PlaceValue(digit, cell);
        if (input.finding != nullptr) {
          DescribeSingle(*input.finding, digit, cell);
          input.finding->units = {NamedUnit(unit)};
          input.finding->form = unit >= kFirstBox ? 1 : unit < kFirstColumn ? 2 : 3;
        }
        return true;
      }
      to_scan &= ~(rest & (~rest + 1));
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
