// SPDX-License-Identifier: MIT
// A place to play in: a program folder with a stock and sounds, an empty home, and scripts played there. Used
// by all tests that play.
#pragma once

#include <string>
#include <string_view>

#include "core/stock_table.h"
#include "core/yield.h"
#include "host/host_files.h"
#include "support/temp_folder.h"
#include "ui/script/command_line.h"

namespace kestrel {
class Stage;
}  // namespace kestrel

namespace kestrel::testing {

// What playing a script gave.
struct Played {
  std::string output;
  std::string errors;
  int status = 0;

  // Whether `line` is among the lines of the output.
  [[nodiscard]] bool Has(std::string_view line) const;
  // How many lines of the output start with `start`.
  [[nodiscard]] int Count(std::string_view start) const;
};

// Lines that add the player Ann to a home without players, and choose her.
inline constexpr std::string_view kAnnPlays =
    "press cmdPlayers\npress KnopNieuweSpeler\ntype NaamInvoerveld Ann\nkey NaamInvoerveld enter\n"
    "press KnopOK\n";

// Lines that fill every empty cell of a puzzle of the test stock with its solution.
std::string FillIn(int level, int number);

class GameHome {
 public:
  GameHome();

  // Plays a script in a new process's worth of game; settings and stock stay from one to the next. The
  // folders' names in the output are replaced by HOME and PROGRAM.
  Played Play(std::string_view script);
  // The same with other files or another yield underneath.
  Played Play(std::string_view script, Files& files, Yield& yield, Stage* stage = nullptr);
  // The same on another front end.
  Played Play(std::string_view script, Yield& yield, Stage& stage) {
    return Play(script, files_, yield, &stage);
  }

  // The user's stock as it is on the disk now.
  [[nodiscard]] StockTable Stock();
  [[nodiscard]] std::string StockBytes() const { return home.Get("KestrelSudoku/sudstock.kpz"); }
  // Replaces the user's stock.
  void PutStock(const StockTable& stock);

  TempFolder program;
  TempFolder home;
  ScriptOptions options;  // for the next Play

 private:
  SystemCalls calls_;
  HostFiles files_{calls_};
};

}  // namespace kestrel::testing
