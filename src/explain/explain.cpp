// SPDX-License-Identifier: MIT
// One function per family of techniques puts its pattern into words; solver/finding.h says what each part of
// a Finding holds for which technique.
#include "explain/explain.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <vector>

#include "core/check.h"
#include "solver/technique_table.h"

namespace kestrel {
namespace {

using Cells = std::span<const PatternCell>;

// "A", "A and B", "A, B and C".
std::string Listed(const std::vector<std::string>& words) {
  std::string text;
  for (std::size_t i = 0; i < words.size(); ++i) {
    if (i > 0) text += i + 1 == words.size() ? " and " : ", ";
    text += words[i];
  }
  return text;
}

std::string UnitLabel(const Unit& unit) {
  constexpr std::string_view kRowLetters = "ABCDEFGHJ";
  if (unit.kind == UnitKind::Row) return {kRowLetters[static_cast<std::size_t>(unit.index)]};
  return std::to_string(unit.index + 1);
}

std::string_view KindName(UnitKind kind) {
  constexpr std::array<std::string_view, 4> kNames{"", "row", "column", "box"};
  return kNames[static_cast<std::size_t>(kind)];
}

// "C2, C8, G2".
std::string CellList(Cells cells) {
  std::string text;
  for (const PatternCell& cell : cells) text += (text.empty() ? "" : ", ") + CellName(cell.cell);
  return text;
}

// "{2,5}".
std::string DigitSet(CandidateMask digits) {
  std::string text = "{";
  for (int digit = 1; digit <= 9; ++digit) {
    if (HasDigit(digits, digit)) text += (text.size() == 1 ? "" : ",") + std::to_string(digit);
  }
  return text + "}";
}

// "C2 {2,5}, C8 {2,8}".
std::string CellsWithDigits(Cells cells) {
  std::string text;
  for (const PatternCell& cell : cells) {
    text += (text.empty() ? "" : ", ") + CellName(cell.cell) + " " + DigitSet(cell.digits);
  }
  return text;
}

std::string SinglePattern(const Finding& finding) {
  const std::string cell = CellName(finding.placed_cell);
  if (finding.units.empty()) return cell + " has no other candidate";
  return "no other place in " + UnitName(finding.units[0]);
}

// Pointing Pair: the line loses; Box Line: the box does.
std::string IntersectionPattern(const Finding& finding) {
  return CellList(finding.pattern) + " in " + UnitName(finding.units[0]) + " and in " +
         UnitName(finding.covers[0]);
}

std::string SubsetPattern(const Finding& finding) {
  return CellList(finding.pattern) + " in " + UnitNames(finding.units);
}

std::string FishPattern(const Finding& finding) {
  return CellList(finding.pattern) + " in " + UnitNames(finding.units) + ", " + UnitNames(finding.covers);
}

std::string FinnedPattern(const Finding& finding) {
  const Cells cells = finding.pattern;
  std::vector<Unit> covers = finding.covers;
  std::ranges::sort(covers, {}, &Unit::index);
  return CellList(cells.first(4)) + " in " + UnitNames(finding.units) + ", " + UnitNames(covers) +
         (cells.size() > 5 ? ", fins " : ", fin ") + CellList(cells.subspan(4));
}

std::string WingPattern(const Finding& finding) {
  const Cells cells = finding.pattern;
  return "pivot " + CellsWithDigits(cells.first(1)) + ", wings " + CellsWithDigits(cells.subspan(1));
}

// Two-String Kite and Skyscraper: two lines with two places each, joined at one end.
std::string LinkedPairsPattern(const Finding& finding) {
  const Cells cells = finding.pattern;
  return CellList(cells.first(2)) + " in " + UnitName(finding.units[0]) + ", " + CellList(cells.subspan(2)) +
         " in " + UnitName(finding.units[1]) + ", joined by " + CellList(cells.subspan(1, 2)) + " in " +
         UnitName(finding.covers[0]);
}

std::string MultiXWingPattern(const Finding& finding) {
  return CellsWithDigits(finding.pattern) + " in " + UnitNames(finding.units) + ", " +
         UnitNames(finding.covers);
}

std::string UniqueRectanglePattern(const Finding& finding) {
  const Cells cells = finding.pattern;
  const std::size_t floors = finding.form == 1 ? 3 : 2;
  return "floor " + CellsWithDigits(cells.first(floors)) + ", roof " + CellsWithDigits(cells.subspan(floors));
}

std::string AvoidableRectanglePattern(const Finding& finding) {
  const Cells cells = finding.pattern;
  const std::size_t solved = finding.form == 1 ? 3 : 2;
  return "solved " + CellsWithDigits(cells.first(solved)) + ", open " +
         CellsWithDigits(cells.subspan(solved));
}

std::string EmptyRectanglePattern(const Finding& finding) {
  const Cells cells = finding.pattern;
  const std::size_t in_box = cells.size() - 2;
  return CellList(cells.first(in_box)) + " in " + UnitName(finding.units[0]) + " on the cross of " +
         UnitNames(finding.covers) + ", pair " + CellList(cells.subspan(in_box)) + " in " +
         UnitName(finding.units[1]);
}

std::string PatternWords(const Finding& finding) {
  switch (finding.step) {
    case 1:
    case 2:
      return SinglePattern(finding);
    case 3:
    case 4:
      return IntersectionPattern(finding);
    case 5:
    case 6:
    case 7:
    case 8:
    case 9:
    case 10:
      return SubsetPattern(finding);
    case 11:
    case 15:
    case 22:
      return FishPattern(finding);
    case 12:
    case 20:
      return WingPattern(finding);
    case 13:
    case 14:
      return LinkedPairsPattern(finding);
    case 16:
      return MultiXWingPattern(finding);
    case 17:
      return FinnedPattern(finding);
    case 18:
      return UniqueRectanglePattern(finding);
    case 19:
      return AvoidableRectanglePattern(finding);
    case 21:
      return EmptyRectanglePattern(finding);
    default:
      Require(false);
      return {};
  }
}

// "places 5 in C7", or "removes 4 from D2, E8; 2 and 7 from F3": cells that lose the same digits together.
std::string EffectWords(const Finding& finding) {
  if (finding.placed_cell >= 0) {
    return "places " + std::to_string(finding.placed_digit) + " in " + CellName(finding.placed_cell);
  }
  std::string text;
  for (std::size_t i = 0; i < finding.removals.size(); ++i) {
    const CandidateMask digits = finding.removals[i].digits;
    const auto same = [&](const Removal& removal) { return removal.digits == digits; };
    const auto here = finding.removals.begin() + static_cast<std::ptrdiff_t>(i);
    if (std::any_of(finding.removals.begin(), here, same)) continue;
    text += (text.empty() ? "removes " : "; ") + DigitNames(digits) + " from ";
    std::string_view comma = "";
    for (auto removal = here; removal != finding.removals.end(); ++removal) {
      if (!same(*removal)) continue;
      text.append(comma).append(CellName(removal->cell));
      comma = ", ";
    }
  }
  return text;
}

}  // namespace

std::string CellName(int cell) {
  return UnitLabel({UnitKind::Row, CellRow[cell]}) + UnitLabel({UnitKind::Column, CellCol[cell]});
}

std::string UnitName(const Unit& unit) {
  return std::string(KindName(unit.kind)) + " " + UnitLabel(unit);
}

std::string UnitNames(std::span<const Unit> units) {
  std::vector<std::string> words;
  const bool one_kind = std::ranges::all_of(units, [&](const Unit& u) { return u.kind == units[0].kind; });
  for (const Unit& unit : units) words.push_back(one_kind ? UnitLabel(unit) : UnitName(unit));
  if (!one_kind || units.empty()) return Listed(words);
  const std::string_view kind = KindName(units[0].kind);
  const std::string_view plural = units.size() == 1 ? "" : units[0].kind == UnitKind::Box ? "es" : "s";
  return std::string(kind).append(plural) + " " + Listed(words);
}

std::string DigitNames(CandidateMask digits) {
  std::vector<std::string> words;
  for (int digit = 1; digit <= 9; ++digit) {
    if (HasDigit(digits, digit)) words.push_back(std::to_string(digit));
  }
  return Listed(words);
}

StepWords ExplainStep(const Finding& finding) {
  StepWords words;
  words.technique = TechniqueOfStep(finding.step).caption;
  // The types of a Unique Rectangle are known by number in the literature; other forms are told by the cells.
  if (finding.step == 18) words.technique += " type " + std::to_string(finding.form);
  words.digits = DigitNames(finding.digits);
  words.pattern = PatternWords(finding);
  words.effect = EffectWords(finding);
  return words;
}

std::string StepSentence(const Finding& finding) {
  const StepWords words = ExplainStep(finding);
  return words.technique + " on " + words.digits + ": " + words.pattern + ": " + words.effect;
}

}  // namespace kestrel
