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

constexpr int kLargestSubset = 5;

std::span<const std::uint16_t> DigitCombinations(int size) {
  switch (size) {
    case 2:
      return kCombinations<2>;
    case 3:
      return kCombinations<3>;
    case 4:
      return kCombinations<4>;
    default:
      return kCombinations<5>;
  }
}

void Describe(Finding& finding, const SolverState& state, CandidateMask digits, std::span<const int> cells,
              int unit) {
  finding.digits = digits;
  for (const int cell : cells) AddCell(finding, cell, state.CellMask(cell) & digits);
  finding.units = {NamedUnit(unit)};
  finding.form = unit / 9 + 1;
}

bool FindNakedInUnit(SolverState& state, const SolverInput& input, int unit, int size) {
  const auto& cells = kUnitTables.cell[unit];
  NineSets masks;
  unsigned open = kAllDigits;
  for (unsigned i = 0; i < 9; ++i) {
    const int value = state.CellValue(cells[i]);
    masks.set[i] = state.CellMask(cells[i]);
    if (value == 0) {
      masks.members |= 1U << i;
    } else {
      open &= ~DigitBit(value);
    }
  }
  if (!MayHoldSubset(masks, size)) return false;
  for (const CandidateMask digits : DigitCombinations(size)) {
    if ((digits & ~open) != 0) continue;
    std::array<int, kLargestSubset> found{};
    int count = 0;
    for (const int cell : cells) {
      if (state.CellValue(cell) != 0 || !CellWithinDigits(state, digits, cell)) continue;
      if (count < size) found[count] = cell;
      ++count;
    }
    if (count != size) continue;
    const std::span<const int> subset(found.data(), static_cast<std::size_t>(size));
    if (EliminateNakedSubset(state, digits, subset, static_cast<UnitKind>(unit / 9 + 1))) {
      if (input.finding != nullptr) Describe(*input.finding, state, digits, subset, unit);
      return true;
    }
  }
  return false;
}

bool FindHiddenInUnit(SolverState& state, const SolverInput& input, int unit, int size) {
  // Only digits with one to `size` places can take part.
  unsigned eligible = 0;
  for (int digit = 1; digit <= 9; ++digit) {
    const int places = BitCount[state.Places(digit, unit)];
    if (places >= 1 && places <= size) eligible |= DigitBit(digit);
  }
  if (BitCount[eligible] < size) return false;
  for (const CandidateMask digits : DigitCombinations(size)) {
    if ((digits & ~eligible) != 0) continue;
    unsigned places = 0;
    for (unsigned rest = digits; rest != 0; rest &= rest - 1) {
      places |= state.Places(std::countr_zero(rest) + 1, unit);
    }
    if (BitCount[places] != size) continue;
    std::array<int, kLargestSubset> found{};
    int count = 0;
    bool removed = false;
    for (; places != 0; places &= places - 1) {
      const int cell = kUnitTables.cell[unit][std::countr_zero(places)];
      found[count++] = cell;
      for (unsigned rest = state.CellMask(cell) & ~digits; rest != 0; rest &= rest - 1) {
        removed |= state.RemoveCandidate(std::countr_zero(rest) + 1, cell);
      }
    }
    if (removed) {
      if (input.finding != nullptr) {
        Describe(*input.finding, state, digits, {found.data(), static_cast<std::size_t>(size)}, unit);
      }
      return true;
    }
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
  if (size < 2 || size > (naked ? kLargestSubset : 3)) return false;
  const int first = static_cast<int>(naked ? UnitScan::NakedPair : UnitScan::HiddenPair);
  UnitMask& to_scan = state.UnitsToScan(static_cast<UnitScan>(first + size - 2));
  for (; to_scan != 0; to_scan &= to_scan - 1) {
    const int unit = std::countr_zero(to_scan);
    if (naked ? FindNakedInUnit(state, input, unit, size) : FindHiddenInUnit(state, input, unit, size)) {
      return true;
    }
  }
  return false;
}

bool FindNakedPair(SolverState& state, const SolverInput& input) {
  return FindSubset(state, input, true, 2);
}
bool FindNakedTriple(SolverState& state, const SolverInput& input) {
  return FindSubset(state, input, true, 3);
}
bool FindNakedQuad(SolverState& state, const SolverInput& input) {
  return FindSubset(state, input, true, 4);
}
bool FindNakedQuint(SolverState& state, const SolverInput& input) {
  return FindSubset(state, input, true, 5);
}
bool FindHiddenPair(SolverState& state, const SolverInput& input) {
  return FindSubset(state, input, false, 2);
}
bool FindHiddenTriple(SolverState& state, const SolverInput& input) {
  return FindSubset(state, input, false, 3);
}

}  // namespace kestrel
