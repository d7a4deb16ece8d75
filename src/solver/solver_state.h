// SPDX-License-Identifier: MIT
// What is known about a puzzle while it is being solved: digits placed and candidates left. The rating
// solver, the hint engine and every test own one; the techniques work on whichever they are given.
//
// The candidates stand in three forms that always say the same, each answering one question at once:
//
//   CellMask(cell)         which digits can this cell hold?      81 x 9 bits    c40: {5,7}  -> 001010000
//   Cells(digit)           which cells can hold this digit?       9 x 81 bits   5: one bit per cell
//   Places(digit, unit)    where in this unit can it go?     27 x 9 x 9 bits    5 in row 4: .1..1...1
//
// Invariant: bit d-1 of CellMask(c), cell c of Cells(d), and c's position in Places(d, u) for the three units
// u of c are set or clear together; LoneDigits(u) are the digits with one place in u. Candidates are only
// ever removed. Nothing else is promised: the digits may contradict each other, an unsolved cell may have no
// candidate left, and a state built from pencil marks may have candidates that equal a digit placed next to
// them, or marks in a cell that holds a digit.
#pragma once

#include <array>
#include <cstdint>

#include "core/cell_set.h"
#include "core/grid.h"
#include "solver/unit_table.h"

namespace kestrel {

// Pencil marks by cell.
using MarkGrid = std::array<CandidateMask, kCells>;

// The searches that go unit by unit and whose result for one unit depends on the cells of that unit alone.
enum class UnitScan : std::uint8_t {
  NakedPair,
  NakedTriple,
  NakedQuad,
  NakedQuint,
  HiddenPair,
  HiddenTriple,
  kCount
};

// The searches that go digit by digit and whose result depends on the cells of that digit alone.
enum class DigitScan : std::uint8_t {
  Pointing,
  BoxLineRows,
  BoxLineColumns,
  XWingRows,
  XWingColumns,
  SwordfishRows,
  SwordfishColumns,
  JellyfishRows,
  JellyfishColumns,
  FinnedRows,
  FinnedColumns,
  TwoStringKite,
  Skyscraper,
  EmptyRectangle,
  kCount
};

class SolverState {
 public:
  // The empty grid: nothing placed, every digit a candidate everywhere.
  SolverState();

  // A puzzle: the empty grid after PlaceValue of every given (1..9; 0 and anything above 9 is an empty cell)
  // in cell order. Givens that contradict each other are entered all the same.
  explicit SolverState(const DigitGrid& givens);

  // A position as it stands on a board: digits (0 or above 9 is an empty cell) and the marks shown, exactly
  // as given. Neither is checked against the other.
  SolverState(const DigitGrid& digits, const MarkGrid& marks);

  // 0 = not solved yet, 1..9 = the digit placed, a given or a deduction.
  [[nodiscard]] int CellValue(int cell) const { return cell_value_[cell]; }
  // True while digit index + 1 is a candidate of the cell; index 0..8.
  [[nodiscard]] bool CandidateFlag(int index, int cell) const {
    return ((cell_mask_[cell] >> static_cast<unsigned>(index)) & 1U) != 0;
  }
  // The candidates of the cell; empty for a cell solved by PlaceValue.
  [[nodiscard]] CandidateMask CellMask(int cell) const { return cell_mask_[cell]; }
  // The cells that have the digit (1..9) as a candidate.
  [[nodiscard]] const CellSet& Cells(int digit) const { return cells_[digit - 1]; }
  // The positions in the unit (0..26) where the digit (1..9) is a candidate.
  [[nodiscard]] PositionMask Places(int digit, int unit) const { return units_[unit].places[digit - 1]; }
  // The digits that are a candidate in exactly one cell of the unit (0..26).
  [[nodiscard]] CandidateMask LoneDigits(int unit) const { return units_[unit].lone_digits; }
  // The number of cells of the unit (0..26) without a digit.
  [[nodiscard]] int OpenCells(int unit) const { return BitCount[units_[unit].open]; }
  // True when the unit lacks just as many digits as it has open cells, each with a place in it, and nothing else is a
  // candidate there, as in any unit of a sound puzzle. Never true of a state made from marks.
  [[nodiscard]] bool Even(int unit) const;
  // True when every cell has a digit.
  [[nodiscard]] bool Solved() const { return unsolved_ == 0; }

  // Writes the digit (1..9) into the cell, whatever it held, empties the cell's candidates and removes the
  // digit from those of the 20 cells that see it.
  void PlaceValue(int digit, int cell);
  // Removes the digit (1..9) from the cell's candidates. False, and nothing changed, if it was not one.
  bool RemoveCandidate(int digit, int cell);
  // RemoveCandidate for every cell of the set. True if any cell had the digit.
  bool RemoveFrom(CellSet cells, int digit);
  // Removes the digit from every cell other than a and b that sees both. True if any cell had it.
  bool EliminateSeenByBoth(int a, int b, int digit);

  // The cells with exactly one, two and three candidates.
  struct CellsBySize {
    CellSet one;
    CellSet two;
    CellSet three;
  };
  [[nodiscard]] CellsBySize CellsByCandidates() const {
    // Counts in all 81 cells at once: at_least_2 are the cells met in two or more of the sets so far.
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

  // What a search has still to look at: at first everything, afterwards what has changed since the search
  // cleared the unit's or digit's bit because it had found nothing there. A search that skips the other
  // units or digits therefore finds the same as one that looks everywhere.
  UnitMask& UnitsToScan(UnitScan scan);
  CandidateMask& DigitsToScan(DigitScan scan);

  // The same for the hidden single: the units in which a digit has come down to one place since the search
  // cleared the unit's bit.
  UnitMask& LoneUnits() { return lone_units_; }

  // Same digits and same candidates; what has been scanned does not count.
  friend bool operator==(const SolverState& a, const SolverState& b) {
    return a.cell_value_ == b.cell_value_ && a.cell_mask_ == b.cell_mask_;
  }

 private:
  void DeriveUnits(CellSet open_cells);
  UnitMask ClearPlaces(int digit, int cell);
  void PassOnChanges();

  std::array<std::uint8_t, kCells> cell_value_{};
  int unsolved_ = kCells;
  std::array<CandidateMask, kCells> cell_mask_{};
  std::array<CellSet, 9> cells_{};
  struct UnitCandidates {
    std::array<PositionMask, 9> places{};  // by digit - 1
    CandidateMask lone_digits = 0;
    PositionMask open = kAllDigits;  // the cells without a digit
    CandidateMask placed = 0;        // digits that were ever placed here
  };
  std::array<UnitCandidates, kUnits> units_{};
  UnitMask lone_units_ = kAllUnits;
  // Made from digits alone: no solved cell has a candidate, no unit has one of a digit placed in it.
  bool from_digits_ = false;

  // Changes not yet passed on to the searches' own lists.
  UnitMask changed_units_ = kAllUnits;
  CandidateMask changed_digits_ = kAllDigits;
  std::array<UnitMask, static_cast<std::size_t>(UnitScan::kCount)> units_to_scan_{};
  std::array<CandidateMask, static_cast<std::size_t>(DigitScan::kCount)> digits_to_scan_{};
};

}  // namespace kestrel
