// SPDX-License-Identifier: MIT
// What the window shows beyond its controls, by its state.
#include <gtest/gtest.h>

#include "game/board.h"
#include "support/approved.h"
#include "support/map_settings.h"
#include "view/digit_lens.h"
#include "view/guide.h"
#include "view/spoken_news.h"
#include "view/state_tips.h"
#include "view/texts.h"
#include "view/view_settings.h"
#include "view/window_size.h"

namespace kestrel {
namespace {

// A board with the digit 5 in A1 and D4 as givens, and in B7 as a wrong digit of the player's.
struct OpenBoard {
  explicit OpenBoard(int level) {
    puzzle.PuzzleLevel = static_cast<std::int16_t>(level);
    puzzle.GivenDigits[0] = puzzle.GivenDigits[30] = 5;
    puzzle.SolutionDigits[15] = 6;
    board.ClearGrid();
    board.LayOutGivens();
    board.EnableGrid();
    for (Button* button : {&main.CommandResetCell, &main.CommandSolution, &main.CommandHint}) {
      button->enabled = true;
    }
    board.HideMarks(511, 15);
    board.SetDigit(5, 15);
  }
  MainWindow main = MakeMainWindow();
  OpenPuzzle puzzle;
  Board board{main, puzzle};
};

TEST(DigitLens, ShowsEqualsMarksAndLines) {
  OpenBoard open(3);
  const auto lens = LensOver(open.main, 15, 0, true);
  ASSERT_TRUE(lens);
  CellSet fives = CellSet::Of(0);
  fives.Add(15);
  fives.Add(30);
  EXPECT_EQ(lens->DigitsOf(open.main), fives);  // right and wrong ones alike
  EXPECT_EQ(lens->Lines().Size(), 21);
  EXPECT_EQ((DigitLens{0, 5, true}.Lines().Size()), 21);
  EXPECT_TRUE(lens->Lines().Has(9) && lens->Lines().Has(78) && lens->Lines().Has(26));
  const CellSet marks = lens->MarksOf(open.main);
  EXPECT_TRUE(marks.Has(80));
  EXPECT_FALSE(marks.Has(1));   // the given's row
  EXPECT_FALSE(marks.Has(15));  // full
  // Over a mark, its digit counts; over nothing there is no lens.
  EXPECT_EQ(LensOver(open.main, 80, 7, true)->digit, 7);
  EXPECT_FALSE(LensOver(open.main, 80, 0, true));
  // Keys are no candidates: they do not stand out.
  EXPECT_TRUE(LensOver(open.main, 80, 5, false)->MarksOf(open.main).Empty());
  open.board.DisableGrid();
  EXPECT_FALSE(LensOver(open.main, 15, 0, true));
}

// What it says at each stage is seen in the approved pictures.
TEST(Guide, EndsWhenItIsLearntOrUnwanted) {
  MainWindow main = MakeMainWindow();
  OpenPuzzle puzzle;
  Board(main, puzzle).EnableGrid();
  main.Picture3.visible = false;
  ViewSettings view;
  for (int i = 0; i < kMarksToLearn - 1; ++i) CountMark(view);
  EXPECT_FALSE(GuideFor(main, view, true).line.empty());
  CountMark(view);
  CountMark(view);
  EXPECT_EQ(GuideFor(main, view, true), Guide());
  EXPECT_EQ(view.marks_clicked, kMarksToLearn);
  // One click ends all of it, but not what tells how a puzzle ended.
  view = ViewSettings();
  view.guide = false;
  EXPECT_EQ(GuideFor(main, view, true), Guide());
  main.end = PuzzleEnd::Solved;
  EXPECT_EQ(GuideFor(main, view, true), (Guide{false, texts::kSolvedLine, false}));
}

TEST(SpokenNews, TellsWhatOneStepDid) {
  OpenBoard open(3);
  SpokenNews news;
  EXPECT_EQ(news.Since(open.main).text, "");
  const auto step = [&](int number) { open.main.LabelStap.caption = std::to_string(number); };
  open.board.HideMarks(511, 40);
  open.board.SetDigit(7, 40);
  open.board.HideMarks(64, 41);
  step(1);
  News told = news.Since(open.main);
  EXPECT_TRUE(told.cell == 40 && told.text == "1 step") << told.cell << told.text;
  open.main.Mark(3)(0).visible = !open.main.Mark(3)(0).visible;
  step(2);
  EXPECT_EQ(news.Since(open.main).cell, 0);
  open.main.Mark(3)(3).visible = open.main.Mark(3)(51).visible = open.main.Mark(4)(52).visible = false;
  step(0);  // a restart is no single cell
  told = news.Since(open.main);
  EXPECT_TRUE(told.cell == -1 && told.text == "0 steps");
  open.main.LabelHint.tag = "3";
  open.main.LabelHint.visible = true;
  EXPECT_EQ(news.Since(open.main).text, "Hint: Pointing Pair");
  EXPECT_EQ(news.Since(open.main).text, "");
  open.main.end = PuzzleEnd::Solved;
  EXPECT_EQ(news.Since(open.main).text, "Solved in 00:00");
  open.main.end = PuzzleEnd::None;
  open.main.StatusBar(1).caption = "Level: Medium";
  open.main.StatusBar(2).caption = "Number: 4";
  EXPECT_EQ(news.Since(open.main).text, "Level: Medium, Number: 4");
}

TEST(Tips, SayWhyNothingHappens) {
  OpenBoard open(1);
  MainWindow& main = open.main;
  std::string text;
  const auto tell = [&](const std::string& when, const TipState& state = {false, 0}) {
    text += "# " + when + '\n';
    EachControl(main, [&](ControlId id, const auto&) {
      const std::string tip = StateTip(main, state, id);
      if (id.name == "LabelCount" && !state.marks_are_candidates) return;  // always the same
      if (!tip.empty()) text += FullName(id) + ": " + tip + '\n';
    });
  };
  main.OptionType(2).enabled = main.CommandNew.enabled = main.CommandHint.enabled = false;
  main.CommandSolution.enabled = main.chkSound.enabled = false;
  tell("keys, nothing selected");
  tell("renewal", {false, 2});
  main.LabelRow(0).fore = main.LabelColumn(0).fore = kRed;
  main.OptionType(3).value = main.CommandUndo.enabled = true;
  tell("marks, a given selected", {true, 0});
  main.LabelColumn(0).fore = kBlack;
  main.LabelColumn(1).fore = kRed;
  tell("an empty cell selected");
  open.board.ShowSolution();
  main.CommandResetCell.enabled = false;
  tell("ended");
  EXPECT_TRUE(main.filled_in.Has(15));  // the player's digit was wrong
  EXPECT_FALSE(main.filled_in.Has(1));
  main.Mark(1)(0).enabled = false;
  tell("no puzzle");
  ExpectApproved("view/tips.txt", text);
}

TEST(WindowSize, FitsTheScreen) {
  std::string text;
  for (int room = 40; room <= 300; room += 5) {
    text += std::to_string(room) + ':';
    for (const int size :
         {ComfortableSize(room / 100.0), FittingSize(200, room / 100.0), FittingSize(125, room / 100.0),
          NextWindowSize(room, -1), NextWindowSize(room, 1), static_cast<int>(IsWindowSize(room))}) {
      text += ' ' + std::to_string(size);
    }
    text += '\n';
  }
  ExpectApproved("view/sizes.txt", text);
}

TEST(ViewSettings, AreRemembered) {
  testing::MapSettings settings;
  EXPECT_EQ(LoadViewSettings(settings), ViewSettings());
  const ViewSettings chosen{150, ColourChoice::HighContrast, false, false, 7};
  SaveViewSettings(settings, chosen, ViewSettings());
  EXPECT_EQ(LoadViewSettings(settings), chosen);
  settings.values["View/Size"] = "130";
  settings.values["View/Colours"] = "Pink";
  settings.values["View/Marks_Clicked"] = "-3";
  EXPECT_EQ(LoadViewSettings(settings), (ViewSettings{kNoSize, ColourChoice::Desktop, false, false, 0}));
}

}  // namespace
}  // namespace kestrel
