// SPDX-License-Identifier: MIT
// The board on the main window: digits and pencil marks, shown and kept in step with the open puzzle. Used by
// everything that plays.
#pragma once

#include "core/open_puzzle.h"
#include "forms/main_window.h"

namespace kestrel {

// Invariant: bit d-1 of PencilMask[c] is set exactly while Mark(d)(c) is visible. Only this class changes
// either.
class Board {
 public:
  // Both must outlive this object.
  Board(MainWindow& main, OpenPuzzle& puzzle) : main_(main), puzzle_(puzzle) {}

  // Blanks the view: every mark shown, no digits. The digits of the puzzle stay.
  void ClearGrid();
  // Switches the marks' mouse input off or on.
  void DisableGrid();
  void EnableGrid();

  // digit 1..9, cell 0..80.
  [[nodiscard]] bool MarkShown(int digit, int cell) const { return main_.Mark(digit)(cell).visible; }
  void ShowMark(int digit, int cell);
  void HideMark(int digit, int cell);
  // The same for a set of digits in one cell.
  void ShowMarks(CandidateMask digits, int cell);
  void HideMarks(CandidateMask digits, int cell);

  // Fills a cell, or empties it with digit 0; the marks stay.
  void SetDigit(int digit, int cell);

  // Puts the givens on a board that ClearGrid has blanked: dark blue, their marks hidden, all other cells
  // empty. Where marks are candidates, the givens' digits go from the marks of the cells that see them.
  void LayOutGivens();

  // Shows the solution in every cell, without marks; the colours stay.
  void ShowSolution();

  // True when every cell holds its solution digit.
  [[nodiscard]] bool Complete() const;

 private:
  void EnableMarks(bool enabled);
  void LayOutGiven(int digit, int cell);

  MainWindow& main_;
  OpenPuzzle& puzzle_;
};

// The cell at bit `bit` (0..8) of a step's BoxMarks: the bits run down each column of the box that holds
// `cell`.
constexpr int BoxCellDownwards(int cell, int bit) {
  return CellBoxStart[cell] + bit / 3 + 9 * (bit % 3);
}

}  // namespace kestrel
