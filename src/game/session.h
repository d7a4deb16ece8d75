// SPDX-License-Identifier: MIT
// Everything that the main window's logic works on, sorted by the question what the data is: chosen before a
// puzzle is opened, part of the puzzle in play, stock and renewal, or only about what is on the screen now.
// One for the run of the program, owned by Game, which hands every handler the parts that it may touch.
#pragma once

#include <string>

#include "forms/forms.h"
#include "forms/ports.h"
#include "game/choices.h"
#include "game/ending.h"
#include "game/play.h"
#include "game/stockroom.h"
#include "media/help.h"
#include "media/sounds.h"
#include "players/players.h"
#include "players/players_dialog.h"
#include "print/print_dialog.h"

namespace kestrel {

struct Session {
  explicit Session(const Ports& handed_in);
  Session(const Session&) = delete;
  Session& operator=(const Session&) = delete;

  // The outer world, with the questions and windows that stop answering when the program ends.
  Ports ports;
  Ending ending;
  EndingYield yield{ports.yield, ending};
  EndingAsker asker{ports.asker, ending};
  EndingScreen screen{ports.screen, ending};
  std::string ProgramFolder;  // ends in a backslash

  // What is on the screen.
  Forms forms;

  // Chosen by the player, and kept in the settings but for the headers.
  Choices choices;
  HeaderChoice headers;
  Players players;
  Sounds sounds{ports.sound};

  // Of the puzzle in play.
  Play play{forms.main, ports.clock};

  // Stock and renewal.
  Stockroom stockroom;

  // The other windows.
  Help help{forms.browser, ports.help, screen};
  PlayersDialog players_dialog{forms.names, players, ports.settings, asker, screen};
  PrintDialog print_dialog{forms.print, *stockroom.stock, ports.printer, asker, screen};
};

}  // namespace kestrel
