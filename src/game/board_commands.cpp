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

void Undo(Play& play, Sounds& sounds) {
  play.HideHint();
  sounds.Speel(Sound::UndoRedo);
  TakeBack(play.board, play.TakeBack());
}

void Redo(Play& play, Sounds& sounds) {
  play.HideHint();
  sounds.Speel(Sound::UndoRedo);
  DoAgain(play.board, play.DoAgain());
}

void Restart(Play& play, Sounds& sounds) {
  sounds.Speel(Sound::Discard);
  play.ForgetSteps();
  play.ClearGrid();
  play.board.EnableGrid();
  play.HideHint();
  play.board.LayOutGivens();
  play.clock.Start();
}

void ResetCell(Play& play, const HeaderChoice& headers, Sounds& sounds) {
  if (headers.SelectedColumn == kNoHeader || headers.SelectedRow == kNoHeader) return;
  const int cell = RowCell[headers.SelectedRow][headers.SelectedColumn];
  if (play.puzzle.GivenDigits[cell] != 0) return;
  Step* step = play.RecordStep(cell);
  if (step == nullptr) return;
  play.HideHint();
  sounds.Speel(Sound::ResetCell);
  step->Action = static_cast<std::int16_t>(kResetAction + play.puzzle.CurrentDigits[cell]);
  step->CellMarks = static_cast<CandidateMask>(kAllDigits & ~play.puzzle.PencilMask[cell]);
  play.board.ShowMarks(kAllDigits, cell);
  play.board.SetDigit(0, cell);
}

void ShowSolution(Play& play, Sounds& sounds) {
  play.clock.Stop();
  sounds.Speel(Sound::Solution);
  play.HideHint();
  play.board.ShowSolution();
  play.phase = PlayPhase::Over;
}

}  // namespace kestrel
