// SPDX-License-Identifier: MIT
// What a transcript cannot show: the command line, exit statuses, and scripts that end in the middle.
#include <gtest/gtest.h>

#include <sstream>

#include "support/game_home.h"
#include "ui/memory/json_string.h"
#include "ui/memory/transcript.h"

namespace kestrel::testing {
namespace {

TEST(Script, EndsAtALineThatIsNoCommand) {
  // What each line is refused for; none of them does anything.
  std::istringstream lines(
      "jump\npress\npress Nothing\npress Naamlijst\npress Mark1(81)\n"
      "release Mark1(0) left 1\nrelease CommandNew left 1 1\nmark 0 10\nmark 81 1\nmark 0 1 both\n"
      "row 9\nselect Naamlijst 0\nselect CommandNew 0\ntype LabelTijd x\nkey NaamInvoerveld tab\n"
      "answer OK\ncancel\nwindow shut\ndialog close\ndialog open\n"
      "at 1\nat 0 tick\nat x tick\nat 1 at 1 tick\nat 1 answer OK\nat 1 echo\nat 1 renew 1\n"
      "clock 25:00:00\ntick -1\nrounds\nrenew x\nget CommandNew\n"
      "get CommandNew.value\nget Grid(81).caption\nget Naamlijst.line(0)\nvar Nothing\nvar CurrentNumber(6)\n"
      "var PlayerNames(1)\nrecord 0 1\nrecord 1 101\n");
  for (std::string line; std::getline(lines, line);) {
    GameHome home;
    const Played played = home.Play("echo one\n\n# two\n" + line + "\necho five\n");
    if (played.Count("refused") > 0) continue;
    EXPECT_EQ(played.status, 2) << line;
    EXPECT_TRUE(played.errors.starts_with("line 4: ")) << line << ": " << played.errors;
    EXPECT_TRUE(played.Has("echo one")) << line;
    EXPECT_FALSE(played.Has("echo five")) << line;
  }
  GameHome home;
  EXPECT_TRUE(home.Play("press cmdPlayers\nselect Naamlijst 0\n").errors.starts_with("line 2: "));
}

TEST(Script, EndingInABoxLeavesTheGameAsItIs) {
  GameHome home;
  EXPECT_EQ(home.Play("press CommandOpen\nclock 12:00:01\n").status, 0);
  const std::string settings = home.home.Get("settings.ini");
  const Played played = home.Play("press CommandOpen\n");
  EXPECT_EQ(played.status, 0);
  EXPECT_FALSE(played.Has("ended"));
  EXPECT_EQ(played.output.substr(played.output.rfind("input")),
            "input \"Sudoku number\" \"Enter a value between 1 and 100\" \"1\"\n");
  EXPECT_EQ(home.home.Get("settings.ini"), settings);
  EXPECT_EQ(home.Play("press cmdPlayers\npress KnopNieuweSpeler\ntype NaamInvoerveld Ann\n").status, 0);
  EXPECT_EQ(home.home.Get("settings.ini"), settings);
}

TEST(Transcript, WritesValuesAsJson) {
  EXPECT_EQ(JsonString("a\"b\\c\nd\te"), R"("a\"b\\c\nd\u0009e")");
  EXPECT_EQ(JsonString("\xC3\xAB\x7f\xC3(\xF5\xED\xA0\x80"),
            "\"\xC3\xAB\\u007f"
            R"(\ufffd(\ufffd\ufffd\ufffd\ufffd")");
  EXPECT_EQ(Points(18), "18");
  EXPECT_EQ(Points(20.25), "20.25");
}

}  // namespace
}  // namespace kestrel::testing
