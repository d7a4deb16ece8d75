// SPDX-License-Identifier: MIT
// The puzzle in play: what opening another one replaces, and the board that shows it. Used by everything that
// plays.
#pragma once

#include <cstdint>

#include "core/clock.h"
#include "core/open_puzzle.h"
#include "forms/main_window.h"
#include "game/board.h"
#include "game/play_clock.h"
#include "game/step_history.h"

namespace kestrel {

// How far play has come. Which buttons can be used follows from it: see controls.h.
//
//    Starting -> NoPuzzle -> Chosen -> InPlay -> Over -> Chosen ...
enum class PlayPhase : std::uint8_t {
  Starting,  // the main loop has not seen the stock yet
  NoPuzzle,  // none was opened yet
  Chosen,    // the next round lays the chosen puzzle out
  InPlay,
  Over  // solved by the player, or revealed
};

struct Play {
  // Both must outlive this object.
  Play(MainWindow& main, Clock& the_clock) : board(main, puzzle), clock(the_clock, main), main_(main) {}
  Play(const Play&) = delete;
  Play& operator=(const Play&) = delete;

  // Blanks the board's view, clock and step counter; no puzzle is timed.
  void ClearGrid();
  // Forgets the open puzzle and its history.
  void ClearSudokuData();

  // Appends a step for the cell. Null when the history is full: the caller then changes nothing.
  Step* RecordStep(int cell);
  // The step to take back, or to do again, counted as such.
  const Step& TakeBack();
  const Step& DoAgain();
  // Throws all steps away.
  void ForgetSteps();

  // The marker beside the technique list. Every play action hides it.
  void HideHint() { main_.LabelHint.visible = false; }

  PlayPhase phase = PlayPhase::Starting;
  OpenPuzzle puzzle;
  StepHistory history;
  Board board;
  PlayClock clock;

 private:
  void ShowStepCount();

  MainWindow& main_;
};

}  // namespace kestrel
