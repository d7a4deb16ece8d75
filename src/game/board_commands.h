// SPDX-License-Identifier: MIT
// The commands that change the board of the open puzzle: undo, redo, restart, reset cell, solution. Used by
// Game; the front ends see to it that they are called only while their buttons are enabled.
#pragma once

#include "game/choices.h"
#include "game/play.h"
#include "media/sounds.h"

namespace kestrel {

// Takes the last step back; needs StepCount > 0.
void Undo(Play& play, Sounds& sounds);
// Does the next step again, mark by mark as recorded; needs StepCount < StepTop.
void Redo(Play& play, Sounds& sounds);
// Throws the history away and lays the puzzle out again from its givens, with a fresh clock.
void Restart(Play& play, Sounds& sounds);
// Empties the cell of the selected row and column and shows all its marks; one step. Nothing without both
// headers selected, or on a given.
void ResetCell(Play& play, const HeaderChoice& headers, Sounds& sounds);
// Gives up: shows the solution. The history stays, but cannot be used any more.
void ShowSolution(Play& play, Sounds& sounds);

}  // namespace kestrel
