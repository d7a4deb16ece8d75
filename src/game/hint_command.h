// SPDX-License-Identifier: MIT
// The "Hint" button and its marker beside the technique list. Used by Game.
#pragma once

#include "game/session.h"

namespace kestrel {

// Reports the first mistake on the board, or marks the technique to use next. Marking the technique of step n
// costs n seconds: best times are compared between players.
void Hint(Session& session);

// A click on the marker: opens the help page of the marked technique.
void OpenHintPage(Session& session);

// A click on a row of the technique list: the help page of step 1..22, nothing for other numbers.
void OpenTechniquePage(Session& session, int step);

}  // namespace kestrel
