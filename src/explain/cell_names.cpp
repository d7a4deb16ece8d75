// SPDX-License-Identifier: MIT
// Cells, units and digits in the player's words.
#include "explain/cell_names.h"

#include <array>

namespace kestrel::help {
namespace {

constexpr std::string_view kRowLetters = "ABCDEFGHJ";
constexpr std::array<const char*, 9> kBoxes{"top left",    "top middle",    "top right",
                                            "middle left", "centre",        "middle right",
                                            "bottom left", "bottom middle", "bottom right"};

}  // namespace

char RowLetter(int row) {
  return kRowLetters[static_cast<std::size_t>(row)];
}

std::string CellName(int cell) {
  return {RowLetter(CellRow[cell]), static_cast<char>('1' + CellCol[cell])};
}

int CellOfName(std::string_view name) {
  if (name.size() != 2) return -1;
  const std::size_t row = kRowLetters.find(name[0]);
  const int column = name[1] - '1';
  if (row == std::string_view::npos || column < 0 || column > 8) return -1;
  return RowCell[row][column];
}

std::string UnitName(Unit unit) {
  switch (unit.kind) {
    case UnitKind::Row:
      return std::string("row ") + RowLetter(unit.index);
    case UnitKind::Column:
      return "column " + std::to_string(unit.index + 1);
    case UnitKind::Box:
      break;
  }
  return std::string("the ") + kBoxes[static_cast<std::size_t>(unit.index)] + " box";
}

std::string UnitNames(const std::vector<Unit>& units) {
  if (units.size() == 1) return UnitName(units.front());
  std::vector<std::string> names;
  for (const Unit& unit : units) {
    const std::string name = UnitName(unit);
    if (unit.kind == UnitKind::Box) {
      names.push_back(name.substr(0, name.size() - 4));
    } else {
      names.push_back(name.substr(name.find(' ') + 1));
    }
  }
  switch (units.front().kind) {
    case UnitKind::Row:
      return "rows " + Joined(names);
    case UnitKind::Column:
      return "columns " + Joined(names);
    case UnitKind::Box:
      break;
  }
  return Joined(names) + " box";
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

}  // namespace kestrel::help
