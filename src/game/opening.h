// SPDX-License-Identifier: MIT
// Choosing a puzzle ("Next", "Open...") and laying it out. Used by Game.
//
// The two commands only choose the number and blank the board; the next round lays the puzzle out.
#pragma once

#include "core/settings.h"
#include "core/stock_table.h"
#include "forms/asker.h"
#include "forms/main_window.h"
#include "game/choices.h"
#include "game/play.h"
#include "players/players.h"

namespace kestrel {

// The puzzle after the last one opened in the chosen level; after 100 comes 1.
void NextPuzzle(Play& play, Choices& choices, Settings& settings);

// Asks for a number, again and again until it is 1..100 or the answer is empty; empty changes nothing.
void OpenPuzzleByNumber(Play& play, Choices& choices, Settings& settings, Asker& asker);

// Lays out puzzle CurrentNumber(SelectedLevel), which must be 1..100: board, status bar, technique counts,
// clock.
void ShowPuzzle(Play& play, MainWindow& main, const Choices& choices, const StockTable& stock,
                const Players& players);

}  // namespace kestrel
