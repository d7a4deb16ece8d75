// SPDX-License-Identifier: MIT
// solver/finding.h says what each part of a Finding holds for which technique.
#include "explain/pattern_words.h"

#include <algorithm>
#include <span>
#include <vector>

#include "explain/names.h"

namespace kestrel {
namespace {

using PatternCells = std::span<const PatternCell>;

// "C2, C8, G2".
std::string CellList(PatternCells cells) {
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
std::string CellsWithDigits(PatternCells cells) {
  std::string text;
  for (const PatternCell& cell : cells) {
    text += (text.empty() ? "" : ", ") + CellName(cell.cell) + " " + DigitSet(cell.digits);
  }
  return text;
}

// "A8=9, J8=2".
std::string SolvedCells(PatternCells cells) {
  std::string text;
  for (const PatternCell& cell : cells) {
    text += (text.empty() ? "" : ", ") + CellName(cell.cell) + '=' + DigitNames(cell.digits);
  }
  return text;
}

}  // namespace

std::string SinglePattern(const Finding& finding) {
  const std::string cell = CellName(finding.placed_cell);
  if (finding.units.empty()) return cell + " has no other candidate";
  return "no other place in " + TheUnit(finding.units[0]);
}

// Pointing Pair: the line loses; Box Line: the box does.
std::string IntersectionPattern(const Finding& finding) {
  return CellList(finding.pattern) + " in " + TheUnit(finding.units[0]) + " and in " +
         TheUnit(finding.covers[0]);
}

std::string SubsetPattern(const Finding& finding) {
  return CellList(finding.pattern) + " in " + TheUnits(finding.units);
}

std::string FishPattern(const Finding& finding) {
  return CellList(finding.pattern) + " in " + TheUnits(finding.units) + ", " + TheUnits(finding.covers);
}

std::string FinnedPattern(const Finding& finding) {
  const PatternCells cells = finding.pattern;
  std::vector<Unit> covers = finding.covers;
  std::ranges::sort(covers, {}, &Unit::index);
  return CellList(cells.first(4)) + " in " + TheUnits(finding.units) + ", " + TheUnits(covers) +
         (cells.size() > 5 ? ", fins " : ", fin ") + CellList(cells.subspan(4));
}

std::string WingPattern(const Finding& finding) {
  const PatternCells cells = finding.pattern;
  return "pivot " + CellsWithDigits(cells.first(1)) + ", wings " + CellsWithDigits(cells.subspan(1));
}

// Two-String Kite and Skyscraper: two lines with two places each, joined at one end.
std::string LinkedPairsPattern(const Finding& finding) {
  const PatternCells cells = finding.pattern;
  return CellList(cells.first(2)) + " in " + TheUnit(finding.units[0]) + ", " + CellList(cells.subspan(2)) +
         " in " + TheUnit(finding.units[1]) + ", joined by " + CellList(cells.subspan(1, 2)) + " in " +
         TheUnit(finding.covers[0]);
}

std::string MultiXWingPattern(const Finding& finding) {
  return CellsWithDigits(finding.pattern) + " in " + TheUnits(finding.units) + ", " +
         TheUnits(finding.covers);
}

std::string UniqueRectanglePattern(const Finding& finding) {
  const PatternCells cells = finding.pattern;
  const std::size_t floors = finding.form == 1 ? 3 : 2;
  return "floor " + CellsWithDigits(cells.first(floors)) + ", roof " + CellsWithDigits(cells.subspan(floors));
}

std::string AvoidableRectanglePattern(const Finding& finding) {
  const PatternCells cells = finding.pattern;
  const std::size_t solved = finding.form == 1 ? 3 : 2;
  return "solved " + SolvedCells(cells.first(solved)) + ", open " + CellsWithDigits(cells.subspan(solved));
}

std::string EmptyRectanglePattern(const Finding& finding) {
  const PatternCells cells = finding.pattern;
  const std::size_t in_box = cells.size() - 2;
  return CellList(cells.first(in_box)) + " in " + TheUnit(finding.units[0]) + " on the cross of " +
         TheUnits(finding.covers) + ", pair " + CellList(cells.subspan(in_box)) + " in " +
         TheUnit(finding.units[1]);
}

}  // namespace kestrel
