// SPDX-License-Identifier: MIT
// Keeps the three forms of the candidates in step.
#include "solver/solver_state.h"

namespace kestrel {

SolverState::SolverState() : SolverState(DigitGrid{}) {
}

SolverState::SolverState(const DigitGrid& givens) {
  // PlaceValue only ever removes: its own cell ends without candidates and its digit is gone from the 20
  // cells around, in whatever order the givens come. So the outcome of entering all of them can be written
  // down.
  std::array<CandidateMask, kUnits> taken{};
  for (int c = 0; c < kCells; ++c) {
    if (givens[c] < 1 || givens[c] > 9) continue;
    for (const int unit : kUnitTables.unit[c]) taken[unit] |= DigitBit(givens[c]);
  }
  MarkGrid marks{};
  for (int c = 0; c < kCells; ++c) {
    if (givens[c] >= 1 && givens[c] <= 9) continue;
    const auto& unit = kUnitTables.unit[c];
    marks[c] = static_cast<CandidateMask>(kAllDigits & ~(taken[unit[0]] | taken[unit[1]] | taken[unit[2]]));
  }
  Fill(givens, marks);
}

SolverState::SolverState(const DigitGrid& digits, const MarkGrid& marks) {
  Fill(digits, marks);
}

void SolverState::Fill(const DigitGrid& digits, const MarkGrid& marks) {
  for (int c = 0; c < kCells; ++c) {
    if (digits[c] >= 1 && digits[c] <= 9) {
      cell_value_[c] = digits[c];
      --unsolved_;
    }
    cell_mask_[c] = marks[c] & kAllDigits;
    for (CandidateMask rest = cell_mask_[c]; rest != 0; rest &= rest - 1) {
      const int digit = LowestDigit(rest);
      cells_[digit - 1].Add(c);
      for (int k = 0; k < 3; ++k) {
        places_[digit - 1][kUnitTables.unit[c][k]] |= kUnitTables.position[c][k];
      }
    }
  }
}

// The candidate must be there.
void SolverState::ClearCandidate(int digit, int cell) {
  cell_mask_[cell] = Without(cell_mask_[cell], DigitBit(digit));
  cells_[digit - 1].Remove(cell);
  auto& places = places_[digit - 1];
  for (int k = 0; k < 3; ++k) {
    PositionMask& unit_places = places[kUnitTables.unit[cell][k]];
    unit_places = Without(unit_places, kUnitTables.position[cell][k]);
  }
  changed_units_ |= kUnitTables.units[cell];
  changed_digits_ |= DigitBit(digit);
}

void SolverState::PlaceValue(int digit, int cell) {
  if (cell_value_[cell] == 0) --unsolved_;
  cell_value_[cell] = static_cast<std::uint8_t>(digit);
  changed_units_ |= kUnitTables.units[cell];
  for (CandidateMask rest = cell_mask_[cell]; rest != 0; rest &= rest - 1) {
    ClearCandidate(LowestDigit(rest), cell);
  }
  for (const int peer : kUnitTables.peers[cell] & cells_[digit - 1]) ClearCandidate(digit, peer);
}

bool SolverState::RemoveCandidate(int digit, int cell) {
  if (!CandidateFlag(digit - 1, cell)) return false;
  ClearCandidate(digit, cell);
  return true;
}

bool SolverState::RemoveFrom(CellSet cells, int digit) {
  bool removed = false;
  for (const int cell : cells& cells_[digit - 1]) removed |= RemoveCandidate(digit, cell);
  return removed;
}

bool SolverState::EliminateSeenByBoth(int a, int b, int digit) {
  return RemoveFrom(kUnitTables.peers[a] & kUnitTables.peers[b], digit);
}

SolverState::CellsBySize SolverState::CellsByCandidates() const {
  // Counts in all 81 cells at once: at_least[n] is the set of cells with more than n candidates so far.
  CellSet at_least_1;
  CellSet at_least_2;
  CellSet at_least_3;
  CellSet at_least_4;
  for (const CellSet& cells : cells_) {
    at_least_4 |= at_least_3 & cells;
    at_least_3 |= at_least_2 & cells;
    at_least_2 |= at_least_1 & cells;
    at_least_1 |= cells;
  }
  return {at_least_1 - at_least_2, at_least_2 - at_least_3, at_least_3 - at_least_4};
}

void SolverState::PassOnChanges() {
  if (changed_units_ == 0) return;
  for (UnitMask& units : units_to_scan_) units |= changed_units_;
  for (CandidateMask& digits : digits_to_scan_) digits |= changed_digits_;
  changed_units_ = 0;
  changed_digits_ = 0;
}

UnitMask& SolverState::UnitsToScan(UnitScan scan) {
  PassOnChanges();
  return units_to_scan_[static_cast<std::size_t>(scan)];
}

CandidateMask& SolverState::DigitsToScan(DigitScan scan) {
  PassOnChanges();
  return digits_to_scan_[static_cast<std::size_t>(scan)];
}

}  // namespace kestrel
