// SPDX-License-Identifier: MIT
// The forms of the techniques, and how clear an example is.
#include "explain/forms.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <cstdint>

#include "explain/blockers.h"
#include "solver/unit_table.h"

namespace kestrel::help {
namespace {

template <int form>
bool Numbered(const Finding& finding) {
  return finding.form == form;
}

template <int form, std::size_t cells>
bool NumberedOfSize(const Finding& finding) {
  return finding.form == form && finding.pattern.size() == cells;
}

bool Any(const Finding& /*finding*/) {
  return true;
}

bool InLine(const Finding& finding) {
  return finding.form == 1 || finding.form == 2;
}

// A triple in which every cell has just two of the three digits.
bool Ring(const Finding& finding) {
  return std::all_of(finding.pattern.begin(), finding.pattern.end(),
                     [](const PatternCell& part) { return BitCount[part.digits] == 2; });
}

bool LineButNoRing(const Finding& finding) {
  return InLine(finding) && !Ring(finding);
}

// The kinds of the two units in which the pivot meets its wings, in either order.
template <UnitKind a, UnitKind b>
bool Wings(const Finding& finding) {
  const UnitKind first = finding.units[0].kind;
  const UnitKind second = finding.units[1].kind;
  return (first == a && second == b) || (first == b && second == a);
}

// Wings in the pivot's row and column, both outside its box: the plain case, with one cell that sees both.
bool WingsApart(const Finding& finding) {
  const int box = CellBox[finding.pattern[0].cell];
  return Wings<UnitKind::Row, UnitKind::Column>(finding) && CellBox[finding.pattern[1].cell] != box &&
         CellBox[finding.pattern[2].cell] != box;
}

template <int form, int fins>
bool Fins(const Finding& finding) {
  return finding.form == form && finding.pattern.size() == 4 + fins;
}

// A Unique Rectangle of type 2 by whether its floor lies in one box.
template <bool one_box>
bool RoofOfEqualCells(const Finding& finding) {
  return finding.form == 2 &&
         (CellBox[finding.pattern[0].cell] == CellBox[finding.pattern[1].cell]) == one_box;
}

constexpr UnitKind kRow = UnitKind::Row;
constexpr UnitKind kColumn = UnitKind::Column;
constexpr UnitKind kBox = UnitKind::Box;

constexpr Form kForms[] = {
    {"hidden_single-box", 1, Numbered<1>},
    {"hidden_single-row", 1, Numbered<2>},
    {"hidden_single-column", 1, Numbered<3>},
    {"naked_single", 2, Any},
    {"pointing-pair-row", 3, NumberedOfSize<1, 2>},
    {"pointing-pair-column", 3, NumberedOfSize<2, 2>},
    {"pointing-triple-row", 3, NumberedOfSize<1, 3>},
    {"pointing-triple-column", 3, NumberedOfSize<2, 3>},
    {"box_line-row", 4, Numbered<1>},
    {"box_line-column", 4, Numbered<2>},
    {"naked_pair-row", 5, Numbered<1>},
    {"naked_pair-column", 5, Numbered<2>},
    {"naked_pair-box", 5, Numbered<3>},
    {"naked_triple-line", 6, LineButNoRing},
    {"naked_triple-ring", 6, Ring},
    {"hidden_pair-line", 7, InLine},
    {"hidden_pair-box", 7, Numbered<3>},
    {"naked_quad-line", 8, InLine},
    {"naked_quad-box", 8, Numbered<3>},
    {"hidden_triple-line", 9, InLine},
    {"hidden_triple-box", 9, Numbered<3>},
    {"naked_quint", 10, Any},
    {"x_wing-rows", 11, Numbered<1>},
    {"x_wing-columns", 11, Numbered<2>},
    {"xy_wing-row-column", 12, WingsApart},
    {"xy_wing-row-box", 12, Wings<kRow, kBox>},
    {"xy_wing-column-box", 12, Wings<kColumn, kBox>},
    {"kite", 13, Any},
    {"skyscraper-rows", 14, Numbered<1>},
    {"skyscraper-columns", 14, Numbered<2>},
    {"swordfish-rows", 15, Numbered<1>},
    {"swordfish-columns", 15, Numbered<2>},
    {"multi_x_wing-rows-rectangle", 16, Numbered<1>},
    {"multi_x_wing-rows-boxes", 16, Numbered<2>},
    {"multi_x_wing-columns-rectangle", 16, Numbered<3>},
    {"multi_x_wing-columns-boxes", 16, Numbered<4>},
    {"multi_x_wing-boxes-rows", 16, Numbered<5>},
    {"multi_x_wing-boxes-columns", 16, Numbered<6>},
    {"finned-rows-one", 17, Fins<1, 1>},
    {"finned-rows-two", 17, Fins<1, 2>},
    {"finned-columns-one", 17, Fins<2, 1>},
    {"finned-columns-two", 17, Fins<2, 2>},
    {"unique-type1", 18, Numbered<1>},
    {"unique-type2-one-box", 18, RoofOfEqualCells<true>},
    {"unique-type2-two-boxes", 18, RoofOfEqualCells<false>},
    {"avoidable-one-open", 19, Numbered<1>},
    {"avoidable-two-open", 19, Numbered<2>},
    {"xyz_wing-row-box", 20, Wings<kRow, kBox>},
    {"xyz_wing-column-box", 20, Wings<kColumn, kBox>},
    {"empty_rectangle-row", 21, Numbered<1>},
    {"empty_rectangle-column", 21, Numbered<2>},
    {"jellyfish-rows", 22, Numbered<1>},
    {"jellyfish-columns", 22, Numbered<2>},
};

// Weights of Clarity, settled by looking at what they chose.
constexpr double kPerRemoval = 5;  // up to kEnoughRemovals
constexpr int kEnoughRemovals = 4;
constexpr double kPerOther = -0.5;  // another candidate of the pattern's digits
constexpr double kPerBox = -1.5;    // a box that the example touches
constexpr double kPerMark = -0.06;  // a candidate too many or too few on the board
constexpr int kPleasantMarks = 80;

}  // namespace

std::span<const Form> AllForms() {
  return kForms;
}

bool IsOfForm(const Finding& finding, const Form& form) {
  return finding.step == form.step && form.matches(finding);
}

namespace {

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
  if (finding.step == 2) return kPerRemoval * LeastShare(position, finding.placed_cell);
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

}  // namespace kestrel::help
