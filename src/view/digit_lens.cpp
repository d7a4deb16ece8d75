// SPDX-License-Identifier: MIT
#include "view/digit_lens.h"

#include "view/play_state.h"

namespace kestrel {

CellSet DigitLens::Lines() const {
  CellSet lines;
  for (int other = 0; other < kCells; ++other) {
    if (CellRow[other] == CellRow[cell] || CellCol[other] == CellCol[cell] ||
        CellBoxStart[other] == CellBoxStart[cell]) {
      lines.Add(other);
    }
  }
  return lines;
}

CellSet DigitLens::DigitsOf(const MainWindow& main) const {
  CellSet equal;
  const std::string caption = std::to_string(digit);
  for (int other = 0; other < kCells; ++other) {
    if (main.Grid(other).caption == caption) equal.Add(other);
  }
  return equal;
}

CellSet DigitLens::MarksOf(const MainWindow& main) const {
  CellSet equal;
  for (int other = 0; marks && other < kCells; ++other) {
    if (main.Mark(digit)(other).visible) equal.Add(other);
  }
  return equal;
}

std::optional<DigitLens> LensOver(const MainWindow& main, int cell, int mark, bool marks_are_candidates) {
  if (!PuzzleOpen(main)) return std::nullopt;
  const std::string& caption = main.Grid(cell).caption;
  const int digit = caption.empty() ? mark : caption[0] - '0';
  if (digit < 1 || digit > 9) return std::nullopt;
  return DigitLens{cell, digit, marks_are_candidates};
}

}  // namespace kestrel
