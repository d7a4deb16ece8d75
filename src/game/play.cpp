// SPDX-License-Identifier: MIT
#include "game/play.h"

#include <string>

namespace kestrel {

void Play::ClearGrid() {
  clock.Reset();
  main_.LabelStap.caption = std::to_string(0);
  board.ClearGrid();
}

void Play::ClearSudokuData() {
  // The marks stay as they are shown, and so does the best time, which the next puzzle replaces.
  puzzle.GivenDigits = puzzle.SolutionDigits = puzzle.CurrentDigits = DigitGrid{};
  clock.ClearPause();
  puzzle.PuzzleLevel = 0;
  puzzle.PuzzleNumber = 0;
  puzzle.PuzzleBestPlayer = 0;
  history.Clear();
}

Step* Play::RecordStep(int cell) {
  if (history.Full()) return nullptr;
  Step& step = history.Append(cell);
  ShowStepCount();
  return &step;
}

const Step& Play::TakeBack() {
  const Step& step = history.TakeBack();
  ShowStepCount();
  return step;
}

const Step& Play::DoAgain() {
  const Step& step = history.DoAgain();
  ShowStepCount();
  return step;
}

void Play::ForgetSteps() {
  history.Clear();
  ShowStepCount();
}

void Play::ShowStepCount() {
  main_.LabelStap.caption = std::to_string(history.StepCount());
}

}  // namespace kestrel
