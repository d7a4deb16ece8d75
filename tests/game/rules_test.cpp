// SPDX-License-Identifier: MIT
// Rules that a transcript would show only with effort: times of foreign records, limits, and a renewal beside
// play.
#include <gtest/gtest.h>

#include <map>
#include <sstream>

#include "game/status_bar.h"
#include "game/step_history.h"
#include "game/texts.h"
#include "support/answering_script.h"
#include "support/game_home.h"
#include "support/test_stock.h"
#include "ui/script/runner.h"

namespace kestrel::testing {
namespace {

TEST(StatusBar, AveragesAreRoundedDown) {
  StockTable stock;
  stock(1, 5).BestMinutes = 125;
  stock(1, 5).BestSeconds = 5;
  stock(1, 100).BestSeconds = 30;
  stock(1, 7).BestMinutes = -3;  // no time
  EXPECT_EQ(TimesOfLevel(stock, 1).best, 30);
  EXPECT_EQ(TimesOfLevel(stock, 1).average, (7505 + 30) / 2);
  stock(2, 1).BestMinutes = 1;
  stock(2, 1).BestSeconds = -65;
  stock(2, 2).BestSeconds = 2;
  EXPECT_EQ(TimesOfLevel(stock, 2).average, -2);
  EXPECT_EQ(texts::Time(125, 5), "25:05");
}

// At the last possible step a click changes nothing, and undoing still works.
TEST(Game, TakesNoStepBeyondTheLast) {
  GameHome home;
  std::string script = "press OptionType(3)\npress CommandNew\nrow 0\ncolumn 1\n";
  for (int i = 0; i < StepHistory::kMostSteps; ++i) script += "press CommandResetCell\n";
  script +=
      "echo full\nmark 2 9\nmark 2 5 right\npress CommandResetCell\nvar StepCount\nget Grid(2).caption\n";
  const Played played = home.Play(script + "press CommandUndo\nmark 2 9\nvar StepCount\n");
  EXPECT_EQ(played.status, 0) << played.errors;
  EXPECT_EQ(played.output.substr(played.output.find("echo full")),
            "echo full\nStepCount = 32767\nGrid(2).caption = \"\"\nsound 6\nsound 2\nStepCount = 32767\n");
}

// A script cannot minimise the window behind a dialog, but window managers can, there and back again.
TEST(Game, HoldsTheClockBehindThePrintDialogWhateverTheWindowDoes) {
  GameHome home;
  SystemCalls calls;
  HostFiles files(calls);
  NeverStop yield;
  std::ostringstream output, errors;
  GameLoop* game = nullptr;
  int line = 0;
  AnsweringScript lines(
      "press CommandNew\nclock 12:01:26\ntick\npress CommandPrint\nclock 12:01:34\ntick\n"
      "clock 12:01:50\ntick\npress Command1\nclock 12:02:00\nget LabelTijd.caption\ntick\nvar "
      "ElapsedSeconds\n",
      output, [&] {
        const std::map<int, WindowState> states = {{7, WindowState::Minimized},
                                                   {8, WindowState::Normal},
                                                   {9, WindowState::Minimized},
                                                   {11, WindowState::Normal}};
        const auto state = states.find(++line);
        if (state == states.end()) return;
        game->Controls().main.window.state = state->second;
        game->Handle({.form = FormId::Main, .control = {"MainWindow"}, .kind = EventKind::Resize});
      });
  std::istream script(&lines);
  ScriptRunner runner(home.options, files, yield, script, output, errors);
  game = &runner.PlayedGame();
  EXPECT_EQ(runner.Run(), 0) << errors.str();
  EXPECT_TRUE(output.str().ends_with("LabelTijd.caption = \"01:26\"\nElapsedSeconds = 86\n")) << output.str();
}

// Foreign records: a holder who is no player, negative times, a level that is none.
TEST(Game, ShowsForeignRecords) {
  GameHome home;
  StockTable stock = MakeTestStock();
  stock(2, 1).BestMinutes = 125;
  stock(2, 1).BestSeconds = 5;
  stock(2, 1).BestPlayer = -7;
  stock(2, 2).BestMinutes = -1;
  stock(2, 2).BestSeconds = -1;
  stock(2, 2).Level = 9;
  home.PutStock(stock);
  const Played played = home.Play(
      "press CommandNew\nget StatusBar(3).caption\npress CommandSolution\npress CommandNew\n"
      "get StatusBar(1).caption\nget StatusBar(3).caption\nvar PuzzleLevel\nmark 0 8 right\nvar StepCount\n");
  EXPECT_TRUE(played.Has("StatusBar(3).caption = \"Best Time: 25:05 by \""));
  EXPECT_TRUE(played.Has("StatusBar(1).caption = \"Level: Easy\""));
  EXPECT_TRUE(played.Has("StatusBar(3).caption = \"Best Time: 00:00 (No Best Time Yet)\""));
  EXPECT_TRUE(played.Has("PuzzleLevel = 9"));
  EXPECT_TRUE(played.Has("StepCount = 1"));
}

}  // namespace
}  // namespace kestrel::testing
