// SPDX-License-Identifier: MIT
#include "explain/names.h"

#include <algorithm>
#include <array>

namespace kestrel {

std::string UnitName(Unit unit) {
  switch (unit.kind) {
    case UnitKind::Row:
      return std::string("row ") + RowLetter(unit.index);
    case UnitKind::Column:
      return "column " + std::to_string(unit.index + 1);
    case UnitKind::Box:
      break;
  }
  return BoxName(unit.index);
}

std::string TheUnit(Unit unit) {
  return (unit.kind == UnitKind::Box ? "the " : "") + UnitName(unit);
}

std::string TheUnits(std::span<const Unit> units) {
  const bool one_kind = std::ranges::all_of(units, [&](Unit unit) { return unit.kind == units[0].kind; });
  std::vector<std::string> names;
  for (const Unit& unit : units) names.push_back(TheUnit(unit));
  if (!one_kind || units.size() < 2) return Joined(names);
  // What all the names have in common is said once.
  if (units[0].kind == UnitKind::Box) {
    constexpr std::string_view kBox = " box";
    for (std::string& name : names) name.resize(name.size() - kBox.size());
    return Joined(names).append(kBox);
  }
  for (std::string& name : names) name.erase(0, name.find(' ') + 1);
  return (units[0].kind == UnitKind::Row ? "rows " : "columns ") + Joined(names);
}

std::string DigitNames(CandidateMask digits, const char* joint) {
  std::vector<std::string> names;
  for (int digit = 1; digit <= 9; ++digit) {
    if (HasDigit(digits, digit)) names.push_back(std::to_string(digit));
  }
  return Joined(names, joint);
}

std::string CellNames(const std::vector<int>& cells, const char* joint) {
  std::vector<std::string> names;
  names.reserve(cells.size());
  for (const int cell : cells) names.push_back(CellName(cell));
  return Joined(names, joint);
}

std::string PatternCellNames(const Finding& finding, std::size_t first, std::size_t count,
                             const char* joint) {
  std::vector<int> cells;
  for (std::size_t i = first; i < first + count; ++i) cells.push_back(finding.pattern[i].cell);
  std::ranges::sort(cells);
  return CellNames(cells, joint);
}

std::string Joined(const std::vector<std::string>& words, const char* joint) {
  std::string text;
  for (std::size_t i = 0; i < words.size(); ++i) {
    if (i > 0) text += i + 1 == words.size() ? std::string(" ") + joint + ' ' : std::string(", ");
    text += words[i];
  }
  return text;
}

std::string NumberWord(int number) {
  constexpr std::array<const char*, 10> kWords{"no",   "one", "two",   "three", "four",
                                               "five", "six", "seven", "eight", "nine"};
  return number >= 0 && number < 10 ? kWords[static_cast<std::size_t>(number)] : std::to_string(number);
}

}  // namespace kestrel
