// SPDX-License-Identifier: MIT
#include "explain/clarity.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <cstdint>

#include "explain/blockers.h"
#include "solver/unit_table.h"

namespace kestrel {
namespace {

// Weights of Clarity, settled by looking at what they chose.
constexpr double kPerRemoval = 5;  // up to kEnoughRemovals
constexpr int kEnoughRemovals = 4;
constexpr double kPerOther = -0.5;  // another candidate of the pattern's digits
constexpr double kPerBox = -1.5;    // a box that the example touches
constexpr double kPerMark = -0.06;  // a candidate too many or too few on the board
constexpr int kPleasantMarks = 80;

// How many digits the unit that helps least adds to what rules the others out of a naked single: where all
// three take part, the player sees why all three must be looked at.
int LeastShare(const SolverState& position, int cell) {
  std::array<CandidateMask, 3> seen{};
  for (int kind = 0; kind < 3; ++kind) {
    for (const int other : kUnitTables.cells[kUnitTables.unit[cell][kind]]) {
      if (position.CellValue(other) != 0) seen[kind] |= DigitBit(position.CellValue(other));
    }
  }
  int least = 9;
  for (int kind = 0; kind < 3; ++kind) {
    const CandidateMask others = seen[(kind + 1) % 3] | seen[(kind + 2) % 3];
    least = std::min<int>(least, BitCount[seen[kind] & ~others]);
  }
  return least;
}

// The single's own part of Clarity.
double SingleClarity(const SolverState& position, const Finding& finding) {
  if (finding.technique == Technique::NakedSingle)
    return kPerRemoval * LeastShare(position, finding.placed_cell);
  // A hidden single next to plain ones looks contrived, and one that needs earlier removals is hard to
  // follow.
  int naked = 0;
  DigitGrid digits{};
  for (int cell = 0; cell < kCells; ++cell) {
    digits[cell] = static_cast<std::uint8_t>(position.CellValue(cell));
    naked += BitCount[position.CellMask(cell)] == 1 ? 1 : 0;
  }
  const Blockers blockers = FindBlockers(digits, finding.units[0], finding.placed_cell, finding.placed_digit);
  return -naked - (blockers.all_explained ? 0 : 2 * kPerRemoval) -
         std::abs(static_cast<double>(blockers.cells.size()) - 3);
}

}  // namespace

double Clarity(const SolverState& position, const Finding& finding) {
  CandidateMask digits = 0;
  unsigned boxes = 0;
  int own = 0;  // candidates of the pattern's digits in the pattern and among the removals
  int removed = 0;
  for (const PatternCell& part : finding.pattern) {
    digits |= finding.digits;
    own += BitCount[part.digits & finding.digits];
    boxes |= 1U << static_cast<unsigned>(CellBox[part.cell]);
  }
  for (const Removal& removal : finding.removals) {
    removed += BitCount[removal.digits];
    own += BitCount[removal.digits & finding.digits];
    boxes |= 1U << static_cast<unsigned>(CellBox[removal.cell]);
  }
  int marks = 0;
  int of_digits = 0;
  for (int cell = 0; cell < kCells; ++cell) {
    marks += BitCount[position.CellMask(cell)];
    of_digits += BitCount[position.CellMask(cell) & digits];
  }
  const double single = finding.placed_cell >= 0 ? SingleClarity(position, finding) : 0;
  return single + kPerRemoval * std::min(removed, kEnoughRemovals) +
         kPerOther * std::max(0, of_digits - own) + kPerBox * std::popcount(boxes) +
         kPerMark * std::abs(marks - kPleasantMarks);
}

}  // namespace kestrel
