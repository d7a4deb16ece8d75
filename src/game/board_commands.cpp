// SPDX-License-Identifier: MIT
#include "game/board_commands.h"

#include <cstdint>

namespace kestrel {

namespace {

constexpr int kResetAction = 10;

enum class Direction : std::uint8_t { Back, Again };

// Shows (taking back) or hides (doing again) the digit's mark in the other cells that an assignment changed.
void ReplayPeers(Board& board, int digit, const Step& step, Direction direction) {
  const auto replay = [&](std::uint16_t marks, int bit, int cell) {
    if ((marks >> static_cast<unsigned>(bit) & 1U) == 0) return;
    direction == Direction::Back ? board.ShowMark(digit, cell) : board.HideMark(digit, cell);
  };
  const int row = CellRow[step.Cell];
  const int column = CellCol[step.Cell];
  for (int j = 0; j < kUnitSize; ++j) replay(step.ColumnMarks, j, RowCell[j][column]);
  for (int j = 0; j < kUnitSize; ++j) replay(step.RowMarks, j, RowCell[row][j]);
  for (int j = 0; j < kUnitSize; ++j) replay(step.BoxMarks, j, BoxCellDownwards(step.Cell, j));
}

void TakeBack(Board& board, const Step& step) {
  if (step.Action >= kResetAction) {
    board.HideMarks(step.CellMarks, step.Cell);
    if (step.Action > kResetAction) board.SetDigit(step.Action - kResetAction, step.Cell);
    return;
  }
  board.ShowMarks(step.CellMarks, step.Cell);
  if (step.Action > 0) {
    board.SetDigit(0, step.Cell);
    ReplayPeers(board, step.Action, step, Direction::Back);
  }
}

void DoAgain(Board& board, const Step& step) {
  if (step.Action >= kResetAction) {
    board.SetDigit(0, step.Cell);
    board.ShowMarks(step.CellMarks, step.Cell);
    return;
  }
  board.HideMarks(step.CellMarks, step.Cell);
  if (step.Action > 0) {
    board.SetDigit(step.Action, step.Cell);
    ReplayPeers(board, step.Action, step, Direction::Again);
  }
}

}  // namespace

void Undo(Session& session) {
  session.forms.main.LabelHint.visible = false;
  session.sounds.Speel(Sound::UndoRedo);
  TakeBack(session.board, session.history.TakeBack());
  session.ShowStepCount();
  session.EnableHistoryButtons();
}

void Redo(Session& session) {
  session.forms.main.LabelHint.visible = false;
  session.sounds.Speel(Sound::UndoRedo);
  DoAgain(session.board, session.history.DoAgain());
  session.ShowStepCount();
  session.EnableHistoryButtons();
}

void Restart(Session& session) {
  MainWindow& main = session.forms.main;
  main.Timer1.enabled = false;
  session.sounds.Speel(Sound::Discard);
  session.history.Clear();
  session.ClearGrid();
  session.board.EnableGrid();
  main.LabelHint.visible = false;
  session.board.LayOutGivens();
  session.EnableHistoryButtons();
  main.CommandResetCell.enabled = true;
  main.CommandSolution.enabled = true;
  main.CommandHint.enabled = true;
  session.clock.Start();
}

void ResetCell(Session& session) {
  if (session.SelectedColumn == kNoHeader || session.SelectedRow == kNoHeader) return;
  const int cell = RowCell[session.SelectedRow][session.SelectedColumn];
  if (session.puzzle.GivenDigits[cell] != 0) return;
  Step* step = session.RecordStep(cell);
  if (step == nullptr) return;
  session.forms.main.LabelHint.visible = false;
  session.sounds.Speel(Sound::ResetCell);
  step->Action = static_cast<std::int16_t>(kResetAction + session.puzzle.CurrentDigits[cell]);
  step->CellMarks = static_cast<CandidateMask>(kAllDigits & ~session.puzzle.PencilMask[cell]);
  session.board.ShowMarks(kAllDigits, cell);
  session.board.SetDigit(0, cell);
}

void ShowSolution(Session& session) {
  session.clock.Stop();
  session.sounds.Speel(Sound::Solution);
  session.forms.main.LabelHint.visible = false;
  session.board.ShowSolution();
  session.EndPlay();
}

}  // namespace kestrel
