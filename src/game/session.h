// SPDX-License-Identifier: MIT
// Everything that the main window's logic works on: the forms, the stock, the open puzzle, the player's
// choices, and the small operations that several commands share. One for the run of the program, owned by
// Game.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <string>

#include "core/open_puzzle.h"
#include "core/stock_file.h"
#include "core/stock_table.h"
#include "forms/forms.h"
#include "forms/ports.h"
#include "game/board.h"
#include "game/ending.h"
#include "game/play_clock.h"
#include "game/step_history.h"
#include "media/help.h"
#include "media/sounds.h"
#include "players/players.h"
#include "players/players_dialog.h"
#include "print/print_dialog.h"

namespace kestrel {

// A value for each level, indexed by level 1..5.
class PerLevel {
 public:
  int& operator()(int level) { return values_[Index(level)]; }
  int operator()(int level) const { return values_[Index(level)]; }

 private:
  static std::size_t Index(int level) {
    Require(level >= 1 && level <= kLevels);
    return static_cast<std::size_t>(level - 1);
  }
  std::array<int, kLevels> values_{};
};

inline constexpr int kNoHeader = 9;  // value of SelectedRow and SelectedColumn when none is selected

struct Session {
  explicit Session(const Ports& handed_in);
  Session(const Session&) = delete;
  Session& operator=(const Session&) = delete;

  // Blanks the board's view, clock and step counter; no puzzle is timed.
  void ClearGrid();
  // Forgets the open puzzle and its history.
  void ClearSudokuData();

  // Appends a step for the cell and makes Undo and Restart, not Redo, usable. Null when the history is full:
  // the caller then changes nothing.
  Step* RecordStep(int cell);
  void ShowStepCount();

  // Enables or disables Restart, Undo and Redo as the history allows while a puzzle is in play.
  void EnableHistoryButtons();

  // The puzzle was solved or revealed: only opening another one and the choice of level are left, the level
  // that is being renewed excepted.
  void EndPlay();

  // WriteStock, with its message when it fails. False: the program is ending.
  bool SaveStock();

  // The main window's caption says who plays.
  void ShowPlayer();

  [[nodiscard]] bool Renewing() const {
    return StockStatus != kStockComplete && StockStatus != kStockAcknowledged;
  }

  Ports ports;
  Ending ending;
  EndingYield yield{ports.yield, ending};
  EndingAsker asker{ports.asker, ending};
  EndingScreen screen{ports.screen, ending};

  Forms forms;
  std::unique_ptr<StockTable> stock = std::make_unique<StockTable>();
  std::unique_ptr<KnownStock> known_stock = std::make_unique<KnownStock>();
  OpenPuzzle puzzle;
  StepHistory history;
  Board board{forms.main, puzzle};
  PlayClock clock{ports.clock, forms.main};
  Sounds sounds{ports.sound};
  Help help{forms.browser, ports.help, screen};
  Players players;
  PlayersDialog players_dialog{forms.names, players, ports.settings, asker, screen};
  PrintDialog print_dialog{forms.print, *stock, ports.printer, asker, screen};

  std::string ProgramFolder;  // both end in a backslash
  std::string DataFolder;
  std::int16_t StockStatus = kStockNotRead;
  int SelectedLevel = 0;          // 1..5 after start-up
  PerLevel CurrentNumber;         // last number opened, 0: none yet
  int RenewingLevel = 0;          // 0: none
  PerLevel RenewalCount;          // puzzles filed since the level's renewal began, 0..100
  bool RedisplayPending = false;  // the next round lays the chosen puzzle out
  int SelectedRow = kNoHeader;    // 0..8
  int SelectedColumn = kNoHeader;
};

}  // namespace kestrel
