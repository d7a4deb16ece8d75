// SPDX-License-Identifier: MIT
// Pointing pair or triple, and box-line reduction: a digit confined to the three cells that a box and a line
// have in common.
//
// Where one digit can go in the three boxes of a band is reduced to nine bits, one per segment of three
// cells:
//
//               box 0   box 1   box 2         bit 3 x line + box
//     line 0    . 4 4 | . . . | . . 4           1 0 1
//     line 1    . . . | 4 . . | . . .    ->     0 1 0
//     line 2    . . . | . . . | . 4 .           0 0 1
//
// Pointing: a box with one segment, on a line with more (box 1 has line 1 alone, but there is nothing else on
// line 1; box 0 has line 0 alone, and box 2 loses its 4 there). Box-line: a line with one segment, in a box
// with more (line 2). So 512 table entries answer both, and the columns are the same thing turned.
#include <array>
#include <bit>
#include <cstdint>

#include "solver/describe.h"
#include "solver/techniques.h"

namespace kestrel {
namespace {

using Segments = std::array<std::uint16_t, 512>;

// Nine positions of a line -> its three segments that are not empty.
constexpr Segments kSegmentsOfLine = [] {
  Segments table{};
  for (unsigned line = 0; line < 512; ++line) {
    for (unsigned s = 0; s < 3; ++s) {
      if ((line >> 3 * s & 7U) != 0) table[line] |= PositionBit(static_cast<int>(s));
    }
  }
  return table;
}();

// The segments of a band that are alone in their box and not alone on their line (pointing), or the other way
// round (box-line).
constexpr Segments ProductiveSegments(bool pointing) {
  Segments table{};
  for (unsigned band = 0; band < 512; ++band) {
    for (unsigned line = 0; line < 3; ++line) {
      for (unsigned box = 0; box < 3; ++box) {
        const unsigned own = 1U << (3 * line + box);
        const bool more_in_box = (band & 0b001001001U << box & ~own) != 0;
        const bool more_on_line = (band & 7U << 3 * line & ~own) != 0;
        const bool productive = pointing ? !more_in_box && more_on_line : !more_on_line && more_in_box;
        if ((band & own) != 0 && productive) table[band] |= static_cast<std::uint16_t>(own);
      }
    }
  }
  return table;
}
constexpr Segments kPointing = ProductiveSegments(true);
constexpr Segments kBoxLine = ProductiveSegments(false);

// The segments of the digit in the three lines first_line (a unit) .. first_line + 2.
unsigned BandSegments(const SolverState& state, int digit, int first_line) {
  return static_cast<unsigned>(kSegmentsOfLine[state.Places(digit, first_line)] |
                               kSegmentsOfLine[state.Places(digit, first_line + 1)] << 3U |
                               kSegmentsOfLine[state.Places(digit, first_line + 2)] << 6U);
}

// The digit goes from `loser`, except where `keeper` crosses it.
void Eliminate(SolverState& state, const SolverInput& input, int digit, int keeper, int loser) {
  if (input.finding != nullptr) {
    Finding& finding = *input.finding;
    finding.digits = DigitBit(digit);
    AddDigitCells(finding, state, digit, keeper);
    finding.units = {NamedUnit(keeper)};
    finding.covers = {NamedUnit(loser)};
    finding.form = (keeper < kFirstColumn || loser < kFirstColumn) ? 1 : 2;
  }
  state.RemoveFrom(kUnitTables.cells[loser] - kUnitTables.cells[keeper], digit);
}

// Scan order: boxes; in a box its three rows, then its three columns.
bool FindPointingOf(SolverState& state, const SolverInput& input, int digit) {
  std::array<unsigned, 3> rows{};  // by band
  std::array<unsigned, 3> columns{};
  unsigned any = 0;
  for (int i = 0; i < 3; ++i) {
    rows[i] = kPointing[BandSegments(state, digit, 3 * i)];
    columns[i] = kPointing[BandSegments(state, digit, kFirstColumn + 3 * i)];
    any |= rows[i] | columns[i];
  }
  if (any == 0) return false;
  for (int box = 0; box < 9; ++box) {
    const int band = box / 3;
    const int stack = box % 3;
    for (int k = 0; k < 6; ++k) {
      const bool row = k < 3;
      const unsigned found = row ? rows[band] >> (3 * k + stack) : columns[stack] >> (3 * (k - 3) + band);
      if ((found & 1U) == 0) continue;
      const int line = row ? 3 * band + k : kFirstColumn + 3 * stack + k - 3;
      Eliminate(state, input, digit, kFirstBox + box, line);
      return true;
    }
  }
  return false;
}

// Scan order: lines; all digits have had their rows before any has its columns.
bool FindBoxLineOf(SolverState& state, const SolverInput& input, int digit, int first_line) {
  for (int band = 0; band < 3; ++band) {
    const unsigned found = kBoxLine[BandSegments(state, digit, first_line + 3 * band)];
    if (found == 0) continue;
    const int line = 3 * band + std::countr_zero(found) / 3;
    const int segment = std::countr_zero(found) % 3;
    const int box = first_line == kFirstColumn ? 3 * segment + band : 3 * band + segment;
    Eliminate(state, input, digit, first_line + line, kFirstBox + box);
    return true;
  }
  return false;
}

}  // namespace

bool FindPointing(SolverState& state, const SolverInput& input) {
  CandidateMask& to_scan = state.DigitsToScan(DigitScan::Pointing);
  for (; to_scan != 0; to_scan &= to_scan - 1) {
    if (FindPointingOf(state, input, LowestDigit(to_scan))) return true;
  }
  return false;
}

bool FindBoxLine(SolverState& state, const SolverInput& input) {
  for (const bool columns : {false, true}) {
    CandidateMask& to_scan = state.DigitsToScan(columns ? DigitScan::BoxLineColumns : DigitScan::BoxLineRows);
    for (; to_scan != 0; to_scan &= to_scan - 1) {
      if (FindBoxLineOf(state, input, LowestDigit(to_scan), columns ? kFirstColumn : 0)) return true;
    }
  }
  return false;
}

}  // namespace kestrel
