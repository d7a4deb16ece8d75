// SPDX-License-Identifier: MIT
// An example told in three pictures.
#include <algorithm>
#include <string>
#include <vector>

#include "explain/board_picture.h"
#include "explain/explain.h"
#include "explain/names.h"
#include "explain/reasons.h"

namespace kestrel {
namespace {

// "C2 (2 or 5)".
std::string CellWithDigits(const PatternCell& part) {
  return CellName(part.cell) + " (" + DigitNames(part.digits, "or") + ')';
}

std::string WingsHere(const Finding& f) {
  return "Here the pivot is " + CellWithDigits(f.pattern[0]) + "; it sees " + CellWithDigits(f.pattern[1]) +
         " and " + CellWithDigits(f.pattern[2]) + '.';
}

std::string MultiXWingHere(const Finding& f) {
  return "Here these are " + CellWithDigits(f.pattern[0]) + " and " + CellWithDigits(f.pattern[1]) + " in " +
         TheUnit(f.units[0]) + ", " + CellWithDigits(f.pattern[2]) + " and " + CellWithDigits(f.pattern[3]) +
         " in " + TheUnit(f.units[1]) + '.';
}

std::string UniqueRectangleHere(const Finding& f) {
  const std::size_t floors = f.form == 1 ? 3 : 2;
  const std::string roof = f.form == 1 ? CellName(f.pattern[3].cell) : PatternCellNames(f, 2, 2);
  return "Here the floor is " + PatternCellNames(f, 0, floors) + " (" +
         DigitNames(f.pattern[0].digits, "or") + "), the roof is " + roof + " (" +
         DigitNames(f.pattern[3].digits, "or") + ").";
}

std::string AvoidableRectangleHere(const Finding& f) {
  if (f.form == 1) {
    return "Here " + PatternCellNames(f, 0, 2) + " hold " + DigitNames(f.pattern[0].digits) + " and " +
           CellName(f.pattern[2].cell) + " holds " + DigitNames(f.pattern[2].digits) + "; " +
           CellWithDigits(f.pattern[3]) + " is open.";
  }
  return "Here " + CellName(f.pattern[0].cell) + " holds " + DigitNames(f.pattern[0].digits) + " and " +
         CellName(f.pattern[1].cell) + " holds " + DigitNames(f.pattern[1].digits) + "; " +
         CellWithDigits(f.pattern[2]) + " and " + CellWithDigits(f.pattern[3]) + " are open.";
}

std::string EmptyRectangleHere(const Finding& f) {
  const std::size_t in_box = f.pattern.size() - 2;
  const std::string digit = DigitNames(f.digits);
  return "Here the digit is " + digit + ": in " + TheUnit(f.units[0]) + " it can go into " +
         PatternCellNames(f, 0, in_box, "or") + ", on the cross of " + TheUnits(f.covers) + "; in " +
         TheUnit(f.units[1]) + " only into " + PatternCellNames(f, in_box, 2, "or") + '.';
}

// Where the pattern is, before anything follows from it.
std::string Here(const Finding& finding) {
  switch (finding.technique) {
    case Technique::XYWing:
    case Technique::XYZWing:
      return WingsHere(finding);
    case Technique::MultiXWing:
      return MultiXWingHere(finding);
    case Technique::UniqueRectangle:
      return UniqueRectangleHere(finding);
    case Technique::AvoidableRectangle:
      return AvoidableRectangleHere(finding);
    case Technique::EmptyRectangle:
      return EmptyRectangleHere(finding);
    default:
      return "Here: " + ExplainStep(finding).pattern + '.';
  }
}

}  // namespace

std::array<StoryFrame, 3> DrawStory(const Example& example, const Palette& palette) {
  return {{{"Spot it", Here(example.finding), DrawBoard(example, Frame::Spot, palette)},
           {"See why", ReasonText(example), DrawBoard(example, Frame::Reason, palette)},
           {"Remove", RemovalText(example.finding), DrawBoard(example, Frame::Whole, palette)}}};
}

}  // namespace kestrel
