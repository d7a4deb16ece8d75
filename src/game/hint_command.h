// SPDX-License-Identifier: MIT
// The "Hint" button and its marker beside the technique list. Used by Game.
#pragma once

#include "core/yield.h"
#include "forms/asker.h"
#include "forms/main_window.h"
#include "game/play.h"
#include "media/help.h"
#include "media/sounds.h"

namespace kestrel {

// Reports the first mistake on the board, or marks the technique to use next. Marking the technique of step n
// costs n seconds: best times are compared between players.
//
// Events may run in the middle: a hint for a board or a play that is gone by then is dropped.
void Hint(Play& play, MainWindow& main, Sounds& sounds, Yield& yield, Asker& asker);

// A click on the marker: opens the help page of the marked technique.
void OpenHintPage(const MainWindow& main, Help& help);

// A click on a row of the technique list: the help page of step 1..22, nothing for other numbers.
void OpenTechniquePage(int step, Help& help);

}  // namespace kestrel
