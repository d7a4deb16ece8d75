// SPDX-License-Identifier: MIT
// What happens when the player has solved the puzzle. Used by Game after every release on a mark.
#pragma once

#include "core/files.h"
#include "forms/asker.h"
#include "forms/main_window.h"
#include "game/play.h"
#include "game/stockroom.h"
#include "media/sounds.h"
#include "players/players.h"

namespace kestrel {

// What a best time goes through.
struct BestTimeDesk {
  const Players& players;
  Stockroom& stockroom;
  Files& files;
  Asker& asker;
  MainWindow& main;
};

// Stops the clock and applauds. A better time of a named player goes into the record and the stock file, then
// the player is congratulated. In the end only opening another puzzle is left. When the program ends behind
// one of the messages, nothing more is done. `level` is where the puzzle stands in the stock.
void ZetOpgelost(Play& play, int level, Sounds& sounds, const BestTimeDesk& desk);

}  // namespace kestrel
