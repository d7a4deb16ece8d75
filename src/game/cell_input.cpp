// SPDX-License-Identifier: MIT
#include "game/cell_input.h"

#include <cstdint>

namespace kestrel {

namespace {

// The strip in which a mark overlaps its neighbours never counts.
bool Inside(int x, int y, int size) {
  return x > 0 && x < size && y > 0 && y < size;
}

// Hides the mark of `digit` in a cell and adds `bit` to `marks`, when it is shown.
void HideAndNote(Board& board, int digit, int cell, int bit, std::uint16_t& marks) {
  if (!board.MarkShown(digit, cell)) return;
  board.HideMark(digit, cell);
  marks = static_cast<std::uint16_t>(marks | 1U << static_cast<unsigned>(bit));
}

// Takes an assigned digit from the marks of the cells that see the step's cell.
void HideInPeers(Board& board, int digit, Step& step) {
  const int row = CellRow[step.Cell];
  const int column = CellCol[step.Cell];
  for (int j = 0; j < kUnitSize; ++j) HideAndNote(board, digit, RowCell[j][column], j, step.ColumnMarks);
  for (int j = 0; j < kUnitSize; ++j) HideAndNote(board, digit, RowCell[row][j], j, step.RowMarks);
  for (int j = 0; j < kUnitSize; ++j) {
    HideAndNote(board, digit, BoxCellDownwards(step.Cell, j), j, step.BoxMarks);
  }
}

void Assign(Play& play, Sounds& sounds, int digit, int cell) {
  Step* step = play.RecordStep(cell);
  if (step == nullptr) return;
  play.HideHint();
  step->Action = static_cast<std::int16_t>(digit);
  step->CellMarks = play.puzzle.PencilMask[cell];
  play.board.HideMarks(kAllDigits, cell);
  sounds.Speel(Sound::Assign);
  play.board.SetDigit(digit, cell);
  if (play.puzzle.MarksAreCandidates()) HideInPeers(play.board, digit, *step);
}

void Discard(Play& play, Sounds& sounds, int digit, int cell) {
  Step* step = play.RecordStep(cell);
  if (step == nullptr) return;
  play.HideHint();
  sounds.Speel(Sound::Discard);
  step->Action = static_cast<std::int16_t>(-digit);
  step->CellMarks = DigitBit(digit);
  play.board.HideMark(digit, cell);
}

}  // namespace

void MarkMouseUp(Play& play, Sounds& sounds, int digit, int cell, MouseButton button, int x, int y) {
  if (!Inside(x, y, kMarkPitch)) return;
  if (button == MouseButton::Left) Assign(play, sounds, digit, cell);
  if (button == MouseButton::Right && play.puzzle.MarksAreCandidates()) Discard(play, sounds, digit, cell);
}

void HeaderMouseUp(HeaderChoice& headers, MainWindow& main, Sounds& sounds, HeaderKind kind, int index,
                   MouseButton button, int x, int y) {
  if (!Inside(x, y, kHeaderSize) || button != MouseButton::Left) return;
  auto& labels = kind == HeaderKind::Row ? main.LabelRow : main.LabelColumn;
  int& selected = kind == HeaderKind::Row ? headers.SelectedRow : headers.SelectedColumn;
  if (labels(index).fore == kRed) {
    labels(index).fore = kBlack;
    selected = kNoHeader;
    return;
  }
  sounds.Speel(Sound::Label);
  for (Label& label : labels.items) label.fore = kBlack;
  labels(index).fore = kRed;
  selected = index;
}

}  // namespace kestrel
