// SPDX-License-Identifier: MIT
// What happens when the player has solved the puzzle. Used by cell input.
#pragma once

#include "game/session.h"

namespace kestrel {

// Stops the clock and applauds. A better time of a named player goes into the record and the stock file, then
// the player is congratulated. In the end only opening another puzzle is left. When the program ends behind
// one of the messages, nothing more is done.
void ZetOpgelost(Session& session);

}  // namespace kestrel
