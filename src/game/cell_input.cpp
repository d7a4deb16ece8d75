// SPDX-License-Identifier: MIT
#include "game/cell_input.h"

#include <cstdint>

#include "game/completion.h"

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

void Assign(Session& session, int digit, int cell) {
  Step* step = session.RecordStep(cell);
  if (step == nullptr) return;
  session.forms.main.LabelHint.visible = false;
  step->Action = static_cast<std::int16_t>(digit);
  step->CellMarks = session.puzzle.PencilMask[cell];
  session.board.HideMarks(kAllDigits, cell);
  session.sounds.Speel(Sound::Assign);
  session.board.SetDigit(digit, cell);
  if (session.puzzle.MarksAreCandidates()) HideInPeers(session.board, digit, *step);
}

void Discard(Session& session, int digit, int cell) {
  Step* step = session.RecordStep(cell);
  if (step == nullptr) return;
  session.forms.main.LabelHint.visible = false;
  session.sounds.Speel(Sound::Discard);
  step->Action = static_cast<std::int16_t>(-digit);
  step->CellMarks = DigitBit(digit);
  session.board.HideMark(digit, cell);
}

}  // namespace

void MarkMouseUp(Session& session, int digit, int cell, MouseButton button, int x, int y) {
  if (Inside(x, y, kMarkPitch)) {
    if (button == MouseButton::Left) Assign(session, digit, cell);
    if (button == MouseButton::Right && session.puzzle.MarksAreCandidates()) Discard(session, digit, cell);
  }
  if (session.board.Complete()) ZetOpgelost(session);
}

void HeaderMouseUp(Session& session, HeaderKind kind, int index, MouseButton button, int x, int y) {
  if (!Inside(x, y, kHeaderSize) || button != MouseButton::Left) return;
  MainWindow& main = session.forms.main;
  auto& headers = kind == HeaderKind::Row ? main.LabelRow : main.LabelColumn;
  int& selected = kind == HeaderKind::Row ? session.SelectedRow : session.SelectedColumn;
  if (headers(index).fore == kRed) {
    headers(index).fore = kBlack;
    selected = kNoHeader;
    return;
  }
  session.sounds.Speel(Sound::Label);
  for (Label& header : headers.items) header.fore = kBlack;
  headers(index).fore = kRed;
  selected = index;
}

}  // namespace kestrel
