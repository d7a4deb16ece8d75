// SPDX-License-Identifier: MIT
// Keeps the three forms of the candidates in step.
#include "solver/solver_state.h"

#include <cstdint>

namespace kestrel {
namespace {

// Nine bits spread seven apart: bit c to bit 7 x c.
constexpr std::array<std::uint64_t, 512> kSpread = [] {
  std::array<std::uint64_t, 512> table{};
  for (unsigned mask = 0; mask < 512; ++mask) {
    for (unsigned c = 0; c < 9; ++c) table[mask] |= static_cast<std::uint64_t>(mask >> c & 1U) << 7 * c;
  }
  return table;
}();

// The positions of a set of cells in each of the 27 units. Rows are there as they stand; boxes are pieced
// together from their three rows. For the columns rows 0..6 and rows 7..8 are laid over each other, so that
// bits 7 x c .. 7 x c + 6 of a word are column c from top to bottom.
std::array<PositionMask, kUnits> PlacesOf(const CellSet& cells) {
  std::array<PositionMask, kUnits> places{};
  std::uint64_t upper = 0;
  std::uint64_t lower = 0;
  for (int r = 0; r < 9; ++r) {
    places[r] = static_cast<PositionMask>(cells.Row(r));
    (r < 7 ? upper : lower) |= kSpread[places[r]] << static_cast<unsigned>(r < 7 ? r : r - 7);
  }
  for (unsigned c = 0; c < 9; ++c) {
    places[kFirstColumn + c] =
        static_cast<PositionMask>((upper >> 7 * c & 127U) | (lower >> 7 * c & 3U) << 7U);
  }
  for (unsigned b = 0; b < 9; ++b) {
    const auto* band = &places[b / 3 * 3];
    const unsigned shift = b % 3 * 3;
    places[kFirstBox + b] = static_cast<PositionMask>(
        (band[0] >> shift & 7U) | (band[1] >> shift & 7U) << 3U | (band[2] >> shift & 7U) << 6U);
  }
  return places;
}

// 1..9 as it is, 0 for anything else.
constexpr std::uint8_t DigitOrNone(std::uint8_t value) {
  return value <= 9 ? value : 0;
}

}  // namespace

SolverState::SolverState() : SolverState(DigitGrid{}) {
}

SolverState::SolverState(const DigitGrid& givens) {
  // PlaceValue only ever removes: its own cell ends without candidates and its digit is gone from the 20
  // cells around, in whatever order the givens come. So the outcome of entering all of them can be written
  // down.
  std::array<CandidateMask, kUnits> taken{};
  for (int c = 0; c < kCells; ++c) {
    cell_value_[c] = DigitOrNone(givens[c]);
    const unsigned bit = (1U << cell_value_[c]) >> 1U;
    for (const int unit : kUnitTables.unit[c]) taken[unit] |= static_cast<CandidateMask>(bit);
  }
  CellSet open_cells = CellSet::All();
  cells_.fill(open_cells);
  for (int c = 0; c < kCells; ++c) {
    if (cell_value_[c] != 0) {
      cells_[cell_value_[c] - 1] -= kUnitTables.peers[c];
      open_cells.Remove(c);
      --unsolved_;
    } else {
      const auto& unit = kUnitTables.unit[c];
      cell_mask_[c] = Without(kAllDigits, taken[unit[0]] | taken[unit[1]] | taken[unit[2]]);
    }
  }
  for (CellSet& cells : cells_) cells &= open_cells;
  for (int unit = 0; unit < kUnits; ++unit) units_[unit].placed = taken[unit];
  from_digits_ = true;
  DeriveUnits(open_cells);
}

SolverState::SolverState(const DigitGrid& digits, const MarkGrid& marks) {
  CellSet open_cells = CellSet::All();
  for (int c = 0; c < kCells; ++c) {
    cell_value_[c] = DigitOrNone(digits[c]);
    if (cell_value_[c] != 0) {
      open_cells.Remove(c);
      --unsolved_;
    }
    cell_mask_[c] = marks[c] & kAllDigits;
    for (CandidateMask rest = cell_mask_[c]; rest != 0; rest &= rest - 1) {
      cells_[LowestDigit(rest) - 1].Add(c);
    }
  }
  DeriveUnits(open_cells);
}

// Fills units_ from cells_, which costs less than adding the candidates one by one.
void SolverState::DeriveUnits(CellSet open_cells) {
  const std::array<PositionMask, kUnits> open = PlacesOf(open_cells);
  for (int unit = 0; unit < kUnits; ++unit) units_[unit].open = open[unit];
  for (unsigned d = 0; d < 9; ++d) {
    const std::array<PositionMask, kUnits> places = PlacesOf(cells_[d]);
    for (int unit = 0; unit < kUnits; ++unit) units_.data()[unit].places.data()[d] = places.data()[unit];
  }
  for (int unit = 0; unit < kUnits; ++unit) {
    // For all digits at once: met in one cell or more, and in two or more.
    unsigned once = 0;
    unsigned twice = 0;
    for (const std::uint8_t cell : kUnitTables.cell.data()[unit]) {
      const unsigned mask = cell_mask_.data()[cell];
      twice |= once & mask;
      once |= mask;
    }
    units_[unit].lone_digits = static_cast<CandidateMask>(once & ~twice);
  }
}

// Takes the cell, which must be there, out of the digit's places in its three units. Returns the units in
// which that leaves one place. The hottest place of the solver: the containers' check of an index is left to the
// callers and to the first use of the cell; units and places come from the tables.
inline UnitMask SolverState::ClearPlaces(int digit, int cell) {
  const CandidateMask bit = DigitBit(digit);
  const std::uint8_t* units = kUnitTables.unit[cell].data();
  const PositionMask* positions = kUnitTables.position.data()[cell].data();
  UnitMask lone_units = 0;
  for (int k = 0; k < 3; ++k) {
    const int index = units[k];
    UnitCandidates& unit = units_.data()[index];
    PositionMask& places = unit.places.data()[digit - 1];
    places = Without(places, positions[k]);
    // Without a branch, for the answer is close to random.
    const unsigned left = places;
    const unsigned lone = static_cast<unsigned>(left != 0) & static_cast<unsigned>((left & (left - 1)) == 0);
    unit.lone_digits = static_cast<CandidateMask>((unit.lone_digits & ~bit) | lone << (digit - 1));
    lone_units |= lone << index;
  }
  return lone_units;
}

void SolverState::PlaceValue(int digit, int cell) {
  if (cell_value_[cell] == 0) --unsolved_;
  cell_value_[cell] = static_cast<std::uint8_t>(digit);
  for (int k = 0; k < 3; ++k) {
    UnitCandidates& unit = units_[kUnitTables.unit[cell][k]];
    unit.open = Without(unit.open, kUnitTables.position[cell][k]);
    unit.placed |= DigitBit(digit);
  }
  UnitMask lone_units = 0;
  UnitMask changed_units = kUnitTables.units[cell];
  changed_digits_ |= static_cast<CandidateMask>(cell_mask_[cell] | DigitBit(digit));
  for (CandidateMask rest = cell_mask_[cell]; rest != 0; rest &= rest - 1) {
    cells_[LowestDigit(rest) - 1].Remove(cell);
    lone_units |= ClearPlaces(LowestDigit(rest), cell);
  }
  cell_mask_[cell] = 0;
  const CellSet losers = kUnitTables.peers[cell] & cells_[digit - 1];
  cells_[digit - 1] -= losers;
  for (const int peer : losers) {
    cell_mask_[peer] = Without(cell_mask_[peer], DigitBit(digit));
    lone_units |= ClearPlaces(digit, peer);
    changed_units |= kUnitTables.units[peer];
  }
  lone_units_ |= lone_units;
  changed_units_ |= changed_units;
}

bool SolverState::RemoveCandidate(int digit, int cell) {
  if (!CandidateFlag(digit - 1, cell)) return false;
  cell_mask_[cell] = Without(cell_mask_[cell], DigitBit(digit));
  cells_[digit - 1].Remove(cell);
  lone_units_ |= ClearPlaces(digit, cell);
  changed_units_ |= kUnitTables.units[cell];
  changed_digits_ |= DigitBit(digit);
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

// Called when a search asks for its list, so that a removal need not update all of the lists.
void SolverState::PassOnChanges() {
  if (changed_units_ == 0) return;
  for (UnitMask& units : units_to_scan_) units |= changed_units_;
  for (CandidateMask& digits : digits_to_scan_) digits |= changed_digits_;
  changed_units_ = 0;
  changed_digits_ = 0;
}

bool SolverState::Even(int unit) const {
  const UnitCandidates& here = units_[unit];
  unsigned with_place = 0;
  for (unsigned d = 0; d < 9; ++d) with_place |= (here.places.data()[d] != 0 ? 1U : 0U) << d;
  return from_digits_ && with_place == Without(kAllDigits, here.placed) &&
         BitCount[with_place] == BitCount[here.open];
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
