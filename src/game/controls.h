// SPDX-License-Identifier: MIT
// Which controls of the main window can be used. Used by Game after every event and round.
#pragma once

#include "forms/main_window.h"
#include "game/play.h"

namespace kestrel {

// Enables and disables everything that depends on the phase of play, on the history and on the level that is
// being renewed (0: none):
//
//                          Starting   NoPuzzle, Over   Chosen   InPlay
//    Next, Open               -             x            -        -
//    levels                   x             x            -        -      but for the one being renewed
//    Reset Cell, Solution,
//    Hint                     -             -            -        x
//    Undo, Restart            -             -            -        with steps that are done
//    Redo                     -             -            -        with steps that were undone
//    Print                    -             x            x        x
//    Renew Level              x             x            x        x      but while a level is being renewed
void EnableControls(MainWindow& main, PlayPhase phase, const StepHistory& history, int renewing_level);

}  // namespace kestrel
