// SPDX-License-Identifier: MIT
// The commands that change the board of the open puzzle: undo, redo, restart, reset cell, solution. Used by
// Game, which calls them only while their buttons are enabled.
#pragma once

#include "game/session.h"

namespace kestrel {

// Takes the last step back; needs StepCount > 0.
void Undo(Session& session);
// Does the next step again, mark by mark as recorded; needs StepCount < StepTop.
void Redo(Session& session);
// Throws the history away and lays the puzzle out again from its givens, with a fresh clock.
void Restart(Session& session);
// Empties the cell of the selected row and column and shows all its marks; one step. Nothing without both
// headers selected, or on a given.
void ResetCell(Session& session);
// Gives up: shows the solution. The history stays, but cannot be used any more.
void ShowSolution(Session& session);

}  // namespace kestrel
