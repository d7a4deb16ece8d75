// SPDX-License-Identifier: MIT
// Naked and hidden subsets: k digits that must share k cells of a unit.
//
//   naked {3,7}:   | 37  .  37 | 357 .  16 | ...     3 and 7 go from the unit's other cells
//   hidden {4,9}:  | 149 . 4589 | .  16 .  | ...     everything but 4 and 9 goes from those two cells
#include <array>
#include <bit>
#include <span>

#include "solver/combinations.h"
#include "solver/describe.h"
#include "solver/techniques.h"

namespace kestrel {
namespace {

void Describe(Finding& finding, const SolverState& state, CandidateMask digits, std::span<const int> cells,
              int unit) {
  finding.digits = digits;
  for (const int cell : cells) AddCell(finding, cell, state.CellMask(cell) & digits);
  finding.units = {NamedUnit(unit)};
  finding.form = unit / 9 + 1;
}

// The nine cells' candidates; the members are the unsolved cells.
NineSets MasksOf(const SolverState& state, int unit) {
  NineSets masks;
  for (unsigned i = 0; i < 9; ++i) {
    const int cell = kUnitTables.cell[unit][i];
    masks.set[i] = state.CellMask(cell);
    masks.members |= (state.CellValue(cell) == 0 ? 1U : 0U) << i;
  }
  return masks;
}

// Scan order: sets of digits in lexicographic order, without those placed in the unit. Exactly `size`
// unsolved cells must lie within the set; a cell without any candidate counts as one of them.
template <int size>
bool FindNakedInUnit(SolverState& state, const SolverInput& input, int unit) {
  if (!MayHoldSubset<size>(MasksOf(state, unit))) return false;
  const auto& cells = kUnitTables.cell[unit];
  unsigned placed = 0;
  for (const int cell : cells) {
    if (state.CellValue(cell) != 0) placed |= DigitBit(state.CellValue(cell));
  }
  for (const CandidateMask digits : kCombinations<size>) {
    if ((digits & placed) != 0) continue;
    std::array<int, size> found{};
    int count = 0;
    for (const int cell : cells) {
      if (state.CellValue(cell) != 0 || !CellWithinDigits(state, digits, cell)) continue;
      if (count < size) found[count] = cell;
      ++count;
    }
    if (count != size) continue;
    if (EliminateNakedSubset(state, digits, found, static_cast<UnitKind>(unit / 9 + 1))) {
      if (input.finding != nullptr) Describe(*input.finding, state, digits, found, unit);
      return true;
    }
  }
  return false;
}

// Scan order: the same, over digits that have a place in the unit. Together they must have exactly `size`.
template <int size>
bool FindHiddenInUnit(SolverState& state, const SolverInput& input, int unit) {
  NineSets places;
  unsigned small = 0;  // only digits with one to `size` places can take part
  for (int digit = 1; digit <= 9; ++digit) {
    places.set[digit - 1] = state.Places(digit, unit);
    const int count = BitCount[places.set[digit - 1]];
    if (count >= 1 && count <= size) small |= DigitBit(digit);
  }
  if (BitCount[small] < size) return false;
  const auto& cells = kUnitTables.cell[unit];
  return ChooseSets<size>(places, size, small, 0, 0, [&](unsigned digits, unsigned cover) {
    if (BitCount[cover] != size) return false;
    std::array<int, size> found{};
    int count = 0;
    bool removed = false;
    for (unsigned positions = cover; positions != 0; positions &= positions - 1) {
      const int cell = cells[std::countr_zero(positions)];
      found[count++] = cell;
      for (unsigned rest = state.CellMask(cell) & ~digits; rest != 0; rest &= rest - 1) {
        removed |= state.RemoveCandidate(std::countr_zero(rest) + 1, cell);
      }
    }
    if (removed && input.finding != nullptr) {
      Describe(*input.finding, state, static_cast<CandidateMask>(digits), found, unit);
    }
    return removed;
  });
}

// Where a unit lacks n digits in n cells, a naked subset of k is a hidden subset of the n - k other digits in the n - k
// other cells, and both remove the same candidates. So nothing need be looked for that the search for the other has
// just looked for without success; that leaves the sizes near half of n. The single is the hidden subset of one.
template <bool naked, int size>
bool OtherSideIsDone(SolverState& state, int unit) {
  const UnitMask bit = UnitMask{1} << static_cast<unsigned>(unit);
  const auto searched = [&state, bit](UnitScan scan) { return (state.UnitsToScan(scan) & bit) == 0; };
  bool done = false;
  switch (state.OpenCells(unit) - size) {
    case 1:
      done = naked && (state.LoneUnits() & bit) == 0;
      break;
    case 2:
      done = searched(naked ? UnitScan::HiddenPair : UnitScan::NakedPair);
      break;
    case 3:
      done = searched(naked ? UnitScan::HiddenTriple : UnitScan::NakedTriple);
      break;
    case 4:
      done = !naked && searched(UnitScan::NakedQuad);
      break;
    case 5:
      done = !naked && searched(UnitScan::NakedQuint);
      break;
    default:
      done = state.OpenCells(unit) <= size;
  }
  return done && state.Even(unit);
}

// Both forms go through rows, columns and boxes in this order, which is the order of the units' numbers.
template <int size>
bool FindNaked(SolverState& state, const SolverInput& input, UnitScan scan) {
  UnitMask& to_scan = state.UnitsToScan(scan);
  for (; to_scan != 0; to_scan &= to_scan - 1) {
    const int unit = std::countr_zero(to_scan);
    if (OtherSideIsDone<true, size>(state, unit)) continue;
    if (FindNakedInUnit<size>(state, input, unit)) return true;
  }
  return false;
}

template <int size>
bool FindHidden(SolverState& state, const SolverInput& input, UnitScan scan) {
  UnitMask& to_scan = state.UnitsToScan(scan);
  for (; to_scan != 0; to_scan &= to_scan - 1) {
    const int unit = std::countr_zero(to_scan);
    if (OtherSideIsDone<false, size>(state, unit)) continue;
    if (FindHiddenInUnit<size>(state, input, unit)) return true;
  }
  return false;
}

}  // namespace

bool CellWithinDigits(const SolverState& state, CandidateMask digits, int cell) {
  return (state.CellMask(cell) & ~digits) == 0;
}

bool EliminateNakedSubset(SolverState& state, CandidateMask digits, std::span<const int> cells,
                          UnitKind kind) {
  CellSet others = kUnitTables.cells[kUnitTables.unit[cells[0]][static_cast<int>(kind) - 1]];
  for (const int cell : cells) others.Remove(cell);
  bool removed = false;
  for (unsigned rest = digits; rest != 0; rest &= rest - 1) {
    removed |= state.RemoveFrom(others, std::countr_zero(rest) + 1);
  }
  return removed;
}

bool FindSubset(SolverState& state, const SolverInput& input, bool naked, int size) {
  switch (size) {
    case 2:
      return naked ? FindNakedPair(state, input) : FindHiddenPair(state, input);
    case 3:
      return naked ? FindNakedTriple(state, input) : FindHiddenTriple(state, input);
    case 4:
      return naked && FindNakedQuad(state, input);
    case 5:
      return naked && FindNakedQuint(state, input);
    default:
      return false;
  }
}

bool FindNakedPair(SolverState& state, const SolverInput& input) {
  return FindNaked<2>(state, input, UnitScan::NakedPair);
}
bool FindNakedTriple(SolverState& state, const SolverInput& input) {
  return FindNaked<3>(state, input, UnitScan::NakedTriple);
}
bool FindNakedQuad(SolverState& state, const SolverInput& input) {
  return FindNaked<4>(state, input, UnitScan::NakedQuad);
}
bool FindNakedQuint(SolverState& state, const SolverInput& input) {
  return FindNaked<5>(state, input, UnitScan::NakedQuint);
}
bool FindHiddenPair(SolverState& state, const SolverInput& input) {
  return FindHidden<2>(state, input, UnitScan::HiddenPair);
}
bool FindHiddenTriple(SolverState& state, const SolverInput& input) {
  return FindHidden<3>(state, input, UnitScan::HiddenTriple);
}

}  // namespace kestrel
