// SPDX-License-Identifier: MIT
// What a worked example shows, in plain sentences.
#include "explain/reasons.h"

#include <algorithm>

#include "explain/blockers.h"
#include "explain/names.h"
#include "explain/technique_words.h"

namespace kestrel {
namespace {

using Text = std::string;

Text Name(const Finding& finding, std::size_t i) {
  return CellName(finding.pattern[i].cell);
}

// "a 7", "an 8".
Text WithArticle(CandidateMask digit) {
  return (digit == DigitBit(8) ? "an " : "a ") + DigitNames(digit);
}

// The cells of the pattern inside the unit, ascending.
Text CellsIn(const Finding& finding, Unit unit, const char* joint) {
  std::vector<int> cells;
  for (const PatternCell& part : finding.pattern) {
    const int index = unit.kind == UnitKind::Row      ? CellRow[part.cell]
                      : unit.kind == UnitKind::Column ? CellCol[part.cell]
                                                      : CellBox[part.cell];
    if (index == unit.index) cells.push_back(part.cell);
  }
  std::sort(cells.begin(), cells.end());
  return CellNames(cells, joint);
}

CandidateMask Common(const Finding& finding, std::size_t a, std::size_t b) {
  return finding.pattern[a].digits & finding.pattern[b].digits;
}

// The wings of a pivot in the order of the pivot's digits: the first is the one that the lower of x and y
// decides.
struct WingWords {
  CandidateMask x;
  CandidateMask y;
  CandidateMask z;
  std::size_t first;   // the wing with x and z, by place in the pattern
  std::size_t second;  // the wing with y and z
};

WingWords WingsInOrder(const Finding& f) {
  const CandidateMask z = Common(f, 1, 2);
  const CandidateMask one = f.pattern[1].digits & ~z;
  const CandidateMask other = f.pattern[2].digits & ~z;
  if (one < other) return {one, other, z, 1, 2};
  return {other, one, z, 2, 1};
}

// True when the digit of a Finned X-Wing has candidates in the cover lines that the finding leaves alone.
bool OthersStay(const Example& example) {
  const Finding& f = example.finding;
  for (int cell = 0; cell < kCells; ++cell) {
    if ((example.marks[cell] & f.digits) == 0) continue;
    const auto same = [cell](const auto& part) { return part.cell == cell; };
    if (std::any_of(f.pattern.begin(), f.pattern.end(), same)) continue;
    if (std::any_of(f.removals.begin(), f.removals.end(), same)) continue;
    for (const Unit& cover : f.covers) {
      if ((cover.kind == UnitKind::Row ? CellRow[cell] : CellCol[cell]) == cover.index) return true;
    }
  }
  return false;
}

}  // namespace

std::string HiddenSingleReason(const Example& example) {
  const Finding& f = example.finding;
  const Text unit = TheUnit(f.units[0]);
  const Text cell = Name(f, 0);
  const Text digit = DigitNames(f.digits);
  const CandidateMask others = example.marks[f.placed_cell] & ~f.digits;
  const Blockers blockers = FindBlockers(example.digits, f.units[0], f.placed_cell, f.placed_digit);
  Text why;
  if (blockers.all_explained && !blockers.cells.empty()) {
    const bool one = blockers.cells.size() == 1;
    why = "The " + digit + (one ? " in " : "s in ") + CellNames(blockers.cells) + (one ? " rules" : " rule") +
          " out its other empty cells. ";
  }
  return "Look at " + unit + ": of its empty cells, only " + cell + " can still hold " + digit + ". " + why +
         cell +
         (BitCount[others] == 1 ? " has another candidate as well (" : " has other candidates as well (") +
         DigitNames(others) + "), but " + unit + " needs " + WithArticle(f.digits) +
         " and has no other place for it. So " + digit + " goes into " + cell + '.';
}

std::string NakedSingleReason(const Example& example) {
  const Finding& f = example.finding;
  const int cell = f.placed_cell;
  CandidateMask seen[3] = {0, 0, 0};
  for (int other = 0; other < kCells; ++other) {
    if (other == cell || example.digits[other] == 0) continue;
    const CandidateMask bit = DigitBit(example.digits[other]);
    if (CellRow[other] == CellRow[cell]) seen[0] |= bit;
    if (CellCol[other] == CellCol[cell]) seen[1] |= bit;
    if (CellBox[other] == CellBox[cell]) seen[2] |= bit;
  }
  seen[1] &= ~seen[0];
  seen[2] &= ~(seen[0] | seen[1]);
  const CandidateMask gone = kAllDigits & ~(seen[0] | seen[1] | seen[2] | f.digits);
  std::vector<Text> parts;
  const Unit units[3] = {
      {UnitKind::Row, CellRow[cell]}, {UnitKind::Column, CellCol[cell]}, {UnitKind::Box, CellBox[cell]}};
  for (int i = 0; i < 3; ++i) {
    if (seen[i] != 0) parts.push_back(DigitNames(seen[i]) + " in " + TheUnit(units[i]));
  }
  Text text = CellName(cell) + " can only be " + DigitNames(f.digits) +
              ". The other digits are taken: " + Joined(parts);
  if (gone != 0)
    text += "; " + DigitNames(gone) + (BitCount[gone] == 1 ? " was" : " were") + " ruled out before";
  return text + ". So " + DigitNames(f.digits) + " goes into " + CellName(cell) + '.';
}

std::string IntersectionReason(const Example& example) {
  const Finding& f = example.finding;
  const Text digit = DigitNames(f.digits);
  const Text from = TheUnit(f.units[0]);
  const Text to = TheUnit(f.covers[0]);
  return "In " + from + ", " + digit + " can only go into " + PatternCellNames(f, 0, f.pattern.size(), "or") +
         (f.pattern.size() == 2 ? ". Both lie in " : ". All three lie in ") + to + ", so " + to +
         " has its " + digit + " there and nowhere else.";
}

std::string NakedSubsetReason(const Example& example) {
  const Finding& f = example.finding;
  const Text unit = TheUnit(f.units[0]);
  const Text digits = DigitNames(f.digits);
  const Text count = NumberWord(static_cast<int>(f.pattern.size()));
  std::vector<Text> cells;
  for (const PatternCell& part : f.pattern) {
    cells.push_back(CellName(part.cell) + " (" + DigitNames(part.digits, "or") + ')');
  }
  return "In " + unit + ", the " + count + " cells " + Joined(cells) + " have no candidates but " + digits +
         ". " + Text(1, static_cast<char>(count[0] - 'a' + 'A')) + count.substr(1) + " cells take " + count +
         " digits, so " + digits + " are used up in these cells and cannot stand elsewhere in " + unit + ".";
}

std::string HiddenSubsetReason(const Example& example) {
  const Finding& f = example.finding;
  const Text unit = TheUnit(f.units[0]);
  const Text digits = DigitNames(f.digits);
  const Text cells = PatternCellNames(f, 0, f.pattern.size());
  const Text count = NumberWord(static_cast<int>(f.pattern.size()));
  return "In " + unit + ", " + digits + " can only go into " + cells + ". " +
         Text(1, static_cast<char>(count[0] - 'a' + 'A')) + count.substr(1) + " digits fill " + count +
         " cells, so nothing else fits there.";
}

std::string FishReason(const Example& example) {
  const Finding& f = example.finding;
  const Text digit = DigitNames(f.digits);
  Text places;
  for (const Unit& unit : f.units) {
    places += (places.empty() ? "In " : "; in ") + TheUnit(unit) + " only in " + CellsIn(f, unit, "or");
  }
  const Text count = NumberWord(static_cast<int>(f.units.size()));
  const Text bases = f.form == 1 ? "rows" : "columns";
  const Text covers = TheUnits(f.covers);
  return "Where can " + digit + " go? " + places + ". All these places lie in " + covers + ". The " + count +
         ' ' + bases + " need " + WithArticle(f.digits) + " each, and " + covers + " have room for just " +
         count + ", so these " + count + ' ' + bases +
         (f.units.size() == 2 ? " take both." : " take them all.");
}

std::string XYWingReason(const Example& example) {
  const Finding& f = example.finding;
  const WingWords w = WingsInOrder(f);
  const Text z = DigitNames(w.z);
  const auto wing = [&](std::size_t i) {
    return Name(f, i) + " (" + DigitNames(f.pattern[i].digits, "or") + ") must be " + z;
  };
  return "The pivot " + Name(f, 0) + " is " + DigitNames(w.x | w.y, "or") + ". If it is " + DigitNames(w.x) +
         ", then " + wing(w.first) + "; if it is " + DigitNames(w.y) + ", then " + wing(w.second) +
         ". Either way one of " + PatternCellNames(f, 1, 2) + " is " + z +
         ", so no cell that sees both can be " + z + ".";
}

std::string XYZWingReason(const Example& example) {
  const Finding& f = example.finding;
  const WingWords w = WingsInOrder(f);
  const Text z = DigitNames(w.z);
  return "The pivot " + Name(f, 0) + " is " + DigitNames(f.pattern[0].digits, "or") + ". If it is " +
         DigitNames(w.x) + ", then " + Name(f, w.first) + " must be " + z + "; if it is " + DigitNames(w.y) +
         ", then " + Name(f, w.second) + " must be " + z + "; otherwise the pivot is " + z +
         " itself. In any case one of the three is " + z + ", so no cell that sees all three can be " + z +
         ".";
}

// Kite and skyscraper: end, link, link, end.
std::string TwoPairsReason(const Example& example) {
  const Finding& f = example.finding;
  const Text digit = DigitNames(f.digits);
  std::vector<int> ends{f.pattern[0].cell, f.pattern[3].cell};
  std::sort(ends.begin(), ends.end());
  return "In " + TheUnit(f.units[0]) + ", " + digit + " can only go into " + PatternCellNames(f, 0, 2, "or") +
         "; in " + TheUnit(f.units[1]) + " only into " + PatternCellNames(f, 2, 2, "or") + ". " +
         PatternCellNames(f, 1, 2) + " both lie in " + TheUnit(f.covers[0]) + ", so they cannot both be " +
         digit + ". Then at least one of the other two, " + CellNames(ends) + ", is " + digit +
         ", and no cell that sees both of these can be " + digit + ".";
}

std::string MultiXWingReason(const Example& example) {
  const Finding& f = example.finding;
  const Text d1 = DigitNames(Common(f, 0, 1));
  const Text d2 = DigitNames(Common(f, 2, 3));
  const Text e1 = DigitNames(Common(f, 0, 2));
  const Text e2 = DigitNames(Common(f, 1, 3));
  const Text p0 = Name(f, 0);
  const Text p1 = Name(f, 1);
  const Text p2 = Name(f, 2);
  const Text p3 = Name(f, 3);
  const auto either = [&](std::size_t a, std::size_t b) {
    std::vector<int> cells{f.pattern[a].cell, f.pattern[b].cell};
    std::sort(cells.begin(), cells.end());
    return CellNames(cells, "or");
  };
  return "Each of the four cells has just two candidates. In " + TheUnit(f.units[0]) + ", " + d1 + " is in " +
         either(0, 1) + "; in " + TheUnit(f.units[1]) + ", " + d2 + " is in " + either(2, 3) + ". If " + p0 +
         " is " + d1 + ", then " + p1 + " is " + e2 + ", " + p3 + " is " + d2 + " and " + p2 + " is " + e1 +
         ". If " + p1 + " is " + d1 + ", then " + p0 + " is " + e1 + ", " + p2 + " is " + d2 + " and " + p3 +
         " is " + e2 + ". Either way " + e1 + " is in " + either(0, 2) + " and " + e2 + " is in " +
         either(1, 3) + ", so " + TheUnit(f.covers[0]) + " has no other place for " + e1 + " and " +
         TheUnit(f.covers[1]) + " none for " + e2 + ".";
}

std::string FinnedXWingReason(const Example& example) {
  const Finding& f = example.finding;
  const Text digit = DigitNames(f.digits);
  const std::size_t fins = f.pattern.size() - 4;
  std::vector<int> targets;
  for (const Removal& removal : f.removals) targets.push_back(removal.cell);
  std::vector<Unit> covers = f.covers;
  std::sort(covers.begin(), covers.end(), [](Unit a, Unit b) { return a.index < b.index; });
  const Text box = TheUnit({UnitKind::Box, CellBox[f.pattern[4].cell]});
  const Text cover = TheUnit(f.covers[0]);
  const bool one = fins == 1;
  return "In " + TheUnit(f.units[0]) + ", " + digit + " can only go into " + PatternCellNames(f, 0, 2, "or") +
         ". In " + TheUnit(f.units[1]) + " it can go into " + PatternCellNames(f, 2, 2, "or") +
         ", but also into the fin" + (one ? " " : "s ") + PatternCellNames(f, 4, fins) + ". If " +
         (one ? "the fin is not " : "no fin is ") + digit + ", this is an X-Wing, and " + cover +
         " loses its other " + digit + "s. If " + (one ? "the fin is " : "one of the fins is ") + digit +
         ", the rest of " + box + " loses " + digit + ". Either way " + CellNames(targets) + ", where " +
         cover + " meets that box, cannot be " + digit +
         (OthersStay(example)
              ? ". The other " + digit + "s in " + TheUnits(covers) + " stay: if " + (one ? "the" : "a") +
                    " fin is " + digit + ", there is no X-Wing, and nothing rules them out."
              : Text("."));
}

std::string UniqueRectangleReason(const Example& example) {
  const Finding& f = example.finding;
  if (f.form == 1) {
    const Text pair = DigitNames(f.digits);
    return PatternCellNames(f, 0, 3) + " hold only " + pair + ". If " + Name(f, 3) + " were " +
           DigitNames(f.digits, "or") + " too, the four corners would hold nothing but " + pair +
           ", and swapping the two digits would give a second solution. A proper puzzle has just one, so " +
           Name(f, 3) + " is neither.";
  }
  const CandidateMask pair = f.pattern[0].digits;
  const Text x = DigitNames(f.digits & ~pair);
  return "The floor, " + PatternCellNames(f, 0, 2) + ", holds only " + DigitNames(pair) + ". The roof, " +
         PatternCellNames(f, 2, 2) + ", has " + DigitNames(f.digits) + ". If neither roof cell were " + x +
         ", all four corners would hold only " + DigitNames(pair) +
         ", and swapping these would give a second solution. So one of the roof cells is " + x +
         ", and no cell that sees both can be " + x + ".";
}

std::string AvoidableRectangleReason(const Example& example) {
  const Finding& f = example.finding;
  if (f.form == 1) {
    const Text d = DigitNames(f.pattern[0].digits);
    const Text e = DigitNames(f.pattern[2].digits);
    return PatternCellNames(f, 0, 2) + " were solved as " + d + " and " + Name(f, 2) + " as " + e +
           ". None of the four corners is a given. If " + Name(f, 3) + " were " + e +
           ", the corners would hold " + d + " and " + e +
           " diagonally, and swapping them would give a second solution. So " + Name(f, 3) + " is not " + e +
           ".";
  }
  const Text d = DigitNames(f.pattern[0].digits);
  const Text e = DigitNames(f.pattern[1].digits);
  const CandidateMask third = Common(f, 2, 3);
  return Name(f, 0) + " was solved as " + d + " and " + Name(f, 1) + " as " + e +
         "; the other two corners of the rectangle, " + PatternCellNames(f, 2, 2) +
         ", are still open, and none of the four is a given. If " + Name(f, 2) + " were " + e + " and " +
         Name(f, 3) + " were " + d + ", swapping the two digits would give a second solution. So one of " +
         PatternCellNames(f, 2, 2) + " is " + DigitNames(third) + ", and no cell that sees both can be " +
         DigitNames(third) + ".";
}

std::string EmptyRectangleReason(const Example& example) {
  const Finding& f = example.finding;
  const Text digit = DigitNames(f.digits);
  const std::size_t n = f.pattern.size();
  const Text near = Name(f, n - 2);
  const Text far = Name(f, n - 1);
  const Text box = TheUnit(f.units[0]);
  const Text arm = TheUnit(f.covers[f.form == 1 ? 0 : 1]);
  const Text other_arm = TheUnit(f.covers[f.form == 1 ? 1 : 0]);
  const Text target = CellName(f.removals[0].cell);
  return "In " + box + ", every " + digit + " lies in " + TheUnit(f.covers[0]) + " or in " +
         TheUnit(f.covers[1]) + ". In " + TheUnit(f.units[1]) + ", " + digit + " is in " +
         PatternCellNames(f, n - 2, 2, "or") + ". If it is in " + near + ", " + arm + " is taken, so " + box +
         " has its " + digit + " in " + other_arm + ". So either " + far + " is " + digit +
         " or the box has its " + digit + " in " + other_arm + ". " + target +
         " sees both, so it cannot be " + digit + ".";
}

std::string RemovalText(const Finding& finding) {
  std::vector<CandidateMask> kinds;
  for (const Removal& removal : finding.removals) {
    bool known = false;
    for (const CandidateMask kind : kinds) known = known || kind == removal.digits;
    if (!known) kinds.push_back(removal.digits);
  }
  std::string text = "Remove ";
  for (std::size_t i = 0; i < kinds.size(); ++i) {
    std::vector<int> cells;
    for (const Removal& removal : finding.removals) {
      if (removal.digits == kinds[i]) cells.push_back(removal.cell);
    }
    if (i > 0) text += i + 1 == kinds.size() ? ", and " : ", ";
    text += DigitNames(kinds[i]) + " from " + CellNames(cells);
  }
  return text + '.';
}

std::string ReasonText(const Example& example) {
  return WordsOf(example.finding.technique).reason(example);
}

std::string ExampleText(const Example& example) {
  const std::string reason = ReasonText(example);
  return example.finding.removals.empty() ? reason : reason + ' ' + RemovalText(example.finding);
}

}  // namespace kestrel
