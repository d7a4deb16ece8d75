// SPDX-License-Identifier: MIT
#include "game/board.h"

#include <cstdint>
#include <string>

namespace kestrel {

void Board::ClearGrid() {
  main_.end = PuzzleEnd::None;
  main_.filled_in = CellSet();
  for (int cell = 0; cell < kCells; ++cell) {
    ShowMarks(kAllDigits, cell);
    Label& label = main_.Grid(cell);
    label.caption.clear();
    label.fore = kWindowTextColour;
    label.back = kWindowColour;
    label.transparent = true;
  }
}

void Board::DisableGrid() {
  EnableMarks(false);
}

void Board::EnableGrid() {
  EnableMarks(true);
}

void Board::EnableMarks(bool enabled) {
  for (MarkArray& marks : main_.Mark.items) {
    for (Label& mark : marks.items) mark.enabled = enabled;
  }
}

void Board::ShowMark(int digit, int cell) {
  main_.Mark(digit)(cell).visible = true;
  puzzle_.PencilMask[cell] = static_cast<CandidateMask>(puzzle_.PencilMask[cell] | DigitBit(digit));
}

void Board::HideMark(int digit, int cell) {
  main_.Mark(digit)(cell).visible = false;
  puzzle_.PencilMask[cell] = static_cast<CandidateMask>(puzzle_.PencilMask[cell] & ~DigitBit(digit));
}

void Board::ShowMarks(CandidateMask digits, int cell) {
  for (int digit = 1; digit <= 9; ++digit) {
    if (HasDigit(digits, digit)) ShowMark(digit, cell);
  }
}

void Board::HideMarks(CandidateMask digits, int cell) {
  for (int digit = 1; digit <= 9; ++digit) {
    if (HasDigit(digits, digit)) HideMark(digit, cell);
  }
}

void Board::SetDigit(int digit, int cell) {
  main_.Grid(cell).caption = digit == 0 ? std::string() : std::to_string(digit);
  puzzle_.CurrentDigits[cell] = static_cast<std::uint8_t>(digit);
}

void Board::LayOutGivens() {
  for (int cell = 0; cell < kCells; ++cell) {
    const int given = puzzle_.GivenDigits[cell];
    if (given != 0) {
      LayOutGiven(given, cell);
    } else {
      puzzle_.CurrentDigits[cell] = 0;
    }
  }
}

void Board::LayOutGiven(int digit, int cell) {
  main_.Grid(cell).fore = kDarkBlue;
  HideMarks(kAllDigits, cell);
  SetDigit(digit, cell);
  // A stock file from elsewhere may hold bytes that are no digits; they have no marks.
  if (!puzzle_.MarksAreCandidates() || digit > 9) return;
  for (int i = 0; i < kUnitSize; ++i) {
    HideMark(digit, RowCell[i][CellCol[cell]]);
    HideMark(digit, RowCell[CellRow[cell]][i]);
    HideMark(digit, BoxCell[CellBox[cell]][i]);
  }
}

void Board::ShowSolution() {
  main_.end = PuzzleEnd::Revealed;
  for (int cell = 0; cell < kCells; ++cell) {
    if (puzzle_.CurrentDigits[cell] != puzzle_.SolutionDigits[cell]) main_.filled_in.Add(cell);
    HideMarks(kAllDigits, cell);
    SetDigit(puzzle_.SolutionDigits[cell], cell);
  }
}

bool Board::Complete() const {
  for (int cell = 0; cell < kCells; ++cell) {
    const int digit = puzzle_.CurrentDigits[cell];
    if (digit == 0 || digit != puzzle_.SolutionDigits[cell]) return false;
  }
  return true;
}

}  // namespace kestrel
