// SPDX-License-Identifier: MIT
// Choosing a puzzle ("Next", "Open...") and laying it out. Used by the main loop.
//
// The two commands only choose the number and blank the board; the next round lays the puzzle out.
#pragma once

#include "game/session.h"

namespace kestrel {

// The puzzle after the last one opened in the chosen level; after 100 comes 1.
void NextPuzzle(Session& session);

// Asks for a number, again and again until it is 1..100 or the answer is empty; empty changes nothing.
void OpenPuzzleByNumber(Session& session);

// Lays out puzzle CurrentNumber(level), which must be 1..100: board, status bar, technique counts, clock.
void ShowPuzzle(Session& session, int level);

}  // namespace kestrel
