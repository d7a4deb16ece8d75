// SPDX-License-Identifier: MIT
// What the main window's controls tell about the play. Used by everything that shows more than the controls.
#pragma once

#include "forms/main_window.h"

namespace kestrel {

// False until the first puzzle is laid out, and while the next one is about to be.
inline bool PuzzleOpen(const MainWindow& main) {
  return main.Mark(1)(0).enabled;
}

// True from the laying out of a puzzle to its end.
inline bool InPlay(const MainWindow& main) {
  return PuzzleOpen(main) && main.end == PuzzleEnd::None;
}

// True for a cell that shows a given digit.
inline bool ShowsGiven(const Label& cell) {
  return cell.fore == kDarkBlue && !cell.caption.empty();
}

// The row or column whose header is selected, -1 for none.
template <class Headers>
int SelectedLine(const Headers& headers) {
  for (int line = 0; line < kUnitSize; ++line) {
    if (headers(line).fore == kRed) return line;
  }
  return -1;
}

// The cell whose row and column headers are both selected, -1 for none.
inline int SelectedCell(const MainWindow& main) {
  const int row = SelectedLine(main.LabelRow);
  const int column = SelectedLine(main.LabelColumn);
  return row < 0 || column < 0 ? -1 : row * kUnitSize + column;
}

// The same, -1 also where Reset Cell would do nothing.
inline int ResetTarget(const MainWindow& main) {
  const int cell = SelectedCell(main);
  if (cell < 0 || !main.CommandResetCell.enabled || ShowsGiven(main.Grid(cell))) return -1;
  return cell;
}

}  // namespace kestrel
